#include "AppNotifications.h"

AppNotifications::AppNotifications(QObject* parent) : QObject(parent) {}

void AppNotifications::post(const QString& name)
{
    if (name == showOnboardingName)
        emit showOnboarding();
    else if (name == requestCleanAllName)
        emit requestCleanAll();
}
