#include "Services/FlatpakUser.h"

#include "Platform/ExecutablePath.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/Subprocess.h"
#include "Platform/XdgFolders.h"

#include <chrono>

namespace FlatpakUser {
namespace {

// Removing a large app and pruning its objects takes a while, but never this long.
constexpr std::chrono::minutes uninstallTimeout{5};

bool isIdCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

}  // namespace

std::string installationFolder() { return XdgFolders::dataHome() + "/flatpak"; }
std::string appsFolder() { return installationFolder() + "/app"; }
std::string exportedApplicationsFolder() { return installationFolder() + "/exports/share/applications"; }

bool isValidAppId(std::string_view id)
{
    if (id.empty() || id.size() > 255)
        return false;
    int parts = 0;
    std::size_t start = 0;
    while (start <= id.size()) {
        const std::size_t end = std::min(id.find('.', start), id.size());
        const std::string_view part = id.substr(start, end - start);
        if (part.empty() || (part.front() >= '0' && part.front() <= '9'))
            return false;
        for (char c : part) {
            if (!isIdCharacter(c))
                return false;
        }
        ++parts;
        start = end + 1;
    }
    return parts >= 3;
}

std::optional<std::string> appIdOfFolder(const std::string& path)
{
    const std::string folder = appsFolder();
    if (!path.starts_with(folder + "/"))
        return std::nullopt;
    std::string id = path.substr(folder.size() + 1);
    while (id.ends_with("/"))
        id.pop_back();
    if (!isValidAppId(id))
        return std::nullopt;
    return id;
}

std::vector<std::string> installedAppIds()
{
    std::vector<std::string> ids;
    for (const std::string& name : FileSystem::contentsOfFolder(appsFolder()).value_or(std::vector<std::string>{})) {
        if (isValidAppId(name) && FileSystem::isFolderFollowingLinks(appsFolder() + "/" + name))
            ids.push_back(name);
    }
    return ids;
}

bool uninstall(const std::string& appId)
{
    if (!isValidAppId(appId))
        return false;
    const auto tool = ExecutablePath::find("flatpak");
    if (!tool)
        return false;
    Subprocess::Options options;
    options.executable = *tool;
    options.arguments = {"uninstall", "--user", "--noninteractive", appId};
    options.workingFolder = Paths::home();
    options.timeout = uninstallTimeout;
    const Subprocess::Result result = Subprocess::run(options);
    return result.launched && result.status == 0;
}

}  // namespace FlatpakUser
