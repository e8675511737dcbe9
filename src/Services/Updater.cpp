#include "Services/Updater.h"

#ifndef MOPWELL_FEED_URL
#define MOPWELL_FEED_URL ""
#endif

Updater::Updater(QString feedAddress, QObject* parent) : QObject(parent), feedAddress_(std::move(feedAddress)) {}

QString Updater::compiledFeedAddress()
{
    return QStringLiteral(MOPWELL_FEED_URL);
}

QString Updater::statusText() const
{
    return isConfigured() ? QString() : tr("Dev build");
}
