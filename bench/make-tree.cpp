// Generates the same tree for the same seed, counts and shape: nested folders, files of mixed
// sizes (mostly small, a few large), some hidden names, a few links. Sizes are written sparsely
// (truncate) above 64 KB so the tree is quick to make yet has realistic allocated sizes below it.
//
//   make-tree ROOT [FILES [FOLDERS [SEED [SHAPE]]]]   defaults: 200000 files, 20000 folders, seed 1
//
// SHAPE "random" (the default) puts each folder in a uniformly chosen earlier one: a wide tree
// some 20 to 30 levels deep. "chain" puts each folder in the one made before it: one path as many
// levels deep as there are folders, far past the longest path the system accepts, so it is made
// through folder descriptors.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fcntl.h>
#include <random>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::string block(65536, 'm');

std::string folderName(std::mt19937_64& random, long i)
{
    return (random() % 20 == 0 ? ".dir" : "dir") + std::to_string(i);
}

// Writes file number `i` into the folder open at `folder`, and every 5,000th a link beside it,
// to the file's path in `folderPath` (absolute), or to its bare name when that is empty.
void makeFile(std::mt19937_64& random, int folder, const std::string& folderPath, long i)
{
    const std::string name = (random() % 25 == 0 ? ".file" : "file") + std::to_string(i) + ".dat";
    const int fd = openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return;
    const unsigned roll = random() % 1000;
    const std::size_t bytes = roll < 700 ? random() % 4096 : roll < 990 ? random() % 65536 : 1 << 20;
    if (bytes <= block.size()) {
        if (::write(fd, block.data(), bytes) < 0)
            std::perror("write");
    } else if (ftruncate(fd, static_cast<off_t>(bytes)) != 0) {
        std::perror("ftruncate");
    }
    close(fd);
    const std::string target = folderPath.empty() ? name : folderPath + "/" + name;
    if (i % 5000 == 0 && symlinkat(target.c_str(), folder, ("link" + std::to_string(i)).c_str()) != 0)
        std::perror("symlinkat");
}

void makeRandomTree(const fs::path& root, long files, long folders, std::mt19937_64& random)
{
    std::vector<fs::path> made = {root};
    for (long i = 1; i < folders; ++i) {
        const fs::path parent = made[random() % made.size()];
        made.push_back(parent / folderName(random, i));
        fs::create_directory(made.back());
    }
    for (long i = 0; i < files; ++i) {
        const fs::path& folder = made[random() % made.size()];
        const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        makeFile(random, fd, folder.string(), i);
        close(fd);
    }
}

// The files are dealt to the levels first, so each level is written while it is open.
void makeChain(const fs::path& root, long files, long folders, std::mt19937_64& random)
{
    std::vector<std::vector<long>> filesAt(static_cast<std::size_t>(folders));
    for (long i = 0; i < files; ++i)
        filesAt[random() % filesAt.size()].push_back(i);
    int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (long level = 0; level < folders; ++level) {
        for (const long i : filesAt[static_cast<std::size_t>(level)])
            makeFile(random, folder, {}, i);
        if (level + 1 == folders)
            break;
        const std::string name = folderName(random, level + 1);
        if (mkdirat(folder, name.c_str(), 0755) != 0) {
            std::perror("mkdirat");
            break;
        }
        const int next = openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        close(folder);
        folder = next;
    }
    close(folder);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: make-tree ROOT [FILES [FOLDERS [SEED [random|chain]]]]\n");
        return 2;
    }
    const fs::path root = argv[1];
    const long files = argc > 2 ? std::atol(argv[2]) : 200000;
    const long folders = std::max(argc > 3 ? std::atol(argv[3]) : 20000, 1L);
    std::mt19937_64 random(argc > 4 ? std::strtoull(argv[4], nullptr, 10) : 1);
    const std::string shape = argc > 5 ? argv[5] : "random";
    if (shape != "random" && shape != "chain") {
        std::fprintf(stderr, "make-tree: unknown shape %s\n", shape.c_str());
        return 2;
    }
    fs::create_directories(root);
    if (shape == "chain")
        makeChain(root, files, folders, random);
    else
        makeRandomTree(root, files, folders, random);
    std::printf("%ld files in %ld folders (%s) under %s\n", files, folders, shape.c_str(), root.c_str());
    return 0;
}
