#pragma once

#include "Models/LocalSnapshot.h"

#include <string>
#include <string_view>
#include <vector>

// Reading the snapshot tools' listings. Plain functions over text: whatever the bytes, they
// return what they could read and never throw.
namespace SnapshotListing {

// The output of `tmutil listlocalsnapshots /`: every line holding "com.apple.TimeMachine."
// gives a snapshot named by the trimmed line, whose stamp is what follows that text, less a
// closing ".local". Other lines (the "Snapshots for disk /:" header) and empty stamps are passed
// over. In the order of the output.
std::vector<LocalSnapshot> parseTimeMachine(std::string_view output);

// The names in the output of `snapper --jsonout list-configs`, in order.
std::vector<std::string> parseSnapperConfigs(std::string_view json);

// The snapshots of `config` in the output of `snapper --jsonout -c CONFIG list`. The current
// file system (number 0) and the snapshots Snapper won't remove (the active and the default
// one) are left out: they are not snapshots the user can reclaim.
std::vector<LocalSnapshot> parseSnapperList(std::string_view json, const std::string& config);

// Snapper's "2024-06-01 12:00:00" as the stamp the list sorts on, "2024-06-01-120000"; any
// other text is returned unchanged.
std::string stampFromSnapperDate(std::string_view date);

// Newest first by stamp, in plain text order, which for these stamps is the order in time;
// snapshots with equal stamps keep their order.
void sortNewestFirst(std::vector<LocalSnapshot>& snapshots);

}  // namespace SnapshotListing
