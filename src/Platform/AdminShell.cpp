#include "Platform/AdminShell.h"

#include "Platform/ExecutablePath.h"
#include "Platform/Subprocess.h"
#include "Platform/TextTrim.h"
#include "Platform/UserText.h"
#include "Platform/Utf8.h"

#include <utility>

namespace AdminShell {
namespace {

// pkexec's own status when the user dismissed the authorization dialog or was refused.
constexpr int dismissedStatus = 126;

Result failure(const std::string& output, bool cancelled = false)
{
    const std::string_view message = TextTrim::trimmed(output);
    if (message.empty())
        return {false, cancelled, QT_TRANSLATE_NOOP("AdminShell", "Authorization failed.")};
    return {false, cancelled, std::string(message)};
}

std::string replacingAll(std::string_view text, char character, std::string_view replacement)
{
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (c == character)
            result += replacement;
        else
            result += c;
    }
    return result;
}

}  // namespace

Result run(const std::string& line)
{
    const auto pkexec = ExecutablePath::find("pkexec");
    if (!pkexec)
        return failure(
            QT_TRANSLATE_NOOP("AdminShell", "Administrator rights can't be asked for: pkexec isn't installed."));

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
    return failure(run.output, run.status == dismissedStatus);
}

std::string escapedForAppleScript(std::string_view command)
{
    return replacingAll(replacingAll(command, '\\', "\\\\"), '"', "\\\"");
}

std::string appleScriptSource(std::string_view command)
{
    return "do shell script \"" + escapedForAppleScript(command) + "\" with administrator privileges";
}

}  // namespace AdminShell
