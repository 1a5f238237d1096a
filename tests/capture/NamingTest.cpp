#include "capture/VideoNaming.h"

#include "library/TempLibrary.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {
namespace {

class NamingTest : public testing::Test {
 protected:
  void Put(const std::string& name) { std::ofstream(JoinPath(folder, name)) << "x"; }

  TempLibrary library;
  std::string folder = library.Folder("Anna/Łucja");
  VideoNaming naming{library.settings, [] { return std::string("11/25/2026"); }};
};

TEST_F(NamingTest, NumbersFollowTheLastNameThatHasOne) {
  EXPECT_EQ(NextVideoNumber({}), 1);
  EXPECT_EQ(NextVideoNumber({"(001) a.avi", "(007) b.avi", "free.avi"}), 8);
  EXPECT_EQ(NextVideoNumber({"(007) b.avi", "(002) c.avi"}), 3) << "the last one wins, not the highest";
  EXPECT_EQ(NextVideoNumber({"(12) short.avi", "(1000) long.avi"}), 1) << "three digits, no more and no fewer";
  std::vector<std::string> many(1200, "plain.avi");
  many[998] = "(041) x.avi";
  many[1100] = "(600) never seen.avi";
  EXPECT_EQ(NextVideoNumber(many), 42);
  EXPECT_EQ(NumberPrefix(7), "(007) ");
}

TEST_F(NamingTest, EachModeJoinsItsPieces) {
  naming.SetFolder(folder);
  naming.ChooseMode(NameMode::Detailed);
  naming.ChooseDetail(1);
  EXPECT_EQ(naming.Shown(), "(001) FO- 11-25-2026");
  EXPECT_EQ(naming.CapturedVideoPath(), JoinPath(folder, "(001) FO- 11-25-2026.avi"));
  naming.ChooseExtension("Back");
  EXPECT_EQ(VideoName(naming.CapturedVideoPath2()), "(001) Back- 11-25-2026");
  EXPECT_TRUE(naming.SetText("θέση"));
  naming.ChooseMode(NameMode::General);
  EXPECT_EQ(naming.Shown(), "(001) θέση");
  naming.SetCameraUse(CameraUse::Second);
  EXPECT_EQ(naming.Shown(), "(001) θέση Back");
  naming.SetCameraUse(CameraUse::First);
  naming.ChooseMode(NameMode::Automatic);
  EXPECT_TRUE(naming.SetText(""));
  Put("(004) x.avi");
  naming.GetVideoName();
  EXPECT_EQ(naming.Shown(), "(005) Video5");
  naming.ChooseMode(NameMode::Manual);
  EXPECT_EQ(naming.Shown(), "") << "it has to be typed";
  EXPECT_TRUE(naming.CapturedVideoPath().empty());
}

TEST_F(NamingTest, ShortGameHasItsShots) {
  library.settings.ShortGame = 1;
  naming.SetFolder(folder);
  naming.ChooseMode(NameMode::Detailed);
  naming.ChooseDetail(11);
  EXPECT_EQ(naming.Shown(), "(001) Putting Face On- 11-25-2026");
  EXPECT_NE(naming.CapturedVideoPath(), naming.CapturedVideoPath2());
}

TEST_F(NamingTest, NamesOfBothCamerasNeverFallTogetherNorOnAFileThatIsThere) {
  naming.SetFolder(folder);
  naming.ChooseMode(NameMode::Detailed);
  naming.ChooseDetail(1);
  naming.ChooseExtension("FO");
  EXPECT_NE(naming.CapturedVideoPath(), naming.CapturedVideoPath2());
  Put("(998) FO- 11-25-2026.avi");
  naming.GetVideoName();
  EXPECT_EQ(naming.Shown(), "(999) FO- 11-25-2026");
  Put("(999) FO- 11-25-2026.avi");
  Put("(1000) FO- 11-25-2026.avi");
  naming.GetVideoName();
  EXPECT_EQ(naming.Shown(), "(1001) FO- 11-25-2026");
}

TEST_F(NamingTest, ANameTypedForOnceIsUsedOnceAndBadNamesAreRefused) {
  naming.SetFolder(folder);
  naming.ChooseMode(NameMode::Detailed);
  EXPECT_EQ(naming.NameToChange(), "DL- 11-25-2026");
  EXPECT_FALSE(naming.TakeChangedName("a/b"));
  EXPECT_FALSE(naming.TakeChangedName("   "));
  EXPECT_TRUE(naming.TakeChangedName(" ゴルフ "));
  EXPECT_EQ(naming.Shown(), "(001) ゴルフ");
  EXPECT_FALSE(naming.SetText("what?"));
  EXPECT_EQ(naming.Shown(), "(001) ゴルフ") << "a refused text changes nothing";
  naming.NameUsed();
  EXPECT_EQ(naming.Shown(), "(001) DL- 11-25-2026");
}

}  // namespace
}  // namespace kinalyx::test
