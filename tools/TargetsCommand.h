#pragma once

#include <string>
#include <vector>

// mopwell-scan targets [--developer] [--json] [--profile macos|linux]
//
// The live targets as the panel builds them from the user's settings (developer mode forced on
// with --developer), each measured, and the reclaimable total: the preview a user runs before
// trusting a cleaner. It reads and measures only; the settings file is read from a copy.
int runTargetsCommand(const std::vector<std::string>& arguments);
