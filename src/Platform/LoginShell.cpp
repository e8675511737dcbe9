#include "Platform/LoginShell.h"

#include <cerrno>
#include <pwd.h>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace Platform {
namespace {

const char* const fallbackShell = "/bin/sh";

// The reentrant lookup: commands are started from several background threads at once.
std::string passwordDatabaseShell()
{
    long suggested = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(suggested > 0 ? static_cast<std::size_t>(suggested) : 4096);
    passwd entry{};
    passwd* found = nullptr;
    for (;;) {
        const int error = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
        if (error == ERANGE && buffer.size() < (1u << 20)) {
            buffer.resize(buffer.size() * 2);
            continue;
        }
        if (error != 0 || !found || !found->pw_shell)
            return {};
        return found->pw_shell;
    }
}

bool refusesLogins(std::string_view shell)
{
    const auto slash = shell.rfind('/');
    const std::string_view name = slash == std::string_view::npos ? shell : shell.substr(slash + 1);
    return name == "nologin" || name == "false";
}

}  // namespace

std::string loginShell()
{
    const std::string shell = passwordDatabaseShell();
    if (shell.empty() || refusesLogins(shell) || access(shell.c_str(), X_OK) != 0)
        return fallbackShell;
    return shell;
}

}  // namespace Platform
