#include <set>

#include "core/ColorSchemes.h"
#include "core/LibraryPath.h"
#include "core/MailSettings.h"
#include "core/MenuPicture.h"
#include "core/StartUp.h"
#include "core/SystemTests.h"
#include "core/Vocabulary.h"
#include "core/WindowModes.h"
#include "platform/files/Folders.h"
#include "support/TestDesk.h"

namespace kinalyx::test {
namespace {

using Desk = TestDesk;

/// Writes down what the start asks for.
class HeardSteps final : public IStartUpSteps {
 public:
  explicit HeardSteps(const ColorSchemes& schemes) : schemes_(schemes) {}
  std::string order;

  void TakeLanguage() override { order += "language, "; }
  void ApplyScheme() override { order += "scheme " + std::to_string(schemes_.Design()) + ", "; }
  void EnsureFields() override { order += "fields, "; }
  void ShowSplash() override { order += "splash, "; }
  void LoadMain() override { order += "main, "; }
  void ShowFirstForm() override { order += "first form, "; }
  void CloseSplash() override { order += "close"; }

 private:
  const ColorSchemes& schemes_;
};

TEST(StartUp, ComesUpInOrderAndAsksOnlyOnce) {
  TempFolder folder;
  TestHost host;
  for (const bool first : {true, false}) {
    Settings settings(host, folder.Path("data"), folder.Path("program"));
    MailSettings mail(settings.DataPath);
    ColorSchemes schemes;
    HeardSteps steps(schemes);
    EXPECT_EQ(StartUp(settings, mail, schemes, steps), first);
    EXPECT_EQ(steps.order, first ? "language, scheme 0, fields, splash, main, first form, close"
                                 : "language, scheme 7, fields, splash, main, close");
    EXPECT_EQ(mail.Subject, first ? "Video Analysis from " : "Video Analysis from Links");
    settings.Set(settings.Design, "7");
    mail.TakeSender("Erica Sample", "Links");
  }
  MailSettings mail(folder.Path("data"));
  mail.LoadMailSettings();
  EXPECT_EQ(mail.SenderName, "Erica Sample");
}

TEST(ColorSchemes, UnknownDesignsChangeNothing) {
  ColorSchemes schemes;
  EXPECT_TRUE(schemes.ApplyDesign("7"));
  EXPECT_EQ(schemes.Colours()[0], 0);
  EXPECT_EQ(schemes.Colours()[3], 16777215);
  for (const char* bad : {"", "9", "-1", "07", "x"}) EXPECT_FALSE(schemes.ApplyDesign(bad));
  EXPECT_EQ(schemes.Design(), 7);
  EXPECT_EQ(ColorSchemes::All()[7].caption, "Outdoor Mode");
}

TEST(Vocabulary, TheNounStandsInAllTexts) {
  Desk desk;
  const Vocabulary words(desk.settings);
  EXPECT_EQ(words.PageTitle(1), "Student Profiles");
  EXPECT_FALSE(SetPrimaryName(desk.settings, "Student"));
  EXPECT_TRUE(SetPrimaryName(desk.settings, "Class"));
  EXPECT_EQ(desk.settings.PrimaryName[1], "class");
  EXPECT_EQ(desk.OnDisk("Layout", "PrimaryName2"), "classs");
  EXPECT_EQ(words.PageButton(1), "Class Profiles");
  EXPECT_EQ(words.MoveThis(), "Move this class");
  EXPECT_EQ(words.PageTitle(7), "Help Menu");
}

TEST(WindowModes, StandWhereTheyAlwaysStood) {
  EXPECT_EQ(PlaceForMode("2", 1920, 1080), (WindowPlace{2100, 4800, 19200, 12000, false}));
  EXPECT_EQ(PlaceForMode("3", 1920, 1080), (WindowPlace{2340, 6540, 15360, 11520, false}));
  EXPECT_EQ(PlaceForMode("nonsense", 1920, 1080), (WindowPlace{0, 0, 28800, 16200, true}));
  EXPECT_EQ(ScreenClass(1024 * 15 + 14), 1);
  EXPECT_EQ(ScreenClass(1025 * 15), 2);
}

TEST(WindowModes, ANewModeRestartsOnTheSetupPageOnce) {
  Desk desk;
  EXPECT_FALSE(ChooseWindowMode(desk.settings, "1"));
  EXPECT_TRUE(ChooseWindowMode(desk.settings, "3"));
  Settings next(desk.host, desk.settings.DataPath, desk.settings.AppPath);
  next.LoadSettings();
  EXPECT_TRUE(TakeRestartRequest(next));
  EXPECT_EQ(desk.OnDisk("General", "RestartOption"), "0");
  EXPECT_FALSE(TakeRestartRequest(next));
  next.RestartOption = 2;
  EXPECT_FALSE(TakeRestartRequest(next));
  EXPECT_EQ(next.RestartOption, 0);
}

TEST(WindowModes, AWindowStaysInSightWithItsTitleBar) {
  const ScreenArea screen{0, 30, 1280, 770};
  EXPECT_EQ(FitOnScreen({0, -20, 1280, 822}, screen), screen);
  EXPECT_EQ(FitOnScreen({-84, 0, 1024, 700}, screen), (ScreenArea{0, 30, 1024, 700}));
  EXPECT_EQ(FitOnScreen({300, 200, 1024, 700}, screen), (ScreenArea{256, 100, 1024, 700}));
  EXPECT_EQ(FitOnScreen({100, 40, 800, 600}, screen), (ScreenArea{100, 40, 800, 600}));
}

constexpr std::int64_t kMegabyte = 1 << 20;

TEST(SystemTests, RateEachFigureAtItsBounds) {
  const std::pair<MachineFigures, const char*> cases[] = {
      {{{1023, 768, 8, 349, 128000}, 499 * kMegabyte},
       "red 25 8 Bit; red 25 499 MB; red 25 1023x768; red 25 349; red 25 128000K; "},
      {{{1024, 768, 16, 350, 128001}, 500 * kMegabyte},
       "green 75 16 Bit; green 50 500 MB; green 100 1024x768; green 25 350; green 75 128001K; "},
      {{{1024, 767, 24, 351, 255999}, 1000 * kMegabyte},
       "green 100 24 Bit; green 75 1000 MB; red 25 1024x767; green 50 351; green 75 255999K; "},
      {{{1920, 1080, 32, 501, 256000}, 2000 * kMegabyte},
       "green 100 32 Bit; green 75 2000 MB; green 100 1920x1080; green 75 501; green 100 256000K; "},
      {{{1920, 1080, 32, 701, 256000}, 2001 * kMegabyte},
       "green 100 32 Bit; green 100 2001 MB; green 100 1920x1080; green 100 701; green 100 256000K; "}};
  for (const auto& [figures, wanted] : cases) {
    std::string text;
    for (const SystemTestRow& row : RateMachine(figures))
      text += (row.colour == kGaugeGreen ? "green " : "red ") + std::to_string(row.percent) + " " + row.text + "; ";
    EXPECT_EQ(text, wanted);
  }
  EXPECT_EQ(RateMachine({})[1].text, "Unknown");
  EXPECT_EQ(RateMachine({})[3].percent, 0);
}

TEST(SystemTests, TheScreenMustHoldTheChosenWindow) {
  Desk desk;
  desk.host.system.screenWidth = 1024;
  desk.host.system.screenHeight = 768;
  EXPECT_EQ(SystemTests(desk.host, desk.settings)[2].percent, 100);
  desk.settings.WindowMode = "2";
  EXPECT_EQ(SystemTests(desk.host, desk.settings)[2].percent, 25);
}

TEST(LibraryPath, GoesToAFolderOfTheUsersChoiceAndBack) {
  Desk desk;
  Settings& s = desk.settings;
  const std::string local = s.LibraryPath;
  const auto switchOn = [&](bool answer, std::optional<std::string> folder) {
    desk.host.answers = {answer};
    desk.host.folders = {folder};
    return SwitchNetworkOn(desk.host, s);
  };
  EXPECT_FALSE(switchOn(false, desk.folder.Path("server")));
  EXPECT_EQ(desk.host.titles.back(), "Network Path Change");
  EXPECT_FALSE(switchOn(true, std::nullopt));
  EXPECT_FALSE(s.UseNetwork);
  EXPECT_EQ(s.LibraryPath, local);

  EXPECT_TRUE(switchOn(true, desk.folder.Path("server") + "/"));
  EXPECT_EQ(s.LibraryPath, desk.folder.Path("server"));
  EXPECT_EQ(desk.OnDisk("General", "UseNetwork"), "True");
  EXPECT_EQ(ListFolders(s.LibraryPath), (std::vector<std::string>{"Amateurs", "Models"}));

  desk.folder.Put("file", "");
  EXPECT_FALSE(switchOn(true, desk.folder.Path("file/below")));
  EXPECT_EQ(desk.host.messages.size(), 1u);
  EXPECT_FALSE(switchOn(true, desk.folder.Path(std::string(150, 'n'))));
  EXPECT_NE(desk.host.messages.back().find("longer than the 149 characters"), std::string::npos);
  EXPECT_EQ(s.LibraryPath, desk.folder.Path("server")) << "a refused folder leaves the present one";

  SwitchNetworkOff(s);
  EXPECT_EQ(desk.OnDisk("General", "LibraryPath"), local);
  EXPECT_EQ(desk.OnDisk("General", "UseNetwork"), "False");
}

TEST(MenuPicture, AMissingPictureIsReportedOnce) {
  Desk desk;
  Settings& s = desk.settings;
  s.Set(s.BackgroundPic, "/gone/course.jpg");
  EXPECT_EQ(CheckBackground(desk.host, s).file, "") << "not even the default is there";
  ASSERT_EQ(desk.host.messages.size(), 1u);
  EXPECT_EQ(desk.host.messages[0],
            "Unable to locate the background picture named /gone/course.jpg. The default picture will be reset.");
  EXPECT_EQ(desk.OnDisk("General", "BackgroundPic"), DefaultBackground(s));
  CheckBackground(desk.host, s);
  EXPECT_EQ(desk.host.messages.size(), 1u);

  const std::string picture = desk.folder.Put("mine.jpg", "x");
  const auto isPicture = [](const std::string& path) { return LastName(path) == "mine.jpg"; };
  desk.host.files = {std::nullopt, picture};
  EXPECT_FALSE(ChooseBackground(desk.host, s, isPicture));
  EXPECT_TRUE(ChooseBackground(desk.host, s, isPicture));
  EXPECT_EQ(CheckBackground(desk.host, s).file, picture);
  EXPECT_EQ(desk.OnDisk("General", "BackgroundPic"), picture);

  desk.host.files = {desk.folder.Put("letter.jpg", "no picture")};
  EXPECT_FALSE(ChooseBackground(desk.host, s, isPicture));
  EXPECT_EQ(desk.host.messages.size(), 2u);
  EXPECT_EQ(desk.OnDisk("General", "BackgroundPic"), picture) << "the old one stays";

  // A drive that does not answer says nothing of its files, whether it is silent or fails.
  desk.host.drivesHang = true;
  EXPECT_TRUE(CheckBackground(desk.host, s).standsIn);
  desk.host.files = {picture};
  EXPECT_FALSE(ChooseBackground(desk.host, s, isPicture));
  EXPECT_TRUE(desk.host.messages.back().ends_with("is not answering. The old picture stays."));
  desk.host.DrivesAnswer();
  EXPECT_FALSE(CheckBackground(desk.host, s).standsIn);
  std::filesystem::create_symlink("loop.jpg", desk.folder.Path("loop.jpg"));
  s.Set(s.BackgroundPic, desk.folder.Path("loop.jpg"));
  EXPECT_TRUE(CheckBackground(desk.host, s).standsIn);
  EXPECT_EQ(desk.host.messages.size(), 3u);
  EXPECT_EQ(desk.OnDisk("General", "BackgroundPic"), desk.folder.Path("loop.jpg"));
  ResetBackground(s);
  EXPECT_EQ(desk.OnDisk("General", "BackgroundPic"), DefaultBackground(s));
}

TEST(MenuPicture, TheHeadingGoesRoundTenPlaces) {
  Desk desk;
  std::set<std::pair<double, double>> places;
  for (int i = 0; i < 10; ++i) {
    const CaptionPlace place = PlaceOfCaption(desk.settings.CaptionPosition);
    EXPECT_TRUE(places.emplace(place.across, place.down).second) << i;
    NextCaptionPosition(desk.settings);
  }
  EXPECT_EQ(desk.OnDisk("General", "CaptionPosition"), "1");
  EXPECT_EQ(*places.begin(), std::pair(0.0, 0.0));
  EXPECT_EQ(*places.rbegin(), std::pair(1.0, 1.0));
  EXPECT_EQ(PlaceOfCaption(99).across, 0);
}

}  // namespace
}  // namespace kinalyx::test
