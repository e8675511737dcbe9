// Runs the project cleanup window's model over ROOT the way the window does, and says how soon
// the list had its first row and when the last folder was found and measured. Settings live in a
// throwaway folder; nothing is moved or deleted.
//
//   project-window-driver ROOT [--ignore PATH]...
//
// Prints every folder listed at the end, one path a line, and on standard error:
//   first row  12.3 ms   last folder  2345.6 ms   300 folders

#include "AppModel.h"
#include "Platform/DefaultsStore.h"
#include "Views/ProjectCleanup/ProjectCleanupModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "usage: project-window-driver ROOT [--ignore PATH]...\n");
        return 2;
    }
    const QString root = arguments.takeFirst();
    QStringList ignored;
    while (arguments.size() >= 2 && arguments.first() == QStringLiteral("--ignore")) {
        arguments.removeFirst();
        ignored.append(arguments.takeFirst());
    }

    QTemporaryDir settingsFolder;
    AppModel model(std::make_shared<DefaultsStore>(settingsFolder.filePath(QStringLiteral("defaults.plist")).toStdString()));
    model.settings()->setIgnoredFinderPaths(ignored);
    ProjectCleanupModel cleanup;
    cleanup.setModel(&model);

    QElapsedTimer clock;
    std::optional<double> firstRow;
    double lastFolder = 0;
    QObject::connect(cleanup.rows(), &QAbstractItemModel::rowsInserted, [&] {
        if (!firstRow)
            firstRow = clock.nsecsElapsed() / 1e6;
    });
    QObject::connect(&cleanup, &ProjectCleanupModel::scanStateChanged, [&] {
        if (cleanup.hasScanned() && !cleanup.isScanning()) {
            lastFolder = clock.nsecsElapsed() / 1e6;
            application.quit();
        }
    });
    clock.start();
    cleanup.scanFolder(root);
    application.exec();

    for (const ProjectDir& dir : cleanup.dirs())
        std::printf("%s\n", dir.path.c_str());
    std::fprintf(stderr, "first row %8.1f ms   last folder %8.1f ms   %zu folders\n", firstRow.value_or(-1), lastFolder,
                 cleanup.dirs().size());
    return 0;
}
