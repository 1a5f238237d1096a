// What was found in a video: the file beside its sidecar.

#include "library/Study.h"

#include <string>

#include "library/OperationsFixture.h"
#include "library/SidecarMerge.h"
#include "library/TempLibrary.h"
#include "support/TestDisks.h"

namespace kinalyx::test {
namespace {

Shape Line(int x) {
  Shape line;
  line.NumBound = line.NumPts = 2;
  line.Kind = kLine;
  line.Locked = true;
  line.Colour = 0x332211;
  line.Pts = {{x, 10}, {x + 50, 90}, {0, 0}};
  return line;
}

/// A video with three lines: one that is always seen, one of a moment, one with words.
SlotData Studied() {
  SlotData data;
  data.PictureWidth = 640;
  data.PictureHeight = 480;
  data.Shapes.Shapes = {Line(10), Line(20), Line(30)};
  data.Shapes.NumShapes = 3;
  data.Shapes.Shapes[1].Time = {12, 20, 5};
  data.Shapes.Shapes[2].Text = "Łokieć, 肘";
  data.Shapes.Shapes[0].Width = 9;
  data.Shapes.Shapes[2].Steps = PathTime{40, true};
  data.Study.Marks = {{{84, true}, "Impact", ""}, {{3, false}, "", ""}};
  data.Study.Ruler = VideoRuler{31.25, 640, 480, 3};
  data.Study.TrueRate = 240;
  data.Study.LockedAt = VideoMoment{84, false};
  return data;
}

struct StudyTest : testing::Test {
  SlotData Read(const std::string& text) {
    library.File("swing.study", text);
    return ReadAgain();
  }
  /// What stands in the file, beside a sidecar with the drawings of `Studied`.
  SlotData ReadAgain() const {
    SlotData data = InSidecar();
    ReadStudy(path, data);
    return data;
  }
  static SlotData InSidecar() {
    SlotData data = Studied();
    for (Shape& shape : data.Shapes.Shapes) {
      shape.Time = {};
      shape.Text.clear();
      shape.Width = 0;
      shape.Steps.reset();
    }
    data.Study = {};
    return data;
  }

  TempLibrary library;
  const std::string path = StudyPath(library.Path("swing.avi"));
};

TEST_F(StudyTest, HoldsWhatTheSidecarHasNoPlaceFor) {
  EXPECT_EQ(path, library.Path("swing.study"));
  EXPECT_EQ(StudyPath("/a/swing.MP4"), "/a/swing.MP4.study");
  ASSERT_TRUE(WriteStudy(path, InSidecar()));
  EXPECT_FALSE(FileExists(path)) << "with nothing to say there is no file";
  ASSERT_TRUE(WriteStudy(path, Studied()));
  EXPECT_EQ(ReadAgain().Study, Studied().Study);
  EXPECT_EQ(ReadAgain().Shapes, Studied().Shapes);
  ASSERT_TRUE(WriteStudy(path, InSidecar()));
  EXPECT_FALSE(FileExists(path)) << "and when there is nothing left it goes";
}

TEST_F(StudyTest, KnowsDrawingsByTheirRecordsInWhateverSize) {
  ASSERT_TRUE(WriteStudy(path, Studied()));
  // An older workstation has moved the second, deleted the first, and saved in a size of its own.
  SlotData other = InSidecar();
  other.Shapes.Shapes[1].Pts[0].x += 40;
  other.Shapes.Shapes.erase(other.Shapes.Shapes.begin());
  other.Shapes.NumShapes = 2;
  StretchShapes(other.Shapes, 640, 480, 501, 333);
  other.PictureWidth = 501;
  other.PictureHeight = 333;
  ReadStudy(path, other);
  EXPECT_TRUE(other.Shapes.Shapes[0].Time.Always()) << "what has changed is seen always";
  EXPECT_EQ(other.Shapes.Shapes[1].Text, "Łokieć, 肘");
}

TEST_F(StudyTest, KeepsWhatALaterVersionHasWritten) {
  const SlotData data = Read(R"({"study": 7, "spin": {"axis": [1, 2.5]}, "trueRate": 120,
    "marks": [{"frame": 4, "name": "Top", "by": "Ann"}, {"frame": "x"}, 5],
    "picture": [640, 480],
    "drawings": [{"kind": 3, "color": "#112233", "points": [[20, 10], [70, 90]], "first": 2, "last": 4, "glow": 1}]})");
  EXPECT_EQ(data.Study.TrueRate, 120);
  ASSERT_EQ(data.Study.Marks.size(), 1u);
  EXPECT_EQ(data.Shapes.Shapes[1].Time, (ShapeTime{2, 4, 0}));
  ASSERT_TRUE(WriteStudy(path, data));
  const std::string text = TempLibrary::Read(path);
  for (const char* kept : {R"("axis")", R"("by": "Ann")", R"("glow": 1)"})
    EXPECT_NE(text.find(kept), std::string::npos) << kept << " in " << text;
  EXPECT_EQ(ReadAgain().Study, data.Study);
  EXPECT_EQ(ReadAgain().Shapes, data.Shapes);
}

TEST_F(StudyTest, WhatIsOutOfRangeIsPassedOverAndWhatIsNoStudyIsKeptBeside) {
  const SlotData odd = Read(R"({"trueRate": -3, "ruler": {"pixelsPerInch": 1e300, "width": 0}, "marks": {"frame": 3},
    "lockedAt": {"frame": 1e18}, "drawings": [{"kind": 99999, "points": [[1], "x", [1, 2, 3]]}], "picture": [0, -1]})");
  EXPECT_EQ(odd.Study.TrueRate, 0);
  EXPECT_FALSE(odd.Study.Ruler || odd.Study.LockedAt || odd.Study.Unread);
  for (const std::string& damaged : {std::string("{\"marks\": ["), std::string("[]"), std::string(100000, '['),
                                     "{\"a\":" + std::string(5000, '[') + std::string(5000, ']') + "}"}) {
    SlotData data = Read(damaged);
    EXPECT_TRUE(data.Study.Unread) << damaged.substr(0, 20);
    ASSERT_TRUE(WriteStudy(path, data));
    EXPECT_EQ(TempLibrary::Read(path), damaged) << "left alone as long as there is nothing to say";
    data.Study.TrueRate = 60;
    ASSERT_TRUE(WriteStudy(path, data));
    EXPECT_EQ(TempLibrary::Read(path + ".old"), damaged);
    EXPECT_EQ(ReadAgain().Study.TrueRate, 60);
    std::filesystem::remove(path + ".old");
  }
}

TEST_F(StudyTest, MergesThreeWays) {
  const SlotData base = Studied();
  SlotData mine = base, theirs = base;
  mine.Study.Marks.erase(mine.Study.Marks.begin());
  mine.Study.Marks.push_back({{50, false}, "Finish", ""});
  mine.Study.TrueRate = 120;
  theirs.Study.Marks.push_back({{9, false}, "Top", ""});
  theirs.Study.Ruler.reset();
  const StudyData whole = MergeVideoData(mine, theirs, base).whole.Study;
  EXPECT_EQ(whole.Marks,
            (std::vector<VideoMark>{{{3, false}, "", ""}, {{50, false}, "Finish", ""}, {{9, false}, "Top", ""}}));
  EXPECT_EQ(whole.TrueRate, 120);
  EXPECT_FALSE(whole.Ruler);
  EXPECT_EQ(whole.LockedAt, base.Study.LockedAt);
}

TEST_F(StudyTest, FollowsATrim) {
  ASSERT_TRUE(WriteStudy(path, Studied()));
  ASSERT_TRUE(TrimStudy(path, 15, 90));
  const SlotData data = ReadAgain();
  EXPECT_EQ(data.Study.Marks, (std::vector<VideoMark>{{{69, true}, "Impact", ""}}));
  EXPECT_EQ(data.Study.LockedAt, (VideoMoment{69, false}));
  EXPECT_EQ(data.Shapes.Shapes[1].Time, (ShapeTime{0, 5, 5}));
  EXPECT_EQ(data.Shapes.Shapes[2].Steps, (PathTime{10, true})) << "two fields to a frame";
}

using StudyOperations = OperationsFixture;

TEST_F(StudyOperations, ItGoesWhereverItsVideoGoes) {
  const std::string study = "{\"trueRate\": 240}";
  library.File("Ann/Joe Doe/(001) DL.study", study);
  EXPECT_TRUE(Ops().RenameVideo(DL(), "Drive").words);
  EXPECT_EQ(TempLibrary::Read(library.Path("Ann/Joe Doe/Drive.study")), study);
  EXPECT_FALSE(FileExists(library.Path("Ann/Joe Doe/(001) DL.study")));

  library.host.answers = {true};
  Run(&LibraryOperations::QuickLaunch, Video("Ann", "Joe Doe", "Drive"));
  EXPECT_EQ(TempLibrary::Read(library.Path("Quick Launch/Drive.study")), study);

  // When the video cannot follow, both companions go back.
  FailingDisk disk(2);
  Use(disk);
  EXPECT_FALSE(Ops().RenameVideo(Video("Ann", "Joe Doe", "Drive"), "Wedge").words);
  EXPECT_TRUE(FileExists(library.Path("Ann/Joe Doe/Drive.study")) && FileExists(library.Path("Ann/Joe Doe/Drive.ved")));
}

}  // namespace
}  // namespace kinalyx::test
