#include "Formatter.h"

#include "Platform/ByteCountFormatter.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

// The platform's "medium" date: the long form without the weekday, the month abbreviated
// ("Jan 5, 2024", "5. Jan. 2024", "5 janv. 2024").
QString mediumDateFormat(const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::LongFormat);
    static const QRegularExpression weekday(QStringLiteral("d{4}[,.]?\\s*"));
    format.remove(weekday);
    format.replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
    return format.trimmed();
}

}  // namespace

Formatter::Formatter(QObject* parent) : QObject(parent) {}

QString Formatter::bytes(qint64 count) const
{
    return QString::fromStdString(ByteCountFormatter::string(count));
}

QString Formatter::mediumDateTime(const QDateTime& moment)
{
    const QLocale locale;
    return locale.toString(moment.date(), mediumDateFormat(locale)) + QStringLiteral(" ")
        + locale.toString(moment.time(), QLocale::ShortFormat);
}
