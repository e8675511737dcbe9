#include "Support/TreeSnapshot.h"

#include <filesystem>

namespace fs = std::filesystem;

TreeSnapshot snapshotTree(const std::string& root, const std::vector<std::string>& skip)
{
    TreeSnapshot snapshot;
    std::error_code error;
    for (auto it = fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied, error);
         !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        const std::string path = it->path().string();
        bool skipped = false;
        for (const auto& prefix : skip)
            skipped = skipped || path == prefix || path.starts_with(prefix + "/");
        if (skipped) {
            if (it->is_directory(error) && !it->is_symlink(error))
                it.disable_recursion_pending();
            continue;
        }
        std::string description;
        if (it->is_symlink(error))
            description = "link to " + fs::read_symlink(it->path(), error).string();
        else if (it->is_directory(error))
            description = "folder";
        else
            description = "file of " + std::to_string(it->file_size(error));
        snapshot[path] = description;
    }
    return snapshot;
}
