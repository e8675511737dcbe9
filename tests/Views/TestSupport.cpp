#include "Views/TestSupport.h"

#include "AppModel.h"
#include "Platform/Bundle.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/DefaultsStore.h"
#include "Platform/Trash.h"
#include "Services/AppLanguage.h"
#include "Services/Updater.h"
#include "Support/AppModelTestAccess.h"
#include "Support/FeedServer.h"
#include "Support/TempHome.h"
#include "Support/ToolStubs.h"
#include "Support/TreeBuilder.h"
#include "Views/Components/Shell.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>

#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <QJSEngine>
#include <QTranslator>
#include <QQuickWindow>

#include <filesystem>

TestSupport::TestSupport() : tempHome_(std::make_unique<TempHome>()) {}

namespace {

const char* const openedSchemes[] = {"http", "https", "file", "trash"};

}  // namespace

TestSupport::~TestSupport()
{
    // The test runner ends the application before this object goes.
    if (QCoreApplication::instance())
        restoreApplication();
    models_.clear();
    tools_.reset();
    Clock::setNowForTesting(std::nullopt);
}

void TestSupport::restoreApplication()
{
    for (const char* scheme : openedSchemes)
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
    Bundle::setMainIdentifier(std::nullopt);
    setLanguage(QString());
    Shell::instance().setUpdater(nullptr);
    updaters_.clear();
    feedServer_.reset();
}

QString TestSupport::home() const
{
    return QString::fromStdString(tempHome_->home());
}

AppModel* TestSupport::freshModel()
{
    // Each model starts from an empty home and an empty defaults file.
    std::filesystem::remove_all(tempHome_->home());
    std::filesystem::create_directories(tempHome_->configHome());
    auto store = std::make_shared<DefaultsStore>(tempHome_->configHome() + "/mopwell/defaults.plist");
    models_.push_back(std::make_unique<AppModel>(store));
    // Returned to QML, which would otherwise take the model over and delete it a second time.
    QJSEngine::setObjectOwnership(models_.back().get(), QJSEngine::CppOwnership);
    return models_.back().get();
}

AppModel* TestSupport::reopenedModel(AppModel* model)
{
    models_.push_back(std::make_unique<AppModel>(std::make_shared<DefaultsStore>(model->settings()->defaults()->path())));
    QJSEngine::setObjectOwnership(models_.back().get(), QJSEngine::CppOwnership);
    return models_.back().get();
}

void TestSupport::writeFile(const QString& relativePath, int bytes)
{
    TreeBuilder::writeFile(tempHome_->home() + "/" + relativePath.toStdString(), static_cast<std::size_t>(bytes));
}

void TestSupport::setAgeInDays(const QString& relativePath, double days)
{
    const std::string path = tempHome_->home() + "/" + relativePath.toStdString();
    const auto when = std::chrono::system_clock::now() - std::chrono::duration<double, std::ratio<86400>>(days);
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(when.time_since_epoch()).count();
    const timespec time{time_t(nanoseconds / 1'000'000'000), long(nanoseconds % 1'000'000'000)};
    const timespec times[2] = {time, time};
    utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
}

void TestSupport::writeText(const QString& relativePath, const QString& text)
{
    QString contents = text;
    contents.replace(QStringLiteral("$HOME"), home());
    tempHome_->writeFile(relativePath.toStdString(), contents.toStdString());
}

bool TestSupport::exists(const QString& relativePath) const
{
    return std::filesystem::exists(std::filesystem::symlink_status(tempHome_->home() + "/" + relativePath.toStdString()));
}

QString TestSupport::installTool(const QString& name, const QString& body)
{
    // Only from the first stub on: until then the login shell keeps the machine's search path.
    if (!tools_)
        tools_ = std::make_unique<ToolStubs>(tempHome_->root() + "/tools", tempHome_->home());
    return QString::fromStdString(tools_->install(name.toStdString(), body.toStdString()));
}

QStringList TestSupport::toolCalls(const QString& name) const
{
    QStringList calls;
    if (!tools_)
        return calls;
    for (const std::string& call : tools_->calls(name.toStdString()))
        calls.append(QString::fromStdString(call));
    return calls;
}

void TestSupport::clearTools()
{
    tools_.reset();
}

int TestSupport::countEntries(const QString& absoluteFolder) const
{
    return static_cast<int>(QDir(absoluteFolder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size());
}

QStringList TestSupport::historyNames(AppModel* model) const
{
    QStringList names;
    for (const CleanRecord& record : model->history())
        names.append(QString::fromStdString(record.targetName));
    return names;
}

void TestSupport::restoreNewest(AppModel* model) const
{
    if (model->history().empty())
        return;
    const CleanRecord newest = model->history().front();  // restore() changes the list it lies in
    model->restore(newest);
}

QString TestSupport::trashFolder() const
{
    return QString::fromStdString(Trash::homeTrashFolder());
}

void TestSupport::setNow(double secondsSinceEpoch)
{
    if (secondsSinceEpoch < 0) {
        Clock::setNowForTesting(std::nullopt);
        return;
    }
    const auto sinceEpoch = std::chrono::duration_cast<Clock::TimePoint::duration>(
        std::chrono::duration<double>(secondsSinceEpoch));
    Clock::setNowForTesting(Clock::TimePoint{} + sinceEpoch);
}

void TestSupport::setDisk(AppModel* model, double total, double availableImportant)
{
    AppModelTestAccess::setDisk(*model, {static_cast<std::int64_t>(total), static_cast<std::int64_t>(availableImportant)});
}

void TestSupport::setLastScanSecondsAgo(AppModel* model, double seconds)
{
    const auto ago = std::chrono::duration_cast<Clock::TimePoint::duration>(std::chrono::duration<double>(seconds));
    AppModelTestAccess::setLastScan(*model, Clock::now() - ago);
}

void TestSupport::setSize(AppModel* model, const QString& id, double bytes)
{
    std::optional<std::int64_t> size;
    if (bytes >= 0)
        size = static_cast<std::int64_t>(bytes);
    AppModelTestAccess::setSize(*model, id.toStdString(), size);
}

void TestSupport::setScanning(AppModel* model, const QString& id)
{
    AppModelTestAccess::setScanning(*model, id.toStdString());
}

bool TestSupport::saveScreenshot(QQuickItem* item, const QString& name) const
{
    if (!item || !item->window())
        return false;
    QDir().mkpath(QStringLiteral(MOPWELL_SCREENSHOT_DIR));
    return item->window()->grabWindow().save(QStringLiteral(MOPWELL_SCREENSHOT_DIR "/") + name + ".png");
}

QString TestSupport::readText(const QString& relativePath) const
{
    QFile file(home() + "/" + relativePath);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void TestSupport::setApplicationIdentifier(const QString& identifier)
{
    Bundle::setMainIdentifier(identifier.isEmpty() ? std::nullopt : std::optional(identifier.toStdString()));
}

Updater* TestSupport::serveUpdates(const QString& feedXml)
{
    if (!feedServer_)
        feedServer_ = std::make_unique<FeedServer>();
    feedServer_->answer(feedXml.toUtf8());
    auto store = std::make_shared<DefaultsStore>(tempHome_->root() + "/updater.plist");
    const QString feed = feedXml.isEmpty() ? QString() : feedServer_->address();
    updaters_.push_back(std::make_unique<Updater>(store, feed, Updater::Build{"1.4", "140"}));
    QJSEngine::setObjectOwnership(updaters_.back().get(), QJSEngine::CppOwnership);
    Shell::instance().setUpdater(updaters_.back().get());
    return updaters_.back().get();
}

void TestSupport::catchOpenedUrls()
{
    openedUrls_.clear();
    for (const char* scheme : openedSchemes)
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "recordOpenedUrl");
}

void TestSupport::setLanguage(const QString& code)
{
    for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    QLocale::setDefault(originalLocale_);
    ByteCountFormatter::setWording({});
    if (code.isEmpty())
        return;
    DefaultsStore store(tempHome_->root() + "/language.plist");
    AppLanguage::set(store, code);
    AppLanguage::install(store);
}
