#include "Support/TreeBuilder.h"

#include <algorithm>
#include <filesystem>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace TreeBuilder {

void makeDeepChain(const std::string& root, int depth, const std::string& name, std::size_t fileBytes)
{
    int current = open(root.c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < depth && current >= 0; ++level) {
        mkdirat(current, name.c_str(), 0755);
        const int next = openat(current, name.c_str(), O_RDONLY | O_DIRECTORY);
        close(current);
        current = next;
    }
    if (current < 0)
        throw std::runtime_error("cannot build deep chain");
    const int file = openat(current, "bottom.bin", O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const std::string bytes(fileBytes, 'x');
    if (file < 0 || ::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        throw std::runtime_error("cannot write bottom file");
    close(file);
    close(current);
}

int chainDepth(const std::string& root, const std::string& name)
{
    int current = open(root.c_str(), O_RDONLY | O_DIRECTORY);
    int depth = 0;
    while (current >= 0) {
        const int next = openat(current, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
        close(current);
        if (next < 0)
            break;
        current = next;
        ++depth;
    }
    return depth;
}

void writeFile(const std::string& path, std::size_t bytes)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << std::string(bytes, 'x');
}

std::int64_t allocatedSize(const std::string& path)
{
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0)
        return 0;
    return static_cast<std::int64_t>(status.st_blocks) * 512;
}

int openDescriptorCount()
{
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        ++count;
    return count;
}

std::string contentsOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> namesIn(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (auto it = std::filesystem::directory_iterator(folder, error); !error && it != std::filesystem::directory_iterator();
         it.increment(error))
        names.push_back(it->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace TreeBuilder
