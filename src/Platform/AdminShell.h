#pragma once

#include <string>
#include <string_view>

// Runs one command line with administrator rights, after the desktop has asked the user for
// them. The user is asked once per call, so callers join what needs rights into one line.
namespace AdminShell {

struct Result {
    bool success = false;
    // The user dismissed the request for rights: nothing ran.
    bool cancelled = false;
    // On success what the command wrote; on failure the reason, for the user to read.
    std::string output;

    bool operator==(const Result&) const = default;
};

// Runs `line` as `pkexec /bin/sh -c LINE`: the line reaches the shell as one argument, exactly
// as given. Blocks for as long as the authorization dialog and the command take. A dismissed
// dialog (pkexec's status 126) is `cancelled`; any other failure carries the command's output,
// or "Authorization failed." when it wrote nothing.
Result run(const std::string& line);

// Where the request goes through AppleScript instead ("do shell script" with administrator
// privileges), the line has to become a quoted AppleScript string: every backslash is doubled
// first, then every double quote gets a backslash; the other order would double the
// backslashes that escape the quotes.
std::string escapedForAppleScript(std::string_view command);
std::string appleScriptSource(std::string_view command);

}  // namespace AdminShell
