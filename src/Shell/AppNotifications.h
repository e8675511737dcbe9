#pragma once

#include <QObject>
#include <QString>

// The application's in-process notifications, posted by name and observed as signals. They tie
// parts that don't know each other together: Settings asks for the welcome screen again, and a
// tap on the low-space alert asks for a clean of everything.
class AppNotifications : public QObject {
    Q_OBJECT

public:
    static inline const QString showOnboardingName = QStringLiteral("mopwell.showOnboarding");
    static inline const QString requestCleanAllName = QStringLiteral("mopwell.requestCleanAll");

    explicit AppNotifications(QObject* parent = nullptr);

    // Delivers the notification with this name to its observers. Unknown names reach nobody.
    void post(const QString& name);

signals:
    void showOnboarding();
    void requestCleanAll();
};
