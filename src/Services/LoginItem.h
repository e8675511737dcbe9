#pragma once

#include <QString>

#include <exception>
#include <optional>
#include <string>

// Starting with the session: an autostart entry of our own, named after the application's
// identifier, in the user's autostart folder. Whether it is on is read back from that file each
// time, so a change made elsewhere (the startup items window, the desktop's own settings) shows.
namespace LoginItem {

// Why the entry could not be written or removed, worded for the user.
class Error : public std::exception {
public:
    explicit Error(QString description);
    const QString& localizedDescription() const { return description_; }
    const char* what() const noexcept override { return utf8_.c_str(); }

private:
    QString description_;
    std::string utf8_;
};

// $XDG_CONFIG_HOME/autostart/<identifier>.desktop; none while the running program has no
// identifier (tests and command-line tools), which is also when the choice isn't offered.
std::optional<std::string> entryPath();
bool isAvailable();

// The entry is there, names a program and isn't marked as not to be started.
bool isEnabled();

// On: writes the entry atomically with "Exec" naming `executable`. Off: removes it, along with a
// copy switched off into the autostart folder's "Disabled", so no stale entry of ours is left to
// be switched back on. Throws Error when that fails or no identifier is set.
void setEnabled(bool enabled, const std::string& executable);
void setEnabled(bool enabled);  // with the running executable

// The running program's own file, links resolved.
std::string runningExecutable();

// The entry's text: a desktop entry that starts `executable` with no arguments. The path is
// quoted as the desktop entry rules ask, so any name (spaces, quotes, "$", "%") starts the same
// file.
std::string entryText(const std::string& executable);

}  // namespace LoginItem
