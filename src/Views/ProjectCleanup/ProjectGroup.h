#pragma once

#include "Models/ProjectDir.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The build folders of one project, as the grouped list shows them under one header.
struct ProjectGroup {
    std::string path;  // the project's folder: the parent of every folder in `dirs`
    std::vector<ProjectDir> dirs;

    // The earliest date among the folders that have one; none when none has.
    std::optional<Clock::TimePoint> oldest() const
    {
        std::optional<Clock::TimePoint> earliest;
        for (const ProjectDir& dir : dirs) {
            if (dir.modified && (!earliest || *dir.modified < *earliest))
                earliest = dir.modified;
        }
        return earliest;
    }

    std::int64_t size() const
    {
        std::int64_t total = 0;
        for (const ProjectDir& dir : dirs)
            total += dir.size;
        return total;
    }

    bool operator==(const ProjectGroup&) const = default;
};
