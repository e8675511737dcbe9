#pragma once

#include "Models/Uuid.h"

#include <cstdint>
#include <string>

// One thing an uninstall can remove: the application itself or one of its leftovers.
struct UninstallItem {
    Uuid id;             // made fresh when the item is found; the window's selection holds these
    std::string label;   // what kind of item it is: "Application", "Preferences", "App cache", …
    std::string path;    // absolute
    std::int64_t size = 0;
    bool isBundle = false;  // the application itself

    bool operator==(const UninstallItem&) const = default;
};

template <>
struct std::hash<UninstallItem> {
    std::size_t operator()(const UninstallItem& item) const noexcept { return std::hash<Uuid>{}(item.id); }
};
