#pragma once

#include "Platform/ItemInfo.h"

#include <optional>
#include <string>
#include <vector>

// A folder opened once, through no symbolic link, and held open. What is listed and removed
// through it stays inside the folder that was opened, whatever is renamed or swapped for a link
// on its path meanwhile: a check of the path followed by removals by path string would leave a
// gap in which a swapped component redirects them.
class OpenFolder {
public:
    // Opens the folder at the absolute `path` one component at a time, refusing a symbolic link
    // at any of them, a "." or "..", and anything that is not a folder. None when that fails.
    static std::optional<OpenFolder> open(const std::string& path);

    OpenFolder(OpenFolder&& other) noexcept;
    OpenFolder& operator=(OpenFolder&& other) noexcept;
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;
    ~OpenFolder();

    // The path it was opened by; what it names may have moved since.
    const std::string& path() const { return path_; }
    // The open folder, for relative calls of other platform code; valid while this lives.
    int descriptor() const { return descriptor_; }

    // The names inside, hidden ones included; empty when the folder can't be listed.
    std::vector<std::string> childNames() const;
    // What the entry itself is, a link not followed; none when it is gone.
    std::optional<ItemInfo> childInfo(const std::string& name) const;
    // Removes the entry: a file, a link as the link, or a folder tree, never following a link.
    // True when nothing is left under the name.
    bool removeChild(const std::string& name) const;

private:
    OpenFolder(int descriptor, std::string path) : descriptor_(descriptor), path_(std::move(path)) {}

    int descriptor_ = -1;
    std::string path_;
};
