#include "Services/LaunchAgentManager.h"

#include "Platform/AtomicFile.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/Subprocess.h"
#include "Services/StartupFolder.h"

#include "Platform/PlistDocument.h"

#include <algorithm>

namespace LaunchAgentManager {
namespace {

std::optional<std::string> firstArgument(plist_t arguments)
{
    if (!arguments || plist_get_node_type(arguments) != PLIST_ARRAY || plist_array_get_size(arguments) == 0)
        return std::nullopt;
    for (uint32_t i = 0; i < plist_array_get_size(arguments); ++i) {
        if (plist_get_node_type(plist_array_get_item(arguments, i)) != PLIST_STRING)
            return std::nullopt;
    }
    return PlistDocument::stringOf(plist_array_get_item(arguments, 0));
}

std::string withoutExtension(const std::string& name)
{
    const auto dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

void launchctl(const Tools& tools, const char* subcommand, const std::string& path)
{
    Subprocess::Options options;
    options.executable = tools.launchctl;
    options.arguments = {subcommand, path};
    Subprocess::run(options);
}

StartupItem agent(const std::string& path, const std::string& name, bool enabled)
{
    StartupItem item;
    item.id = path;
    item.fileName = name;
    item.enabled = enabled;
    item.kind = StartupItem::Kind::launchAgent;
    const auto file = AtomicFile::read(path);
    const PlistSummary summary = file.readable ? parsePlist(file.contents) : PlistSummary{};
    item.label = summary.label.value_or(withoutExtension(name));
    item.program = summary.program.value_or("—");
    return item;
}

}  // namespace

std::string liveFolder()
{
    return Paths::home() + "/Library/LaunchAgents";
}

std::string disabledFolder()
{
    return liveFolder() + "/Disabled";
}

std::vector<StartupItem> list()
{
    return StartupFolder::list(liveFolder(), disabledFolder(), ".plist", agent);
}

bool setEnabled(bool enabled, const StartupItem& item, const Tools& tools)
{
    const std::string folder = enabled ? liveFolder() : disabledFolder();
    FileSystem::createFolders(folder);
    const std::string target = folder + "/" + item.fileName;
    if (target == item.id)
        return true;
    if (!enabled)
        launchctl(tools, "unload", item.id);
    if (!FileSystem::moveItemWithoutReplacing(item.id, target))
        return false;
    if (enabled)
        launchctl(tools, "load", target);
    return true;
}

PlistSummary parsePlist(std::string_view bytes)
{
    const auto plist = PlistDocument::parse(bytes);
    if (!plist.isDictionary())
        return {};
    PlistSummary summary;
    summary.label = plist.string("Label");
    summary.program = plist.string("Program");
    if (!summary.program)
        summary.program = firstArgument(plist.item("ProgramArguments"));
    return summary;
}

}  // namespace LaunchAgentManager
