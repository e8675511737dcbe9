#include "ProjectDirText.h"

#include "Platform/Paths.h"

#include <QCoreApplication>

#include <chrono>

namespace ProjectDirText {

QString ageText(std::optional<Clock::TimePoint> modified, Clock::TimePoint now)
{
    if (!modified)
        return QStringLiteral("—");
    const auto days = std::chrono::duration_cast<std::chrono::seconds>(now - *modified).count() / 86400;
    if (days < 1)
        return QCoreApplication::translate("ProjectDirText", "today");
    if (days == 1)
        return QCoreApplication::translate("ProjectDirText", "yesterday");
    if (days < 30)
        return QCoreApplication::translate("ProjectDirText", "%1 days ago").arg(days);
    if (days < 365)
        return QCoreApplication::translate("ProjectDirText", "%1 mo ago").arg(days / 30);
    return QCoreApplication::translate("ProjectDirText", "%1 yr ago").arg(days / 365);
}

std::string projectName(const std::string& buildFolder)
{
    return Paths::lastComponent(Paths::parentFolder(buildFolder));
}

}  // namespace ProjectDirText
