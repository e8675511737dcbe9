#include "Services/AutostartEntries.h"

#include "Platform/AtomicFile.h"
#include "Platform/DesktopEntry.h"
#include "Platform/FileSystem.h"
#include "Platform/XdgFolders.h"
#include "Services/NameOrder.h"

#include <algorithm>

namespace AutostartEntries {
namespace {

constexpr std::string_view suffix = ".desktop";

bool hides(const DesktopEntry& entry)
{
    return entry.boolean("Hidden").value_or(false) || !entry.boolean("X-GNOME-Autostart-enabled").value_or(true);
}

StartupItem itemFor(const std::string& folder, const std::string& name, bool inLiveFolder)
{
    StartupItem item;
    item.id = folder + "/" + name;
    item.fileName = name;
    item.kind = StartupItem::Kind::autostartEntry;
    const auto entry = DesktopEntry::read(item.id);
    const auto label = entry ? entry->string("Name") : std::nullopt;
    item.label = label && !label->empty() ? *label : name.substr(0, name.size() - suffix.size());
    const auto words = entry ? entry->execArguments() : std::vector<std::string>{};
    item.program = words.empty() || words.front().empty() ? "—" : words.front();
    item.enabled = inLiveFolder && !(entry && hides(*entry));
    return item;
}

std::vector<StartupItem> entries(const std::string& folder, bool inLiveFolder)
{
    std::vector<StartupItem> items;
    for (const std::string& name : FileSystem::contentsOfFolder(folder).value_or(std::vector<std::string>{})) {
        if (name.size() <= suffix.size() || !name.ends_with(suffix))
            continue;
        items.push_back(itemFor(folder, name, inLiveFolder));
    }
    std::stable_sort(items.begin(), items.end(), [](const StartupItem& a, const StartupItem& b) {
        return NameOrder::caseInsensitiveLess(a.label, b.label);
    });
    return items;
}

// Rewrites a hidden entry so that it starts; true when it is (or already was) shown.
bool unhide(const std::string& path)
{
    const auto file = AtomicFile::read(path);
    if (!file.readable)
        return false;
    if (!isHidden(file.contents))
        return true;
    return AtomicFile::replace(path, shown(file.contents));
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

}  // namespace

std::string liveFolder()
{
    return XdgFolders::configHome() + "/autostart";
}

std::string disabledFolder()
{
    return liveFolder() + "/Disabled";
}

std::vector<StartupItem> list()
{
    std::vector<StartupItem> items = entries(liveFolder(), true);
    auto off = entries(disabledFolder(), false);
    std::move(off.begin(), off.end(), std::back_inserter(items));
    return items;
}

bool setEnabled(bool enabled, const StartupItem& item)
{
    const std::string folder = enabled ? liveFolder() : disabledFolder();
    FileSystem::createFolders(folder);
    const std::string target = folder + "/" + item.fileName;
    if (target != item.id && !FileSystem::moveItemWithoutReplacing(item.id, target))
        return false;
    return !enabled || unhide(target);
}

bool isHidden(std::string_view text)
{
    return hides(DesktopEntry::parse(text));
}

std::string shown(std::string_view text)
{
    std::string result;
    bool inMain = false;
    std::size_t start = 0;
    while (start < text.size()) {
        const auto end = std::min(text.find('\n', start), text.size());
        const std::string_view line = text.substr(start, end - start);
        const bool hasNewline = end < text.size();
        start = end + 1;
        const std::string_view content = trimmed(line);
        if (!content.empty() && content.front() == '[')
            inMain = content == "[Desktop Entry]";
        const auto equals = content.find('=');
        const std::string_view key = equals == std::string_view::npos ? std::string_view() : trimmed(content.substr(0, equals));
        if (inMain && key == "Hidden")
            result += "Hidden=false";
        else if (inMain && key == "X-GNOME-Autostart-enabled")
            result += "X-GNOME-Autostart-enabled=true";
        else
            result += line;
        if (hasNewline)
            result += '\n';
    }
    return result;
}

}  // namespace AutostartEntries
