#pragma once

// Platform-internal: the .trashinfo record that tells where a trashed item came from and when.

#include "Platform/Clock.h"

#include <string>
#include <string_view>

namespace TrashInfo {

inline constexpr std::string_view extension = ".trashinfo";

// Every byte outside RFC 2396's unreserved characters becomes "%XX"; "/" stays as it is, so a
// UTF-8 name is written byte by byte and a newline can't break the key=value line.
std::string percentEncoded(std::string_view path);

// Local time, "YYYY-MM-DDThh:mm:ss" without a zone, as readers of the Trash expect.
std::string deletionDate(Clock::TimePoint time);

// The whole file: the "[Trash Info]" group with Path= (absolute for the home trash, relative to
// the volume's top folder for a volume's trash) and DeletionDate=.
std::string contents(std::string_view recordedPath, Clock::TimePoint deleted);

}  // namespace TrashInfo
