#include "Platform/AdminShell.h"

#include "Platform/ExecutablePath.h"
#include "Platform/Subprocess.h"
#include "Platform/Utf8.h"

#include <utility>

namespace AdminShell {
namespace {

// pkexec's own status when the user dismissed the authorization dialog or was refused.
constexpr int dismissedStatus = 126;

std::string trimmed(std::string text)
{
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos)
        return {};
    const auto last = text.find_last_not_of(" \t\r\n");
    return text.substr(first, last - first + 1);
}

Result failure(std::string message, bool cancelled = false)
{
    message = trimmed(std::move(message));
    return {false, cancelled, message.empty() ? "Authorization failed." : std::move(message)};
}

}  // namespace

Result run(const std::string& line)
{
    const auto pkexec = ExecutablePath::find("pkexec");
    if (!pkexec)
        return failure("Administrator rights can't be asked for: pkexec isn't installed.");

    Subprocess::Options options;
    options.executable = *pkexec;
    options.arguments = {"/bin/sh", "-c", line};
    Subprocess::Result run = Subprocess::run(options);
    if (!run.launched)
        return failure("Failed to launch: " + run.launchError);
    if (!Utf8::isValid(run.output))
        run.output.clear();
    if (run.status == 0)
        return {true, false, std::move(run.output)};
    return failure(std::move(run.output), run.status == dismissedStatus);
}

std::string escapedForAppleScript(std::string_view command)
{
    std::string escaped;
    escaped.reserve(command.size());
    for (const char c : command) {
        if (c == '\\')
            escaped += "\\\\";
        else
            escaped += c;
    }
    std::string quoted;
    quoted.reserve(escaped.size());
    for (const char c : escaped) {
        if (c == '"')
            quoted += "\\\"";
        else
            quoted += c;
    }
    return quoted;
}

std::string appleScriptSource(std::string_view command)
{
    return "do shell script \"" + escapedForAppleScript(command) + "\" with administrator privileges";
}

}  // namespace AdminShell
