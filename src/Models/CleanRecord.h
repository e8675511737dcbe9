#pragma once

#include "Models/TrashedItem.h"
#include "Models/Uuid.h"
#include "Platform/Clock.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// One clean that freed something: what, how much, when, and where the trashed items went so
// they can be put back.
struct CleanRecord {
    Uuid id;
    std::string targetName;
    std::int64_t freed = 0;  // bytes
    Clock::TimePoint date;
    bool trashed = false;  // the history row says the items went to the Trash
    std::optional<std::vector<TrashedItem>> items;  // absent when nothing can be put back
    std::optional<bool> restored;                   // absent until put back, then true

    bool operator==(const CleanRecord&) const = default;

    // A new record with a fresh id, dated now. An empty `items` is stored as absent, so a record
    // never claims to be restorable with nothing to restore.
    static CleanRecord make(std::string targetName, std::int64_t freed, bool trashed,
                            std::vector<TrashedItem> items = {});

    // The stored form: `date` as seconds since 2001-01-01 00:00:00 UTC; optional fields left out
    // when absent. Names and paths are bytes, written with Utf8::escaped() so that one that is not
    // UTF-8 comes back byte for byte and Put Back still finds its file.
    nlohmann::json toJson() const;
    // None when a required key is missing or any key has the wrong type. Dates come back rounded
    // to whole microseconds, which is all the stored number holds at present-day dates.
    static std::optional<CleanRecord> fromJson(const nlohmann::json& json);

    // The reference instant of the stored dates, in Unix time.
    static constexpr std::int64_t referenceDateUnixSeconds = 978'307'200;
};
