#pragma once

#include <cstdint>
#include <string>

// How a command line run in the user's shell ended.
struct ShellResult {
    // The exit status; 128 + the signal number when a signal ended the shell, as shells report
    // it, so a command cut short by its time-out reads as a failure (143 after SIGTERM); -1
    // when the shell could not start.
    std::int32_t status = 0;
    // Standard output and standard error interleaved as they came; empty when the bytes were
    // not valid UTF-8, and "Failed to launch: " with the reason when the shell could not start.
    std::string output;

    bool operator==(const ShellResult&) const = default;
};
