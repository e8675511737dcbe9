#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class DefaultsStore;

// The language the application shows itself in, kept as a list of language codes under the
// defaults key "AppleLanguages" (only the first counts). Nothing stored means the desktop's own
// languages. A change reaches the screen at the next start, which relaunch() offers.
namespace AppLanguage {

inline constexpr const char* key = "AppleLanguages";
// What a relaunched copy is started with: it waits for the copy it replaces to end.
inline constexpr const char* relaunchArgument = "--relaunch";

// The codes of the translations compiled in, from their file names (mopwell_<code>.qm), sorted.
QStringList shipped();
// English, which needs no translation, first; then the given codes ascending.
QStringList available(const QStringList& translations = shipped());

// The first code stored, or empty when none is (or the key holds anything but text).
QString current(const DefaultsStore& store);
// False, changing nothing, when `code` is already current. Empty removes the key, so the
// desktop's languages apply again; any other code is stored as the one-element list.
bool set(DefaultsStore& store, const QString& code);

// The language named in itself and capitalised the way that language does it ("Deutsch",
// "Français"); the code itself when it names no language.
QString displayName(const QString& code);

// The language to show: the stored code when the build has it, else the first of the desktop's
// languages that it has, else English ("en", which needs no translation).
QString resolved(const QString& stored, const QStringList& desktopLanguages,
                 const QStringList& translations = shipped());

// At start, before any window is built: installs the translations of the resolved language
// (ours and Qt's own), and makes dates, numbers and sizes follow it.
void install(const DefaultsStore& store);

// Starts a new copy of the program, then quits this one, whether the start worked or not.
void relaunch(const QString& program, const std::function<void()>& quit);
void relaunch();

}  // namespace AppLanguage
