#include "Services/SnapshotManager.h"

#include "Platform/AdminShell.h"
#include "Platform/Volumes.h"
#include "Services/ShellQuote.h"
#include "Services/ShellRunner.h"
#include "Services/SnapshotListing.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <thread>

namespace SnapshotManager {
namespace {

constexpr double listTimeout = 180;
// Removed snapshots free their space a moment after the command returns.
constexpr std::chrono::milliseconds settleTime(400);

std::vector<LocalSnapshot> timeMachineSnapshots(const Tools& tools)
{
    const ShellResult result =
        ShellRunner::runLogin(ShellQuote::word(tools.tmutil) + " listlocalsnapshots / 2>/dev/null", listTimeout);
    if (result.status != 0)
        return {};
    return SnapshotListing::parseTimeMachine(result.output);
}

std::vector<LocalSnapshot> snapperSnapshots(const Tools& tools)
{
    const std::string snapper = ShellQuote::word(tools.snapper);
    const ShellResult configs = ShellRunner::runLogin(snapper + " --jsonout list-configs 2>/dev/null", listTimeout);
    if (configs.status != 0)
        return {};
    std::vector<LocalSnapshot> snapshots;
    // A configuration the user may not read fails on its own and is left out.
    for (const std::string& config : SnapshotListing::parseSnapperConfigs(configs.output)) {
        const ShellResult listing = ShellRunner::runLogin(
            snapper + " --jsonout -c " + ShellQuote::word(config) + " list 2>/dev/null", listTimeout);
        if (listing.status != 0)
            continue;
        auto found = SnapshotListing::parseSnapperList(listing.output, config);
        std::move(found.begin(), found.end(), std::back_inserter(snapshots));
    }
    return snapshots;
}

}  // namespace

std::vector<LocalSnapshot> list(const Tools& tools)
{
    std::vector<LocalSnapshot> snapshots = timeMachineSnapshots(tools);
    auto snapper = snapperSnapshots(tools);
    std::move(snapper.begin(), snapper.end(), std::back_inserter(snapshots));
    SnapshotListing::sortNewestFirst(snapshots);
    return snapshots;
}

std::int64_t freeBytes()
{
    const auto capacity = Volumes::capacity("/");
    return capacity ? capacity->availableForImportantUse : 0;
}

std::int64_t purgeableBytes(const std::vector<LocalSnapshot>& snapshots)
{
    // The volume itself reports no purgeable figure here; what the file system says each
    // snapshot alone holds is the estimate.
    std::int64_t total = 0;
    for (const LocalSnapshot& snapshot : snapshots) {
        if (snapshot.exclusiveBytes && *snapshot.exclusiveBytes > 0)
            total += *snapshot.exclusiveBytes;
    }
    return std::max<std::int64_t>(total, 0);
}

std::string deleteCommand(const std::vector<LocalSnapshot>& snapshots, const Tools& tools)
{
    std::vector<std::string> commands;
    std::map<std::string, std::string> numbersByConfig;
    std::vector<std::string> configOrder;
    for (const LocalSnapshot& snapshot : snapshots) {
        if (!snapshot.isSnapper()) {
            commands.push_back(ShellQuote::word(tools.tmutil) + " deletelocalsnapshots "
                               + ShellQuote::word(snapshot.timestamp));
            continue;
        }
        auto [entry, added] = numbersByConfig.try_emplace(snapshot.snapperConfig);
        if (added)
            configOrder.push_back(snapshot.snapperConfig);
        entry->second += " " + std::to_string(snapshot.snapperNumber);
    }
    // --sync waits until the file system has really let go of the space.
    for (const std::string& config : configOrder) {
        commands.push_back(ShellQuote::word(tools.snapper) + " -c " + ShellQuote::word(config) + " delete --sync"
                           + numbersByConfig[config]);
    }
    std::string line;
    for (const std::string& command : commands)
        line += (line.empty() ? "" : "; ") + command;
    return line;
}

std::int64_t deleteSnapshots(const std::vector<LocalSnapshot>& snapshots, const Tools& tools)
{
    if (snapshots.empty())
        return 0;
    const std::int64_t before = freeBytes();
    const AdminShell::Result result = AdminShell::run(deleteCommand(snapshots, tools));
    if (!result.success) {
        if (result.cancelled)
            throw SnapshotError::cancelled();
        throw SnapshotError::failed(result.output);
    }
    std::this_thread::sleep_for(settleTime);
    return std::max<std::int64_t>(freeBytes() - before, 0);
}

}  // namespace SnapshotManager
