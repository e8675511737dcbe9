#include "Support/FakeFileManager.h"

#include <QTest>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.FileManager1");
const QString objectPath = QStringLiteral("/org/freedesktop/FileManager1");

}  // namespace

FakeFileManager::FakeFileManager(const QDBusConnection& bus) : bus_(bus)
{
    registered_ = bus_.registerObject(objectPath, this, QDBusConnection::ExportAllSlots) &&
                  bus_.registerService(serviceName);
}

FakeFileManager::~FakeFileManager()
{
    bus_.unregisterService(serviceName);
    bus_.unregisterObject(objectPath);
}

bool FakeFileManager::waitForRequests(qsizetype count) const
{
    return QTest::qWaitFor([&] { return shown_.size() >= count; }, 5000);
}

void FakeFileManager::ShowItems(const QStringList& uris, const QString& startupId)
{
    shown_.append({uris, startupId});
}
