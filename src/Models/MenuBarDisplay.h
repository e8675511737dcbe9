#pragma once

#include <array>
#include <string_view>

// What the status item shows beside the drive symbol.
enum class MenuBarDisplay { percent, free, icon };

namespace MenuBarDisplays {

inline constexpr std::array<MenuBarDisplay, 3> all = {MenuBarDisplay::percent, MenuBarDisplay::free,
                                                      MenuBarDisplay::icon};

std::string_view rawValue(MenuBarDisplay display);
// Anything unknown reads as percent.
MenuBarDisplay fromRawValue(std::string_view raw);

}  // namespace MenuBarDisplays
