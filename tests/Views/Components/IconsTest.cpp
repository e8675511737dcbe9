#include "Views/Components/Icons.h"
#include "Models/BuildArtifactType.h"
#include "Models/CleanupCatalog.h"
#include "Models/ScanPreset.h"
#include "Support/TempHome.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtQml/qqmlextensionplugin.h>

#include <set>

Q_IMPORT_QML_PLUGIN(MopwellPlugin)

namespace {

// Every symbol name the sources bind or draw: in QML the quoted names in the expression bound to
// a `symbol:`/`…Symbol:` property (up to the next ";" or "}"), in C++ the name given to Icons
// or assigned to a `…symbol`/`…Symbol` constant.
std::set<QString> symbolsUsedIn(const QString& file)
{
    QFile source(file);
    source.open(QIODevice::ReadOnly);
    static const QRegularExpression quoted(QStringLiteral("\"([a-z][a-z0-9.]*)\""));
    static const QRegularExpression qmlBinding(QStringLiteral("[sS]ymbol\\s*:([^;}\\n]*)"));
    static const QRegularExpression cppCall(QStringLiteral(
        "(?:Icons::\\w+\\(|[sS]ymbol\\s*=)\\s*(?:QStringLiteral\\()?\"([a-z][a-z0-9.]*)\""));
    const QString text = QString::fromUtf8(source.readAll());
    std::set<QString> names;
    for (auto binding = qmlBinding.globalMatch(text); binding.hasNext();) {
        for (auto name = quoted.globalMatch(binding.next().captured(1)); name.hasNext();)
            names.insert(name.next().captured(1));
    }
    for (auto call = cppCall.globalMatch(text); call.hasNext();)
        names.insert(call.next().captured(1));
    return names;
}

}  // namespace

TEST(Icons, EverySymbolTheApplicationUsesHasAnIcon)
{
    std::set<QString> used;
    for (const auto profile : {PlatformProfile::macOS, PlatformProfile::linuxDesktop}) {
        for (const auto& target : CleanupCatalog::builtIn(profile))
            used.insert(QString::fromStdString(target.symbol));
    }
    for (const auto& target : CleanupCatalog::finderTargets({}, {}, 0))
        used.insert(QString::fromStdString(target.symbol));
    used.insert(QString::fromStdString(CleanupTarget::customFolder("/x/y").symbol));
    {
        // A home with every place a Linux desktop may offer a card for.
        const TempHome temp;
        for (const char* folder : {"Documents", "Downloads", "Desktop", "Applications", ".local/share/flatpak", ".var/app"})
            temp.makeFolder(folder);
        for (const auto profile : {PlatformProfile::macOS, PlatformProfile::linuxDesktop}) {
            for (const auto& preset : ScanPreset::forProfile(profile))
                used.insert(QString::fromStdString(preset.symbol));
        }
    }
    for (const auto& type : BuildArtifactType::all())
        used.insert(QString::fromStdString(type.symbol));
    QDirIterator sources(QStringLiteral(MOPWELL_SOURCE_DIR), {"*.qml", "*.cpp", "*.h"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const auto names = symbolsUsedIn(sources.next());
        used.insert(names.begin(), names.end());
    }
    ASSERT_GT(used.size(), 10u);
    for (const QString& symbol : used)
        EXPECT_TRUE(Icons::isMapped(symbol)) << "no icon for \"" << symbol.toStdString() << "\"";
}

TEST(Icons, RenderingTintsTheGlyphAndLeavesTheRestClear)
{
    const QImage image = Icons::render(QStringLiteral("trash.fill"), {32, 32}, Qt::red);
    int red = 0, clear = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            red += pixel.alpha() == 255 && pixel.red() == 255 && pixel.green() == 0 ? 1 : 0;
            clear += pixel.alpha() == 0 ? 1 : 0;
        }
    }
    EXPECT_GT(red, 100);
    EXPECT_GT(clear, 100);
    EXPECT_EQ(Icons::render(QStringLiteral("no.such.symbol"), {8, 8}, Qt::red).pixelColor(4, 4).alpha(), 0);
}
