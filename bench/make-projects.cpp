// Generates the same tree of code projects for the same seed and count: projects of mixed kinds
// (Node, Next.js, Rust, Python, Gradle, CMake, .NET, Elixir) in folders one to three levels deep,
// each with a little source, a .git folder and build output of 1,000 to 20,000 files (most of
// them small, so a count of many projects stays quick to write), node_modules with packages that
// carry node_modules of their own, and decoys that must not be found: a target with no
// Cargo.toml beside it, a venv with no manifest, a build folder with no build file, and whole
// projects below ROOT/ignored, which the benchmark passes as ignored.
//
//   make-projects ROOT [PROJECTS [SEED]]     defaults: 300 projects, seed 1
//
// Prints the number of build folders that should be found, then the number of decoys.

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::mt19937_64 generator;

std::size_t below(std::size_t limit) { return static_cast<std::size_t>(generator() % limit); }

// One file in twenty holds a few kilobytes; the rest are empty, which costs the walks the same
// listing and metadata call per file without gigabytes of data.
void writeFile(const fs::path& path)
{
    static const std::string block(8192, 'p');
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return;
    if (below(20) == 0 && ::write(fd, block.data(), 512 + below(block.size() - 512)) < 0)
        std::perror("write");
    close(fd);
}

// Mostly a few thousand files, now and then many more.
std::size_t buildFileCount()
{
    const std::size_t roll = below(100);
    if (roll < 70)
        return 1000 + below(3000);
    if (roll < 95)
        return 4000 + below(6000);
    return 10000 + below(10001);
}

// `files` files spread over nested folders of up to 60 entries each, as build output lies.
void fillBuildFolder(const fs::path& folder, std::size_t files, bool nestedModules)
{
    fs::create_directories(folder);
    std::vector<fs::path> folders = {folder};
    for (std::size_t i = 0; i < files; ++i) {
        if (i % 40 == 39) {
            const fs::path& parent = folders[below(folders.size())];
            // Packages in node_modules bring their own node_modules.
            const bool nested = nestedModules && below(4) == 0;
            fs::path made = nested ? parent / "node_modules" / ("dep" + std::to_string(i)) : parent / ("pkg" + std::to_string(i));
            fs::create_directories(made);
            folders.push_back(std::move(made));
        }
        writeFile(folders[below(folders.size())] / ("f" + std::to_string(i) + ".js"));
    }
}

void writeSource(const fs::path& project)
{
    fs::create_directories(project / "src" / "lib");
    fs::create_directories(project / ".git" / "objects");
    for (int i = 0; i < 12; ++i)
        writeFile(project / (i % 3 == 0 ? "src/lib" : "src") / ("m" + std::to_string(i) + ".src"));
    for (int i = 0; i < 20; ++i)
        writeFile(project / ".git" / "objects" / ("o" + std::to_string(i)));
    writeFile(project / "README.md");
}

struct Kind {
    const char* marker;
    std::vector<const char*> buildFolders;
    bool nestedModules = false;
};

const std::vector<Kind> kinds = {
    {"package.json", {"node_modules"}, true},
    {"package.json", {"node_modules", ".next"}, true},
    {"Cargo.toml", {"target"}},
    {"pyproject.toml", {".venv"}},
    {"build.gradle", {"build", ".gradle"}},
    {"CMakeLists.txt", {"cmake-build-debug"}},
    {"App.csproj", {"bin", "obj"}},
    {"mix.exs", {"_build", "deps"}},
};

// Where the next project goes: one to three levels below ROOT.
fs::path projectFolder(const fs::path& root, int index)
{
    static const char* const areas[] = {"work", "personal", "oss", "clients/acme", "clients/globex/apps"};
    return root / areas[below(std::size(areas))] / ("project" + std::to_string(index));
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: make-projects ROOT [PROJECTS [SEED]]\n");
        return 2;
    }
    const fs::path root = argv[1];
    const int projects = argc > 2 ? std::atoi(argv[2]) : 300;
    generator.seed(argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1);

    int expected = 0;
    for (int i = 0; i < projects; ++i) {
        const Kind& kind = kinds[below(kinds.size())];
        const fs::path project = projectFolder(root, i);
        writeSource(project);
        writeFile(project / kind.marker);
        for (const char* name : kind.buildFolders) {
            fillBuildFolder(project / name, buildFileCount(), kind.nestedModules && name == std::string("node_modules"));
            ++expected;
        }
    }

    // Decoys: names that are looked for, without what makes them build output, and projects the
    // user asked never to be suggested.
    int decoys = 0;
    for (int i = 0; i < projects / 15; ++i) {
        const fs::path folder = root / "notes" / ("decoy" + std::to_string(i));
        writeSource(folder);
        const char* const names[] = {"target", "venv", "build"};
        fillBuildFolder(folder / names[i % 3], 200, false);
        ++decoys;
        const fs::path ignored = root / "ignored" / ("project" + std::to_string(i));
        writeSource(ignored);
        writeFile(ignored / "package.json");
        fillBuildFolder(ignored / "node_modules", 200, true);
        ++decoys;
    }
    std::printf("%d %d\n", expected, decoys);
    return 0;
}
