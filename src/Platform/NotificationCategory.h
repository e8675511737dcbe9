#pragma once

#include "Platform/NotificationAction.h"

#include <QList>
#include <QString>

// A kind of notification and the actions every notification of that kind offers. Responses to a
// notification are reported with its category, so the application can tell its alerts apart.
struct NotificationCategory {
    QString identifier;
    QList<NotificationAction> actions;
};
