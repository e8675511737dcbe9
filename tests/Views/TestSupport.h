#pragma once

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class AppModel;
class TempHome;

// What the view tests need from C++: a fresh model over a real defaults file in a temporary
// home, files to show, a clock and disk figures they choose, and pictures of what they see.
class TestSupport : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString home READ home CONSTANT)

public:
    TestSupport();
    ~TestSupport() override;

    QString home() const;

    // A new model; the previous ones stay alive until the tests end, as windows may hold them.
    Q_INVOKABLE AppModel* freshModel();
    Q_INVOKABLE void writeFile(const QString& relativePath, int bytes);
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

    // Saves a picture of the item's window to screenshots/NAME.png in the build folder.
    Q_INVOKABLE bool saveScreenshot(QQuickItem* item, const QString& name) const;

private:
    std::unique_ptr<TempHome> tempHome_;
    std::vector<std::unique_ptr<AppModel>> models_;
};
