#include "Services/Notifier.h"

#include "Platform/Bundle.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/NotificationCenter.h"
#include "Platform/PlatformProfile.h"
#include "QtConversions.h"

#include <QCoreApplication>
#include <QPointer>

namespace Notifier {
namespace {

QPointer<NotificationCenter> defaultCenter;
QPointer<NotificationCenter> replacementCenter;

bool hasIdentifier() { return Bundle::mainIdentifier().has_value(); }

QString formatted(std::int64_t bytes) { return QtConversions::toQt(ByteCountFormatter::string(bytes)); }

}  // namespace

NotificationCenter& center()
{
    if (replacementCenter)
        return *replacementCenter;
    // Parented to the application so it goes with the event loop it depends on.
    if (!defaultCenter)
        defaultCenter = new NotificationCenter(QCoreApplication::instance());
    return *defaultCenter;
}

void setCenter(NotificationCenter* replacement) { replacementCenter = replacement; }

void requestAuthorization()
{
    if (!hasIdentifier())
        return;
    // Clicking the action brings the application forward; the shell's tap handler does that.
    const NotificationAction cleanNow{cleanNowActionIdentifier, QCoreApplication::translate("Notifier", "Clean Up Now")};
    center().setCategories({NotificationCategory{lowSpaceCategoryIdentifier, {cleanNow}}});
}

void notifyLowSpace(std::int64_t availableBytes)
{
    if (!hasIdentifier())
        return;
    NotificationRequest request;
    request.identifier = lowSpaceRequestIdentifier;
    request.title = QCoreApplication::translate("Notifier", "Low disk space");
    // A Mac's notification is tapped; a Linux desktop shows the action as a button to click.
    const char* body = currentPlatformProfile() == PlatformProfile::macOS
        ? QT_TRANSLATE_NOOP("Notifier", "Only %1 available. Tap “Clean Up Now” to free up space.")
        : QT_TRANSLATE_NOOP("Notifier", "Only %1 available. Click “Clean Up Now” to free up space.");
    request.body = QCoreApplication::translate("Notifier", body).arg(formatted(availableBytes));
    request.sound = NotificationRequest::Sound::standard;
    request.categoryIdentifier = lowSpaceCategoryIdentifier;
    center().post(request);
}

void notifyAutoCleanup(std::int64_t freed)
{
    if (!hasIdentifier())
        return;
    NotificationRequest request;
    request.identifier = autoCleanupRequestIdentifier;
    request.title = QCoreApplication::translate("Notifier", "Mopwell cleaned up");
    request.body = freed >= 1
        ? QCoreApplication::translate("Notifier", "Freed %1 automatically. Items are in the Trash.").arg(formatted(freed))
        : QCoreApplication::translate("Notifier", "Nothing to clean — you're already tidy.");
    request.sound = NotificationRequest::Sound::none;
    center().post(request);
}

}  // namespace Notifier
