// Generates the same tree for the same seed, for the duplicate finders to race on:
//   - many small files of unique contents (64 bytes to 8 KB) spread over nested folders;
//   - unique large files (1 to 40 MB);
//   - same-size sets whose members differ from the first only in their first byte, their last
//     byte or a byte in the middle;
//   - true copies of 1 to 200 MB in sets of 2 to 5, in different folders;
//   - one file with a second hard link.
// Every byte is written for real (no sparse files), so reading costs what it costs on a real
// home. Nothing is hidden, so every tool sees the same files.
//
//   make-dups-tree ROOT [SMALL_FILES [SEED]]     defaults: 100000 files, seed 1

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fcntl.h>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MB = 1'000'000;

// Fills `bytes` with a stream drawn from `seed`, fast enough to write gigabytes.
void fill(std::string& bytes, std::uint64_t seed)
{
    std::uint64_t state = seed * 0x9e3779b97f4a7c15ULL + 0x632be59bd9b4e019ULL;
    std::size_t i = 0;
    for (; i + 8 <= bytes.size(); i += 8) {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        std::memcpy(bytes.data() + i, &state, 8);
    }
    for (; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(state >> (8 * (i % 8)));
}

void write(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0 || ::write(fd, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
        std::perror(path.c_str());
        std::exit(1);
    }
    close(fd);
}

std::string contents(std::size_t size, std::uint64_t seed)
{
    std::string bytes(size, '\0');
    fill(bytes, seed);
    return bytes;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: make-dups-tree ROOT [SMALL_FILES [SEED]]\n");
        return 2;
    }
    const fs::path root = argv[1];
    const long smallFiles = argc > 2 ? std::atol(argv[2]) : 100000;
    const std::uint64_t seed = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1;
    std::mt19937_64 random(seed);
    std::uint64_t nextSeed = seed << 32;
    std::size_t total = 0;

    std::vector<fs::path> folders = {root / "small"};
    for (int i = 1; i < 2000; ++i)
        folders.push_back(folders[random() % folders.size()] / ("d" + std::to_string(i)));
    for (long i = 0; i < smallFiles; ++i) {
        const std::size_t size = 64 + random() % 8129;
        write(folders[random() % folders.size()] / ("f" + std::to_string(i) + ".dat"), contents(size, ++nextSeed));
        total += size;
    }

    for (int i = 0; i < 60; ++i) {
        const std::size_t size = MB + random() % (39 * MB);
        write(root / "unique" / ("u" + std::to_string(i) + ".bin"), contents(size, ++nextSeed));
        total += size;
    }

    // Same size, one byte apart from the first of the set: at the start, at the end, in the middle.
    for (int set = 0; set < 8; ++set) {
        const std::size_t size = 5 * MB + random() % (25 * MB);
        std::string bytes = contents(size, ++nextSeed);
        const fs::path folder = root / "near" / ("set" + std::to_string(set));
        write(folder / "base.bin", bytes);
        const std::size_t places[] = {0, size - 1, size / 2};
        const char* names[] = {"first.bin", "last.bin", "middle.bin"};
        for (int k = 0; k < 3; ++k) {
            std::string variant = bytes;
            variant[places[k]] = static_cast<char>(~variant[places[k]]);
            write(folder / names[k], variant);
        }
        total += 4 * size;
    }

    // True copies: sizes spread evenly on a log scale from 1 to 200 MB, 2 to 5 copies each.
    for (int set = 0; set < 14; ++set) {
        const double fraction = std::uniform_real_distribution<double>(0, 1)(random);
        const auto size = static_cast<std::size_t>(MB * std::pow(200.0, fraction));
        const int copies = 2 + static_cast<int>(random() % 4);
        const std::string bytes = contents(size, ++nextSeed);
        for (int c = 0; c < copies; ++c)
            write(root / "copies" / ("place" + std::to_string(c)) / ("set" + std::to_string(set) + ".bin"), bytes);
        total += copies * size;
    }

    const fs::path linked = root / "linked" / "original.bin";
    write(linked, contents(12 * MB, ++nextSeed));
    fs::create_hard_link(linked, root / "linked" / "second-name.bin");
    total += 12 * MB;

    std::printf("%ld small files and the large sets under %s: %.2f GB written\n", smallFiles, root.c_str(),
                double(total) / 1e9);
    return 0;
}
