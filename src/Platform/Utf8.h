#pragma once

#include <string_view>

namespace Utf8 {

// True when `bytes` is well-formed UTF-8: no stray continuation bytes, no truncated sequences,
// no overlong forms, no surrogates and nothing above U+10FFFF. An empty string is valid.
bool isValid(std::string_view bytes);

}  // namespace Utf8
