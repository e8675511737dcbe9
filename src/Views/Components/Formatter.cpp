#include "Formatter.h"

#include "Platform/ByteCountFormatter.h"

Formatter::Formatter(QObject* parent) : QObject(parent) {}

QString Formatter::bytes(qint64 count) const
{
    return QString::fromStdString(ByteCountFormatter::string(count));
}
