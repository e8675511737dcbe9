#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Utf8 {

// True when `bytes` is well-formed UTF-8: no stray continuation bytes, no truncated sequences,
// no overlong forms, no surrogates and nothing above U+10FFFF. An empty string is valid.
bool isValid(std::string_view bytes);

// The length of the well-formed sequence `bytes` starts with: 1 to 4, or 0 when it starts with
// none (or is empty).
std::size_t wellFormedLength(std::string_view bytes);

// File names are bytes; JSON and other text formats want UTF-8. The one escape every text we
// store or print uses for them: a byte that is not part of well-formed UTF-8 becomes "\xhh" (two
// lower-case hex digits) and a backslash becomes "\\"; everything else is kept. The result is
// always valid UTF-8, and unescaped() gives back the very same bytes.
std::string escaped(std::string_view bytes);
// The inverse of escaped(). A backslash that starts neither "\\" nor "\x" with two hex digits
// (either case) is kept as it stands, so text written by hand reads as written.
std::string unescaped(std::string_view text);

}  // namespace Utf8
