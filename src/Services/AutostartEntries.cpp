#include "Services/AutostartEntries.h"

#include "Platform/AtomicFile.h"
#include "Platform/DesktopEntry.h"
#include "Platform/FileSystem.h"
#include "Platform/TextTrim.h"
#include "Platform/XdgFolders.h"
#include "Services/StartupFolder.h"

#include <algorithm>

namespace AutostartEntries {
namespace {

constexpr std::string_view suffix = ".desktop";

bool hides(const DesktopEntry& entry)
{
    return entry.boolean("Hidden").value_or(false) || !entry.boolean("X-GNOME-Autostart-enabled").value_or(true);
}

StartupItem itemFor(const std::string& path, const std::string& name, bool inLiveFolder)
{
    StartupItem item;
    item.id = path;
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
    return StartupFolder::list(liveFolder(), disabledFolder(), suffix, itemFor);
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
        const std::string_view content = TextTrim::trimmed(line, " \t\r");
        if (!content.empty() && content.front() == '[')
            inMain = content == "[Desktop Entry]";
        const auto equals = content.find('=');
        const std::string_view key =
            equals == std::string_view::npos ? std::string_view() : TextTrim::trimmed(content.substr(0, equals), " \t\r");
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
