#pragma once

#include "Models/CleanRecord.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class DefaultsStore;

// The clean history and the lifetime total, kept in the defaults store. Best effort throughout:
// anything unreadable reads as empty or zero, and nothing here reports a failure to the user.
namespace CleanHistoryStore {

// The history key holds binary data: the JSON text of an array of records, newest first.
inline constexpr const char* historyKey = "cleanHistory";
inline constexpr const char* totalKey = "totalFreedAllTime";
// Older records are dropped when saving; the list in memory is not cut.
inline constexpr std::size_t maximumStored = 50;

struct Loaded {
    std::vector<CleanRecord> history;
    std::int64_t total = 0;
};

// The two keys are read independently: a damaged history leaves the total readable and the
// other way round. A single malformed record makes the whole history empty.
Loaded load(const DefaultsStore& defaults);
// Stores the first `maximumStored` records and the total. When the records can't be encoded the
// stored history is left as it was; the total is written all the same.
void save(DefaultsStore& defaults, const std::vector<CleanRecord>& history, std::int64_t total);

// The JSON text of `records`. Names that are not UTF-8 are escaped, so this does not fail on them.
std::optional<std::string> encode(const std::vector<CleanRecord>& records);
// None when the text is not a JSON array or any element is not a well-formed record.
std::optional<std::vector<CleanRecord>> decode(std::string_view text);

}  // namespace CleanHistoryStore
