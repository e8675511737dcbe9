#include "Platform/Paths.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <deque>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace Paths {
namespace {

std::deque<std::string> componentsOf(const std::string& path)
{
    std::deque<std::string> parts;
    std::size_t start = 0;
    while (start <= path.size()) {
        const auto slash = path.find('/', start);
        const auto end = slash == std::string::npos ? path.size() : slash;
        if (end > start)
            parts.emplace_back(path.substr(start, end - start));
        if (slash == std::string::npos)
            break;
        start = slash + 1;
    }
    return parts;
}

std::string joinedAbsolute(const std::vector<std::string>& parts)
{
    if (parts.empty())
        return "/";
    std::string path;
    for (const auto& part : parts)
        path += "/" + part;
    return path;
}

std::string workingFolder()
{
    std::vector<char> buffer(PATH_MAX);
    while (!getcwd(buffer.data(), buffer.size())) {
        if (errno != ERANGE)
            return "/";
        buffer.resize(buffer.size() * 2);
    }
    return buffer.data();
}

std::string readLink(const std::string& path)
{
    std::vector<char> buffer(256);
    for (;;) {
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0)
            return {};
        if (static_cast<std::size_t>(length) < buffer.size())
            return std::string(buffer.data(), static_cast<std::size_t>(length));
        buffer.resize(buffer.size() * 2);
    }
}

}  // namespace

std::string home()
{
    std::string folder = "/";
    if (const char* env = std::getenv("HOME"); env && *env)
        folder = env;
    else if (const passwd* entry = getpwuid(getuid()); entry && entry->pw_dir && *entry->pw_dir)
        folder = entry->pw_dir;
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    return folder;
}

std::string resolvedHome()
{
    return resolvingSymlinks(home());
}

std::string expandingTilde(const std::string& path)
{
    if (path == "~")
        return home();
    if (path.starts_with("~/"))
        return home() + path.substr(1);
    return path;
}

std::string abbreviatingWithTilde(const std::string& path)
{
    const std::string written = home();
    for (const std::string& homeFolder : {written, resolvingSymlinks(written)}) {
        if (homeFolder == "/" || homeFolder.empty())
            return path;
        if (path == homeFolder)
            return "~";
        if (path.starts_with(homeFolder + "/"))
            return "~" + path.substr(homeFolder.size());
    }
    return path;
}

std::string resolvingSymlinks(const std::string& path)
{
    // Links are followed one hop at a time, splicing the target's components in front of the
    // ones still to come; a loop stops following after a fixed number of hops, as the kernel does.
    constexpr int maximumHops = 40;
    std::deque<std::string> pending = componentsOf(path.starts_with("/") ? path : workingFolder() + "/" + path);
    std::vector<std::string> resolved;
    bool existing = true;
    int hops = 0;
    while (!pending.empty()) {
        std::string part = std::move(pending.front());
        pending.pop_front();
        if (part == ".")
            continue;
        if (part == "..") {
            if (!resolved.empty())
                resolved.pop_back();
            continue;
        }
        resolved.push_back(part);
        if (!existing)
            continue;
        struct stat info {};
        const std::string candidate = joinedAbsolute(resolved);
        if (lstat(candidate.c_str(), &info) != 0) {
            existing = false;
            continue;
        }
        if (!S_ISLNK(info.st_mode) || hops >= maximumHops)
            continue;
        const std::string target = readLink(candidate);
        if (target.empty())
            continue;
        ++hops;
        resolved.pop_back();
        if (target.starts_with("/"))
            resolved.clear();
        auto targetParts = componentsOf(target);
        pending.insert(pending.begin(), targetParts.begin(), targetParts.end());
    }
    return joinedAbsolute(resolved);
}

std::string parentFolder(const std::string& path)
{
    const auto slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string joined(const std::string& folder, const std::string& name)
{
    return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

std::string lastComponent(const std::string& path)
{
    std::string trimmed = path;
    while (trimmed.size() > 1 && trimmed.back() == '/')
        trimmed.pop_back();
    const auto slash = trimmed.rfind('/');
    return slash == std::string::npos ? trimmed : trimmed.substr(slash + 1);
}

}  // namespace Paths
