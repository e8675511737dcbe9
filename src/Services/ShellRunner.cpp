#include "Services/ShellRunner.h"

#include "Platform/LoginShell.h"
#include "Platform/Paths.h"
#include "Platform/Subprocess.h"
#include "Platform/Utf8.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace ShellRunner {
namespace {

std::optional<std::chrono::milliseconds> timeLimit(double seconds)
{
    // Beyond this the limit could never be reached anyway, and the conversion would overflow.
    constexpr double longest = 1e9;
    if (!std::isfinite(seconds) || seconds >= longest)
        return std::nullopt;
    const double milliseconds = std::ceil(std::max(seconds, 0.0) * 1000.0);
    return std::chrono::milliseconds(static_cast<std::int64_t>(milliseconds));
}

}  // namespace

ShellResult runLogin(const std::string& command, double timeoutSeconds)
{
    return runLoginWith(Platform::loginShell(), command, timeoutSeconds);
}

ShellResult runLoginWith(const std::string& shell, const std::string& command, double timeoutSeconds)
{
    Subprocess::Options options;
    options.executable = shell;
    options.arguments = {"-lc", command};
    options.workingFolder = Paths::home();
    options.timeout = timeLimit(timeoutSeconds);

    Subprocess::Result run = Subprocess::run(options);
    if (!run.launched)
        return {-1, "Failed to launch: " + run.launchError};
    if (!Utf8::isValid(run.output))
        run.output.clear();
    return {run.status, std::move(run.output)};
}

}  // namespace ShellRunner
