#include "WindowDefinition.h"

#include <QObject>

namespace {

// Each window's view lives in a folder of its own under Views/.
QUrl view(const QString& folder, const QString& name)
{
    return QUrl(QStringLiteral("qrc:/Mopwell/Views/%1/%2.qml").arg(folder, name));
}

}  // namespace

std::vector<WindowDefinition> applicationWindows()
{
    return {
        {"settings", view("Settings", "SettingsView"), QObject::tr("Mopwell Settings"), std::nullopt, true},
        {"confirm", view("Confirm", "ConfirmWindowView"), QObject::tr("Confirm Cleanup"), std::nullopt, true},
        {"diskmap", view("DiskMap", "DiskMapView"), QObject::tr("Disk Map"), QSize(760, 560), false},
        {"largefiles", view("LargeFiles", "LargeFilesView"), QObject::tr("Large & Duplicate Files"), std::nullopt, true},
        {"projectcleanup", view("ProjectCleanup", "ProjectCleanupView"), QObject::tr("Project Cleanup"), std::nullopt, true},
        {"startup", view("StartupItems", "StartupItemsView"), QObject::tr("Startup & Background Items"), std::nullopt, false},
        {"snapshots", view("Snapshots", "SnapshotsView"), QObject::tr("Free Up Snapshot Space"), std::nullopt, false},
        {"appupdates", view("Updates", "AppUpdatesView"), QObject::tr("App & Tool Updates"), std::nullopt, false},
        {"uninstaller", view("Uninstaller", "UninstallerView"), QObject::tr("Uninstall an App"), std::nullopt, true},
        {"about", view("About", "AboutView"), QObject::tr("About Mopwell"), std::nullopt, true},
        {"update", view("About", "SoftwareUpdateView"), QObject::tr("Software Update"), std::nullopt, true},
    };
}
