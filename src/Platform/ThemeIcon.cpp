#include "Platform/ThemeIcon.h"

#include "Platform/FileSystem.h"
#include "Platform/XdgFolders.h"

#include <array>
#include <vector>

namespace ThemeIcon {
namespace {

constexpr std::array sizes = {"scalable", "256x256", "512x512", "128x128", "96x96", "64x64", "48x48", "32x32"};
constexpr std::array extensions = {".svg", ".png"};

bool isFile(const std::string& path)
{
    const auto info = FileSystem::infoFollowingLinks(path);
    return info && info->isRegularFile();
}

std::vector<std::string> iconFolders()
{
    std::vector<std::string> folders = {XdgFolders::dataHome() + "/icons",
                                        XdgFolders::dataHome() + "/flatpak/exports/share/icons"};
    for (const std::string& dir : XdgFolders::dataDirs())
        folders.push_back(dir + "/icons");
    return folders;
}

}  // namespace

std::optional<std::string> find(const std::string& nameOrPath)
{
    if (nameOrPath.empty())
        return std::nullopt;
    if (nameOrPath.starts_with("/"))
        return isFile(nameOrPath) ? std::optional(nameOrPath) : std::nullopt;
    if (nameOrPath.find('/') != std::string::npos || nameOrPath == "." || nameOrPath == "..")
        return std::nullopt;
    const std::vector<std::string> folders = iconFolders();
    for (const std::string& folder : folders) {
        for (const char* size : sizes) {
            for (const char* extension : extensions) {
                const std::string candidate = folder + "/hicolor/" + size + "/apps/" + nameOrPath + extension;
                if (isFile(candidate))
                    return candidate;
            }
        }
    }
    for (const std::string& folder : folders) {
        for (const char* extension : extensions) {
            if (isFile(folder + "/" + nameOrPath + extension))
                return folder + "/" + nameOrPath + extension;
        }
    }
    for (const char* extension : extensions) {
        if (isFile("/usr/share/pixmaps/" + nameOrPath + extension))
            return "/usr/share/pixmaps/" + nameOrPath + extension;
    }
    return std::nullopt;
}

}  // namespace ThemeIcon
