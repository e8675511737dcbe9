#include "Services/LoginItem.h"

#include "Platform/AtomicFile.h"
#include "Platform/Bundle.h"
#include "Platform/DesktopEntry.h"
#include "Platform/Utf8.h"
#include "Platform/XdgFolders.h"
#include "Services/AutostartEntries.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <unistd.h>

namespace LoginItem {
namespace {

QString reason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// An argument as the Exec key takes it: in double quotes when it holds a character the key
// reserves, with ", `, $ and \ escaped inside them.
std::string quotedArgument(const std::string& argument)
{
    constexpr std::string_view reserved = " \t\n\"'\\><~|&;$*?#()`";
    if (!argument.empty() && argument.find_first_of(reserved) == std::string::npos)
        return argument;
    std::string quoted = "\"";
    for (const char c : argument) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + "\"";
}

// The Exec value as written in the file: "%" doubled (it starts field codes), then the string
// escapes every value has, which double each backslash once more.
std::string execValue(const std::string& executable)
{
    std::string value;
    for (const char c : quotedArgument(executable)) {
        if (c == '%')
            value += "%%";
        else if (c == '\\')
            value += "\\\\";
        else
            value += c;
    }
    return value;
}

std::string disabledCopy(const std::string& live)
{
    return AutostartEntries::disabledFolder() + "/" + std::filesystem::path(live).filename().string();
}

// Removes the file at `path`; false (errno set) when something is there and stays.
bool removeFile(const std::string& path)
{
    return unlink(path.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
}

}  // namespace

Error::Error(QString description) : description_(std::move(description)), utf8_(description_.toStdString()) {}

std::optional<std::string> entryPath()
{
    const auto identifier = Bundle::mainIdentifier();
    if (!identifier || identifier->empty())
        return std::nullopt;
    return AutostartEntries::liveFolder() + "/" + *identifier + ".desktop";
}

bool isAvailable()
{
    return entryPath().has_value();
}

bool isEnabled()
{
    const auto path = entryPath();
    if (!path)
        return false;
    const auto entry = DesktopEntry::read(*path);
    if (!entry || !entry->hasMainGroup() || entry->execArguments().empty())
        return false;
    const auto file = AtomicFile::read(*path);
    return file.readable && !AutostartEntries::isHidden(file.contents);
}

std::string entryText(const std::string& executable)
{
    std::string text = "[Desktop Entry]\nType=Application\nName=Mopwell\n";
    text += "Exec=" + execValue(executable) + "\n";
    if (const auto identifier = Bundle::mainIdentifier())
        text += "Icon=" + *identifier + "\n";
    text += "Terminal=false\nX-GNOME-Autostart-enabled=true\n";
    return text;
}

void setEnabled(bool enabled, const std::string& executable)
{
    const auto path = entryPath();
    if (!path) {
        throw Error(QCoreApplication::translate(
            "LoginItem", "Starting at login is only available in the installed application."));
    }
    if (!enabled) {
        if (!removeFile(*path) || !removeFile(disabledCopy(*path))) {
            const QString why = reason(errno);
            throw Error(QCoreApplication::translate(
                "LoginItem", "Couldn't remove Mopwell from the programs that start at login: %1").arg(why));
        }
        return;
    }
    // A desktop entry is UTF-8 text; a program whose path isn't can't be named in one.
    if (executable.empty() || !Utf8::isValid(executable)) {
        throw Error(QCoreApplication::translate(
            "LoginItem", "Couldn't find Mopwell's own program file to start at login."));
    }
    if (!AtomicFile::replace(*path, entryText(executable))) {
        const QString why = reason(errno);
        throw Error(QCoreApplication::translate(
            "LoginItem", "Couldn't add Mopwell to the programs that start at login: %1").arg(why));
    }
    // An entry of ours switched off elsewhere would otherwise come back as a second copy.
    removeFile(disabledCopy(*path));
}

void setEnabled(bool enabled)
{
    setEnabled(enabled, runningExecutable());
}

std::string runningExecutable()
{
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string() : path.string();
}

}  // namespace LoginItem
