#pragma once

#include <string>

// Something that starts by itself when the user logs in: a launch agent of the user's own
// account, or an autostart entry of the user's desktop session.
struct StartupItem {
    enum class Kind { launchAgent, autostartEntry };

    std::string id;        // the full path of the file where it lies now
    std::string label;
    std::string program;   // "—" when the file doesn't say
    bool enabled = false;  // it starts at the next login
    std::string fileName;  // the file's name with its extension
    Kind kind = Kind::launchAgent;

    bool operator==(const StartupItem&) const = default;
};
