#pragma once

#include <string>

// A package the user installed that has a newer version: a Homebrew formula or cask, or an app
// the user installed with Flatpak.
struct OutdatedPackage {
    enum class Kind { formula, cask, flatpakApp };

    // What the package manager knows it by: the formula or cask name, the Flatpak application id.
    std::string name;
    std::string installed = "?";  // the version installed now; "?" when unknown
    std::string current = "?";    // the version available; "?" when unknown
    Kind kind = Kind::formula;
    // The name people know the app by ("Firefox"); empty when it is the package name itself.
    std::string title;

    bool isCask() const { return kind == Kind::cask; }
    bool isApp() const { return kind != Kind::formula; }
    // "formula:", "cask:" or "flatpak:" followed by the name.
    std::string id() const;
    // The title when there is one, else the name.
    const std::string& displayName() const { return title.empty() ? name : title; }

    bool operator==(const OutdatedPackage&) const = default;
};
