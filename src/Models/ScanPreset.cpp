#include "Models/ScanPreset.h"

#include "Platform/Paths.h"

const std::vector<ScanPreset>& ScanPreset::all()
{
    static const std::vector<ScanPreset> presets = [] {
        const std::string home = Paths::home();
        return std::vector<ScanPreset>{
            {Uuid::random(), "Home", "house", home},
            {Uuid::random(), "Documents", "doc.text", home + "/Documents"},
            {Uuid::random(), "Downloads", "arrow.down.circle", home + "/Downloads"},
            {Uuid::random(), "Desktop", "menubar.dock.rectangle", home + "/Desktop"},
            {Uuid::random(), "Applications", "app.badge", "/Applications"},
            {Uuid::random(), "Whole Disk", "internaldrive", "/"},
        };
    }();
    return presets;
}
