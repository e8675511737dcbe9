// Generates the same tree for the same seed and counts: nested folders, files of mixed sizes
// (mostly small, a few large), some hidden names, a few links. Sizes are written sparsely
// (truncate) above 64 KB so the tree is quick to make yet has realistic allocated sizes below it.
//
//   make-tree ROOT [FILES [FOLDERS [SEED]]]     defaults: 200000 files, 20000 folders, seed 1

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fcntl.h>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: make-tree ROOT [FILES [FOLDERS [SEED]]]\n");
        return 2;
    }
    const fs::path root = argv[1];
    const long files = argc > 2 ? std::atol(argv[2]) : 200000;
    const long folders = argc > 3 ? std::atol(argv[3]) : 20000;
    std::mt19937_64 random(argc > 4 ? std::strtoull(argv[4], nullptr, 10) : 1);

    std::vector<fs::path> made = {root};
    fs::create_directories(root);
    for (long i = 1; i < folders; ++i) {
        // A uniformly chosen parent gives a random recursive tree: wide, and some 20 to 30 deep.
        const fs::path parent = made[random() % made.size()];
        const std::string name = (random() % 20 == 0 ? ".dir" : "dir") + std::to_string(i);
        made.push_back(parent / name);
        fs::create_directory(made.back());
    }
    const std::string block(65536, 'm');
    for (long i = 0; i < files; ++i) {
        const fs::path& folder = made[random() % made.size()];
        const std::string name = (random() % 25 == 0 ? ".file" : "file") + std::to_string(i) + ".dat";
        const int fd = open((folder / name).c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (fd < 0)
            continue;
        const unsigned roll = random() % 1000;
        const std::size_t bytes = roll < 700 ? random() % 4096 : roll < 990 ? random() % 65536 : 1 << 20;
        if (bytes <= block.size()) {
            if (::write(fd, block.data(), bytes) < 0)
                std::perror("write");
        } else if (ftruncate(fd, static_cast<off_t>(bytes)) != 0) {
            std::perror("ftruncate");
        }
        close(fd);
        if (i % 5000 == 0)
            fs::create_symlink(folder / name, folder / ("link" + std::to_string(i)));
    }
    std::printf("%ld files in %ld folders under %s\n", files, folders, root.c_str());
    return 0;
}
