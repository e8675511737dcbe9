#pragma once

#include "Models/Uuid.h"
#include "Platform/PlatformProfile.h"

#include <string>
#include <vector>

// A folder the disk map offers to scan with one click.
struct ScanPreset {
    Uuid id;
    std::string label;
    std::string symbol;
    std::string path;

    // The places of this build's desktop, from the home folder of the moment.
    static std::vector<ScanPreset> all();

    // A Mac: Home, Documents, Downloads, Desktop, Applications and the whole disk, in that order.
    // A Linux desktop: the home; its Documents, Downloads and Desktop folders where the folder
    // settings put them; the apps the user installed (AppImages kept in ~/Applications, the
    // Flatpak apps) and the data Flatpak apps keep; and the whole disk. A Linux desktop has no
    // fixed set of these folders, so one that isn't there gets no card: a map of it would only
    // ever say there is nothing to show.
    static std::vector<ScanPreset> forProfile(PlatformProfile profile);
};
