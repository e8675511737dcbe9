// What a user feels under load, measured inside the real model and window: the longest stall of
// the main thread (the largest gap between ticks of a 10 ms timer on it) and the memory left
// after the disk map's window closes. bench/load.sh makes the trees and runs this in a temporary
// home.
//
//   load-driver clean FOLDER     adds FOLDER as a custom folder, then cleans everything enabled
//   load-driver diskmap ROOT     scans ROOT in the disk-map window, then closes the window

#include "AppModel.h"
#include "Platform/DefaultsStore.h"
#include "Shell/MopwellApp.h"
#include "Shell/WindowRegistry.h"
#include "Views/DiskMap/DiskMapModel.h"

#include <QElapsedTimer>
#include <QApplication>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <string>

Q_IMPORT_QML_PLUGIN(MopwellPlugin)

namespace {

// Ticks every 10 ms on the main thread and remembers the longest time between two ticks.
class StallMeter {
public:
    StallMeter()
    {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            longest_ = std::max(longest_, clock_.restart());
        });
        clock_.start();
        timer_.start();
    }
    qint64 longestMilliseconds() const { return longest_; }

private:
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 longest_ = 0;
};

// Runs the event loop until `done` holds; false after `seconds`.
bool runUntil(const std::function<bool()>& done, int seconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > seconds * 1000)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    return true;
}

void runFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

long residentKilobytes()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmRSS:"))
            return std::stol(line.substr(6));
    }
    return -1;
}

int clean(AppModel& model, const QString& folder)
{
    if (const auto message = model.addCustomFolder(folder)) {
        std::fprintf(stderr, "cannot add %s: %s\n", qPrintable(folder), qPrintable(*message));
        return 1;
    }
    runUntil([&] { return !model.isScanning(); }, 600);
    QElapsedTimer clock;
    clock.start();
    StallMeter meter;
    model.requestCleanAll();
    model.confirmPending(false);
    const bool finished = runUntil([&] { return !model.history().empty() && !model.isCleaningAll() && !model.isScanning(); }, 1800);
    std::printf("clean-all: %s in %.1f s, freed %lld bytes, longest main-thread gap %lld ms\n",
                finished ? "done" : "NOT FINISHED", clock.elapsed() / 1000.0,
                static_cast<long long>(model.history().empty() ? 0 : model.history().front().freed),
                static_cast<long long>(meter.longestMilliseconds()));
    return finished ? 0 : 1;
}

DiskMapModel* openDiskMap(MopwellApp& app)
{
    QQuickWindow* window = app.windows().open(QStringLiteral("diskmap"));
    return window ? window->findChild<DiskMapModel*>() : nullptr;
}

void closeDiskMap(MopwellApp& app)
{
    app.windows().close(QStringLiteral("diskmap"));
    // The window goes at the next turn of the loop, its tree on a background thread after that.
    runFor(3000);
}

int diskMap(MopwellApp& app, const QString& root)
{
    // The baseline has the window's views loaded once, as any session that opened it has.
    DiskMapModel* map = openDiskMap(app);
    if (!map) {
        std::fprintf(stderr, "the disk map window did not open\n");
        return 1;
    }
    closeDiskMap(app);
    malloc_trim(0);
    const long baseline = residentKilobytes();

    map = openDiskMap(app);
    QElapsedTimer clock;
    clock.start();
    StallMeter meter;
    map->scan(root);
    const bool finished = runUntil([&] { return map->phase() == DiskMapModel::Phase::ready && !map->isScanning(); }, 1800);
    const double seconds = clock.elapsed() / 1000.0;
    const qint64 longest = meter.longestMilliseconds();
    const long peak = residentKilobytes();
    closeDiskMap(app);
    const long after = residentKilobytes();
    malloc_trim(0);
    const long trimmed = residentKilobytes();
    std::printf("disk map: %s in %.1f s, longest main-thread gap %lld ms\n", finished ? "done" : "NOT FINISHED", seconds,
                static_cast<long long>(longest));
    std::printf("memory: baseline %ld MB, with the tree %ld MB, after closing %ld MB (%+.1f %%), after trimming the heap %ld MB (%+.1f %%)\n",
                baseline / 1024, peak / 1024, after / 1024, 100.0 * (after - baseline) / baseline, trimmed / 1024,
                100.0 * (trimmed - baseline) / baseline);
    return finished ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: load-driver clean FOLDER | diskmap ROOT\n");
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString path = QString::fromLocal8Bit(argv[2]);
    AppModel model(std::make_shared<DefaultsStore>(DefaultsStore::standardPath()));
    if (mode == QLatin1String("clean"))
        return clean(model, path);
    MopwellApp app(model, MopwellApp::Views::application());
    return diskMap(app, path);
}
