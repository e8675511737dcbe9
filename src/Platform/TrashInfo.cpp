#include "Platform/TrashInfo.h"

#include <ctime>

namespace TrashInfo {
namespace {

bool isUnreserved(unsigned char byte)
{
    if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9'))
        return true;
    return std::string_view("-_.!~*'()").find(static_cast<char>(byte)) != std::string_view::npos;
}

}  // namespace

std::string percentEncoded(std::string_view path)
{
    static constexpr char hexDigits[] = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(path.size());
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte == '/' || isUnreserved(byte)) {
            encoded += character;
        } else {
            encoded += '%';
            encoded += hexDigits[byte >> 4];
            encoded += hexDigits[byte & 0x0F];
        }
    }
    return encoded;
}

std::string deletionDate(Clock::TimePoint time)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm local{};
    localtime_r(&seconds, &local);
    char text[32] = {};
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
    return text;
}

std::string contents(std::string_view recordedPath, Clock::TimePoint deleted)
{
    return "[Trash Info]\nPath=" + percentEncoded(recordedPath) + "\nDeletionDate=" + deletionDate(deleted) + "\n";
}

}  // namespace TrashInfo
