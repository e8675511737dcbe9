#include "Models/CleanupCatalog.h"
#include "Support/CatalogRows.h"
#include "Support/TempHome.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

namespace {

using CatalogRows::idsOf;

CleanupTarget builtIn(const std::string& id)
{
    return CatalogRows::builtIn(id, PlatformProfile::macOS);
}

CleanupKind paths(std::vector<std::string> list)
{
    return PathsKind{std::move(list)};
}

CleanupKind command(std::string shell, std::vector<std::string> fallback)
{
    return CommandKind{std::move(shell), std::move(fallback)};
}

}  // namespace

TEST(CleanupCatalog, TheMacTableIsExactRowByRow)
{
    using enum CleanupCategory;
    const std::string cached = "Cached web data — pages reload as needed";
    const std::vector<CleanupTarget> expected = {
        {"trash", "Trash", "trash.fill", "Empty the Trash", paths({"~/.Trash"}), recommended, true},
        {"appcaches", "App cache files", "shippingbox.fill", "Temporary files apps recreate as needed",
         paths({"~/Library/Caches"}), recommended, true},
        {"logs", "App & system logs", "doc.text.fill", "Old log files", paths({"~/Library/Logs"}), recommended, true},
        {"savedstate", "Saved application state", "macwindow", "Window/tab restore data — apps won't reopen last session",
         paths({"~/Library/Saved Application State"}), recommended, true},
        {"musiccache", "Apple Music cache", "music.note", "Streamed-audio cache — songs re-buffer next time",
         paths({"~/Library/Caches/com.apple.Music/SubscriptionPlayCache", "~/Library/Caches/com.apple.Music/fsCachedData"}),
         recommended, true},
        {"maildownloads", "Mail attachment previews", "envelope.fill",
         "Temp copies of opened attachments — originals stay safe",
         paths({"~/Library/Containers/com.apple.mail/Data/Library/Mail Downloads"}), recommended, true},
        {"chrome", "Google Chrome cache", "globe", cached,
         paths({"~/Library/Caches/Google/Chrome", "~/Library/Application Support/Google/Chrome/Default/Cache",
                "~/Library/Application Support/Google/Chrome/Default/Code Cache"}),
         browsers, true},
        {"safari", "Safari cache", "safari.fill", cached,
         paths({"~/Library/Containers/com.apple.Safari/Data/Library/Caches"}), browsers, true},
        {"firefox", "Firefox cache", "globe", cached, paths({"~/Library/Caches/Firefox"}), browsers, true},
        {"derived", "Xcode DerivedData", "hammer.fill", "Build artifacts — rebuilt on next build",
         paths({"~/Library/Developer/Xcode/DerivedData"}), developer, true},
        {"devicesupport", "Old iOS DeviceSupport", "iphone.gen2", "Symbol caches — regenerated on device connect",
         paths({"~/Library/Developer/Xcode/iOS DeviceSupport"}), developer, true},
        {"sims", "Unavailable simulators", "iphone.slash", "Orphaned iOS simulators (active ones kept)",
         command("xcrun simctl delete unavailable", {}), developer, true},
        {"gradle", "Gradle caches", "shippingbox.fill", "Android/Gradle downloads & build cache",
         paths({"~/.gradle/caches", "~/.gradle/wrapper/dists"}), developer, true},
        {"npm", "npm cache", "cube.box.fill", "Node package cache", command("npm cache clean --force", {"~/.npm/_cacache"}),
         developer, true},
        {"yarn", "Yarn cache", "cube.box.fill", "Yarn package cache",
         command("yarn cache clean", {"~/Library/Caches/Yarn"}), developer, true},
        {"pnpm", "pnpm store", "cube.box.fill", "pnpm content-addressable store",
         command("pnpm store prune", {"~/Library/pnpm/store", "~/.pnpm-store"}), developer, true},
        {"uv", "uv cache", "cube.box.fill", "Python uv package cache", command("uv cache clean", {"~/.cache/uv"}),
         developer, true},
        {"pip", "pip cache", "cube.box.fill", "Python pip download cache", paths({"~/Library/Caches/pip"}), developer,
         true},
        {"pods", "CocoaPods cache", "cube.box.fill", "Pod download cache",
         command("pod cache clean --all", {"~/Library/Caches/CocoaPods"}), developer, true},
        {"pub", "Flutter / pub cache", "cube.box.fill", "Dart/Flutter packages", paths({"~/.pub-cache"}), developer,
         true},
        {"go", "Go module cache", "cube.box.fill", "Downloaded Go modules", command("go clean -modcache", {"~/go/pkg/mod"}),
         developer, true},
        {"cargo", "Cargo registry cache", "cube.box.fill", "Rust crate downloads",
         paths({"~/.cargo/registry/cache", "~/.cargo/registry/src"}), developer, true},
        {"docker", "Docker prune", "shippingbox.fill", "Dangling images, stopped containers, build cache",
         command("docker system prune -f", {}), developer, true},
        {"jetbrains", "JetBrains caches", "cube.box.fill", "IntelliJ/PyCharm/etc. caches",
         paths({"~/Library/Caches/JetBrains"}), developer, true},
        {"brew", "Homebrew cleanup", "mug.fill", "Old versions & download cache",
         command("brew cleanup -s", {"~/Library/Caches/Homebrew"}), developer, true},
        {"swiftpm", "Swift / build tool caches", "cube.box.fill", "SwiftPM, TypeScript, node-gyp",
         paths({"~/Library/Caches/org.swift.swiftpm", "~/Library/Caches/typescript", "~/Library/Caches/node-gyp"}),
         developer, true},
        {"ml", "ML / browser-automation caches", "brain.head.profile", "puppeteer, huggingface, whisper, selenium",
         paths({"~/.cache/puppeteer", "~/.cache/huggingface", "~/.cache/whisper", "~/.cache/selenium"}), developer,
         true},
    };
    const auto catalog = CleanupCatalog::builtIn(PlatformProfile::macOS);
    ASSERT_EQ(catalog.size(), expected.size());
    for (std::size_t i = 0; i < catalog.size(); ++i)
        EXPECT_EQ(catalog[i], expected[i]) << "row " << i + 1 << ", " << expected[i].id;
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
    // Two developer rows: one with a sentence of its own, one with its category's.
    EXPECT_EQ(builtIn("docker").whySafe(),
              "Docker recreates images, layers and build cache the next time you build or pull.");
    EXPECT_EQ(builtIn("gradle").whySafe(),
              "Re-downloaded or rebuilt automatically the next time you build or install.");
    EXPECT_EQ(builtIn("firefox").whySafe(),
              "Apps and websites recreate these caches automatically when they next need them.");
    EXPECT_EQ(CleanupTarget::customFolder("/Users/a/x").whySafe(),
              "A folder you added yourself — only its contents are cleared.");
}

TEST(CleanupCatalog, CustomFolderTargetIsNamedAfterItsLastComponent)
{
    const auto target = CleanupTarget::customFolder("/Users/a/Movies/Old");
    EXPECT_EQ(target.id, "custom:/Users/a/Movies/Old");
    EXPECT_EQ(target.name, "Old");
    EXPECT_EQ(target.kind, CleanupKind(PathsKind{{"/Users/a/Movies/Old"}}));
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
