#pragma once

#include <array>
#include <cstdint>
#include <string>

// Byte counts for people, in decimal units (1 KB = 1000 bytes) as file sizes are shown.
namespace ByteCountFormatter {

// The words and marks of the language the application shows itself in. English until the
// application sets its language at start, before any other thread formats a size.
struct Wording {
    std::string zero = "Zero KB";
    std::string oneByte = "1 byte";
    std::string bytes = "%1 bytes";  // "%1" stands for the digits
    std::string decimalSeparator = ".";
    std::string groupSeparator = ",";
    std::array<std::string, 6> units = {"KB", "MB", "GB", "TB", "PB", "EB"};
};

void setWording(Wording wording);
const Wording& wording();

// "Zero KB", "1 byte", "N bytes", whole KB, one fraction digit for MB, two for GB and above;
// trailing zeros of the fraction are dropped ("1.5 GB", "2 GB").
std::string string(std::int64_t bytes);

// The status item's free-space text: MB, GB or TB only, and never wording ("0 MB", "512.3 MB").
std::string menuBarString(std::int64_t bytes);

}  // namespace ByteCountFormatter
