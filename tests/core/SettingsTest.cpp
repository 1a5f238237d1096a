#include "core/Settings.h"

#include <fmt/format.h>
#include <sys/stat.h>

#include "core/Numbers.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {
namespace {

/// A workstation on which the program has never run.
struct Desk {
  TempFolder folder;
  TestHost host;
  std::string data = folder.Path("Kinalyx");
  std::string file = data + "/config10.ini";
  Settings settings{host, data, "/opt/kinalyx"};

  std::optional<std::string> OnDisk(const char* section, const char* key) {
    return ReadProfileValue(section, key, file);
  }
  void Write(const char* section, const char* key, const std::string& value) {
    ASSERT_TRUE(WritePrivateProfileString(section, key, value, file));
  }
};

TEST(Numbers, ReadLenientlyAndRoundTiesToEven) {
  using Case = std::pair<const char*, std::int32_t>;
  const Case cases[] = {{"50", 50},
                        {"  50 percent", 50},
                        {"-7", -7},
                        {"+7", 7},
                        {"", 0},
                        {"abc", 0},
                        {"/home/x", 0},
                        {"2.5", 2},
                        {"3.5", 4},
                        {"-2.5", -2},
                        {".6", 1},
                        {"1e3", 1000},
                        {"nan", 0},
                        {"inf", 0},
                        {"--5", 0},
                        {"&HFFFF&", 65535},
                        {"&H00800000&", 8388608},
                        {"&hff", 255},
                        {"&HC0C000", 12632064},
                        {"&H", 0},
                        {"&HFFFFFFFF", -1},
                        {"9999999999", 2147483647},
                        {"-1e99", -2147483648},
                        {"1e999", 2147483647}};
  for (const auto& [text, number] : cases) EXPECT_EQ(ReadInt32(text), number) << text;
  EXPECT_EQ(ReadInt16("40000"), 32767);
  EXPECT_EQ(ReadBoolean("True"), true);
  EXPECT_EQ(ReadBoolean(" fALSE "), false);
  EXPECT_EQ(ReadBoolean("-1"), true);
  EXPECT_EQ(ReadBoolean("0"), false);
  for (const char* bad : {"", "yes", "1x", "/home/x/config10.ini"}) EXPECT_EQ(ReadBoolean(bad), std::nullopt) << bad;
}

TEST(Settings, FirstRunWritesEveryKeyInOrderAndHoldsIt) {
  Desk desk;
  ASSERT_TRUE(desk.settings.LoadSettings());
  const Settings& s = desk.settings;
  const std::string text = desk.folder.Get("Kinalyx/config10.ini");
  std::size_t at = 0;
  for (const char* line :
       {"[General]\nWindowMode=1\nScreenMode=1\nUserName=\nCompanyName=Company Name\nUseNetwork=False\n",
        "Heading1=Welcome to the\n", "Heading5=Program\nExporter=A:\\\nCDBurner=0\nUpdateCheck=0\nRestartOption=0\n",
        "[VidCap]\nImportCaptureMode=True\nVideoInSource=25\n", "TriggerTime0=15\nTriggerTime1=10\nOneClickTime=25\n",
        "\nHDSplitFields=False\n", "AutoRealFR=30\n",
        "[Analysis]\nGridSize=50\nSlomoSpeed=25\nCadWidth=5\nCadOutline=True\n", "NewColor0=&HC0C000\n",
        "NewColor11=&H00800000&\nNewColor12=&HFFFF&\nStrobeStep=1\nOpenDlgChoice=0\n", "[Ruler]\nCalibNumber=0\n",
        "[Layout]\nDesign=0\nPrimaryName0=Student\n", "WindowInfo3=9000\n"}) {
    const std::size_t found = text.find(line, at);
    ASSERT_NE(found, std::string::npos) << line;
    at = found;
  }
  EXPECT_EQ(s.LibraryPath, desk.data + "/Video Library");
  EXPECT_EQ(s.BackgroundPic, "/opt/kinalyx/pictures/backgrounds/bio-guy blue.jpg");
  EXPECT_EQ(s.SlomoSpeed, 25);
  EXPECT_TRUE(s.CadOutline);
  EXPECT_FALSE(s.HDSplitFields);
  EXPECT_EQ(s.NewColors[11], 8388608);
  EXPECT_EQ(s.WindowInfo[2], 12000);
  EXPECT_TRUE(desk.host.messages.empty());
}

TEST(Settings, ChangesSurviveARestart) {
  Desk desk;
  desk.settings.LoadSettings();
  Settings& s = desk.settings;
  s.Set(s.UserName, "Jos\xC3\xA9 Sample");
  s.Set(s.CadWidth, 7);
  s.Set(s.CadOutline, false);
  s.Set(s.CalibNumberOut, 12.5f);
  s.SetNewColor(3, 1234567);
  s.SetNewColor(17, 99);
  s.StoreWindowPlace(-15, 30, 19200, 12000);
  EXPECT_EQ(desk.OnDisk("Analysis", "NewColor3"), "1234567");
  EXPECT_EQ(desk.OnDisk("Analysis", "CadOutline"), "False");
  EXPECT_EQ(desk.OnDisk("Layout", "windowinfo0"), "-15");
  EXPECT_EQ(s.PathDownColor, 99);
  EXPECT_FALSE(s.SetNewColor(13, 1));

  Settings again(desk.host, desk.data, "/opt/kinalyx");
  ASSERT_TRUE(again.LoadSettings());
  EXPECT_EQ(again.UserName, "Jos\xC3\xA9 Sample");
  EXPECT_EQ(again.CadWidth, 7);
  EXPECT_FALSE(again.CadOutline);
  EXPECT_EQ(again.CalibNumberOut, 12.5f);
  EXPECT_EQ(again.NewColors[3], 1234567);
  EXPECT_EQ(again.WindowInfo[0], -15);
  EXPECT_NE(again.PathDownColor, 99) << "lasts only until the program closes";
}

TEST(Settings, OddFilesReadAsTheyAlwaysDid) {
  Desk desk;
  desk.settings.LoadSettings();
  const std::string longPath = "/srv/" + std::string(200, 'v');
  desk.Write("General", "LibraryPath", longPath);
  desk.Write("General", "ScreenMode", " 4 windows");
  desk.Write("VidCap", "HDSPLITFIELDS", "-1");
  desk.Write("Analysis", "CadOutline", "0");
  desk.Write("Analysis", "SlomoSpeed", "99999");
  DeleteProfileKey("General", "CompanyName", desk.file);
  DeleteProfileKey("Analysis", "GridSize", desk.file);
  ASSERT_TRUE(desk.settings.LoadSettings());
  EXPECT_EQ(desk.settings.LibraryPath, longPath.substr(0, 149));
  EXPECT_EQ(desk.settings.ScreenMode, "4");
  EXPECT_EQ(desk.settings.ScreenModeNumber(), 4);
  EXPECT_TRUE(desk.settings.HDSplitFields);
  EXPECT_FALSE(desk.settings.CadOutline);
  EXPECT_EQ(desk.settings.SlomoSpeed, 32767);
  EXPECT_EQ(desk.settings.CompanyName, desk.file.substr(0, 149)) << "a missing key reads as the path of the file";
  EXPECT_EQ(desk.settings.GridSize, 0);
  EXPECT_EQ(desk.OnDisk("General", "CompanyName"), std::nullopt) << "and is not repaired";
  EXPECT_TRUE(desk.host.messages.empty());
}

TEST(Settings, BadBooleansAreNamedOnceAndKeepTheirFirstValue) {
  Desk desk;
  desk.settings.LoadSettings();
  DeleteProfileKey("General", "Logo", desk.file);
  desk.Write("General", "UseNetwork", "perhaps");
  desk.settings.Logo = false;
  ASSERT_TRUE(desk.settings.LoadSettings());
  EXPECT_TRUE(desk.settings.Logo);
  EXPECT_FALSE(desk.settings.UseNetwork);
  desk.settings.LoadSettings();
  EXPECT_EQ(desk.host.messages, std::vector<std::string>{
                                    "2 settings in " + desk.file +
                                    " could not be read (UseNetwork, Logo), so their first values hold for this run."});
  desk.folder.Put("Kinalyx/config10.ini", "[Gen");
  desk.settings.LoadSettings();
  ASSERT_EQ(desk.host.messages.size(), 2u);
  EXPECT_NE(desk.host.messages[1].find(" more), so their first values hold for this run, and "), std::string::npos)
      << desk.host.messages[1];
  EXPECT_TRUE(desk.host.messages[1].ends_with(" others are missing and have no usable value until they are set again."))
      << desk.host.messages[1];
}

TEST(Settings, OldSettingsAreTakenOverOnlyByANewFile) {
  Desk desk;
  std::filesystem::create_directory(desk.data);
  const std::string old = "[General]\nUserName=Old Coach\nUserCourse=Links\nNetwork=True\nNetPath=/srv/videos\n";
  desk.folder.Put("Kinalyx/config.ini", old);
  desk.settings.LoadSettings();
  EXPECT_EQ(desk.settings.UserName, "Old Coach");
  EXPECT_EQ(desk.settings.CompanyName, "Links");
  EXPECT_TRUE(desk.settings.UseNetwork);
  EXPECT_EQ(desk.settings.LibraryPath, "/srv/videos");
  EXPECT_EQ(desk.OnDisk("General", "LibraryPath"), "/srv/videos");
  EXPECT_EQ(desk.folder.Get("Kinalyx/config.ini"), old);

  desk.settings.Set(desk.settings.UserName, "New Coach");
  desk.settings.LoadSettings();
  EXPECT_EQ(desk.settings.UserName, "New Coach");
}

TEST(Settings, AFolderThatRefusesGivesFirstValuesAndOneMessage) {
  TempFolder folder;
  TestHost host;
  folder.Put("file", "");
  Settings settings(host, folder.Path("file/Kinalyx"), "/opt/kinalyx");
  EXPECT_FALSE(settings.LoadSettings());
  EXPECT_EQ(settings.SlomoSpeed, 25);
  EXPECT_EQ(settings.PrimaryName[2], "students");
  EXPECT_FALSE(settings.Set(settings.CadWidth, 9));
  EXPECT_EQ(host.messages.size(), 1u);
}

TEST(Settings, ADiskThatRefusesAChangeIsToldOnce) {
  Desk desk;
  desk.settings.LoadSettings();
  ::chmod(desk.file.c_str(), 0444);
  EXPECT_FALSE(desk.settings.Set(desk.settings.CadWidth, 9));
  EXPECT_EQ(desk.settings.CadWidth, 9);
  EXPECT_FALSE(desk.settings.Set(desk.settings.SlomoSpeed, 9));
  desk.host.Advance(1);
  EXPECT_EQ(desk.host.messages, std::vector<std::string>{"The settings cannot be saved in " + desk.data +
                                                         ", so changes last until the program closes."});
}

TEST(Settings, CaptureChoicesStartFromTheListsOfThePage) {
  Desk desk;
  Settings& s = desk.settings;
  s.captureLists.size = {"2", "3"};
  ASSERT_TRUE(s.LoadCaptureSettings());
  EXPECT_EQ(s.CameraSize[1], "3");
  EXPECT_EQ(s.CurrentCamera[0], "");
  EXPECT_TRUE(s.Set(s.Camera[0], "Firewire Camera"));
  s.LoadCaptureSettings();
  EXPECT_EQ(s.CurrentCamera[0], "Firewire Camera");
  KillFile(s.CaptureFile());
  EXPECT_FALSE(s.WriteCaptureKey("General", "Camera1", "Another"));
  EXPECT_EQ(s.Camera[0], "");
}

}  // namespace
}  // namespace kinalyx::test
