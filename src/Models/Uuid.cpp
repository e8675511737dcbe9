#include "Models/Uuid.h"

#include "Platform/HexDigit.h"

#include <openssl/rand.h>

#include <random>

namespace {

constexpr char hexDigits[] = "0123456789ABCDEF";
// Where the four dashes stand in the 36-character text.
constexpr bool isDashPosition(std::size_t index)
{
    return index == 8 || index == 13 || index == 18 || index == 23;
}

// RAND_bytes only fails when OpenSSL can't seed itself; the kernel's source via random_device
// is still far better than a clock-seeded engine, and ids must stay unique across restarts.
void fillRandom(Uuid::Bytes& bytes)
{
    if (RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1)
        return;
    std::random_device device;
    std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
    std::mt19937_64 engine(seed);
    for (std::size_t i = 0; i < bytes.size(); i += 8) {
        const std::uint64_t word = engine();
        for (std::size_t j = 0; j < 8; ++j)
            bytes[i + j] = static_cast<std::uint8_t>(word >> (8 * j));
    }
}

}  // namespace

Uuid Uuid::random()
{
    Bytes bytes;
    fillRandom(bytes);
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);  // version 4: random
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);  // RFC 4122 variant
    return Uuid(bytes);
}

std::optional<Uuid> Uuid::parse(std::string_view text)
{
    if (text.size() != 36)
        return std::nullopt;
    Bytes bytes{};
    std::size_t nibble = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isDashPosition(i)) {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const int value = hexDigitValue(text[i]);
        if (value < 0)
            return std::nullopt;
        bytes[nibble / 2] = static_cast<std::uint8_t>(bytes[nibble / 2] << 4 | value);
        ++nibble;
    }
    return Uuid(bytes);
}

std::string Uuid::string() const
{
    std::string text;
    text.reserve(36);
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text += '-';
        text += hexDigits[bytes_[i] >> 4];
        text += hexDigits[bytes_[i] & 0x0F];
    }
    return text;
}

std::size_t std::hash<Uuid>::operator()(const Uuid& uuid) const noexcept
{
    // Ids are random, so a plain fold of the bytes spreads them well enough.
    std::size_t value = 0;
    for (const auto byte : uuid.bytes())
        value = value * 31 + byte;
    return value;
}
