#pragma once

#include <string>

// The user's home folder and the path spellings built on it.
namespace Paths {

// $HOME when set, else the password database's entry for the user, without trailing slashes.
// Read on every call, so a test that points HOME at a temporary folder is seen at once.
std::string home();

// The home folder with its links resolved: what a resolved path is compared with. Where /home is
// a link (image-based desktops keep homes under /var/home), this is the real place.
std::string resolvedHome();

// "~" alone or a leading "~/" becomes the home folder; anything else is returned unchanged.
std::string expandingTilde(const std::string& path);

// The home folder at the start of `path` becomes "~", for what the user reads; the home as
// written and as resolved both count.
std::string abbreviatingWithTilde(const std::string& path);

// An absolute path with the symbolic links of its existing part resolved, the rest kept as
// written, and "." and ".." removed. A relative path is taken from the working folder.
std::string resolvingSymlinks(const std::string& path);

// The folder holding `path`: "/" for an item at the top, "." for a bare name.
std::string parentFolder(const std::string& path);

// `folder` + "/" + `name`, with no doubled slash when `folder` ends in one (as "/" does).
std::string joined(const std::string& folder, const std::string& name);

// The last component of `path`, trailing slashes ignored; empty for "/".
std::string lastComponent(const std::string& path);

}  // namespace Paths
