#pragma once

#include "Platform/Clock.h"

#include <QString>

#include <optional>
#include <string>

// How the project cleanup words a folder for the user.
namespace ProjectDirText {

// How long ago a folder last changed: "today", "yesterday", "12 days ago", "3 mo ago",
// "2 yr ago", counted in whole days; "—" without a date.
QString ageText(std::optional<Clock::TimePoint> modified, Clock::TimePoint now);

// The project a build folder belongs to: the name of the folder that holds it.
std::string projectName(const std::string& buildFolder);

}  // namespace ProjectDirText
