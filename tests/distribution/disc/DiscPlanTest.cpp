#include "distribution/disc/DiscPlan.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "distribution/disc/BurnBoard.h"
#include "distribution/disc/DiscOrder.h"

namespace kinalyx::test {
namespace {

DiscVideoSource Video(const std::string& path, bool lesson = false, std::vector<DiscSource> companions = {}) {
  return {.File = {.path = path, .lesson = lesson, .bytes = 0},
          .Bytes = 1000,
          .Companions = std::move(companions),
          .PlaysItself = false};
}

/// Where the file of a path lies; empty for nowhere.
std::string PlaceOf(const DiscPlan& plan, const std::string& from) {
  const auto found = std::ranges::find(plan.Files, from, &DiscFile::From);
  return found == plan.Files.end() ? "" : found->To;
}

TEST(DiscPlan, PutsLessonsAndVideosIntoTheirFoldersAndTheViewerBeside) {
  const DiscPlan plan = PlanDisc(
      {Video("/l/Anna/lessons/Chip.avi", true), Video("/l/Anna/Drive.avi", false, {{"/l/Anna/Drive.ved", 30}})},
      {{"/bin/KinalyxViewer", 500}, {"/bin/Read me.txt", 10}}, false);
  EXPECT_EQ(plan.Folders, (std::vector<std::string>{"Lessons", "Videos"}));
  EXPECT_EQ(PlaceOf(plan, "/l/Anna/lessons/Chip.avi"), "Lessons/Chip.avi");
  EXPECT_EQ(PlaceOf(plan, "/l/Anna/Drive.avi"), "Videos/Drive.avi");
  EXPECT_EQ(PlaceOf(plan, "/l/Anna/Drive.ved"), "Videos/Drive.ved");
  EXPECT_EQ(PlaceOf(plan, "/bin/KinalyxViewer"), "KinalyxViewer");
  EXPECT_EQ(plan.Bytes(), 2540);
  EXPECT_TRUE(plan.Page.empty());
}

TEST(DiscPlan, WithoutViewerAndVideosStillHasBothFolders) {
  EXPECT_EQ(PlanDisc({}, {}, true).Folders, (std::vector<std::string>{"Lessons", "Videos"}));
}

TEST(DiscPlan, KeepsWhatHasOneNameApartWithItsDrawings) {
  // Names of a disc differ by more than their case: Windows does not tell it.
  const DiscPlan plan = PlanDisc({Video("/l/Anna/lessons/Chip.avi", true), Video("/l/Ben/lessons/chip.AVI", true),
                                  Video("/l/Ben/Chip.avi", false, {{"/l/Ben/Chip.ved", 1}}),
                                  Video("/m/Chip.mp4", false, {{"/m/Chip.mp4.ved", 1}, {"/m/Chip.mp4.study", 1}}),
                                  Video("/n/CHIP.mp4", false, {{"/n/CHIP.mp4.ved", 1}})},
                                 {}, true);
  EXPECT_EQ(PlaceOf(plan, "/l/Ben/lessons/chip.AVI"), "Lessons/chip (2).AVI");
  EXPECT_EQ(PlaceOf(plan, "/l/Ben/Chip.ved"), "Videos/Chip.ved");
  EXPECT_EQ(PlaceOf(plan, "/m/Chip.mp4.study"), "Videos/Chip.mp4.study");
  EXPECT_EQ(PlaceOf(plan, "/n/CHIP.mp4"), "Videos/CHIP (2).mp4");
  EXPECT_EQ(PlaceOf(plan, "/n/CHIP.mp4.ved"), "Videos/CHIP (2).mp4.ved");
  std::vector<std::string> made;
  for (const DiscVideo& video : plan.Videos) made.push_back(video.Mp4);
  EXPECT_EQ(made, (std::vector<std::string>{"MP4/Chip.mp4", "MP4/chip (2).mp4", "MP4/Chip (3).mp4", "MP4/Chip (4).mp4",
                                            "MP4/CHIP (2) (2).mp4"}));
}

TEST(DiscPlan, MakesNoMp4OfWhatPlaysItselfAndGivesWayToTheViewer) {
  DiscVideoSource lesson = Video("/l/lessons/Chip.mp4", true);
  lesson.PlaysItself = true;
  const DiscPlan plan = PlanDisc({lesson}, {{"/bin/index.html", 1}, {"/bin/videos", 1}}, true);
  EXPECT_EQ(plan.Videos[0].Mp4, "Lessons/Chip.mp4");
  EXPECT_FALSE(plan.Videos[0].MakesMp4());
  EXPECT_EQ(plan.Folders.size(), 2u);
  EXPECT_EQ(plan.Page, "index (2).html");
  EXPECT_EQ(PlaceOf(plan, "/bin/videos"), "videos (2)");
}

TEST(DiscPlan, GivesNamesThatEveryComputerTakes) {
  struct Case {
    std::string name;
    std::string clean;
  };
  const std::vector<Case> kCases{
      {"Swing (3) & more.avi", "Swing (3) & more.avi"},
      {"Łódź スイング.mp4", "Łódź スイング.mp4"},
      {"a<b>c:d\"e|f?g*h\\i\tj.avi", "a_b_c_d_e_f_g_h_i_j.avi"},
      {"ends in dots...", "ends in dots"},
      {"blank .avi", "blank.avi"},
      {"con.avi", "con_.avi"},
      {"LPT1.mp4", "LPT1_.mp4"},
      {"...", "_"},
      {"caf\xE9.avi", "café.avi"},
  };
  for (const Case& one : kCases) EXPECT_EQ(NameForDisc(one.name), one.clean);
  std::string longName(300, 'n');
  longName += ".mp4";
  EXPECT_EQ(NameForDisc(longName), longName.substr(300 - 86));
  // A letter beyond the first plane takes two places in the names of Windows.
  std::string clubs;
  for (int i = 0; i < 80; ++i) clubs += "🏌";
  EXPECT_EQ(NameForDisc(clubs + ".avi").size(), 43u * 4 + 4);
}

TEST(DiscStudent, IsWhoseFilesAllAre) {
  const auto of = [](std::vector<FileToSend> files) { return StudentOf(files, "/lib"); };
  EXPECT_EQ(of({{"/lib/Ben/Zofia/a.avi", false, 1}, {"/lib/Ben/Zofia/Lessons/b.avi", true, 1}}), "Zofia");
  EXPECT_EQ(of({{"/lib/Ben/Zofia/a.avi", false, 1}, {"/lib/Ben/Anna/a.avi", false, 1}}), "");
  EXPECT_EQ(of({{"/home/me/Downloads/a.avi", false, 1}}), "");
  EXPECT_EQ(of({}), "");
}

TEST(DiscTexts, ReadAsTheFormShowsThem) {
  EXPECT_EQ(ProgressText(std::int64_t{3} << 19, std::int64_t{1234567} << 20), "1.50 / 1,234,567.00MB");
  EXPECT_STREQ(StateText(static_cast<DriveState>(3)), "BACKGROUND FORMAT");
  EXPECT_STREQ(StateText(static_cast<DriveState>(8)), "ABORTING (BURN ERROR)");
  EXPECT_EQ(LabelFor("Clara Weiß", "2026-11-26"), "CLARA_2026_11_26");
  EXPECT_EQ(LabelFor("小林", "2026-11-26"), "KINALYX");
}

}  // namespace
}  // namespace kinalyx::test
