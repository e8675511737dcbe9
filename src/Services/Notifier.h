#pragma once

#include <cstdint>

class NotificationCenter;

// The application's two notifications: the low-space alert, whose "Clean Up Now" action leads to
// a clean, and the report of an automatic clean. Each has a fixed identifier, so a newer one
// replaces the older instead of stacking up. Nothing at all happens while the application has no
// identifier, as in tests and command-line tools.
namespace Notifier {

inline constexpr const char* lowSpaceRequestIdentifier = "mopwell.lowspace";
inline constexpr const char* autoCleanupRequestIdentifier = "mopwell.autocleanup";
inline constexpr const char* lowSpaceCategoryIdentifier = "LOWSPACE";
inline constexpr const char* cleanNowActionIdentifier = "CLEAN_NOW";

// Registers the low-space category with its action. The desktop asks no permission to notify;
// a user who turned notifications off simply doesn't see them.
void requestAuthorization();

void notifyLowSpace(std::int64_t availableBytes);
// `freed` below 1 byte reports that there was nothing to clean.
void notifyAutoCleanup(std::int64_t freed);

// Where notifications go: by default a center over the session bus, made on first use and owned
// by the QCoreApplication. The shell connects its tap handler to this center's `responded`.
NotificationCenter& center();
// Sends notifications to `replacement` instead (not owned); none restores the default center.
void setCenter(NotificationCenter* replacement);

}  // namespace Notifier
