#include "Platform/DesktopEntry.h"
#include "Support/TempHome.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

TEST(DesktopEntry, ReadsOnlyTheFirstMainGroupWithTrimmedKeysAndTheFirstOfDuplicates)
{
    const auto entry = DesktopEntry::parse("Stray=before any group\n"
                                           "# a comment\n"
                                           "[Desktop Entry]\r\n"
                                           "Type=Application\n"
                                           "  Name = Photo Tool  \n"
                                           "Name[de]=Fotowerkzeug\n"
                                           "Name=Second\n"
                                           "no equals sign\n"
                                           "=no key\n"
                                           "[Desktop Action New]\n"
                                           "Exec=/not/this\n"
                                           "[Desktop Entry]\n"
                                           "Icon=repeated-group\n");
    EXPECT_TRUE(entry.hasMainGroup());
    EXPECT_EQ(entry.string("Name"), "Photo Tool");
    EXPECT_EQ(entry.string("Name[de]"), "Fotowerkzeug");
    EXPECT_EQ(entry.string("Type"), "Application");
    EXPECT_FALSE(entry.raw("Stray"));
    EXPECT_FALSE(entry.raw("Exec"));
    EXPECT_FALSE(entry.raw("Icon"));
    EXPECT_FALSE(DesktopEntry::parse("Name=x\n[Other]\nName=y").hasMainGroup());
}

TEST(DesktopEntry, ResolvesValueEscapesBooleansAndLists)
{
    const auto entry = DesktopEntry::parse("[Desktop Entry]\n"
                                           "Comment=a\\sb\\nc\\td\\\\e\\qf\\\n"
                                           "Hidden=true\nNoDisplay=false\nTerminal=True\n"
                                           "Categories=Graphics;;Photo\\;Editing;2D\\sArt;\n");
    EXPECT_EQ(entry.string("Comment"), "a b\nc\td\\e\\qf\\");
    EXPECT_EQ(entry.boolean("Hidden"), true);
    EXPECT_EQ(entry.boolean("NoDisplay"), false);
    EXPECT_FALSE(entry.boolean("Terminal"));  // only lower-case words are booleans
    EXPECT_FALSE(entry.boolean("Missing"));
    EXPECT_EQ(entry.strings("Categories"), (std::vector<std::string>{"Graphics", "Photo;Editing", "2D Art"}));
}

TEST(DesktopEntry, SplitsExecLinesAsTheQuotingRulesSay)
{
    struct Case {
        std::string line;
        std::vector<std::string> words;
    };
    const std::vector<Case> cases = {
        {R"(/opt/app/run %U)", {"/opt/app/run", "%U"}},
        {R"("/home/me/My Apps/tool.AppImage"  --flag)", {"/home/me/My Apps/tool.AppImage", "--flag"}},
        {R"(sh -c "echo \"hi\" \$HOME \`x\` \\")", {"sh", "-c", R"(echo "hi" $HOME `x` \)"}},
        {R"(a""b "" c)", {"ab", "", "c"}},
        {R"("unterminated arg)", {"unterminated arg"}},
        {"  \t ", {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(DesktopEntry::splitExec(c.line), c.words) << c.line;
    // The file's own escaping comes first: "\\\\" in the file is one backslash in the argument.
    const auto entry = DesktopEntry::parse("[Desktop Entry]\nExec=\"/a\\\\\\\\b\" %f\n");
    EXPECT_EQ(entry.execArguments(), (std::vector<std::string>{"/a\\b", "%f"}));
}

TEST_F(TempHomeTest, ReadsRegularFilesOfBoundedSizeWhateverTheirBytes)
{
    const std::string path = tempHome.writeFile("e.desktop", std::string("[Desktop Entry]\nName=\xff\xfe\0x\n", 27));
    const auto entry = DesktopEntry::read(path);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->raw("Name")->size(), 4u);  // bytes kept as they are, NUL included
    EXPECT_FALSE(DesktopEntry::read(tempHome.makeFolder("folder.desktop")));
    EXPECT_FALSE(DesktopEntry::read(tempHome.home() + "/missing.desktop"));
    EXPECT_FALSE(DesktopEntry::read(tempHome.writeFile("big.desktop", std::string(DesktopEntry::maxFileSize + 1, 'x'))));
}
