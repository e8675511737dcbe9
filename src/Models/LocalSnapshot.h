#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

// One local snapshot the system keeps on the start-up volume, from whichever tool keeps them:
// Time Machine's local snapshots, or Snapper's snapshots of a Btrfs subvolume. Identified by
// `name`.
struct LocalSnapshot {
    // Time Machine: the whole line the tool printed, "com.apple.TimeMachine.<stamp>.local".
    // Snapper: the configuration, the number and the description, "root #42 — after update".
    std::string name;
    // "yyyy-MM-dd-HHmmss" in the machine's time zone: what the list is sorted on, and what
    // Time Machine's delete command takes. A stamp in another form is kept as the tool wrote it.
    std::string timestamp;

    // Snapper's configuration and snapshot number; empty and 0 for a Time Machine snapshot.
    std::string snapperConfig;
    std::int64_t snapperNumber = 0;
    // The bytes only this snapshot holds, where the file system tells without administrator
    // rights; none otherwise.
    std::optional<std::int64_t> exclusiveBytes;

    static LocalSnapshot timeMachine(std::string line, std::string stamp)
    {
        LocalSnapshot snapshot;
        snapshot.name = std::move(line);
        snapshot.timestamp = std::move(stamp);
        return snapshot;
    }
    static LocalSnapshot snapper(const std::string& config, std::int64_t number, std::string stamp,
                                 const std::string& description = {})
    {
        LocalSnapshot snapshot;
        snapshot.name = config + " #" + std::to_string(number) + (description.empty() ? "" : " — " + description);
        snapshot.timestamp = std::move(stamp);
        snapshot.snapperConfig = config;
        snapshot.snapperNumber = number;
        return snapshot;
    }

    bool isSnapper() const { return !snapperConfig.empty(); }

    bool operator==(const LocalSnapshot&) const = default;
};
