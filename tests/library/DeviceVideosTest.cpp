#include "library/DeviceVideos.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <utime.h>

#include "TempLibrary.h"
#include "library/DeviceWatch.h"
#include "library/VideoGlance.h"
#include "platform/files/Folders.h"
#include "support/TempFolder.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

TEST(DevicesIn, AreSticksAndTheFolderOfTelephonesButNoOtherDrives) {
  const auto devices = DevicesIn(
      "/dev/sda2 / ext4 rw 0 0\n"
      "/dev/sda2 /media/mirror ext4 rw 0 0\n"
      "proc /proc proc rw 0 0\n"
      "/dev/sdb1 /media/ann/CAMERA\\040ONE vfat rw 0 0\n"
      "/dev/sdc1 /run/media/ann/\u03b2\u03af\u03bd\u03c4\u03b5\u03bf exfat rw 0 0\n"
      "server:/films /mnt/films nfs4 rw 0 0\n"
      "/dev/sdd1 /mnt/archive ext4 rw 0 0\n"
      "gvfsd-fuse /run/user/1000/gvfs fuse.gvfsd-fuse rw 0 0\n"
      "/dev/sdb1 /media/ann/CAMERA\\040ONE vfat rw 0 0\n/dev/sde");
  const std::vector<DevicePlace> expected = {
      {"/media/ann/CAMERA ONE", "CAMERA ONE"},
      {"/run/media/ann/\u03b2\u03af\u03bd\u03c4\u03b5\u03bf", "\u03b2\u03af\u03bd\u03c4\u03b5\u03bf"},
      {"/run/user/1000/gvfs", ""}};
  EXPECT_EQ(devices, expected);
}

TEST(TelephoneName, IsWhatTheUserKnows) {
  EXPECT_EQ(TelephoneName("mtp:host=SAMSUNG_SAMSUNG_Android_R58N12ABC"), "SAMSUNG");
  EXPECT_EQ(TelephoneName("mtp:host=Google_Pixel_6_18011FDF6001"), "Google Pixel 6");
  EXPECT_EQ(TelephoneName("gphoto2:host=Apple_Inc._iPhone_00008030001C"), "Apple iPhone");
  EXPECT_EQ(TelephoneName("mtp:host=%5Busb%3A001,005%5D"), "Telephone");
  EXPECT_EQ(TelephoneName("mtp:host="), "Telephone");
  EXPECT_EQ(TelephoneName("mtp:host=R58N12ABC"), "R58N12ABC");
}

TEST(DeviceWords, TellCountsAndLengths) {
  EXPECT_EQ(DeviceText("SAMSUNG", 24, 6), "24 videos on \"SAMSUNG\", 6 of them new");
  EXPECT_EQ(DeviceText("SAMSUNG", 24, 24), "24 videos on \"SAMSUNG\", all of them new");
  EXPECT_EQ(DeviceText("SAMSUNG", 1, 1), "One new video on \"SAMSUNG\"");
  EXPECT_EQ(LengthText(6.6), "0:07");
  EXPECT_EQ(LengthText(3723), "1:02:03");
  EXPECT_EQ(LengthText(0), "");
}

class DeviceVideosTest : public ::testing::Test {
 protected:
  /// A file on the device, written so many seconds after another.
  std::string OnDevice(const std::string& name, const std::string& bytes, long when = 0) {
    const std::string path = device.Path(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    const utimbuf times{1700000000 + when, 1700000000 + when};
    EXPECT_EQ(::utime(path.c_str(), &times), 0);
    return path;
  }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const DeviceVideo& video : FindDeviceVideos(device.Path(), library.Root()))
      names.push_back((video.inLibrary ? "+" : "") + LastName(video.path));
    return names;
  }

  TempLibrary library;
  TempFolder device;
};

using Texts = std::vector<std::string>;

TEST_F(DeviceVideosTest, ThoseOfTheCameraComeNewestFirstWithAMarkForWhatTheLibraryHas) {
  OnDevice("Internal storage/DCIM/Camera/\u0141\u0105ka.MP4", "grass", 10);
  OnDevice("Internal storage/DCIM/Camera/\u4e16\u754c.mov", "world", 30);
  OnDevice("Card/dcim/100/C0001.mp4", "first", 20);
  OnDevice("Card/dcim/100/C0002.mp4", "second", 5);
  OnDevice("Card/dcim/100/picture.jpg", "no video", 40);
  OnDevice("Card/Download/film.mp4", "not from the camera", 50);
  OnDevice("Card/dcim/.trashed/C0003.mp4", "thrown away", 60);
  library.File("Ann/Joe/c0001.MP4", "first");           // the case says nothing
  library.File("Ann/Joe/C0002.mp4", "another size");    // another video of that name
  library.File("Bob/Sue/\u4e16\u754cdd.mov", "world");  // where the name was taken
  EXPECT_EQ(Names(), (Texts{"+\u4e16\u754c.mov", "+C0001.mp4", "\u0141\u0105ka.MP4", "C0002.mp4"}));
}

TEST_F(DeviceVideosTest, AStickWithoutACameraFolderAndADeviceThatHasGoneOfferNothing) {
  OnDevice("Ann/Joe/DL.avi", "a library on a stick");
  EXPECT_TRUE(Names().empty());
  EXPECT_TRUE(FindDeviceVideos(device.Path("gone"), library.Root()).empty());
}

TEST_F(DeviceVideosTest, AGlanceFitsAndWhatIsNoVideoGivesNone) {
  const VideoGlance glance = GlanceAt(MakeTestVideo(MjpegVideo(8)), 64, 48);
  EXPECT_GT(glance.seconds, 0);
  EXPECT_FALSE(glance.picture.Empty());
  EXPECT_TRUE(glance.picture.Width() == 64 || glance.picture.Height() == 48);
  EXPECT_LE(glance.picture.Width(), 64);
  EXPECT_LE(glance.picture.Height(), 48);
  EXPECT_TRUE(GlanceAt(OnDevice("DCIM/a.mp4", "cut off"), 64, 48).picture.Empty());
}

class DeviceWatchTest : public DeviceVideosTest {
 protected:
  std::string Offered() const { return watch.Offered() ? watch.Offered()->place.name : ""; }

  std::vector<DevicePlace> places;
  int changes = 0;
  DeviceWatch watch{
      library.host,
      library.settings,
      [this] { ++changes; },
      {[this] { return places; }, [this](DriveWatch::Work work) { return sender.Send(std::move(work)); }}};

  /// Does work at once, or never while the device hangs.
  struct Sender {
    struct Errand final : IErrand {
      bool Over(int) override { return over; }
      bool over = false;
    };
    std::shared_ptr<IErrand> Send(DriveWatch::Work work) {
      auto errand = std::make_shared<Errand>();
      errand->over = !hangs;
      ++sent;
      if (!hangs) work();
      return errand;
    }
    bool hangs = false;
    int sent = 0;
  } sender;
};

TEST_F(DeviceWatchTest, ADeviceIsOfferedOnceUntilItIsPluggedInAnew) {
  OnDevice("DCIM/1.mp4", "one");
  watch.Start();
  library.host.Advance(10000);
  EXPECT_EQ(changes + sender.sent, 0);
  places = {{device.Path(), "CARD"}};
  library.host.Advance(2000);
  EXPECT_EQ(Offered(), "CARD");
  library.host.Advance(60000);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(sender.sent, 1) << "a device is read once";

  watch.PutAside(device.Path());
  EXPECT_EQ(Offered(), "");
  library.host.Advance(60000);
  EXPECT_EQ(changes, 2);
  places.clear();
  library.host.Advance(2000);
  EXPECT_FALSE(watch.IsThere(device.Path()));
  places = {{device.Path(), "CARD"}};
  library.host.Advance(2000);
  EXPECT_EQ(Offered(), "CARD");

  library.File("Ann/Joe/1.mp4", "one");
  watch.LookAgain(device.Path());
  library.host.Advance(2000);
  EXPECT_EQ(Offered(), "") << "all of it is in the library";
  watch.Stop();
  EXPECT_EQ(library.host.TimerCount(), 0u);
}

TEST_F(DeviceWatchTest, ATelephoneThatShowsNothingYetIsReadAgain) {
  const std::string phone = "gvfs/mtp:host=NOKIA_NOKIA_X_12345";
  std::filesystem::create_directories(device.Path(phone));
  OnDevice("gvfs/smb-share:server=x/DCIM/1.mp4", "a share");
  places = {{device.Path("gvfs"), ""}};
  watch.Start();
  library.host.Advance(4000);
  EXPECT_EQ(Offered(), "");
  OnDevice(phone + "/Phone/DCIM/1.mp4", "allowed meanwhile");
  library.host.Advance(20000);
  EXPECT_EQ(Offered(), "NOKIA X");
}

TEST_F(DeviceWatchTest, OneThatHangsIsNeverOfferedAndHoldsUpNoOther) {
  OnDevice("DCIM/1.mp4", "one");
  sender.hangs = true;
  places = {{"/media/ann/dead", "DEAD"}};
  watch.Start();
  library.host.Advance(10000);
  EXPECT_EQ(sender.sent, 1) << "nothing more is sent to it";
  sender.hangs = false;
  places.push_back({device.Path(), "CARD"});
  library.host.Advance(2000);
  EXPECT_EQ(Offered(), "CARD");
}

TEST_F(DeviceWatchTest, TheStickWithTheLibraryIsNoDevice) {
  library.File("DCIM/1.mp4", "one");
  places = {{std::filesystem::path(library.Root()).parent_path(), "OWN"}};
  watch.Start();
  library.host.Advance(4000);
  EXPECT_EQ(sender.sent, 0);
}

}  // namespace
}  // namespace kinalyx::test
