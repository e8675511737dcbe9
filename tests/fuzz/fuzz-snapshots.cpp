// The snapshot tools' listings: tmutil's text and Snapper's JSON (configs and snapshots).

#include "Services/SnapshotListing.h"

#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    auto snapshots = SnapshotListing::parseTimeMachine(text);
    for (const auto& config : SnapshotListing::parseSnapperConfigs(text)) {
        auto listed = SnapshotListing::parseSnapperList(text, config);
        snapshots.insert(snapshots.end(), listed.begin(), listed.end());
    }
    auto root = SnapshotListing::parseSnapperList(text, "root");
    snapshots.insert(snapshots.end(), root.begin(), root.end());
    SnapshotListing::sortNewestFirst(snapshots);
    (void)SnapshotListing::stampFromSnapperDate(text);
    return 0;
}
