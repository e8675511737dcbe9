#pragma once

// Platform-internal: which trash folder takes an item, and whether an item already lies in one.

#include <optional>
#include <string>

struct TrashLocation {
    // Holds the files/ and info/ folders.
    std::string folder;
    // The top folder of the volume whose trash this is: Path= is written relative to it. Empty
    // for the home trash, whose Path= is absolute.
    std::string topFolder;

    // $XDG_DATA_HOME/Trash when that variable holds an absolute path, else ~/.local/share/Trash.
    static std::string homeFolder();

    // The trash that can take the item at `itemPath` (absolute, its parent free of links) by a
    // rename, with files/ and info/ created when missing; none when there is no usable one.
    static std::optional<TrashLocation> forItem(const std::string& itemPath);

    // True for a trash folder (home or a volume's, anyone's) and everything inside one.
    static bool holds(const std::string& itemPath);
};
