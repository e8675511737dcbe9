#include "Platform/ByteCountFormatter.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace ByteCountFormatter {
namespace {

struct Unit {
    double scale;
    int fractionDigits;
};

constexpr std::array<Unit, 6> units = {{
    {1e3, 0},
    {1e6, 1},
    {1e9, 2},
    {1e12, 2},
    {1e15, 2},
    {1e18, 2},
}};

Wording current;

std::string groupedThousands(std::string digits)
{
    for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), current.groupSeparator);
    return digits;
}

// `value` rounded to `digits` fraction digits, half away from zero, trailing zeros dropped.
std::string decimal(double value, int digits)
{
    const double factor = std::pow(10.0, digits);
    const auto scaled = static_cast<long long>(std::llround(value * factor));
    const long long whole = scaled / static_cast<long long>(factor);
    long long fraction = scaled % static_cast<long long>(factor);
    std::string text = groupedThousands(std::to_string(whole));
    if (fraction == 0)
        return text;
    std::string fractionText = std::to_string(fraction);
    fractionText.insert(0, static_cast<std::size_t>(digits) - fractionText.size(), '0');
    while (fractionText.back() == '0')
        fractionText.pop_back();
    return text + current.decimalSeparator + fractionText;
}

// Picks the unit from `first` to `last` in which the rounded figure stays below 1000, so that
// 999,999 bytes reads "1 MB" rather than "1,000 KB".
std::string inUnits(std::uint64_t magnitude, std::size_t first, std::size_t last)
{
    std::size_t index = first;
    while (index < last) {
        const Unit& unit = units[index];
        const double factor = std::pow(10.0, unit.fractionDigits);
        if (std::round(static_cast<double>(magnitude) / unit.scale * factor) / factor < 1000.0)
            break;
        ++index;
    }
    const Unit& unit = units[index];
    return decimal(static_cast<double>(magnitude) / unit.scale, unit.fractionDigits) + " " + current.units[index];
}

std::uint64_t magnitudeOf(std::int64_t bytes)
{
    return bytes < 0 ? static_cast<std::uint64_t>(-(bytes + 1)) + 1 : static_cast<std::uint64_t>(bytes);
}

std::string bytesText(std::uint64_t count)
{
    std::string text = current.bytes;
    const auto at = text.find("%1");
    if (at != std::string::npos)
        text.replace(at, 2, std::to_string(count));
    return text;
}

}  // namespace

void setWording(Wording wording)
{
    current = std::move(wording);
}

const Wording& wording()
{
    return current;
}

std::string string(std::int64_t bytes)
{
    if (bytes == 0)
        return current.zero;
    const std::string sign = bytes < 0 ? "-" : "";
    const std::uint64_t magnitude = magnitudeOf(bytes);
    if (magnitude == 1)
        return sign + current.oneByte;
    if (magnitude < 1000)
        return sign + bytesText(magnitude);
    return sign + inUnits(magnitude, 0, units.size() - 1);
}

std::string menuBarString(std::int64_t bytes)
{
    const std::string sign = bytes < 0 ? "-" : "";
    return sign + inUnits(magnitudeOf(bytes), 1, 3);
}

}  // namespace ByteCountFormatter
