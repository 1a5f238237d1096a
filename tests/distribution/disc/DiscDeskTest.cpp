#include "distribution/disc/DiscDesk.h"

#include <gtest/gtest.h>

#include <map>

#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {
namespace {

/// Two drives whose answers a test sets.
class FakeDrives final : public IDiscDrives {
 public:
  std::vector<DriveName> names{{"/dev/sr0", "First (sr0)"}, {"/dev/sr1", "Second (sr1)"}};
  std::map<std::string, Result<DriveReport>> answers;
  std::vector<std::string> ejected;

  std::vector<DriveName> List() override { return names; }
  std::unique_ptr<IDiscDrive> At(const std::string& address) override {
    return std::make_unique<Drive>(*this, address);
  }

 private:
  class Drive final : public IDiscDrive {
   public:
    Drive(FakeDrives& drives, std::string address) : drives_(drives), address_(std::move(address)) {}
    Result<DriveReport> TestUnitReady() override {
      const auto found = drives_.answers.find(address_);
      return found == drives_.answers.end() ? Result<DriveReport>(DriveReport{}) : found->second;
    }
    Outcome Eject() override {
      drives_.ejected.push_back(address_);
      return {};
    }
    std::unique_ptr<IBurnRun> Burn(const DiscTree&, const BurnWish&) override { return nullptr; }

   private:
    FakeDrives& drives_;
    std::string address_;
  };
};

class DiscDeskTest : public testing::Test, public IDiscDeskEvents {
 protected:
  DiscDeskTest() { settings.LoadSettings(); }
  void DriveChanged() override {}
  void DriveTold(const std::string& title, const std::string& words) override { told.push_back(title + "|" + words); }
  static DriveReport Blank() {
    DriveReport report;
    report.Medium = Medium::Blank;
    report.Kind = "DVD-R";
    report.FreeBytes = std::int64_t{4482} << 20;
    return report;
  }

  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path(), folder.Path()};
  FakeDrives drives;
  std::vector<std::string> told;
  DiscDesk desk{host, settings, drives, *this, {folder.Path("Bin"), folder.Path("work")}, JobRunner::On::HostTimer};
};

TEST_F(DiscDeskTest, AsksTheFirstDriveAndRemembersTheChosenOne) {
  drives.answers.emplace("/dev/sr1", Blank());
  EXPECT_EQ(desk.DriveStatus(), "Unknown");
  desk.Open();
  EXPECT_EQ(desk.DriveStatus(), "Unknown");
  host.Advance(50);
  EXPECT_EQ(desk.DriveStatus(), "Drive is NOT Ready");
  EXPECT_EQ(desk.Words(), "There is no disc in the drive.");
  desk.Choose(1);
  host.Advance(50);
  EXPECT_EQ(desk.DriveStatus(), "Drive is Ready");
  EXPECT_EQ(desk.SpaceOnCd(), "4,482MB");
  EXPECT_EQ(settings.CDBurner, "/dev/sr1");
  // The next day the other drive is not plugged in.
  drives.names.erase(drives.names.begin());
  desk.Open();
  EXPECT_EQ(desk.Chosen(), 0);
  host.Advance(50);
  EXPECT_EQ(desk.DriveStatus(), "Drive is Ready");
}

TEST_F(DiscDeskTest, TestsAndEjects) {
  desk.Open();
  host.Advance(50);
  desk.Test();
  host.Advance(50);
  drives.answers.emplace("/dev/sr0", Blank());
  desk.Test();
  host.Advance(50);
  desk.Eject();
  host.Advance(50);
  EXPECT_EQ(told, (std::vector<std::string>{"Drive Not Ready|Drive is not ready...Insert a CD and test again.\n\nThere "
                                            "is no disc in the drive.",
                                            "|Drive is ready", "|CD Drive Ejected"}));
  EXPECT_EQ(drives.ejected, (std::vector<std::string>{"/dev/sr0"}));
}

TEST_F(DiscDeskTest, SaysWhyADriveCannotBeUsed) {
  drives.answers.emplace("/dev/sr0", Outcome(Fault::Refused, "You may not use this drive."));
  desk.Open();
  host.Advance(50);
  EXPECT_EQ(desk.DriveStatus(), "Drive is NOT Ready");
  EXPECT_EQ(desk.Words(), "You may not use this drive.");
}

TEST_F(DiscDeskTest, TakesAFileForADriveAlsoWithoutAny) {
  drives.names.clear();
  desk.Open();
  EXPECT_EQ(desk.DriveStatus(), "Unknown");
  EXPECT_EQ(desk.Drive(), nullptr);
  desk.Test();
  EXPECT_EQ(told.back(), "Drive Not Ready|There is no drive for discs in this computer.");
  desk.ChooseImage("/data/Clara.iso");
  EXPECT_EQ(desk.Drives().back().Name, "Clara.iso (image file)");
  EXPECT_EQ(desk.Image(), "/data/Clara.iso");
  desk.Eject();
  EXPECT_EQ(told.back(), "|An image file has no tray.");
  desk.Open();
  EXPECT_EQ(desk.Image(), "/data/Clara.iso");
}

}  // namespace
}  // namespace kinalyx::test
