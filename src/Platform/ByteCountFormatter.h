#pragma once

#include <cstdint>
#include <string>

// Byte counts for people, in decimal units (1 KB = 1000 bytes) as file sizes are shown.
namespace ByteCountFormatter {

// "Zero KB", "1 byte", "N bytes", whole KB, one fraction digit for MB, two for GB and above;
// trailing zeros of the fraction are dropped ("1.5 GB", "2 GB").
std::string string(std::int64_t bytes);

// The status item's free-space text: MB, GB or TB only, and never wording ("0 MB", "512.3 MB").
std::string menuBarString(std::int64_t bytes);

}  // namespace ByteCountFormatter
