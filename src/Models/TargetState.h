#pragma once

#include "Models/CleanupTarget.h"

#include <cstdint>
#include <optional>
#include <string>

// A live target with what is known of it right now.
struct TargetState {
    CleanupTarget target;
    std::optional<std::int64_t> size;  // none: not known yet, or nothing to measure
    bool isScanning = false;
    bool isCleaning = false;

    bool operator==(const TargetState&) const = default;
    const std::string& id() const { return target.id; }
};
