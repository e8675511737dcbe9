#include "Support/FakeFileManager.h"

#include <QTest>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.FileManager1");
const QString objectPath = QStringLiteral("/org/freedesktop/FileManager1");

}  // namespace

FakeFileManager::FakeFileManager(const QDBusConnection& bus) : registration_(bus, serviceName, objectPath, this) {}

bool FakeFileManager::waitForRequests(qsizetype count) const
{
    return QTest::qWaitFor([&] { return shown_.size() >= count; }, 5000);
}

void FakeFileManager::ShowItems(const QStringList& uris, const QString& startupId)
{
    shown_.append({uris, startupId});
}
