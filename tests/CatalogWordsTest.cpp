#include "CatalogWords.h"

#include "Models/CleanupCatalog.h"
#include "Models/ScanPreset.h"
#include "QtConversions.h"
#include "Services/Cleaner.h"
#include "Support/ModelFixture.h"
#include "Views/Panel/TargetListModel.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>
#include <qcoro/qcorotask.h>

using QtConversions::translated;

namespace {

class CatalogWordsTest : public ModelFixture {
protected:
    CatalogWordsTest()
    {
        EXPECT_TRUE(german.load(QStringLiteral(":/i18n/mopwell_de.qm")));
        QCoreApplication::installTranslator(&german);
    }
    ~CatalogWordsTest() override { QCoreApplication::removeTranslator(&german); }

    QTranslator german;
};

}  // namespace

// What the engine writes for people comes out in German under the German translation: every row
// of this desktop's catalog as the panel lists it, its group and heading, the places to scan,
// refusals, the confirmation and the status line built around a row's name. A text written
// without its translation mark has no German here, and one shown without a lookup stays English.
TEST_F(CatalogWordsTest, EngineTextsReadInTheRunningLanguage)
{
    // Every row of this desktop's catalog listed, and every place to scan offered.
    tempHome.makeFolder(".var/app/org.example.App/cache");
    tempHome.makeFolder(".local/share/flatpak");
    tempHome.writeFile(".local/share/xorg/Xorg.0.log", std::string(5000, 'x'));
    settings.setDeveloperMode(true);
    settings.setCleanSavedState(true);
    settings.setProjectRoots({QString::fromStdString(tempHome.home())});
    model->rebuildTargets();

    struct Shown {
        const char* context;
        std::string english;
        QString text;  // what the reader sees
    };
    std::vector<Shown> shown;
    TargetListModel rows;
    rows.setSource(model.get());
    EXPECT_EQ(std::size_t(rows.rowCount()), CleanupCatalog::builtIn(PlatformProfile::linuxDesktop).size() +
                                                 CleanupCatalog::finderTargets({}, {}, 0).size());
    for (int row = 0; row < rows.rowCount(); ++row) {
        const auto shownAs = [&](int role) { return rows.data(rows.index(row), role).toString(); };
        const CleanupTarget& target = state(QtConversions::toStd(shownAs(TargetListModel::IdRole)))->target;
        shown.push_back({CatalogWords::context, target.name, shownAs(TargetListModel::NameRole)});
        shown.push_back({CatalogWords::context, target.detail, shownAs(TargetListModel::DetailRole)});
        shown.push_back({CatalogWords::context, target.whySafe(), shownAs(TargetListModel::WhySafeRole)});
    }
    for (const auto& group : model->simpleGroups())
        shown.push_back({"SimpleGroup", group.title, QCoreApplication::translate("SimpleGroup", group.title.c_str())});
    for (const auto category : CleanupCategories::all) {
        const std::string heading(CleanupCategories::rawValue(category));
        shown.push_back({"CleanupCategory", heading, QCoreApplication::translate("CleanupCategory", heading.c_str())});
    }
    for (const auto profile : {PlatformProfile::linuxDesktop, PlatformProfile::macOS}) {
        for (const auto& preset : ScanPreset::forProfile(profile))
            shown.push_back({"ScanPreset", preset.label, translated("ScanPreset", preset.label)});
    }
    for (const std::string folder : {"/etc", "~/gone"}) {
        const auto refusal = Cleaner::validateCustom(folder);
        shown.push_back({"Cleaner", *refusal, translated("Cleaner", *refusal)});
    }
    const std::string documents = tempHome.home() + "/Documents";
    const auto refused = Cleaner::clean(CleanupTarget::customFolder(documents), true).error;
    ASSERT_TRUE(refused);
    shown.push_back({"Cleaner", refused->text, translated("Cleaner", *refused).replace(QString::fromStdString(documents), "%1")});
    QCoro::waitFor(model->scan("logs"));
    model->requestClean("logs");
    shown.push_back({CatalogWords::context, "Display server logs", model->pendingCleanMap()["title"].toString()});

    EXPECT_GT(shown.size(), 100u);
    for (const auto& [context, english, text] : shown) {
        const QString expected = german.translate(context, english.c_str());
        EXPECT_FALSE(expected.isEmpty()) << "no German for " << context << ": " << english;
        EXPECT_EQ(text.toStdString(), expected.toStdString()) << context << ": " << english;
    }
    model->confirmPending(false);
    ASSERT_TRUE(waitUntil([&] { return !model->statusMessage().isEmpty(); }));
    // "Freed %1 from %2", the row's name in it.
    EXPECT_TRUE(model->statusMessage().endsWith(QStringLiteral(" aus Protokolle des Displayservers freigegeben")))
        << model->statusMessage().toStdString();

    // A custom folder is called what the folder is called, even when that is a row's name.
    const CleanupTarget custom = CleanupTarget::customFolder(tempHome.home() + "/Thumbnails");
    EXPECT_EQ(CatalogWords::name(custom), "Thumbnails");
    EXPECT_EQ(CatalogWords::detail(custom), QString::fromStdString(custom.detail));
    EXPECT_EQ(CatalogWords::whySafe(custom), german.translate(CatalogWords::context, custom.whySafe().c_str()));
    const std::string notUtf8 = "caf\xe9";  // Latin-1, as an old folder may be named
    EXPECT_EQ(QtConversions::toStd(CatalogWords::recordedName(notUtf8)), notUtf8);
}
