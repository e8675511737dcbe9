#include "Services/StartupFolder.h"

#include "Platform/FileSystem.h"
#include "Services/NameOrder.h"

#include <algorithm>

namespace StartupFolder {
namespace {

std::vector<StartupItem> itemsIn(const std::string& folder, bool live, std::string_view suffix, const MakeItem& make)
{
    std::vector<StartupItem> items;
    for (const std::string& name : FileSystem::contentsOfFolder(folder).value_or(std::vector<std::string>{})) {
        if (name.ends_with(suffix))
            items.push_back(make(folder + "/" + name, name, live));
    }
    std::stable_sort(items.begin(), items.end(), [](const StartupItem& a, const StartupItem& b) {
        return NameOrder::caseInsensitiveLess(a.label, b.label);
    });
    return items;
}

}  // namespace

std::vector<StartupItem> list(const std::string& live, const std::string& switchedOff, std::string_view suffix,
                              const MakeItem& make)
{
    std::vector<StartupItem> items = itemsIn(live, true, suffix, make);
    auto off = itemsIn(switchedOff, false, suffix, make);
    std::move(off.begin(), off.end(), std::back_inserter(items));
    return items;
}

}  // namespace StartupFolder
