#include "Models/CleanupCatalog.h"
#include "Support/TempHome.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

namespace {

CleanupTarget builtIn(const std::string& id)
{
    for (const auto& target : CleanupCatalog::builtIn()) {
        if (target.id == id)
            return target;
    }
    throw std::out_of_range(id);
}

std::vector<std::string> idsOf(const std::vector<CleanupTarget>& targets)
{
    std::vector<std::string> ids;
    for (const auto& target : targets)
        ids.push_back(target.id);
    return ids;
}

}  // namespace

TEST(CleanupCatalog, BuiltInRowsComeInPanelOrderWithTheirSections)
{
    const auto& catalog = CleanupCatalog::builtIn();
    EXPECT_THAT(idsOf(catalog),
                ElementsAreArray({"trash", "appcaches", "logs", "savedstate", "musiccache", "maildownloads",
                                  "chrome", "safari", "firefox", "derived", "devicesupport", "sims", "gradle",
                                  "npm", "yarn", "pnpm", "uv", "pip", "pods", "pub", "go", "cargo", "docker",
                                  "jetbrains", "brew", "swiftpm", "ml"}));
    for (std::size_t i = 0; i < catalog.size(); ++i) {
        const auto expected = i < 6 ? CleanupCategory::recommended
                              : i < 9 ? CleanupCategory::browsers
                                      : CleanupCategory::developer;
        EXPECT_EQ(catalog[i].category, expected) << catalog[i].id;
        EXPECT_TRUE(catalog[i].isBuiltIn) << catalog[i].id;
    }
}

TEST(CleanupCatalog, RowsKeepTheirExactTextsAndKinds)
{
    const auto& savedState = builtIn("savedstate");
    EXPECT_EQ(savedState.name, "Saved application state");
    EXPECT_EQ(savedState.symbol, "macwindow");
    EXPECT_EQ(savedState.detail, "Window/tab restore data — apps won't reopen last session");
    EXPECT_EQ(savedState.kind, CleanupKind(PathsKind{{"~/Library/Saved Application State"}}));

    EXPECT_EQ(builtIn("chrome").kind,
              CleanupKind(PathsKind{{"~/Library/Caches/Google/Chrome",
                                     "~/Library/Application Support/Google/Chrome/Default/Cache",
                                     "~/Library/Application Support/Google/Chrome/Default/Code Cache"}}));
    EXPECT_EQ(builtIn("sims").kind, CleanupKind(CommandKind{"xcrun simctl delete unavailable", {}}));
    EXPECT_EQ(builtIn("pnpm").kind,
              CleanupKind(CommandKind{"pnpm store prune", {"~/Library/pnpm/store", "~/.pnpm-store"}}));
    EXPECT_EQ(builtIn("brew").name, "Homebrew cleanup");
    EXPECT_EQ(builtIn("brew").symbol, "mug.fill");
    EXPECT_EQ(builtIn("ml").detail, "puppeteer, huggingface, whisper, selenium");
    EXPECT_EQ(std::get<PathsKind>(builtIn("ml").kind).paths.size(), 4u);

    int commands = 0;
    for (const auto& target : CleanupCatalog::builtIn())
        commands += std::holds_alternative<CommandKind>(target.kind) ? 1 : 0;
    EXPECT_EQ(commands, 9);
}

TEST(CleanupCatalog, FinderTargetsCopyTheirArgumentsIntoEveryRow)
{
    const std::vector<std::string> roots = {"/r/one", "/r/two"};
    const std::vector<std::string> ignore = {"/r/one/keep"};
    const auto finders = CleanupCatalog::finderTargets(roots, ignore, 30);
    EXPECT_THAT(idsOf(finders), ElementsAre("node_modules", "next_build", "rust_target", "pycache", "venv"));
    for (const auto& target : finders) {
        const auto& kind = std::get<FinderKind>(target.kind);
        EXPECT_EQ(kind.roots, roots);
        EXPECT_EQ(kind.ignore, ignore);
        EXPECT_EQ(kind.minAgeDays, 30);
        EXPECT_EQ(target.category, CleanupCategory::buildArtifacts);
        EXPECT_EQ(target.symbol, "shippingbox.fill");
    }
    const auto& venv = std::get<FinderKind>(finders[4].kind);
    EXPECT_THAT(venv.names, ElementsAre(".venv", "venv"));
    EXPECT_EQ(venv.maxDepth, 4);
    EXPECT_THAT(venv.requireMarker, ElementsAre("pyproject.toml", "requirements.txt", "Pipfile", "setup.py"));
    EXPECT_EQ(std::get<FinderKind>(finders[2].kind).requireMarker, std::vector<std::string>{"Cargo.toml"});
    EXPECT_EQ(std::get<FinderKind>(finders[3].kind).maxDepth, 6);

    EXPECT_EQ(CleanupCatalog::finderTargets({}, {}, 0).size(), 5u);
}

TEST_F(TempHomeTest, DisplayPathsExpandTheHomeFolderPerKind)
{
    const std::string home = tempHome.home();
    EXPECT_THAT(builtIn("musiccache").displayPaths(),
                ElementsAre(home + "/Library/Caches/com.apple.Music/SubscriptionPlayCache",
                            home + "/Library/Caches/com.apple.Music/fsCachedData"));
    EXPECT_THAT(builtIn("npm").displayPaths(), ElementsAre(home + "/.npm/_cacache"));
    EXPECT_TRUE(builtIn("docker").displayPaths().empty());
    EXPECT_TRUE(builtIn("sims").displayPaths().empty());

    const auto finders = CleanupCatalog::finderTargets({"~/src", "/Users/a/src"}, {}, 0);
    EXPECT_THAT(finders[4].displayPaths(), ElementsAre(home + "/src → .venv, venv", "/Users/a/src → .venv, venv"));
}

TEST(CleanupCatalog, WhySafeIsDecidedByIdBeforeCategory)
{
    const auto finders = CleanupCatalog::finderTargets({}, {}, 0);
    EXPECT_EQ(finders[0].whySafe(), "Reinstalled instantly with npm / yarn / pnpm install.");
    EXPECT_EQ(finders[1].whySafe(), "Rebuilt the next time you build the project (npm install, cargo build, …).");
    EXPECT_EQ(builtIn("trash").whySafe(), "These are items you already moved to the Trash.");
    EXPECT_EQ(builtIn("derived").whySafe(), "Xcode rebuilds DerivedData on your next build.");
    EXPECT_EQ(builtIn("docker").whySafe(),
              "Docker recreates images, layers and build cache the next time you build or pull.");
    EXPECT_EQ(builtIn("maildownloads").whySafe(),
              "Temp copies of attachments you opened. Re-copied on demand; originals stay on the server.");
    EXPECT_EQ(builtIn("gradle").whySafe(),
              "Re-downloaded or rebuilt automatically the next time you build or install.");
    const std::string caches = "Apps and websites recreate these caches automatically when they next need them.";
    EXPECT_EQ(builtIn("appcaches").whySafe(), caches);
    EXPECT_EQ(builtIn("firefox").whySafe(), caches);
    EXPECT_EQ(CleanupTarget::customFolder("/Users/a/x").whySafe(),
              "A folder you added yourself — only its contents are cleared.");
}

TEST(CleanupCatalog, CustomFolderTargetIsNamedAfterItsLastComponent)
{
    const auto target = CleanupTarget::customFolder("/Users/a/Movies/Old");
    EXPECT_EQ(target.id, "custom:/Users/a/Movies/Old");
    EXPECT_EQ(target.name, "Old");
    EXPECT_EQ(target.symbol, "folder.fill");
    EXPECT_EQ(target.detail, "/Users/a/Movies/Old");
    EXPECT_EQ(target.kind, CleanupKind(PathsKind{{"/Users/a/Movies/Old"}}));
    EXPECT_EQ(target.category, CleanupCategory::custom);
    EXPECT_FALSE(target.isBuiltIn);

    EXPECT_EQ(CleanupTarget::customFolder("/").name, "/");
    EXPECT_EQ(CleanupTarget::customFolder("/Users/a/Old/").name, "Old");
}

TEST(CleanupCategory, RawValuesAreTheSectionHeadings)
{
    EXPECT_EQ(CleanupCategories::rawValue(CleanupCategory::buildArtifacts), "Build artifacts");
    EXPECT_EQ(CleanupCategories::fromRawValue("Browser caches"), CleanupCategory::browsers);
    EXPECT_EQ(CleanupCategories::fromRawValue("Custom folders"), CleanupCategory::custom);
    EXPECT_EQ(CleanupCategories::fromRawValue("browser caches"), std::nullopt);
    EXPECT_EQ(CleanupCategories::fromRawValue(""), std::nullopt);
}
