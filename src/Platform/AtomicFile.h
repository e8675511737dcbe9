#pragma once

#include <string>
#include <string_view>

// Whole-file reads and crash-safe whole-file replacement.
namespace AtomicFile {

struct ReadResult {
    bool exists = false;     // false only when nothing is at the path
    bool readable = false;   // the whole file was read
    std::string contents;
};

ReadResult read(const std::string& path);

// Writes `contents` to a temporary file beside `path`, flushes it to disk and renames it over
// `path`, so a reader sees the old file or the new one and never a torn one. Creates the parent
// folder when missing.
bool replace(const std::string& path, std::string_view contents);

}  // namespace AtomicFile
