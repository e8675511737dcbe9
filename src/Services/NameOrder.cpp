#include "Services/NameOrder.h"

#include <algorithm>

namespace NameOrder {
namespace {

unsigned char folded(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
}

}  // namespace

bool caseInsensitiveLess(std::string_view a, std::string_view b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return folded(x) < folded(y); });
}

}  // namespace NameOrder
