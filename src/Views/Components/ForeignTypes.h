#pragma once

// Makes the application's model and settings known to QML by type, so views can declare
// `required property AppModel model` and bind to its properties. Neither is created from QML:
// the shell hands every window the one model.

#include "AppModel.h"
#include "Services/AppSettings.h"

#include <QtQml/qqml.h>

struct AppModelForeign {
    Q_GADGET
    QML_FOREIGN(AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_UNCREATABLE("The application has one model; the shell hands it to each window.")
};

struct AppSettingsForeign {
    Q_GADGET
    QML_FOREIGN(AppSettings)
    QML_NAMED_ELEMENT(AppSettings)
    QML_UNCREATABLE("Settings belong to the application model.")
};
