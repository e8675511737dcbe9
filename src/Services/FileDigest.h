#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

// What a file's bytes say about it, read without following a link: its full SHA-256 digest, and
// a cheap look at its two ends that tells most different files apart without reading them.
namespace FileDigest {

// The unit of reading while hashing: memory for hashing stays bounded by it.
inline constexpr std::size_t readChunk = 1'048'576;

// The SHA-256 of the file's contents as 64 lowercase hexadecimal digits; none when it can't be
// opened as a regular file or a read fails.
std::optional<std::string> sha256(const std::string& path);

// Whether the two files hold the same bytes, read side by side; false as soon as they differ,
// and when either can't be opened as a regular file or read.
bool sameContents(const std::string& first, const std::string& second);

// The file's length and its first and last blocks, each folded into a number. Two files whose
// ends differ can't have the same contents; equal ends prove nothing.
struct Ends {
    std::int64_t length = 0;
    std::uint64_t first = 0;
    std::uint64_t last = 0;

    bool operator==(const Ends&) const = default;
};

// None when the file can't be opened as a regular file or read.
std::optional<Ends> ends(const std::string& path);

}  // namespace FileDigest
