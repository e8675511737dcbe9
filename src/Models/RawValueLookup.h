#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// Finds the case of a string-backed enumeration whose raw value is `raw`.
template <typename Enum, std::size_t N, typename RawValueOf>
std::optional<Enum> caseForRawValue(const std::array<Enum, N>& cases, RawValueOf rawValueOf,
                                    std::string_view raw)
{
    for (Enum candidate : cases) {
        if (rawValueOf(candidate) == raw)
            return candidate;
    }
    return std::nullopt;
}
