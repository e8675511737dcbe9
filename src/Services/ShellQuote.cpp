#include "Services/ShellQuote.h"

#include <algorithm>

namespace ShellQuote {
namespace {

bool isPlain(char c)
{
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))
        return true;
    switch (c) {
    case '-': case '_': case '.': case '/': case ':': case '@': case '%': case '+': case ',': case '=':
        return true;
    default:
        return false;
    }
}

}  // namespace

std::string word(std::string_view text)
{
    // A leading "=" or "%" is harmless, but "~" would expand and is not in the plain set.
    if (!text.empty() && std::all_of(text.begin(), text.end(), isPlain))
        return std::string(text);
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'')
            quoted += "'\\''";
        else
            quoted += c;
    }
    quoted += '\'';
    return quoted;
}

}  // namespace ShellQuote
