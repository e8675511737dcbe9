#pragma once

#include "Platform/PlatformProfile.h"

#include "AppModel.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

// The caches a user opts into (streamed music, saved window state, mail attachment copies), as
// far as the desktop's catalog has them: a desktop without such a row offers no switch for it.
// `OptionalCaches.rows(model)` gives, in catalog order,
// [{id, setting, symbol, title, caption, subtitle}]: `setting` names the AppSettings property
// the switch is bound to, `caption` is the settings window's line, `subtitle` the welcome's.
class OptionalCaches : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit OptionalCaches(QObject* parent = nullptr);

    Q_INVOKABLE QVariantList rows(AppModel* model) const;
    static QVariantList rowsFor(PlatformProfile profile);
};
