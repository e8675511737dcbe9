#pragma once

#include <string>
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

}  // namespace XdgFolders
