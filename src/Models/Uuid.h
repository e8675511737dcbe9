#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// A 128-bit universally unique identifier. The default value is the nil UUID (all zeros).
class Uuid {
public:
    using Bytes = std::array<std::uint8_t, 16>;

    constexpr Uuid() = default;
    constexpr explicit Uuid(const Bytes& bytes) : bytes_(bytes) {}

    // A fresh random (version 4) identifier from the system's cryptographic source.
    static Uuid random();
    // The canonical 8-4-4-4-12 hexadecimal form, either case; none for anything else.
    static std::optional<Uuid> parse(std::string_view text);

    // Canonical form with upper-case hexadecimal digits.
    std::string string() const;
    const Bytes& bytes() const { return bytes_; }
    int version() const { return bytes_[6] >> 4; }

    auto operator<=>(const Uuid&) const = default;

private:
    Bytes bytes_{};
};

template <>
struct std::hash<Uuid> {
    std::size_t operator()(const Uuid& uuid) const noexcept;
};
