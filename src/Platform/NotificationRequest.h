#pragma once

#include <QString>

// One notification to show at once. A later request with the same identifier replaces the
// notification of the earlier one instead of piling up beside it.
struct NotificationRequest {
    enum class Sound { none, standard };

    QString identifier;
    QString title;
    QString body;
    Sound sound = Sound::none;
    // Empty: no category, hence no actions, and a click only dismisses it.
    QString categoryIdentifier;
};
