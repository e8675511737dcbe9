#pragma once

// The one place where the QObject layer turns engine values (UTF-8 std::string and friends) into
// Qt's and back.

#include "Platform/Clock.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace QtConversions {

inline QString toQt(const std::string& text) { return QString::fromStdString(text); }
inline std::string toStd(const QString& text) { return text.toStdString(); }

inline QStringList toQt(const std::vector<std::string>& texts)
{
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const auto& text : texts)
        list.append(toQt(text));
    return list;
}

inline std::vector<std::string> toStd(const QStringList& texts)
{
    std::vector<std::string> list;
    list.reserve(static_cast<std::size_t>(texts.size()));
    for (const auto& text : texts)
        list.push_back(toStd(text));
    return list;
}

inline QDateTime toQt(std::optional<Clock::TimePoint> time)
{
    if (!time)
        return {};
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(time->time_since_epoch()).count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

}  // namespace QtConversions
