#include "Views/TestSupport.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(MopwellPlugin)

// Hands every QML test file the support object as `support`.
class ViewTestSetup : public QObject {
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        // The module's files are compiled in under qrc:/Mopwell.
        engine->addImportPath(QStringLiteral("qrc:/"));
        engine->rootContext()->setContextProperty(QStringLiteral("support"), &support_);
    }

    // After the last test, while the application still exists.
    void cleanupTestCase() { support_.restoreApplication(); }

private:
    TestSupport support_;
};

QUICK_TEST_MAIN_WITH_SETUP(mopwell_views, ViewTestSetup)

#include "main.moc"
