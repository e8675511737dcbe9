#include "WindowDefinition.h"

#include <QObject>

namespace {

QUrl view(const QString& name)
{
    return QUrl(QStringLiteral("qrc:/Mopwell/Views/") + name + QStringLiteral(".qml"));
}

}  // namespace

std::vector<WindowDefinition> applicationWindows()
{
    return {
        {"settings", view("SettingsView"), QObject::tr("Mopwell Settings"), std::nullopt, true},
        {"confirm", view("ConfirmWindowView"), QObject::tr("Confirm Cleanup"), std::nullopt, true},
        {"diskmap", view("DiskMapView"), QObject::tr("Disk Map"), QSize(760, 560), false},
        {"largefiles", view("LargeFilesView"), QObject::tr("Large & Duplicate Files"), std::nullopt, true},
        {"projectcleanup", view("ProjectCleanupView"), QObject::tr("Project Cleanup"), std::nullopt, true},
        {"startup", view("StartupItemsView"), QObject::tr("Startup & Background Items"), std::nullopt, false},
        {"snapshots", view("SnapshotsView"), QObject::tr("Free Up Snapshot Space"), std::nullopt, false},
        {"appupdates", view("AppUpdatesView"), QObject::tr("App & Tool Updates"), std::nullopt, false},
        {"uninstaller", view("UninstallerView"), QObject::tr("Uninstall an App"), std::nullopt, true},
        {"about", view("AboutView"), QObject::tr("About Mopwell"), std::nullopt, true},
    };
}
