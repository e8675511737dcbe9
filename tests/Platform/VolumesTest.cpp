#include "Platform/Volumes.h"
#include "Support/PathsOf.h"
#include "Support/TempHome.h"

#include <filesystem>
#include <regex>

namespace {

// A desktop machine's table: a system split over several partitions, the kernel's own file
// systems, a snap, two sticks, a network share, drives inside the home folder, and the oddities.
// HOME stands for the home folder.
constexpr const char* sampleTable = R"(22 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw,errors=remount-ro
23 22 0:21 / /proc rw,nosuid,nodev,noexec,relatime shared:12 - proc proc rw
24 22 0:22 / /sys rw,nosuid,nodev,noexec,relatime shared:2 - sysfs sysfs rw
25 24 0:23 / /sys/fs/cgroup rw,nosuid,nodev,noexec,relatime shared:4 - cgroup2 cgroup2 rw,nsdelegate
26 22 0:24 / /run rw,nosuid,nodev,noexec,relatime shared:5 - tmpfs tmpfs rw,size=1628372k,mode=755
27 22 8:1 / /boot rw,relatime shared:29 - ext4 /dev/sda1 rw
28 27 8:3 / /boot/efi rw,relatime shared:31 - vfat /dev/sda3 rw,fmask=0077,dmask=0077,codepage=437
29 22 8:5 / /home rw,relatime shared:33 - ext4 /dev/sda5 rw
30 22 8:6 / /var rw,relatime shared:34 - xfs /dev/sda6 rw
31 22 7:0 / /snap/core22/1380 ro,nodev,relatime shared:35 - squashfs /dev/loop0 ro,errors=continue
32 26 0:45 / /run/user/1000 rw,nosuid,nodev,relatime shared:400 - tmpfs tmpfs rw,size=814184k,mode=700
33 32 0:47 / /run/user/1000/gvfs rw,nosuid,nodev,relatime shared:420 - fuse.gvfsd-fuse gvfsd-fuse rw,user_id=1000
34 26 8:17 / /media/alice/USB\040STICK rw,nosuid,nodev,relatime shared:450 - vfat /dev/sdb1 rw,uid=1000
35 22 8:33 / /mnt/stacked rw,relatime shared:455 - ext4 /dev/sdc1 rw
36 26 8:49 / /run/media/bob/Backup rw,nosuid,nodev,relatime shared:460 - ext4 /dev/sdd1 rw
37 22 0:50 / /mnt/nas rw,relatime shared:470 - nfs4 nas.local:/export rw,vers=4.2,addr=192.168.1.2
38 22 8:65 / /mnt/recovery rw,relatime shared:480 - ext4 /dev/sde1 rw,x-gvfs-hide
39 22 8:81 / /mnt/covered rw,relatime shared:490 - ext4 /dev/sdf1 rw
40 22 0:51 / /mnt/covered rw,relatime shared:491 - tmpfs tmpfs rw
41 22 8:97 / /mnt-old rw,relatime shared:500 - ext4 /dev/sdg1 rw
42 29 8:113 / HOME rw,relatime shared:510 - ext4 /dev/sdh1 rw
43 42 8:129 / HOME/Photos\011and\134Films\012 rw,relatime shared:520 - exfat /dev/sdi1 rw
44 42 0:52 / HOME/server rw,nosuid,nodev,relatime shared:530 - fuse.sshfs alice@host:/srv rw,user_id=1000
45 22 8:145 / /mnt/stacked rw,relatime shared:540 - ext4 /dev/sdj1 rw
46 22 0:53 / /mnt/pipes rw,relatime shared:550 - mqueue mqueue rw
not a mount line
47 22 8:161 / /mnt/truncated rw,relatime
)";

using MountTableTest = TempHomeTest;

}  // namespace

TEST_F(MountTableTest, OnlyTheVolumesAUserMountedOrPluggedInAreListedOnceInMountOrder)
{
    const std::string home = tempHome.home();
    const std::string table = std::regex_replace(sampleTable, std::regex("HOME"), home);

    const auto volumes = Volumes::parseMountInfo(table);

    // The stacked point shows its last mount, so it moves to that mount's place; the point
    // covered by a tmpfs shows no drive at all.
    EXPECT_EQ(pathsOf(volumes), (std::vector<std::string>{"/media/alice/USB STICK", "/run/media/bob/Backup",
                                                          "/mnt/nas", home + "/Photos\tand\\Films\n",
                                                          home + "/server", "/mnt/stacked"}));
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(volumes.front().name, "USB STICK");
    EXPECT_EQ(volumes[3].name, "Photos\tand\\Films\n");
    EXPECT_EQ(volumes.back().name, "stacked");

    // A manual mount straight on /mnt counts; a home folder written with a trailing slash still
    // finds the drives inside it.
    setenv("HOME", (home + "/").c_str(), 1);
    const auto direct = Volumes::parseMountInfo("50 1 8:1 / /mnt rw - ext4 /dev/sdk1 rw\n"
                                                "51 1 8:2 / " + home + "/Disk rw - ext4 /dev/sdl1 rw");
    EXPECT_EQ(pathsOf(direct), (std::vector<std::string>{"/mnt", home + "/Disk"}));
    EXPECT_EQ(direct.front().name, "mnt");
}

TEST(Volumes, TheMountedVolumesOfThisMachineAreExistingFoldersOtherThanTheRoot)
{
    for (const auto& volume : Volumes::mountedVolumes()) {
        EXPECT_NE(volume.path, "/");
        EXPECT_FALSE(volume.name.empty()) << volume.path;
        EXPECT_TRUE(std::filesystem::is_directory(volume.path)) << volume.path;
    }
}
