#pragma once

#include "Models/StartupItem.h"

#include <string>
#include <string_view>
#include <vector>

// The desktop session's autostart entries of the user's own account ($XDG_CONFIG_HOME/autostart/
// *.desktop), and switching them off and on. A switched-off entry is never deleted: its file
// moves into "Disabled" inside the autostart folder, which the session does not read, and back.
// An entry that says "Hidden=true" (or, as GNOME writes it, "X-GNOME-Autostart-enabled=false")
// is off where it lies.
namespace AutostartEntries {

std::string liveFolder();
std::string disabledFolder();

// The live folder's entries sorted by name whatever the case, then the switched-off folder's
// sorted the same way. The label is the entry's "Name", else the file name without ".desktop";
// the program is the first word of "Exec", else "—". A folder that can't be listed gives nothing.
std::vector<StartupItem> list();

// Switching off moves the file into the switched-off folder (created on first use); switching
// on moves it back and, if it says it is hidden, rewrites that. Nothing is overwritten: a file of
// the same name in the other folder makes this fail. True when the entry ends up as asked.
bool setEnabled(bool enabled, const StartupItem& item);

// Whether the entry's text marks it as not to be started.
bool isHidden(std::string_view text);
// The entry's text with the keys that hide it in its [Desktop Entry] group set to start it
// ("Hidden=false", "X-GNOME-Autostart-enabled=true"); every other line is kept as it was.
std::string shown(std::string_view text);

}  // namespace AutostartEntries
