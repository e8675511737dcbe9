#include "Models/DiskInfo.h"
#include "Support/TempHome.h"

TEST_F(TempHomeTest, DiskFiguresComeFromTheVolumeHoldingThePath)
{
    const DiskInfo disk = DiskInfo::current(tempHome.home());
    EXPECT_GT(disk.total, 0);
    EXPECT_GE(disk.availableImportant, 0);
    EXPECT_LE(disk.availableImportant, disk.total);

    EXPECT_EQ(DiskInfo::current(tempHome.home() + "/no/such/folder"), (DiskInfo{0, 0}));
}
