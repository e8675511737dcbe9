#pragma once

#include "Services/Updater.h"

#include <QLocale>
#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>
#include <vector>

class AppModel;
class FeedServer;
class TempHome;
class ToolStubs;

// What the view tests need from C++: a fresh model over a real defaults file in a temporary
// home, files to show, a clock and disk figures they choose, and pictures of what they see.
class TestSupport : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString home READ home CONSTANT)

public:
    TestSupport();
    ~TestSupport() override;

    QString home() const;

    // Undoes what the tests changed in the application (languages, link handlers, the updater)
    // while the application still exists.
    void restoreApplication();

    // A new model; the previous ones stay alive until the tests end, as windows may hold them.
    Q_INVOKABLE AppModel* freshModel();
    // Another model over the defaults file `model` writes, as the next start would read it.
    Q_INVOKABLE AppModel* reopenedModel(AppModel* model);
    Q_INVOKABLE void writeFile(const QString& relativePath, int bytes);
    // A text file (a desktop entry, a script) below the home; "$HOME" in `text` becomes the home.
    Q_INVOKABLE void writeText(const QString& relativePath, const QString& text);
    Q_INVOKABLE bool exists(const QString& relativePath) const;
    // Stand-ins for outside tools on the search path (see ToolStubs): installTool writes one with
    // the shell `body` and returns its path, toolCalls gives its calls as "[arg1][arg2]…", and
    // clearTools removes them all and gives the login shell its own search path back.
    Q_INVOKABLE QString installTool(const QString& name, const QString& body);
    Q_INVOKABLE QStringList toolCalls(const QString& name) const;
    Q_INVOKABLE void clearTools();
    // Dates the item in the home as last changed `days` ago.
    Q_INVOKABLE void setAgeInDays(const QString& relativePath, double days);
    Q_INVOKABLE int countEntries(const QString& absoluteFolder) const;
    Q_INVOKABLE QString trashFolder() const;

    // Fixes the clock at `secondsSinceEpoch`; a negative value lets it run again.
    Q_INVOKABLE void setNow(double secondsSinceEpoch);
    Q_INVOKABLE void setDisk(AppModel* model, double total, double availableImportant);
    Q_INVOKABLE void setLastScanSecondsAgo(AppModel* model, double seconds);
    Q_INVOKABLE void setSize(AppModel* model, const QString& id, double bytes);  // negative: unknown
    Q_INVOKABLE void setScanning(AppModel* model, const QString& id);
    // The names of the model's history records, newest first.
    Q_INVOKABLE QStringList historyNames(AppModel* model) const;
    // Puts the newest history record's items back, as the history's "Put Back" does.
    Q_INVOKABLE void restoreNewest(AppModel* model) const;

    // Saves a picture of the item's window to screenshots/NAME.png in the build folder.
    Q_INVOKABLE bool saveScreenshot(QQuickItem* item, const QString& name) const;

    // The text of a file below the home; empty when it can't be read.
    Q_INVOKABLE QString readText(const QString& relativePath) const;
    // Gives the program the identity the installed application has; empty takes it away.
    Q_INVOKABLE void setApplicationIdentifier(const QString& identifier);
    // A new updater for the views (Shell.updater) of a build of version 1.4 (140), reading the
    // feed `feedXml` from a web server on this machine; without a feed, a development build's.
    Q_INVOKABLE Updater* serveUpdates(const QString& feedXml);
    // From now on, keeps the addresses the views ask the desktop to open instead of opening them;
    // forgets the ones kept before.
    Q_INVOKABLE void catchOpenedUrls();
    Q_INVOKABLE QStringList openedUrls() const { return openedUrls_; }
    // Speaks `code` ("de", "fr") from now on, as a start in that language would: windows made
    // afterwards show its texts, dates and sizes. Empty goes back to English.
    Q_INVOKABLE void setLanguage(const QString& code);

public slots:
    void recordOpenedUrl(const QUrl& url) { openedUrls_.append(url.toString()); }

private:
    std::unique_ptr<TempHome> tempHome_;
    std::unique_ptr<ToolStubs> tools_;
    std::vector<std::unique_ptr<AppModel>> models_;
    std::unique_ptr<FeedServer> feedServer_;
    std::vector<std::unique_ptr<Updater>> updaters_;
    QStringList openedUrls_;
    QLocale originalLocale_;
};
