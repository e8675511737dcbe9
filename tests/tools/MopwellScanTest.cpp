// `mopwell-scan` as a script would use it: its JSON must be parseable whatever the names on disk
// and carry each name back byte for byte; and `targets`, the preview a user runs before trusting
// a cleaner, lists and measures the panel's rows for the stored settings and changes nothing.

#include "Platform/DefaultsStore.h"
#include "Platform/Subprocess.h"
#include "Platform/Utf8.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <set>

namespace fs = std::filesystem;
using ::testing::ElementsAre;

namespace {

Subprocess::Result run(std::vector<std::string> arguments)
{
    return Subprocess::run({MOPWELL_SCAN_TOOL, std::move(arguments), {}, std::chrono::seconds(60)});
}

nlohmann::json runTool(std::vector<std::string> arguments)
{
    const auto result = run(std::move(arguments));
    EXPECT_EQ(result.status, 0) << result.output;
    return nlohmann::json::parse(result.output);
}

// Every name in the printed tree, unescaped, files and folders alike.
std::set<std::string> namesIn(const nlohmann::json& node)
{
    std::set<std::string> names{Utf8::unescaped(node.at("name").get<std::string>())};
    for (const auto& child : node.at("children"))
        names.merge(namesIn(child));
    return names;
}

class TargetsCommandTest : public TempHomeTest {
protected:
    std::string H = tempHome.home();
    std::string pip = H + "/.cache/pip/wheel";
    std::string thumbnail = H + "/.cache/thumbnails/normal/a.png";
    std::string firefox = H + "/.cache/mozilla/firefox/p.default/cache2/entry";
    std::string npm = H + "/.npm/_cacache/blob";

    void SetUp() override
    {
        TreeBuilder::writeFile(pip, 30'000);
        TreeBuilder::writeFile(thumbnail, 12'000);
        TreeBuilder::writeFile(firefox, 50'000);
        TreeBuilder::writeFile(npm, 20'000);
        TreeBuilder::writeFile(H + "/scratch/old.bin", 8'000);
        DefaultsStore store(DefaultsStore::standardPath());
        store.set("disabledTargetIDs", std::vector<std::string>{"thumbnails"});
        store.set("customFolders", std::vector<std::string>{H + "/scratch"});
    }

    static const nlohmann::json& row(const nlohmann::json& preview, const std::string& id)
    {
        for (const auto& target : preview.at("targets")) {
            if (target.at("id") == id)
                return target;
        }
        throw std::out_of_range(id);
    }
};

}  // namespace

TEST_F(TargetsCommandTest, ListsAndMeasuresWhatThePanelWouldAndChangesNothing)
{
    const std::string defaults = TreeBuilder::contentsOf(DefaultsStore::standardPath());
    const auto preview = runTool({"targets", "--json"});

    EXPECT_EQ(preview.at("profile"), "linux");
    EXPECT_EQ(preview.at("developerMode"), false);
    std::vector<std::string> ids;
    for (const auto& target : preview.at("targets"))
        ids.push_back(target.at("id"));
    EXPECT_THAT(ids, ElementsAre("trash", "appcaches", "logs", "thumbnails", "chrome", "chromium", "firefox",
                                 "custom:" + H + "/scratch"));
    // Each byte once: the cache row leaves the thumbnails and Firefox's cache to their rows.
    EXPECT_EQ(row(preview, "appcaches").at("size"), TreeBuilder::allocatedSize(pip));
    EXPECT_EQ(row(preview, "firefox").at("size"), TreeBuilder::allocatedSize(firefox));
    EXPECT_EQ(row(preview, "firefox").at("displayPaths").at(0), H + "/.cache/mozilla/firefox");
    EXPECT_EQ(row(preview, "thumbnails").at("enabled"), false);
    // The total leaves the unticked thumbnails out, as the panel's does.
    EXPECT_EQ(preview.at("totalReclaimable"), TreeBuilder::allocatedSize(pip) + TreeBuilder::allocatedSize(firefox) +
                                                  TreeBuilder::allocatedSize(H + "/scratch/old.bin"));

    for (const auto& path : {pip, thumbnail, firefox, npm})
        EXPECT_TRUE(fs::exists(path)) << path;
    EXPECT_EQ(TreeBuilder::contentsOf(DefaultsStore::standardPath()), defaults);
}

TEST_F(TargetsCommandTest, TakesDeveloperModeAndTheOtherDesktopByName)
{
    const auto developer = runTool({"targets", "--developer", "--json"});
    EXPECT_EQ(developer.at("developerMode"), true);
    EXPECT_EQ(row(developer, "npm").at("size"), TreeBuilder::allocatedSize(npm));
    EXPECT_EQ(row(developer, "pip").at("size"), TreeBuilder::allocatedSize(pip));
    EXPECT_EQ(row(developer, "appcaches").at("size"), 0) << "pip's cache is its own row now";
    EXPECT_EQ(row(developer, "venv").at("category"), "Build artifacts");

    const auto mac = runTool({"targets", "--profile", "macos", "--json"});
    EXPECT_EQ(mac.at("profile"), "macos");
    EXPECT_EQ(row(mac, "safari").at("displayPaths").at(0), H + "/Library/Containers/com.apple.Safari/Data/Library/Caches");

    const auto wrong = run({"targets", "--profile", "windows"});
    EXPECT_EQ(wrong.status, 2);
}

TEST_F(TargetsCommandTest, ADamagedSettingsFileIsLeftWhereItIs)
{
    const std::string path = DefaultsStore::standardPath();
    std::ofstream(path, std::ios::binary | std::ios::trunc) << "not a property list";
    const auto preview = runTool({"targets", "--json"});
    EXPECT_EQ(row(preview, "thumbnails").at("enabled"), true) << "read as a first start would";
    EXPECT_EQ(TreeBuilder::contentsOf(path), "not a property list");
    for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path()))
        EXPECT_EQ(entry.path().string().find("damaged"), std::string::npos) << entry.path() << " was set aside";
}

TEST_F(TargetsCommandTest, TheDiskMapJsonHasHiddenEntriesOnLinuxOnly)
{
    auto names = [](const nlohmann::json& tree) {
        std::vector<std::string> found;
        for (const auto& child : tree.at("children"))
            found.push_back(child.at("name"));
        return found;
    };
    EXPECT_THAT(names(runTool({"diskmap", H + "/.cache", "--json"})), ::testing::Contains("mozilla"));
    EXPECT_THAT(names(runTool({"diskmap", H, "--json", "--profile", "linux"})), ::testing::Contains(".cache"));
    EXPECT_THAT(names(runTool({"diskmap", H, "--json", "--profile", "macos"})), ElementsAre("scratch"));
}

TEST_F(TempHomeTest, TheDiskMapJsonCarriesNamesThatAreNotUtf8)
{
    const std::string root = tempHome.home() + "/tree";
    const std::vector<std::string> odd = {"caf\xe9.txt", "\xff\xfe", "back\\slash", "\\x41 looks escaped",
                                          "r\xc3\xa9sum\xc3\xa9.pdf"};
    for (const auto& name : odd)
        TreeBuilder::writeFile(root + "/" + name, 5000);
    TreeBuilder::writeFile(root + "/sub\xe9/inner\x80.bin", 5000);

    const auto result = run({"diskmap", root, "--json"});
    ASSERT_EQ(result.status, 0) << result.output;
    ASSERT_TRUE(Utf8::isValid(result.output));
    const auto tree = nlohmann::json::parse(result.output);
    const auto names = namesIn(tree);
    for (const auto& name : odd)
        EXPECT_TRUE(names.contains(name)) << testing::PrintToString(name);
    EXPECT_TRUE(names.contains("inner\x80.bin"));
    // Ids are full paths in the same escape.
    EXPECT_EQ(Utf8::unescaped(tree.at("id").get<std::string>()), root);
}

TEST_F(TempHomeTest, TheDuplicatesJsonCarriesNamesThatAreNotUtf8)
{
    const std::string root = tempHome.home() + "/dups";
    const std::string a = root + "/caf\xe9 copy.bin";
    const std::string b = root + "/\xff\\copy.bin";
    TreeBuilder::writeFile(a, 1'100'000);  // copies count from a megabyte up
    TreeBuilder::writeFile(b, 1'100'000);

    const auto result = run({"dups", root, "--json"});
    ASSERT_EQ(result.status, 0) << result.output;
    const auto found = nlohmann::json::parse(result.output);
    std::set<std::string> copies;
    for (const auto& group : found.at("duplicates")) {
        for (const auto& path : group.at("paths"))
            copies.insert(Utf8::unescaped(path.get<std::string>()));
    }
    EXPECT_EQ(copies, (std::set<std::string>{a, b}));
}

TEST(MopwellScanTool, HelpDocumentsTheEscape)
{
    const auto result = run({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("\\xhh"), std::string::npos) << result.output;
}
