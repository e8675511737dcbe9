#pragma once

#include "Models/LocalSnapshot.h"
#include "Services/SnapshotError.h"

#include <cstdint>
#include <string>
#include <vector>

// Local snapshots on this machine: listing them, what they hold, and their removal with
// administrator rights. Two tools keep such snapshots, each asked where it exists: Time
// Machine's `tmutil`, and Snapper on Btrfs. A tool that is missing, fails or refuses the user
// simply contributes nothing.
namespace SnapshotManager {

// Where the tools are. Only tests put stand-ins in their place.
struct Tools {
    std::string tmutil = "/usr/bin/tmutil";
    std::string snapper = "snapper";  // looked up on the login shell's search path
};

// Every snapshot of both tools, newest first. Blocks for the listing commands (up to 180
// seconds each).
std::vector<LocalSnapshot> list(const Tools& tools = {});

// The space available on the start-up volume; 0 when it can't be read.
std::int64_t freeBytes();

// What removing `snapshots` would give back, as far as it can be known without administrator
// rights: the space only they hold. Never below 0; 0 when nothing tells.
std::int64_t purgeableBytes(const std::vector<LocalSnapshot>& snapshots);

// The one administrator command line that removes `snapshots`: a `tmutil deletelocalsnapshots`
// per Time Machine snapshot and a `snapper delete` per Snapper configuration, joined with "; "
// so that the user is asked for the password once. Every value from the tools is one quoted
// word on it.
std::string deleteCommand(const std::vector<LocalSnapshot>& snapshots, const Tools& tools = {});

// Removes `snapshots` and returns the bytes the start-up volume gained, never below 0. Nothing
// runs for an empty list. Throws SnapshotError when the user dismissed the request for rights
// (`cancelled`) or the command failed (`failed`, with its message).
std::int64_t deleteSnapshots(const std::vector<LocalSnapshot>& snapshots, const Tools& tools = {});

}  // namespace SnapshotManager
