#include "Platform/DesktopEntry.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::string_view mainGroup = "Desktop Entry";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(" \t\r");
    return text.substr(first, last - first + 1);
}

}  // namespace

DesktopEntry DesktopEntry::parse(std::string_view text)
{
    DesktopEntry entry;
    bool inMain = false;
    bool mainSeen = false;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos)
            end = text.size();
        const std::string_view line = trimmed(text.substr(start, end - start));
        start = end + 1;
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[') {
            // Only the first main group counts; a repeated one is an error and is skipped.
            const bool isMain = line.size() >= 2 && line.back() == ']' && line.substr(1, line.size() - 2) == mainGroup;
            inMain = isMain && !mainSeen;
            mainSeen = mainSeen || isMain;
            continue;
        }
        const auto equals = line.find('=');
        if (!inMain || equals == std::string_view::npos)
            continue;
        const std::string_view key = trimmed(line.substr(0, equals));
        if (key.empty())
            continue;
        entry.entries_.emplace_back(std::string(key), std::string(trimmed(line.substr(equals + 1))));
    }
    entry.hasMainGroup_ = mainSeen;
    return entry;
}

std::optional<DesktopEntry> DesktopEntry::read(const std::string& path)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return std::nullopt;
    struct stat info {};
    std::string contents;
    bool ok = ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && std::size_t(info.st_size) <= maxFileSize;
    if (ok) {
        contents.resize(std::size_t(info.st_size));
        std::size_t done = 0;
        while (done < contents.size()) {
            const ssize_t got = ::read(fd, contents.data() + done, contents.size() - done);
            if (got <= 0)
                break;
            done += std::size_t(got);
        }
        contents.resize(done);
    }
    ::close(fd);
    if (!ok)
        return std::nullopt;
    return parse(contents);
}

std::optional<std::string_view> DesktopEntry::raw(std::string_view key) const
{
    for (const auto& [name, value] : entries_) {
        if (name == key)
            return std::string_view(value);
    }
    return std::nullopt;
}

std::optional<std::string> DesktopEntry::string(std::string_view key) const
{
    const auto value = raw(key);
    if (!value)
        return std::nullopt;
    return unescape(*value);
}

std::optional<bool> DesktopEntry::boolean(std::string_view key) const
{
    const auto value = raw(key);
    if (value == "true")
        return true;
    if (value == "false")
        return false;
    return std::nullopt;
}

std::vector<std::string> DesktopEntry::strings(std::string_view key) const
{
    std::vector<std::string> items;
    const auto value = raw(key);
    if (!value)
        return items;
    std::string item;
    for (std::size_t i = 0; i < value->size(); ++i) {
        const char c = (*value)[i];
        if (c == '\\' && i + 1 < value->size() && (*value)[i + 1] == ';') {
            item += ";";
            ++i;
        } else if (c == ';') {
            if (!item.empty())
                items.push_back(unescape(item));
            item.clear();
        } else {
            item += c;
        }
    }
    if (!item.empty())
        items.push_back(unescape(item));
    return items;
}

std::vector<std::string> DesktopEntry::execArguments() const
{
    const auto value = string("Exec");
    return value ? splitExec(*value) : std::vector<std::string>{};
}

std::string DesktopEntry::unescape(std::string_view value)
{
    std::string result;
    result.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        switch (value[++i]) {
        case 's': result += ' '; break;
        case 'n': result += '\n'; break;
        case 't': result += '\t'; break;
        case 'r': result += '\r'; break;
        case '\\': result += '\\'; break;
        default:
            // Not an escape of this level (Exec's own quoting uses \" and friends): kept.
            result += '\\';
            result += value[i];
        }
    }
    return result;
}

std::vector<std::string> DesktopEntry::splitExec(std::string_view command)
{
    std::vector<std::string> arguments;
    std::string current;
    bool inArgument = false;
    bool quoted = false;
    for (std::size_t i = 0; i < command.size(); ++i) {
        const char c = command[i];
        if (quoted) {
            if (c == '"') {
                quoted = false;
            } else if (c == '\\' && i + 1 < command.size() && std::string_view("\"`$\\").find(command[i + 1]) != std::string_view::npos) {
                current += command[++i];
            } else {
                current += c;
            }
        } else if (c == ' ' || c == '\t') {
            if (inArgument)
                arguments.push_back(std::move(current));
            current.clear();
            inArgument = false;
        } else {
            inArgument = true;
            if (c == '"')
                quoted = true;
            else
                current += c;
        }
    }
    if (inArgument)
        arguments.push_back(std::move(current));
    return arguments;
}
