#include "OptionalCaches.h"

#include "AppModel.h"
#include "CatalogWords.h"
#include "Models/CleanupCatalog.h"
#include "QtConversions.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct OptionalCache {
    const char* id;
    const char* setting;
    const char* caption;
    const char* subtitle;
};

// In the order the settings and the welcome list them.
const OptionalCache optionalCaches[] = {
    {"musiccache", "cleanMusicCache", QT_TRANSLATE_NOOP("OptionalCaches", "Streamed songs re-buffer next time. Often many GB."),
     QT_TRANSLATE_NOOP("OptionalCaches", "Often the biggest win. Streamed songs re-buffer next time.")},
    {"savedstate", "cleanSavedState", QT_TRANSLATE_NOOP("OptionalCaches", "Apps won't reopen their last windows/tabs."),
     QT_TRANSLATE_NOOP("OptionalCaches", "Apps won't reopen their last windows. Doesn't log you out.")},
    {"maildownloads", "cleanMailDownloads",
     QT_TRANSLATE_NOOP("OptionalCaches", "Temp copies of opened attachments. Originals stay safe."),
     QT_TRANSLATE_NOOP("OptionalCaches", "Temp copies of opened attachments. Originals stay safe.")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("OptionalCaches", text);
}

}  // namespace

OptionalCaches::OptionalCaches(QObject* parent) : QObject(parent) {}

QVariantList OptionalCaches::rows(AppModel* model) const
{
    return rowsFor(model ? model->profile() : currentPlatformProfile());
}

QVariantList OptionalCaches::rowsFor(PlatformProfile profile)
{
    const auto catalog = CleanupCatalog::builtIn(profile);
    QVariantList rows;
    for (const OptionalCache& cache : optionalCaches) {
        const auto row = std::find_if(catalog.begin(), catalog.end(), [&](const CleanupTarget& t) { return t.id == cache.id; });
        if (row == catalog.end())
            continue;
        rows.append(QVariantMap{
            {"id", QString::fromLatin1(cache.id)},
            {"setting", QString::fromLatin1(cache.setting)},
            {"symbol", QtConversions::toQt(row->symbol)},
            {"title", CatalogWords::name(*row)},
            {"caption", translated(cache.caption)},
            {"subtitle", translated(cache.subtitle)},
        });
    }
    return rows;
}
