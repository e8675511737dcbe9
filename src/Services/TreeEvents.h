#pragma once

#include "Platform/Clock.h"

#include <cstdint>
#include <optional>
#include <string_view>

// What a walk tells whoever builds the disk map's tree from it, in the order it walks: each
// folder's entries between its opened() and its closed() (or unreadable()). Names are valid
// during the call only.
class TreeEvents {
public:
    virtual ~TreeEvents() = default;

    // An entry that is not walked into: a file, a link, a device. `modified` is absent when its
    // metadata could not be read; it then counts 0 bytes.
    virtual void item(std::string_view name, std::int64_t allocatedSize,
                      std::optional<Clock::TimePoint> modified) = 0;
    // A folder about to be walked.
    virtual void opened(std::string_view name, Clock::TimePoint modified) = 0;
    // The folder opened last has no more entries.
    virtual void closed() = 0;
    // The folder opened last could not be listed, and had no entries: it shows nothing.
    virtual void unreadable() = 0;
};
