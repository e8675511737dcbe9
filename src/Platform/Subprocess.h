#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

// Runs one program to its end and collects what it wrote. Standard output and standard error
// share one pipe, so the two streams arrive interleaved in the order they were written.
// Standard input is /dev/null, the environment is inherited, and signal dispositions and the
// signal mask start from their defaults whatever the caller has set.
//
// The program leads a process group of its own. When the time limit passes, the whole group
// gets SIGTERM, so helpers the program started in the background die with it and the pipe
// reaches its end; a group still holding the pipe open `killGrace` later gets SIGKILL, and
// after a further `killGrace` reading stops even if something outside the group still holds
// the pipe. A call therefore returns at the latest about `timeout` + 2 × `killGrace` after
// it began.
namespace Subprocess {

struct Options {
    std::string executable;              // a path to the program; the search path is not used
    std::vector<std::string> arguments;  // what follows the program's name in its argv
    std::string workingFolder;           // empty: the caller's working folder
    std::optional<std::chrono::milliseconds> timeout;  // none: no time limit
    std::chrono::milliseconds killGrace{3000};
};

struct Result {
    bool launched = false;
    std::string launchError;  // readable reason the program could not start; empty once it has
    // The exit status; 128 + the signal number when a signal ended the program, as shells
    // report it, so a terminated program never reads as a success; -1 when not launched or
    // when the status could not be collected.
    int status = -1;
    bool timedOut = false;    // the time limit passed before the output ended
    std::string output;       // standard output and standard error as bytes, unaltered

    bool operator==(const Result&) const = default;
};

// Blocks the calling thread until the program has ended (or been ended) and its output is read.
Result run(const Options& options);

}  // namespace Subprocess
