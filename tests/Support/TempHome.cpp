#include "Support/TempHome.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

void makeRemovable(const fs::path& root)
{
    // Tests leave unreadable folders behind on purpose; give them back before removing.
    std::error_code error;
    fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, error);
    for (auto it = fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied, error);
         !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        if (it->is_directory(error) && !it->is_symlink(error))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
}

}  // namespace

TempHome::TempHome()
{
    std::string pattern = (fs::temp_directory_path() / "mopwell-home.XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot create a temporary home");
    // Resolved, so paths the code under test resolves compare equal to ours.
    root_ = fs::canonical(pattern).string();
    home_ = root_ + "/home";
    const std::pair<const char*, std::string> values[] = {
        {"HOME", home_}, {"XDG_CONFIG_HOME", configHome()}, {"XDG_DATA_HOME", dataHome()},
        {"XDG_CACHE_HOME", home_ + "/.cache"}, {"XDG_STATE_HOME", home_ + "/.local/state"}};
    for (const auto& [name, value] : values) {
        fs::create_directories(value);
        variables_.emplace_back(name, value);
    }
}

TempHome::~TempHome()
{
    makeRemovable(root_);
    std::error_code error;
    fs::remove_all(root_, error);
}

std::string TempHome::writeFile(const std::string& relative, const std::string& contents) const
{
    const fs::path path = fs::path(home_) / relative;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << contents;
    return path.string();
}

std::string TempHome::makeFolder(const std::string& relative) const
{
    const fs::path path = fs::path(home_) / relative;
    fs::create_directories(path);
    return path.string();
}
