#pragma once

#include "Models/StartupItem.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What launch agents and autostart entries have in common: a live folder the system reads, a
// folder beside it for the switched-off ones, and a file per item.
namespace StartupFolder {

// Makes the item for the file `name` at `path`, which lies in the live folder or not.
using MakeItem = std::function<StartupItem(const std::string& path, const std::string& name, bool inLiveFolder)>;

// The files of `live` whose names end in `suffix`, sorted by label whatever the case, then those
// of `switchedOff` sorted the same way. A folder that can't be listed adds nothing.
std::vector<StartupItem> list(const std::string& live, const std::string& switchedOff, std::string_view suffix,
                              const MakeItem& make);

}  // namespace StartupFolder
