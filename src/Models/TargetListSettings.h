#pragma once

#include <string>
#include <vector>

// The settings that decide which targets are live and which of them count toward the total,
// apart from the rest of the user's choices, so the list is built the same way by the
// application and by the command-line tools.
struct TargetListSettings {
    bool developerMode = false;
    // The optional caches: each keeps its row out of the list, in either mode, while it is off.
    bool cleanSavedState = false;
    bool cleanMusicCache = false;
    bool cleanMailDownloads = true;
    std::vector<std::string> projectRoots;
    std::vector<std::string> ignoredFinderPaths;
    double finderMinAgeDays = 0.0;
    std::vector<std::string> customFolders;
    // Live, but left out of the total and of the clean of everything.
    std::vector<std::string> disabledTargetIDs;
};
