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
        };
    }
    return {
        tr("File Manager"),
        tr("Show in File Manager"),
        tr("Show project in File Manager"),
        tr("Open Startup Settings…"),
    };
}

const DesktopWords::Words& DesktopWords::current()
{
    // Read once, after the translator for the stored language is installed at start.
    static const Words words = forProfile(currentPlatformProfile());
    return words;
}

DesktopWords* DesktopWords::create(QQmlEngine*, QJSEngine*)
{
    return new DesktopWords;
}
