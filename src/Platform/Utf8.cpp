#include "Platform/Utf8.h"

#include "Platform/HexDigit.h"

#include <cstddef>

namespace Utf8 {
namespace {

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

// The permitted range of the byte after `lead`. The narrowed ranges after E0, ED, F0 and F4 are
// what excludes overlong forms, surrogates and code points above U+10FFFF.
void secondByteRange(unsigned char lead, unsigned char& low, unsigned char& high)
{
    low = 0x80;
    high = 0xBF;
    if (lead == 0xE0)
        low = 0xA0;
    else if (lead == 0xED)
        high = 0x9F;
    else if (lead == 0xF0)
        low = 0x90;
    else if (lead == 0xF4)
        high = 0x8F;
}

// The length of the sequence a lead byte starts, or 0 when no sequence may start with it
// (continuation bytes, C0 and C1 which could only be overlong, F5 and above).
std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 4;
    return 0;
}

}  // namespace

std::size_t wellFormedLength(std::string_view bytes)
{
    if (bytes.empty())
        return 0;
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const std::size_t length = sequenceLength(lead);
    if (length == 0 || bytes.size() < length)
        return 0;
    if (length > 1) {
        unsigned char low = 0;
        unsigned char high = 0;
        secondByteRange(lead, low, high);
        const auto second = static_cast<unsigned char>(bytes[1]);
        if (second < low || second > high)
            return 0;
        for (std::size_t offset = 2; offset < length; ++offset) {
            if (!isContinuation(static_cast<unsigned char>(bytes[offset])))
                return 0;
        }
    }
    return length;
}

bool isValid(std::string_view bytes)
{
    std::size_t index = 0;
    while (index < bytes.size()) {
        const std::size_t length = wellFormedLength(bytes.substr(index));
        if (length == 0)
            return false;
        index += length;
    }
    return true;
}

std::string escaped(std::string_view bytes)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(bytes.size());
    std::size_t index = 0;
    while (index < bytes.size()) {
        if (bytes[index] == '\\') {
            text += "\\\\";
            ++index;
            continue;
        }
        const std::size_t length = wellFormedLength(bytes.substr(index));
        if (length == 0) {
            const auto byte = static_cast<unsigned char>(bytes[index]);
            text += "\\x";
            text += digits[byte >> 4];
            text += digits[byte & 0xF];
            ++index;
            continue;
        }
        text.append(bytes.substr(index, length));
        index += length;
    }
    return text;
}

std::string unescaped(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '\\' || index + 1 == text.size()) {
            bytes += text[index];
            continue;
        }
        if (text[index + 1] == '\\') {
            bytes += '\\';
            ++index;
            continue;
        }
        const bool hexEscape = index + 3 < text.size() && text[index + 1] == 'x';
        const int high = hexEscape ? hexDigitValue(text[index + 2]) : -1;
        const int low = high >= 0 ? hexDigitValue(text[index + 3]) : -1;
        if (low < 0) {
            bytes += '\\';
            continue;
        }
        bytes += static_cast<char>(high * 16 + low);
        index += 3;
    }
    return bytes;
}

}  // namespace Utf8
