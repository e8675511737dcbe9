#pragma once

#include <cstdint>
#include <optional>
#include <string>

// One row of the confirmation list.
struct ConfirmItem {
    std::string label;
    std::optional<std::int64_t> size;

    bool operator==(const ConfirmItem&) const = default;
};
