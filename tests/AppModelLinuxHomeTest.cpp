#include "AppModel.h"
#include "Platform/Trash.h"
#include "Services/Scanner.h"
#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <gmock/gmock.h>
#include <qcoro/qcorotask.h>

#include <filesystem>
#include <fstream>
#include <map>

namespace fs = std::filesystem;
using ::testing::UnorderedElementsAre;

namespace {

// Every file below a folder with its bytes.
std::map<std::string, std::string> contentsBelow(const std::string& folder)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file())
            continue;
        files[entry.path().string()] = TreeBuilder::contentsOf(entry.path());
    }
    return files;
}

// A home as a Linux desktop fills it, over a model with the Linux catalog in simple mode.
class AppModelLinuxHomeTest : public ModelFixture {
protected:
    std::string H = tempHome.home();
    std::string profile = H + "/.mozilla/firefox/k3x9q2z1.default-release";
    std::string trash = Trash::homeTrashFolder();
    std::vector<std::string> caches = {
        H + "/.cache/thumbnails/normal/3f2a9c1d.png",
        H + "/.cache/thumbnails/large/9b8a7c6d.png",
        H + "/.cache/mozilla/firefox/k3x9q2z1.default-release/cache2/entries/4C1F0A9E",
        H + "/.cache/pip/http-v2/a/b/4e5f6a7b",
    };

    void SetUp() override
    {
        std::size_t bytes = 17'000;
        for (const auto& path : caches)
            TreeBuilder::writeFile(path, bytes += 9'000);
        TreeBuilder::writeFile(profile + "/places.sqlite", 60'000);
        std::ofstream(profile + "/prefs.js") << "user_pref(\"browser.startup.page\", 3);\n";
        TreeBuilder::writeFile(H + "/.npm/_cacache/content-v2/sha512/aa/bb", 33'000);
        for (const std::string name : {"old report.pdf", "Screenshot.png"}) {
            TreeBuilder::writeFile(trash + "/files/" + name, 12'000);
            std::ofstream(trash + "/info/" + name + ".trashinfo") << "[Trash Info]\nPath=/x\nDeletionDate=2024-05-02T10:00:00\n";
        }
        model = std::make_unique<AppModel>(store, PlatformProfile::linuxDesktop);
    }

    std::int64_t cacheBytes() const
    {
        std::int64_t total = 0;
        for (const auto& path : caches)
            total += TreeBuilder::allocatedSize(path);
        return total;
    }
};

}  // namespace

TEST_F(AppModelLinuxHomeTest, SimpleModeCountsEveryCacheOnceAndCleanUpTrashesExactlyThem)
{
    const auto profileBefore = contentsBelow(profile);
    const auto npmBefore = contentsBelow(H + "/.npm");
    QCoro::waitFor(model->scanAll());

    std::vector<std::string> groups;
    for (const auto& group : model->simpleGroups())
        groups.push_back(group.id);
    EXPECT_THAT(groups, ::testing::ElementsAre("syscaches", "browsers", "trash"));
    const std::int64_t trashBytes = Scanner::directorySize(trash);
    const std::int64_t seeded = cacheBytes();
    ASSERT_GT(trashBytes, 24'000);
    EXPECT_EQ(model->totalReclaimable(), seeded + trashBytes);

    model->requestCleanAll();
    model->confirmPending(false);
    ASSERT_TRUE(waitUntil([&] { return !model->isCleaningAll() && model->statusMessage().startsWith("Freed"); }));

    // The old Trash is emptied for good; the caches take its place, and nothing else does.
    EXPECT_THAT(TreeBuilder::namesIn(trash + "/files"), UnorderedElementsAre("normal", "large", "k3x9q2z1.default-release", "pip"));
    EXPECT_EQ(Scanner::directorySize(trash + "/files"), seeded);
    for (const auto& path : caches)
        EXPECT_FALSE(fs::exists(path)) << path;
    EXPECT_TRUE(fs::is_directory(H + "/.cache/mozilla/firefox"));
    EXPECT_EQ(contentsBelow(profile), profileBefore) << "the Firefox profile is left byte for byte";
    EXPECT_EQ(contentsBelow(H + "/.npm"), npmBefore) << "developer caches are not part of simple mode";
}
