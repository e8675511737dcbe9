#include "MenuPanelModel.h"

#include "AppModel.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <algorithm>
#include <cmath>

using namespace QtConversions;

namespace {

QString formatted(std::int64_t bytes)
{
    return toQt(ByteCountFormatter::string(bytes));
}

std::int64_t usedBytes(const DiskInfo& disk)
{
    return std::max<std::int64_t>(0, disk.total - disk.availableImportant);
}

}  // namespace

MenuPanelModel::MenuPanelModel(QObject* parent) : QObject(parent)
{
    ticker_.setInterval(1000);
    connect(&ticker_, &QTimer::timeout, this, &MenuPanelModel::freshnessChanged);
    ticker_.start();
}

void MenuPanelModel::setModel(AppModel* model)
{
    if (model == model_)
        return;
    if (model_)
        disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    targets_.setSource(model);
    groups_.setSource(model);
    if (model_) {
        connect(model_, &AppModel::diskChanged, this, &MenuPanelModel::diskChanged);
        connect(model_, &AppModel::changed, this, &MenuPanelModel::contentChanged);
        connect(model_, &AppModel::changed, this, &MenuPanelModel::freshnessChanged);
    }
    emit modelChanged();
    emit diskChanged();
    emit contentChanged();
    emit freshnessChanged();
}

DiskInfo MenuPanelModel::disk() const
{
    return model_ ? model_->disk() : DiskInfo{};
}

double MenuPanelModel::usedFractionOf(const DiskInfo& disk)
{
    if (disk.total < 1)
        return 0.0;
    return std::clamp(static_cast<double>(usedBytes(disk)) / static_cast<double>(disk.total), 0.0, 1.0);
}

QString MenuPanelModel::ringColorFor(const DiskInfo& disk)
{
    const double fraction = usedFractionOf(disk);
    if (disk.total < 1 || fraction < 0.75)
        return QStringLiteral("green");
    return fraction < 0.9 ? QStringLiteral("orange") : QStringLiteral("red");
}

QString MenuPanelModel::freshness(bool scanning, std::optional<long long> secondsSinceScan)
{
    if (scanning)
        return tr("Scanning…");
    if (!secondsSinceScan)
        return {};
    const long long s = *secondsSinceScan;
    if (s <= 9)
        return tr("just now");
    if (s < 60)
        return tr("%1s ago").arg(s);
    if (s < 3600)
        return tr("%1m ago").arg(s / 60);
    return tr("%1h ago").arg(s / 3600);
}

int MenuPanelModel::listHeightFor(int targetCount, int sectionCount)
{
    return std::min(maximumListHeight, rowHeight * std::max(targetCount, 1) + headerHeight * sectionCount);
}

QString MenuPanelModel::freshnessText() const
{
    if (!model_)
        return {};
    std::optional<long long> seconds;
    if (const auto last = model_->lastScan())
        seconds = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - *last).count();
    return freshness(model_->isScanning(), seconds);
}

QString MenuPanelModel::usedPercentText() const
{
    return QString::number(std::llround(usedFraction() * 100.0)) + QStringLiteral("%");
}

QString MenuPanelModel::availableText() const
{
    return formatted(disk().availableImportant);
}

QString MenuPanelModel::totalLine() const
{
    return tr("free of %1").arg(formatted(disk().total));
}

QString MenuPanelModel::usedLine() const
{
    return tr("%1 used").arg(formatted(usedBytes(disk())));
}

QString MenuPanelModel::reclaimableText() const
{
    return formatted(model_ ? model_->totalReclaimable() : 0);
}

bool MenuPanelModel::cleanUpEnabled() const
{
    return model_ && !model_->isCleaningAll() && model_->totalReclaimable() > 0;
}

int MenuPanelModel::listHeight() const
{
    return listHeightFor(model_ ? static_cast<int>(model_->targets().size()) : 0, targets_.sectionCount());
}

