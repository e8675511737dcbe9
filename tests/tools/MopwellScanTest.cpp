// The command-line driver as a script would use it: its JSON must be parseable whatever the
// names on disk, and carry each name back byte for byte.

#include "Platform/Subprocess.h"
#include "Platform/Utf8.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <nlohmann/json.hpp>

#include <set>

namespace {

Subprocess::Result runTool(std::vector<std::string> arguments)
{
    return Subprocess::run({MOPWELL_SCAN_TOOL, std::move(arguments), {}, std::chrono::seconds(60)});
}

// Every name in the printed tree, unescaped, files and folders alike.
std::set<std::string> namesIn(const nlohmann::json& node)
{
    std::set<std::string> names{Utf8::unescaped(node.at("name").get<std::string>())};
    for (const auto& child : node.at("children"))
        names.merge(namesIn(child));
    return names;
}

}  // namespace

TEST_F(TempHomeTest, TheDiskMapJsonCarriesNamesThatAreNotUtf8)
{
    const std::string root = tempHome.home() + "/tree";
    const std::vector<std::string> odd = {"caf\xe9.txt", "\xff\xfe", "back\\slash", "\\x41 looks escaped",
                                          "r\xc3\xa9sum\xc3\xa9.pdf"};
    for (const auto& name : odd)
        TreeBuilder::writeFile(root + "/" + name, 5000);
    TreeBuilder::writeFile(root + "/sub\xe9/inner\x80.bin", 5000);

    const auto result = runTool({"diskmap", root, "--json"});
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

    const auto result = runTool({"dups", root, "--json"});
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
    const auto result = runTool({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("\\xhh"), std::string::npos) << result.output;
}
