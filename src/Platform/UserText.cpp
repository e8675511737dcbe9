#include "Platform/UserText.h"

std::string UserText::filled(std::string_view text, const std::vector<std::string>& values)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::size_t end = i + 1;
        std::size_t number = 0;
        while (text[i] == '%' && end < text.size() && end - i <= 2 && text[end] >= '0' && text[end] <= '9')
            number = number * 10 + static_cast<std::size_t>(text[end++] - '0');
        if (number >= 1 && number <= values.size()) {
            result += values[number - 1];
            i = end - 1;
        } else {
            result += text[i];
        }
    }
    return result;
}
