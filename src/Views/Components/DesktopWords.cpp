#include "DesktopWords.h"

#include <QCoreApplication>

DesktopWords::DesktopWords(QObject* parent) : QObject(parent) {}

DesktopWords::Words DesktopWords::forProfile(PlatformProfile profile)
{
    if (profile == PlatformProfile::macOS) {
        return {
            tr("Finder"),
            tr("Reveal in Finder"),
            tr("Reveal project in Finder"),
            tr("Open Login Items…"),
            tr("Double-tap to open"),
            tr("App login items are managed by macOS."),
            tr("Local snapshots are temporary copies Time Machine keeps so it can back up when your drive isn't "
               "connected. macOS frees them automatically under pressure — removing them reclaims that space now. "
               "Your Time Machine backups on external or network drives are not touched."),
            tr("Snapshots removed — macOS may report the freed space in a moment."),
            tr("Free up space from caches and junk you don't need — cleaned safely, right from your menu bar."),
            tr("How do you use this Mac?"),
            tr("Open Mopwell from the menu bar any time to clean up or explore the Disk Map."),
            tr("Click the drive icon in your menu bar any time to free up space or open the Disk Map."),
            tr("Menu bar shows"),
            tr("Icon only"),
            tr("Everyday caches, one tap."),
            tr("Also Xcode, npm, Docker & node_modules."),
            tr("Reveals Xcode, npm, Docker and other dev caches, plus node_modules and build folders in your projects."),
        };
    }
    return {
        tr("File Manager"),
        tr("Show in File Manager"),
        tr("Show project in File Manager"),
        tr("Open Startup Settings…"),
        tr("Double-click to open"),
        tr("Startup apps for all users are managed by your desktop."),
        tr("Snapshots are copies of your system that Snapper keeps on Btrfs so you can undo changes. Old ones hold "
           "on to space — removing them reclaims it now. Your backups on other drives are not touched."),
        tr("Snapshots removed — the file system may report the freed space in a moment."),
        // The status icon sits in the panel's status area, and it draws a gauge, not a drive.
        tr("Free up space from caches and junk you don't need — cleaned safely, right from your panel."),
        tr("How do you use this computer?"),
        tr("Open Mopwell from its icon in the panel any time to clean up or explore the Disk Map."),
        tr("Click Mopwell's icon in your panel any time to free up space or open the Disk Map."),
        tr("Status icon tooltip shows"),
        tr("Nothing"),
        tr("Everyday caches, one click."),
        tr("Also npm, Docker, Gradle & node_modules."),
        tr("Reveals npm, Docker, Gradle and other dev caches, plus node_modules and build folders in your projects."),
    };
}

DesktopWords::Words DesktopWords::current()
{
    // Looked up at every reading, so they follow the translator installed at the time.
    return forProfile(currentPlatformProfile());
}

DesktopWords* DesktopWords::create(QQmlEngine*, QJSEngine*)
{
    return new DesktopWords;
}
