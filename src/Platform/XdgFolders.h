#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The per-user base folders of the freedesktop.org base directory rules, read from the
// environment on every call so a test that points them at a temporary home is seen at once. A
// variable that is unset, empty or not an absolute path is ignored, as the rules ask.
namespace XdgFolders {

std::string dataHome();    // $XDG_DATA_HOME, else ~/.local/share
std::string configHome();  // $XDG_CONFIG_HOME, else ~/.config
std::string cacheHome();   // $XDG_CACHE_HOME, else ~/.cache
std::string stateHome();   // $XDG_STATE_HOME, else ~/.local/state

// $XDG_DATA_DIRS in order of preference, else /usr/local/share and /usr/share.
std::vector<std::string> dataDirs();

// The user's folder of a kind ("DOCUMENTS", "DOWNLOAD", "DESKTOP", ...) where the desktop's
// folder settings put it ($XDG_CONFIG_HOME/user-dirs.dirs): a German desktop keeps its documents
// in ~/Dokumente. None when the file, or a well-formed line for the kind, is missing.
std::optional<std::string> userDir(std::string_view kind);

}  // namespace XdgFolders
