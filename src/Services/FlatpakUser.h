#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Flatpak apps installed for the user alone, in the per-user installation under the data folder.
// Their deployed files can't go to the Trash (the installation keeps them in its own store), so
// they are removed through the flatpak tool; their data under ~/.var/app is ordinary files.
namespace FlatpakUser {

// $XDG_DATA_HOME/flatpak
std::string installationFolder();
// installationFolder()/app: one folder per installed app, named by its id.
std::string appsFolder();
// installationFolder()/exports/share/applications: the apps' desktop entries.
std::string exportedApplicationsFolder();

// A Flatpak application id: three or more dot-separated parts of ASCII letters, digits, "_" and
// "-", none starting with a digit, at most 255 characters. Anything else is never handed to the
// tool, so an id can't be taken for an option.
bool isValidAppId(std::string_view id);

// The id when `path` is exactly a per-user app's folder, appsFolder()/<id>.
std::optional<std::string> appIdOfFolder(const std::string& path);

// The ids of the per-user apps, in listing order.
std::vector<std::string> installedAppIds();

// Runs `flatpak uninstall --user --noninteractive <id>` directly, without a shell, with the
// tool found on $PATH. True when it exited with status 0.
bool uninstall(const std::string& appId);

}  // namespace FlatpakUser
