#pragma once

#include "Models/StartupItem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The launch agents of the user's own account, and switching them off and on. A switched-off
// agent is never deleted: its property list moves into "Disabled" inside the agents' folder,
// from which the system loads nothing, and back.
namespace LaunchAgentManager {

// Where `launchctl` is. Only tests put a stand-in in its place.
struct Tools {
    std::string launchctl = "/bin/launchctl";
};

// ~/Library/LaunchAgents, and the folder of switched-off agents inside it.
std::string liveFolder();
std::string disabledFolder();

// The live agents sorted by label whatever the case, then the switched-off ones sorted the same
// way. A folder that can't be listed (usually one that doesn't exist yet) gives nothing.
std::vector<StartupItem> list();

// Moves the agent's file into the live or the switched-off folder, creating it first: "unload"
// with the old path before a switch-off, "load" with the new path after a switch-on. Nothing is
// overwritten: a file of the same name in the other folder makes this fail. True when the file
// is where it was asked to be.
bool setEnabled(bool enabled, const StartupItem& item, const Tools& tools = {});

// What a row shows of a property list: "Label" when it is text; "Program" when it is text, else
// the first of "ProgramArguments" when that is a non-empty array of text. Both absent when the
// bytes are no property list (XML or binary) with a dictionary at the top.
struct PlistSummary {
    std::optional<std::string> label;
    std::optional<std::string> program;
};
PlistSummary parsePlist(std::string_view bytes);

}  // namespace LaunchAgentManager
