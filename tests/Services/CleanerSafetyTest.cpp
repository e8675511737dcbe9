#include "Services/Cleaner.h"
#include "Support/ScopedVariable.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <filesystem>

namespace fs = std::filesystem;

TEST_F(TempHomeTest, SafetyTestAllowsOnlyDeepEnoughPathsInsideTheRoots)
{
    const std::string H = tempHome.home();
    const std::pair<std::string, bool> cases[] = {
        {H, false},
        {"/", false},
        {H + "/Documents", false},
        {H + "/Library", false},
        {H + "/Documents/report.pdf", true},  // the exact paths protect the folder, not its contents
        {H + "/Music/song.mp3", false},       // Music and Pictures protect everything below them
        {H + "/Pictures/a/b.jpg", false},
        {H + "/Library/Mail", false},
        {H + "/Library/Mail/V10/x", false},
        {H + "/Library/MailBackup", true},   // a prefix needs the "/" boundary
        {H + "/Library/Caches/CloudKit/x", false},
        {H + "/Library/Caches/anything", true},
        {"/Library/Caches", false},           // a root itself is too shallow
        {"/Library/Caches/com.example", true},
        {"/private/var/folders", true},
        {"/usr/lib/x", false},
        {H + "2/projects/x", false},          // a second user whose home merely begins with ours
        {H + "/src/../../../etc/passwd", false},
        {"relative/path/here", false},
    };
    for (const auto& [path, safe] : cases)
        EXPECT_EQ(Cleaner::isSafe(path), safe) << path;
}

TEST(CleanerSafety, AHomeOfRootAllowsNothing)
{
    const ScopedVariable rootHome("HOME", "/");
    EXPECT_FALSE(Cleaner::isSafe("/usr/share/doc"));
}

TEST_F(TempHomeTest, CustomFoldersMustExistAndBeSafe)
{
    const std::string H = tempHome.home();
    fs::create_directories(H + "/Documents");
    fs::create_directories(H + "/Movies/Old");
    fs::create_directory_symlink(H + "/Documents", H + "/sneaky");
    EXPECT_EQ(Cleaner::validateCustom("~/Movies/Old"), std::nullopt);
    EXPECT_EQ(Cleaner::validateCustom("~/gone"), "Folder doesn't exist.");
    EXPECT_EQ(Cleaner::validateCustom("~/Documents"), "That location is protected and can't be cleaned.");
    EXPECT_EQ(Cleaner::validateCustom("~/sneaky"), "That location is protected and can't be cleaned.");
    EXPECT_EQ(Cleaner::validateCustom("/etc"), "That location is protected and can't be cleaned.");
}
