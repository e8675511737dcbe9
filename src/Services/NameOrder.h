#pragma once

#include <string_view>

// The order people expect of names in a list: by the letters, whatever their case.
namespace NameOrder {

// True when `a` comes before `b` with upper and lower case counted as the same letter. Only the
// case of ASCII letters is folded; other characters compare by their UTF-8 bytes, which keeps
// code points in order.
bool caseInsensitiveLess(std::string_view a, std::string_view b);

}  // namespace NameOrder
