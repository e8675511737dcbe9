#include "Platform/Clock.h"
#include "Platform/Subprocess.h"
#include "Platform/Trash.h"
#include "Support/DroppedCapabilities.h"
#include "Support/ScopedVariable.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sys/mount.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using TreeBuilder::contentsOf;

void writeFile(const std::string& path, const std::string& contents)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << contents;
}

bool exists(const std::string& path)
{
    return fs::exists(fs::symlink_status(path));
}

std::string infoFor(const std::string& trashPath)
{
    const fs::path path(trashPath);
    return contentsOf((path.parent_path().parent_path() / "info" / path.filename()).string() + ".trashinfo");
}

// trash-cli inherits our temporary HOME and XDG_DATA_HOME, so it sees the same trash we do.
std::string shell(const std::string& line)
{
    Subprocess::Options options;
    options.executable = "/bin/sh";
    options.arguments = {"-c", line};
    return Subprocess::run(options).output;
}

// A fresh tmpfs at `path`, or with `boundFrom` a bind mount of that folder; unmounted at the end.
class MountedVolume {
public:
    explicit MountedVolume(std::string path, const std::string& boundFrom = {}) : path_(std::move(path))
    {
        fs::create_directories(path_);
        const int status = boundFrom.empty() ? mount("tmpfs", path_.c_str(), "tmpfs", 0, "size=4m,mode=0755")
                                             : mount(boundFrom.c_str(), path_.c_str(), nullptr, MS_BIND, nullptr);
        if (status != 0)
            error_ = std::strerror(errno);
    }
    ~MountedVolume()
    {
        if (error_.empty())
            umount2(path_.c_str(), MNT_DETACH);
    }
    const std::string& error() const { return error_; }

private:
    std::string path_;
    std::string error_;
};

class TrashTest : public TempHomeTest {
protected:
    ~TrashTest() override
    {
        tzset();  // the zone a test set is back by now
        Clock::setNowForTesting(std::nullopt);
    }
    const std::string home = tempHome.home();
    const std::string trash = tempHome.dataHome() + "/Trash";
    const std::string uid = std::to_string(getuid());
};

}  // namespace

TEST_F(TrashTest, RoundTripRecordsTheEncodedPathAndLocalDateThenPutsBack)
{
    // Two hours east of UTC, so a date written in UTC would show.
    const ScopedVariable zone("TZ", "XYZ-2");
    tzset();
    Clock::setNowForTesting(std::chrono::system_clock::from_time_t(1709211909));  // 2024-02-29 13:05:09 UTC
    const std::string item = home + "/some dir/a 100% na\xC3\xAFve\nname";
    const std::string payload("bytes\0kept\xFF", 11);
    writeFile(item, payload);

    const Trash::Result result = Trash::trashItem(item);
    ASSERT_TRUE(result.trashed);
    ASSERT_EQ(result.trashPath, trash + "/files/a 100% na\xC3\xAFve\nname");
    EXPECT_FALSE(exists(item));
    EXPECT_EQ(contentsOf(*result.trashPath), payload);
    EXPECT_EQ(infoFor(*result.trashPath),
              "[Trash Info]\nPath=" + home + "/some%20dir/a%20100%25%20na%C3%AFve%0Aname\nDeletionDate=2024-02-29T15:05:09\n");
    for (const char* folder : {"", "/files", "/info"})
        EXPECT_EQ(fs::status(trash + folder).permissions(), fs::perms::owner_all) << folder;

    ASSERT_TRUE(Trash::putBack(*result.trashPath, item));
    EXPECT_EQ(contentsOf(item), payload);
    EXPECT_TRUE(fs::is_empty(trash + "/files") && fs::is_empty(trash + "/info"));

    setenv("XDG_DATA_HOME", "relative/data", 1);  // invalid, so ignored
    EXPECT_EQ(Trash::homeTrashFolder(), home + "/.local/share/Trash");
}

TEST_F(TrashTest, SameNamesGetDistinctTrashNamesAndKeepTheirOwnRecords)
{
    // Left by a crash between the two steps of some trasher: a file without its record.
    writeFile(trash + "/files/notes.2.txt", "orphan");
    writeFile(home + "/a/notes.txt", "A");
    writeFile(home + "/b/notes.txt", "B");
    const auto first = Trash::trashItem(home + "/a/notes.txt");
    const auto second = Trash::trashItem(home + "/b/notes.txt");
    ASSERT_TRUE(first.trashed && second.trashed);
    EXPECT_EQ(second.trashPath, trash + "/files/notes.3.txt");
    EXPECT_EQ(contentsOf(trash + "/files/notes.2.txt"), "orphan");
    EXPECT_FALSE(exists(trash + "/info/notes.2.txt.trashinfo"));
    EXPECT_NE(infoFor(*second.trashPath).find("Path=" + home + "/b/notes.txt\n"), std::string::npos);

    // A name at the length limit leaves no room for ".trashinfo" or a counter: the trash names
    // are shortened by whole characters, and the record keeps the full name.
    std::string longName;
    for (int i = 0; i < 125; ++i)
        longName += "\xC3\xA9";
    longName += ".data";
    ASSERT_EQ(longName.size(), std::size_t(NAME_MAX));
    writeFile(home + "/a/" + longName, "long A");
    writeFile(home + "/b/" + longName, "long B");
    ASSERT_TRUE(Trash::trashItem(home + "/a/" + longName).trashed);
    const auto longSecond = Trash::trashItem(home + "/b/" + longName);
    ASSERT_TRUE(longSecond.trashed);
    EXPECT_TRUE(longSecond.trashPath->ends_with("\xC3\xA9.2.data"));

    EXPECT_TRUE(Trash::putBack(*second.trashPath, home + "/b/notes.txt"));
    EXPECT_TRUE(Trash::putBack(*first.trashPath, home + "/a/notes.txt"));
    EXPECT_TRUE(Trash::putBack(*longSecond.trashPath, home + "/b/" + longName));
    EXPECT_EQ(contentsOf(home + "/a/notes.txt") + contentsOf(home + "/b/notes.txt"), "AB");
    EXPECT_EQ(contentsOf(home + "/b/" + longName), "long B");
}

TEST_F(TrashTest, FoldersGoWholeAndLinksGoAsLinks)
{
    writeFile(home + "/tree/sub/deep.txt", "deep");
    fs::create_symlink("sub/deep.txt", home + "/tree/shortcut");
    writeFile(home + "/target.txt", "target");
    fs::create_symlink(home + "/target.txt", home + "/pointer");
    fs::create_symlink(home + "/nowhere", home + "/dangling");

    const auto tree = Trash::trashItem(home + "/tree/");
    ASSERT_TRUE(tree.trashed);
    EXPECT_EQ(contentsOf(*tree.trashPath + "/sub/deep.txt"), "deep");
    EXPECT_EQ(fs::read_symlink(*tree.trashPath + "/shortcut"), "sub/deep.txt");
    const auto pointer = Trash::trashItem(home + "/pointer");
    ASSERT_TRUE(pointer.trashed);
    EXPECT_EQ(fs::read_symlink(*pointer.trashPath), home + "/target.txt");
    EXPECT_EQ(contentsOf(home + "/target.txt"), "target");
    EXPECT_TRUE(Trash::trashItem(home + "/dangling").trashed);
}

TEST_F(TrashTest, TrashCliListsAndRestoresOurItemsAndWeAvoidItsNames)
{
    if (shell("command -v trash-list trash-put trash-restore").empty())
        GTEST_SKIP() << "trash-cli is not installed (scripts/bootstrap installs it)";
    writeFile(home + "/old/report.txt", "theirs");
    shell("trash-put '" + home + "/old/report.txt'");
    ASSERT_EQ(contentsOf(trash + "/files/report.txt"), "theirs");

    writeFile(home + "/docs/report.txt", "ours");
    writeFile(home + "/docs/na\xC3\xAFve 50%.txt", "encoded");
    const auto ours = Trash::trashItem(home + "/docs/report.txt");
    ASSERT_TRUE(ours.trashed);
    EXPECT_EQ(contentsOf(trash + "/files/report.txt"), "theirs");
    ASSERT_TRUE(Trash::trashItem(home + "/docs/na\xC3\xAFve 50%.txt").trashed);

    const std::string listed = shell("trash-list");
    for (const char* original : {"/old/report.txt\n", "/docs/report.txt\n", "/docs/na\xC3\xAFve 50%.txt\n"})
        EXPECT_NE(listed.find(home + original), std::string::npos) << listed;

    // trash-restore offers what was trashed below the working folder and asks for a number.
    shell("cd '" + home + "/docs' && echo 0 | trash-restore && echo 0 | trash-restore");
    EXPECT_EQ(contentsOf(home + "/docs/report.txt") + contentsOf(home + "/docs/na\xC3\xAFve 50%.txt"), "oursencoded");
    EXPECT_FALSE(exists(home + "/old/report.txt"));
}

TEST_F(TrashTest, WhatLiesInATrashIsNotTrashedAgain)
{
    writeFile(home + "/file.txt", "x");
    const auto trashed = Trash::trashItem(home + "/file.txt");
    ASSERT_TRUE(trashed.trashed);
    fs::create_directory_symlink(trash + "/files", home + "/shortcut");

    for (const std::string& path : {*trashed.trashPath, trash, trash + "/files", trash + "/info",
                                    trash + "/info/file.txt.trashinfo", home + "/shortcut/file.txt"}) {
        EXPECT_FALSE(Trash::trashItem(path).trashed) << path;
        EXPECT_TRUE(exists(path)) << path;
    }
    EXPECT_FALSE(Trash::trashItem(home + "/missing").trashed);
    EXPECT_FALSE(Trash::trashItem("file.txt").trashed);
    EXPECT_EQ(std::distance(fs::directory_iterator(trash + "/info"), fs::directory_iterator()), 1);
}

TEST_F(TrashTest, AnUnwritableHomeTrashFailsAndLeavesNoRecord)
{
    const std::string item = tempHome.writeFile("keep.txt", "keep");
    fs::permissions(tempHome.dataHome(), fs::perms::owner_read | fs::perms::owner_exec);
    const DroppedCapabilities dropped;  // for this thread, which is the one trashing
    MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
    EXPECT_FALSE(Trash::trashItem(item).trashed);
    EXPECT_FALSE(exists(trash));

    // The record can be written but the item can't follow it: the record must go again.
    fs::permissions(tempHome.dataHome(), fs::perms::owner_all);
    fs::create_directories(trash + "/info");
    fs::create_directories(trash + "/files");
    fs::permissions(trash + "/files", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(Trash::trashItem(item).trashed);
    EXPECT_EQ(contentsOf(item), "keep");
    EXPECT_TRUE(fs::is_empty(trash + "/info"));
}

TEST_F(TrashTest, PutBackNeverReplacesAndRecreatesMissingFolders)
{
    const std::string item = tempHome.writeFile("a/file.txt", "old");
    const auto trashed = Trash::trashItem(item);
    ASSERT_TRUE(trashed.trashed);
    writeFile(item, "new");
    EXPECT_FALSE(Trash::putBack(*trashed.trashPath, item));
    EXPECT_EQ(contentsOf(item) + contentsOf(*trashed.trashPath), "newold");
    EXPECT_FALSE(infoFor(*trashed.trashPath).empty());

    ASSERT_TRUE(Trash::putBack(*trashed.trashPath, home + "/gone/deeper/file.txt"));
    EXPECT_EQ(contentsOf(home + "/gone/deeper/file.txt"), "old");
    EXPECT_TRUE(fs::is_empty(trash + "/info"));
    EXPECT_FALSE(Trash::putBack(*trashed.trashPath, home + "/again.txt"));
}

TEST_F(TrashTest, VolumeItemsGoToTheVolumesTrashWithARelativePath)
{
    const std::string volume = tempHome.root() + "/volume";
    const MountedVolume mounted(volume);
    if (!mounted.error().empty())
        GTEST_SKIP() << "cannot mount a test volume: " << mounted.error();
    const std::string ownTrash = volume + "/.Trash-" + uid;
    const std::string item = volume + "/sub dir/a file.txt";
    writeFile(item, "on volume");

    const auto trashed = Trash::trashItem(item);
    ASSERT_TRUE(trashed.trashed);
    EXPECT_EQ(trashed.trashPath, ownTrash + "/files/a file.txt");
    EXPECT_NE(infoFor(*trashed.trashPath).find("\nPath=sub%20dir/a%20file.txt\n"), std::string::npos);
    if (!shell("command -v trash-list").empty()) {
        EXPECT_NE(shell("trash-list").find(item + "\n"), std::string::npos);
    }
    ASSERT_TRUE(Trash::putBack(*trashed.trashPath, item));
    EXPECT_TRUE(fs::is_empty(ownTrash + "/info"));

    // The volume's shared trash is used only when it is sticky and no link.
    const std::string shared = volume + "/.Trash";
    const auto trashFolderOf = [&](const std::string& name) {
        writeFile(volume + "/" + name, name);
        const auto result = Trash::trashItem(volume + "/" + name);
        return result.trashed ? fs::path(*result.trashPath).parent_path().parent_path().string() : "";
    };
    fs::create_directory(shared);
    fs::permissions(shared, fs::perms::all);  // open to all, but not sticky
    EXPECT_EQ(trashFolderOf("loose"), ownTrash);
    fs::remove(shared);
    fs::create_directory(volume + "/sticky");
    fs::permissions(volume + "/sticky", fs::perms::all | fs::perms::sticky_bit);
    fs::create_directory_symlink(volume + "/sticky", shared);
    EXPECT_EQ(trashFolderOf("linked"), ownTrash);
    EXPECT_FALSE(exists(volume + "/sticky/" + uid));
    fs::remove(shared);
    fs::rename(volume + "/sticky", shared);
    EXPECT_EQ(trashFolderOf("proper"), shared + "/" + uid);
    EXPECT_NE(contentsOf(shared + "/" + uid + "/info/proper.trashinfo").find("\nPath=proper\n"), std::string::npos);

    // A private trash that is a link, or another user's folder, could hand our files to
    // someone else: refused, and the item stays.
    fs::remove_all(shared);
    fs::rename(ownTrash, volume + "/elsewhere");
    fs::create_directory_symlink(volume + "/elsewhere", ownTrash);
    EXPECT_FALSE(Trash::trashItem(item).trashed);
    fs::remove(ownTrash);
    fs::create_directory(ownTrash);
    ASSERT_EQ(chown(ownTrash.c_str(), getuid() + 1, getgid()), 0);
    EXPECT_FALSE(Trash::trashItem(item).trashed);
    EXPECT_EQ(contentsOf(item), "on volume");
    EXPECT_FALSE(exists(volume + "/elsewhere/info/a file.txt.trashinfo"));
}

TEST_F(TrashTest, ABindMountOfTheHomeVolumeUsesItsOwnTrash)
{
    // Same device as the home trash, yet a rename can't leave the mount.
    const std::string bound = tempHome.root() + "/bound";
    const MountedVolume mounted(bound, tempHome.makeFolder("source"));
    if (!mounted.error().empty())
        GTEST_SKIP() << "cannot mount a test volume: " << mounted.error();
    writeFile(bound + "/item.txt", "bound");
    const auto trashed = Trash::trashItem(bound + "/item.txt");
    ASSERT_TRUE(trashed.trashed);
    EXPECT_EQ(trashed.trashPath, bound + "/.Trash-" + uid + "/files/item.txt");
    EXPECT_TRUE(Trash::putBack(*trashed.trashPath, bound + "/item.txt"));
}
