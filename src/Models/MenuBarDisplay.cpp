#include "Models/MenuBarDisplay.h"

#include "Models/RawValueLookup.h"

namespace MenuBarDisplays {

std::string_view rawValue(MenuBarDisplay display)
{
    switch (display) {
    case MenuBarDisplay::percent: return "percent";
    case MenuBarDisplay::free: return "free";
    case MenuBarDisplay::icon: return "icon";
    }
    return "percent";
}

MenuBarDisplay fromRawValue(std::string_view raw)
{
    return caseForRawValue(all, rawValue, raw).value_or(MenuBarDisplay::percent);
}

}  // namespace MenuBarDisplays
