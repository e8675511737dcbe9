#pragma once

#include "Platform/ItemInfo.h"

#include <optional>
#include <string>
#include <vector>

// Items on disk by path. Nothing here follows a symbolic link unless its name says so.
namespace FileSystem {

std::optional<ItemInfo> info(const std::string& path);
std::optional<ItemInfo> infoFollowingLinks(const std::string& path);

// Something is at the path; a dangling link counts.
bool exists(const std::string& path);
// A folder, or a link that leads to one.
bool isFolderFollowingLinks(const std::string& path);

// The names in a folder, hidden ones included, in the order the folder lists them; none when it
// can't be listed.
std::optional<std::vector<std::string>> contentsOfFolder(const std::string& path);
// The same for `name` (a single name, a path, or ".") relative to the open folder `folderDescriptor`.
std::optional<std::vector<std::string>> contentsOfFolderAt(int folderDescriptor, const std::string& name);

// Removes a file, a link (never what it points to) or a whole folder tree. True when nothing is
// left at the path.
bool removeItem(const std::string& path);
// The same for `name` (a single name, or a path) relative to the open folder `folderDescriptor`.
bool removeItemAt(int folderDescriptor, const std::string& name);

// Renames within one volume; false across volumes, or when anything at all is at `to`: nothing
// there is ever replaced.
bool moveItemWithoutReplacing(const std::string& from, const std::string& to);

// Creates the folder and any missing parents; true when a folder is there afterwards.
bool createFolders(const std::string& path);

}  // namespace FileSystem
