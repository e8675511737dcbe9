#include "CatalogWords.h"

#include "Platform/Utf8.h"
#include "QtConversions.h"

#include <QCoreApplication>

namespace CatalogWords {

const std::vector<Word>& all()
{
    static const std::vector<Word> words = {
        // The targets of the desktop's catalog, then the build folders found in projects.
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "App cache files")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Trash")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Display server logs")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Saved session state")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Thumbnails")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Flatpak app caches")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Google Chrome cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Chromium cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Firefox cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Gradle caches")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "npm cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Yarn cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "pnpm store")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "uv cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "pip cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Flutter / pub cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Go module cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Cargo registry cache")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Docker prune")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "JetBrains caches")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Homebrew cleanup")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Swift / build tool caches")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "ML / browser-automation caches")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "node_modules folders")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Next.js build output")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Rust target folders")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Python __pycache__")},
        {"CleanupCatalog", QT_TRANSLATE_NOOP("CleanupCatalog", "Python virtualenvs")},
        // The simple mode's groups.
        {"SimpleGroup", QT_TRANSLATE_NOOP("SimpleGroup", "System & app caches")},
        {"SimpleGroup", QT_TRANSLATE_NOOP("SimpleGroup", "Browser caches")},
        {"SimpleGroup", QT_TRANSLATE_NOOP("SimpleGroup", "Trash")},
        // The developer mode's headings.
        {"CleanupCategory", QT_TRANSLATE_NOOP("CleanupCategory", "Recommended")},
        {"CleanupCategory", QT_TRANSLATE_NOOP("CleanupCategory", "Browser caches")},
        {"CleanupCategory", QT_TRANSLATE_NOOP("CleanupCategory", "Developer caches")},
        {"CleanupCategory", QT_TRANSLATE_NOOP("CleanupCategory", "Build artifacts")},
        {"CleanupCategory", QT_TRANSLATE_NOOP("CleanupCategory", "Custom folders")},
    };
    return words;
}

QString targetName(const std::string& name)
{
    // A custom folder is named after the folder, whose name is bytes and stays as it is.
    if (!Utf8::isValid(name))
        return QtConversions::toQt(name);
    return QCoreApplication::translate(targetContext, name.c_str());
}

}  // namespace CatalogWords
