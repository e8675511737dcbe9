#include "Views/Components/CatalogWords.h"

#include "Models/CleanupCatalog.h"
#include "Models/CleanupCategory.h"
#include "QtConversions.h"
#include "Support/ModelFixture.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace {

using Entry = std::pair<std::string, std::string>;

bool listed(const std::string& context, const std::string& text)
{
    for (const auto& word : CatalogWords::all()) {
        if (word.context == context && word.text == text)
            return true;
    }
    return false;
}

class CatalogWordsTest : public ModelFixture {};

}  // namespace

// Every word of the catalog a user reads on this desktop is in the table the translations are
// made from: a new row, group or heading that is missing here stays English in every language.
TEST_F(CatalogWordsTest, EveryNameGroupAndHeadingOfThisDesktopIsListed)
{
    std::set<Entry> shown;
    for (const auto& target : CleanupCatalog::builtIn(PlatformProfile::linuxDesktop))
        shown.emplace(CatalogWords::targetContext, target.name);
    for (const auto& target : CleanupCatalog::finderTargets({}, {}, 0))
        shown.emplace(CatalogWords::targetContext, target.name);
    settings.setDeveloperMode(false);
    model->rebuildTargets();
    for (const auto& group : model->simpleGroups())
        shown.emplace(CatalogWords::groupContext, group.title);
    for (const auto category : CleanupCategories::all)
        shown.emplace(CatalogWords::categoryContext, std::string(CleanupCategories::rawValue(category)));
    EXPECT_GT(shown.size(), 30u);
    for (const auto& [context, text] : shown)
        EXPECT_TRUE(listed(context, text)) << context << ": \"" << text << "\" is not in CatalogWords";
}

TEST(CatalogWords, NamesReadInTheRunningLanguageAndFolderNamesStayAsTheyAre)
{
    EXPECT_EQ(CatalogWords::targetName("Thumbnails"), "Thumbnails");
    EXPECT_EQ(CatalogWords::targetName("Old Stuff"), "Old Stuff");
    QTranslator german;
    ASSERT_TRUE(german.load(QStringLiteral(":/i18n/mopwell_de.qm")));
    QCoreApplication::installTranslator(&german);
    EXPECT_EQ(CatalogWords::targetName("Thumbnails"), "Miniaturansichten");
    EXPECT_EQ(CatalogWords::targetName("Old Stuff"), "Old Stuff");  // a custom folder's own name
    const std::string notUtf8 = "caf\xe9";  // Latin-1, as an old folder may be named
    EXPECT_EQ(QtConversions::toStd(CatalogWords::targetName(notUtf8)), notUtf8);
    QCoreApplication::removeTranslator(&german);
}
