#include "library/DiskSpace.h"

#include "support/TempFolder.h"

namespace kinalyx {
namespace {

TEST(DiskSpaceTest, TellsWhatIsFreeAndWhatFails) {
  test::TempFolder folder;
  const DiskSpace here = DiskSpaceGauge(folder.Path());
  EXPECT_TRUE(here.available);
  EXPECT_EQ(here.Label6, std::to_string(here.percentFree) + " % Free");
  EXPECT_EQ(RemoveableDiskText(folder.Path()), "Available space on removeable disk " + here.Label6);
  const DiskSpace gone = DiskSpaceGauge(folder.Path("gone"));
  EXPECT_EQ(gone.Label6, "0% Free");
  EXPECT_EQ(gone.message, "Disk Full or Not Available");
  EXPECT_EQ(RemoveableDiskText(folder.Path("gone")), "Drive Error");
  EXPECT_EQ(RemoveableDrivesIn("/dev/sda1 / ext4 rw 0 0\n/dev/sdb1 /media/ann/MY\\040STICK vfat rw 0 0\n"
                               "/dev/sda1 /mnt/etc/hosts ext4 rw 0 0\ntmpfs /mnt/tools tmpfs rw 0 0\n"
                               "server:/lib /mnt/lib nfs rw 0 0\nbroken\n"),
            (std::vector<std::string>{"/media/ann/MY STICK", "/mnt/lib"}));
}

}  // namespace
}  // namespace kinalyx
