#pragma once

#include <string_view>

// Trimming the blanks around a piece of text, as read from a tool's output or a file.
namespace TextTrim {

// `text` without the characters of `blanks` at either end.
inline std::string_view trimmed(std::string_view text, std::string_view blanks = " \t\r\n")
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace TextTrim
