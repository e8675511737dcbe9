#pragma once

#include <QString>

// A button on a notification. The identifier is what a response reports; the title is shown.
struct NotificationAction {
    QString identifier;
    QString title;

    friend bool operator==(const NotificationAction&, const NotificationAction&) = default;
};
