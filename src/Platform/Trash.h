#pragma once

#include "Platform/OpenFolder.h"

#include <optional>
#include <string>

// The desktop's Trash, as the freedesktop.org Trash specification 1.0 lays it out, so that file
// managers, `gio trash` and trash-cli list and restore what we trash, and we theirs.
//
// Items go to the home trash when they live on its volume, else to the trash at the top of their
// own volume (`.Trash/$uid` when the administrator provided a safe shared `.Trash`, otherwise
// `.Trash-$uid`). They are only ever renamed, never copied: an item that can't be renamed into a
// trash is not trashed, and the caller decides what happens to it instead.
namespace Trash {

struct Result {
    bool trashed = false;
    // Where the item now lies, in the trash's files/ folder.
    std::optional<std::string> trashPath;
};

// Moves the item at the absolute `path` (a link is trashed as the link itself) to the Trash.
// Refused for anything that already lies in a trash, or is a trash folder, so that emptying the
// Trash through the cleaner deletes it for real.
Result trashItem(const std::string& path);

// The same for the entry `name` of an open folder: the move starts from the folder that was
// opened, whatever has been swapped on its path since. The folder's path must be free of links.
Result trashChild(const OpenFolder& folder, const std::string& name);

// Moves a trashed item back to `originalPath`, creating missing parent folders, and removes its
// .trashinfo. False, with nothing changed, when something already stands at `originalPath` or
// the item is no longer in the trash.
bool putBack(const std::string& trashPath, const std::string& originalPath);

// $XDG_DATA_HOME/Trash, else ~/.local/share/Trash; read from the environment on every call.
std::string homeTrashFolder();

}  // namespace Trash
