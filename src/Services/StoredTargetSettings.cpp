#include "Services/StoredTargetSettings.h"

#include "Platform/DefaultsStore.h"
#include "Platform/Paths.h"

#include <algorithm>

namespace StoredTargetSettings {

TargetListSettings read(const DefaultsStore& store)
{
    auto strings = [&](const char* key) { return store.stringArray(key).value_or(std::vector<std::string>{}); };
    TargetListSettings settings;
    settings.developerMode = store.boolValue("developerMode");
    settings.cleanSavedState = store.boolean("cleanSavedState").value_or(false);
    settings.cleanMusicCache = store.boolean("cleanMusicCache").value_or(false);
    settings.cleanMailDownloads = store.boolean("cleanMailDownloads").value_or(true);
    // The default roots apply only to a first start: a list the user emptied stays empty.
    settings.projectRoots = store.contains("projectRoots")
                                ? strings("projectRoots")
                                : std::vector<std::string>{Paths::expandingTilde("~/src"), Paths::expandingTilde("~/dev")};
    settings.ignoredFinderPaths = strings("ignoredFinderPaths");
    settings.finderMinAgeDays = store.number("finderMinAgeDays").value_or(0.0);
    settings.customFolders = strings("customFolders");
    // Kept as a set: sorted, each id once.
    settings.disabledTargetIDs = strings("disabledTargetIDs");
    std::sort(settings.disabledTargetIDs.begin(), settings.disabledTargetIDs.end());
    settings.disabledTargetIDs.erase(std::unique(settings.disabledTargetIDs.begin(), settings.disabledTargetIDs.end()),
                                     settings.disabledTargetIDs.end());
    return settings;
}

}  // namespace StoredTargetSettings
