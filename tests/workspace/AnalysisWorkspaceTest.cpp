#include "workspace/AnalysisWorkspace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "AnalysisStage.h"
#include "library/Sidecar.h"
#include "platform/files/FileStore.h"

namespace kinalyx::test {
namespace {

std::vector<POINTAPI> Points(const ShapeList& list, int index) {
  const auto points = BoundPoints(list.Shapes[static_cast<std::size_t>(index)]);
  return {points.begin(), points.end()};
}

TEST(Drawing, EveryKindComesBackWithItsVideo) {
  AnalysisStage stage;
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  const std::pair<ShapeKind, int> clicks[] = {{kFlag, 1},          {kSquare, 2}, {kLine, 2},  {kEllipse, 2}, {kAngle, 3},
                                              {kParallelogram, 3}, {kZone, 3},   {kClock, 2}, {kArrow, 2}};
  for (const auto& [kind, count] : clicks) {
    stage.Key(kKeyF1 + int{kind});
    EXPECT_NE(stage.window.text.find("Drawing "), std::string::npos) << kind;
    EXPECT_TRUE(stage.window.colour);
    for (int i = 0; i < count; ++i) stage.Click(1, 50 + 40 * i, 60 + (i == 1 ? 70 : 10) + kind);
    EXPECT_FALSE(stage.analysis.Tools().Drawing() || stage.window.colour) << kind;
    EXPECT_EQ(stage.Shapes().Shapes.back().Kind, kind);
  }
  stage.Key(kKeyDelete);
  ASSERT_EQ(stage.Shapes().NumShapes, 8);

  const ShapeList drawn = stage.Shapes();
  stage.Videos().CloseVideo(1);
  EXPECT_EQ(stage.Shapes().NumShapes, 0);
  stage.Open(1, path);
  ASSERT_EQ(stage.Shapes().NumShapes, 8);
  for (int shape = 0; shape < 8; ++shape) EXPECT_EQ(Points(stage.Shapes(), shape), Points(drawn, shape)) << shape;
}

TEST(Drawing, ComesBackScaledInAnotherLayout) {
  AnalysisStage stage("1");
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.Draw(kLine, {100, 120}, {301, 243});
  const int width = stage.MP(1).ControlWidthPixels();
  const auto drawn = Points(stage.Shapes(), 0);
  stage.Videos().CloseVideo(1);

  stage.Stage().SetScreen(8);
  stage.Open(6, stage.Video("b.avi"));
  stage.Open(6, path);  // in the place of a video of the same shape
  stage.Stage().SelectWindow(6);
  const double ratio = static_cast<double>(stage.MP(6).ControlWidthPixels()) / width;
  ASSERT_LT(ratio, 0.7);
  ASSERT_EQ(stage.Shapes(6).NumShapes, 1);
  EXPECT_NEAR(Points(stage.Shapes(6), 0)[1].x, 301 * ratio, 1);
  EXPECT_NEAR(Points(stage.Shapes(6), 0)[1].y, 243 * ratio, 1);
  // Nobody touched it there: it is written as it was drawn.
  stage.Videos().CloseVideo(6);
  stage.Stage().SetScreen(1);
  stage.Open(1, path);
  EXPECT_EQ(Points(stage.Shapes(), 0), drawn);
}

TEST(Drawing, TurnsWithAFlippedPictureAndIsStoredUnmirrored) {
  AnalysisStage stage;
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  const int width = stage.MP(1).ControlWidthPixels();
  stage.Type('f');
  stage.Draw(kLine, {100, 120}, {300, 240});
  stage.Videos().CloseVideo(1);
  stage.Open(1, path);
  EXPECT_FALSE(stage.MP(1).FlipHorizontal());
  EXPECT_EQ(Points(stage.Shapes(), 0), (std::vector<POINTAPI>{{width - 100, 120}, {width - 300, 240}}));
  stage.Type('f');
  EXPECT_EQ(Points(stage.Shapes(), 0), (std::vector<POINTAPI>{{100, 120}, {300, 240}}));
}

TEST(Drawing, AToolInHandIsPutDownWithItsVideo) {
  AnalysisStage stage("2");
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.Commands().Run("MenuDraw5");
  stage.Click(1, 40, 40);
  stage.Move(1, 80, 80);
  stage.Videos().CloseVideo(1);
  EXPECT_FALSE(stage.analysis.Tools().Drawing());
  EXPECT_EQ(stage.window.text, "");
  stage.Open(1, path);
  EXPECT_EQ(stage.Shapes().NumShapes, 0) << "half a shape is none";
}

TEST(EightVideos, PlayWhileOneIsDrawnInAndOthersClose) {
  AnalysisStage stage("8");
  for (int slot = 1; slot <= 8; ++slot) ASSERT_TRUE(stage.Open(slot, stage.Video(std::to_string(slot) + ".avi")));
  stage.analysis.Transport().ToggleLoopAll();
  stage.Click(3, 10, 10);
  EXPECT_FALSE(stage.MP(1).IsPlaying()) << "a click stops the current video and chooses the other";
  EXPECT_EQ(stage.Stage().CurrentWindow, 3);
  stage.Click(3, 10, 10);
  EXPECT_FALSE(stage.MP(3).IsPlaying() || stage.window.loop || stage.window.playing);
  EXPECT_EQ(stage.Shapes(3).NumShapes, 0) << "and draws nothing";
  stage.Commands().Run("MenuDraw3");
  stage.Click(3, 20, 20);
  for (int i = 0; i < 10; ++i) {
    stage.host.Advance(40);
    stage.Move(3, 20 + 8 * i, 30 + 5 * i);
  }
  stage.Click(3, 120, 90);
  EXPECT_EQ(stage.Shapes(3).NumShapes, 1);
  for (const int slot : {2, 4, 5, 6, 7, 8}) EXPECT_TRUE(stage.MP(slot).IsPlaying()) << slot;
  EXPECT_NE(stage.window.lines[5], stage.window.lines[3]) << "every cell tells where its film is";

  stage.Videos().CloseVideo(5);
  stage.host.Advance(200);
  EXPECT_TRUE(stage.MP(6).IsPlaying() && !stage.MP(5).IsPlaying());
  EXPECT_TRUE(stage.Commands().PreparetoExit());
  EXPECT_FALSE(stage.Stage().AnyVideo());
  stage.host.Advance(1000);
}

TEST(EightVideos, CloseInsideTheirOwnCallbacks) {
  AnalysisStage stage("2");
  stage.Open(1, stage.Video("a.avi"));
  stage.Open(2, stage.Video("b.avi"));
  stage.analysis.Transport().ToggleLoopAll();
  bool closed = false;
  stage.signalled = [&](int) {
    if (closed || stage.At(1) < 5) return;
    closed = true;
    stage.Videos().CloseAll();
  };
  stage.host.Advance(2000);
  EXPECT_TRUE(closed);
  EXPECT_FALSE(stage.Stage().AnyVideo());
}

TEST(CommandTable, TellsWhyWhatCannotBeDoneCannot) {
  AnalysisStage stage("4");
  const MenuBar& commands = stage.Commands();
  EXPECT_EQ(commands.Find("vplay")->Reason(), "Open a video first");
  EXPECT_EQ(commands.Find("TRL")->Reason(), "coming");
  EXPECT_EQ(commands.Find("STM")->Reason(), "Open videos in windows 1 and 2 first");
  EXPECT_FALSE(stage.Commands().Run("TRL"));
  EXPECT_FALSE(stage.Commands().Run("no such thing"));
  stage.Open(1, stage.Video("a.avi"));
  EXPECT_EQ(commands.Find("vplay")->Reason(), "");
  EXPECT_EQ(commands.Find("TFT")->Reason(), "");
  EXPECT_EQ(commands.Find("Cadoffbutton")->Reason(), "Nothing is drawn in the current window");
  stage.Stage().ToggleMaximize();
  EXPECT_NE(commands.Find("TF")->Reason(), "");
  EXPECT_TRUE(commands.Find("TMAX")->checked());
}

TEST(CommandTable, StraightToolsAndPlainOnesAreTwoThings) {
  AnalysisStage stage;
  stage.Open(1, stage.Video("a.avi"));
  const auto checked = [&](const char* command) { return stage.Commands().Find(command)->checked(); };
  stage.Commands().Run("DDSL");
  EXPECT_TRUE(checked("DDSL") && !checked("MenuDraw3"));
  stage.Click(1, 100, 100);
  stage.Click(1, 300, 140);
  stage.Commands().Run("MenuDraw3");
  EXPECT_TRUE(checked("MenuDraw3") && !checked("DDSL"));
}

TEST(VideoTimerTest, TimesFromAnyPicture) {
  EXPECT_EQ(VideoTimer::Reading(5.32), "05.32");
  EXPECT_EQ(VideoTimer::Reading(-1.2), "-01.20");
  EXPECT_EQ(VideoTimer::Reading(123.4), "123.40");

  AnalysisStage stage("2");
  stage.Open(1, stage.Video("a.avi", MjpegVideo(61)));
  Transport& transport = stage.analysis.Transport();
  transport.Seek(30);
  stage.Commands().Run("TVT");
  EXPECT_TRUE(stage.window.timer);
  EXPECT_EQ(stage.window.reading, "01.00");
  EXPECT_EQ(stage.window.counter, "30");
  stage.analysis.Timer().SetZero();
  transport.Seek(15);
  EXPECT_EQ(stage.window.reading, "-00.50");
  EXPECT_TRUE(stage.window.negative);
  transport.Seek(45);
  stage.analysis.Timer().SetZero();
  EXPECT_EQ(stage.window.reading, "00.00") << "a second zero is a zero too";
  stage.analysis.Timer().TakeRate("240");
  EXPECT_EQ(stage.window.rate, "240");
  stage.analysis.Timer().TakeRate("fast");
  EXPECT_EQ(stage.window.rate, "30");
  stage.Stage().SelectWindow(2);
  EXPECT_EQ(stage.window.reading, "00.00");
  stage.Commands().Run("TVT");
  EXPECT_FALSE(stage.window.timer);
  EXPECT_EQ(stage.window.counter, "");
}

TEST(AutoSaveTest, WhatIsDrawnIsOnTheDiskWhenTheHandsRest) {
  AnalysisStage stage("2");
  const std::string path = stage.Video("a.avi");
  const auto onDisk = [&] { return ReadSidecarMarks(SidecarPath(path)).HasDrawings(); };
  stage.Open(1, path);
  stage.Draw(kLine, {10, 10}, {100, 100});
  EXPECT_FALSE(onDisk());
  stage.host.Advance(5000);
  EXPECT_TRUE(onDisk()) << "and the video is still open";
  stage.Commands().Run("UndoDrawing");
  stage.host.Advance(5000);
  EXPECT_FALSE(onDisk());

  // Of a shape that is being drawn there is nothing to keep yet.
  stage.Commands().Run("MenuDraw3");
  stage.Click(1, 20, 20);
  stage.Move(1, 60, 60);
  stage.Keeping().SetNotes(1, "Grip");
  stage.host.Advance(5000);
  EXPECT_FALSE(onDisk());
  EXPECT_TRUE(ReadSidecarMarks(SidecarPath(path)).HasNotes());

  // In two windows at once: a drawing deleted in one does not come back from what the other has written.
  stage.Key(kKeyEscape);
  stage.Open(2, path);
  stage.Stage().SelectWindow(2);
  stage.Draw(kEllipse, {40, 40}, {90, 120});
  stage.host.Advance(5000);
  EXPECT_TRUE(onDisk());
  stage.Stage().SelectWindow(1);
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.host.Advance(5000);
  stage.Stage().SelectWindow(2);
  stage.Commands().Run("UndoDrawing");
  stage.host.Advance(5000);
  EXPECT_TRUE(stage.Videos().CloseAll());
  stage.Open(1, path);
  ASSERT_EQ(stage.Shapes().NumShapes, 1);
  EXPECT_EQ(stage.Shapes().Shapes[0].Kind, kLine);
}

TEST(AutoSaveTest, ADiskThatRefusesIsToldAndTriedAgain) {
  AnalysisStage stage;
  const std::string path = stage.Video("a.avi");
  const std::string sidecar = SidecarPath(path);
  stage.Open(1, path);
  std::filesystem::create_directory(sidecar);  // a name that cannot be written to
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.host.Advance(1500);
  const std::string& title = stage.window.titles[1];
  EXPECT_TRUE(title.ends_with("not saved")) << title;
  std::filesystem::remove(sidecar);
  stage.host.Advance(30000);
  EXPECT_TRUE(ReadSidecarMarks(sidecar).HasDrawings()) << "nothing more was drawn";
  EXPECT_FALSE(title.ends_with("not saved")) << title;

  // Garbage in its place since it was read: kept beside, not written over.
  std::ofstream(sidecar) << "\x7F" "another program's bytes";
  stage.Draw(kLine, {20, 10}, {80, 100});
  stage.host.Advance(1500);
  EXPECT_TRUE(ReadSidecarMarks(sidecar).HasDrawings());
  EXPECT_TRUE(std::filesystem::exists(sidecar + ".old"));
}

// Whichever window closes last, the work of both is there.
TEST(OneVideoTwice, KeepsTheWorkOfBothWindows) {
  AnalysisStage stage("2");
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.Videos().FillAll();
  EXPECT_EQ(stage.Shapes(2).NumShapes, 1) << "a copy comes with what is drawn so far";
  stage.Draw(kLine, {50, 60}, {70, 80});
  stage.Keeping().SetNotes(1, "Grip");
  EXPECT_TRUE(stage.Videos().CloseAll());
  stage.Open(1, path);
  ASSERT_EQ(stage.Shapes().NumShapes, 2) << "the untouched copy has not written over it";

  // Drawn on and noted in both; what is there already is not added again.
  stage.Open(2, path);
  stage.Draw(kEllipse, {5, 100}, {60, 20});
  stage.Stage().SelectWindow(2);
  stage.Draw(kEllipse, {40, 40}, {90, 120});
  stage.Keeping().SetNotes(1, stage.Stage().At(1).data.Notes + " and hips");
  stage.Keeping().SetNotes(2, "Stance");
  EXPECT_TRUE(stage.Videos().CloseAll());
  stage.Open(1, path);
  EXPECT_EQ(stage.Shapes().NumShapes, 4);
  const std::string& notes = stage.Stage().At(1).data.Notes;
  EXPECT_TRUE(notes.find("Grip and hips") != notes.npos && notes.find("Stance") != notes.npos) << notes;
}

std::vector<Shape> Stored(const std::string& path) { return ReadVideoData(SidecarPath(path), {}, {}).Shapes.Shapes; }

TEST(OneVideoTwice, WhatOneWindowHasDeletedOrMovedTheOtherDoesNotBringBack) {
  AnalysisStage stage("2");
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.Draw(kLine, {10, 10}, {100, 100});
  stage.Draw(kEllipse, {40, 40}, {90, 120});
  stage.Keeping().SetNotes(1, "Gripp\r\nStance");
  stage.Videos().FillAll();
  stage.Stage().SelectWindow(1);
  stage.Commands().Run("Lastcadoff");
  stage.analysis.Tools().Engine().MoveShape(stage.Shapes(1).Shapes[0], 30, 0);
  stage.Keeping().SetNotes(1, "Grip\r\nStance");
  stage.host.Advance(5000);
  stage.Keeping().SetNotes(2, "Gripp\r\nStance\r\nHips");
  // From here on in another size.
  stage.Stage().SetScreen(8);
  stage.Stage().SelectWindow(2);
  stage.Draw(kSquare, {5, 80}, {60, 20});
  stage.host.Advance(5000);
  EXPECT_EQ(stage.Shapes(2).NumShapes, 3) << "each window has drawings of its own";
  EXPECT_EQ(stage.Stage().At(2).data.Notes, "Grip\r\nStance\r\nHips");
  std::vector<Shape> stored = Stored(path);
  ASSERT_EQ(stored.size(), 2u);
  EXPECT_EQ(stored[0].Pts[0], (POINTAPI{40, 10}));
  EXPECT_EQ(stored[1].Kind, kSquare);
  // Both move the same one: both are kept.
  stage.Stage().SelectWindow(1);
  stage.analysis.Tools().Engine().MoveShape(stage.Shapes(1).Shapes[0], 0, 20);
  stage.Stage().SelectWindow(2);
  stage.analysis.Tools().Engine().MoveShape(stage.Shapes(2).Shapes[0], 0, 40);
  EXPECT_TRUE(stage.Videos().CloseAll());
  EXPECT_EQ(Stored(path).size(), 3u);
}

TEST(TwoWorkstations, OfDifferentSizesKeepWhatNobodyTouchesToTheByte) {
  AnalysisStage here, there("2", 1000, 810);
  const std::string path = here.Video("a.avi");
  here.Open(1, path);
  for (int i = 0; i < 50; ++i) here.Draw(kLine, {10 + 7 * i, 11 + i}, {300 - i, 401 - 3 * i});
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  std::vector<Shape> drawn = Stored(path);
  ASSERT_EQ(drawn.size(), 50u);

  there.Open(1, path);
  there.Stage().SetScreen(8);
  there.Commands().Run("vFlip");
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_EQ(Stored(path), drawn);

  here.Open(1, path);
  there.Open(1, path);
  there.Draw(kEllipse, {40, 40}, {60, 70});
  there.host.Advance(5000);
  here.Commands().Run("Lastcadoff");
  here.host.Advance(5000);
  there.Draw(kSquare, {40, 40}, {60, 70});
  there.host.Advance(5000);
  std::vector<Shape> stored = Stored(path);
  ASSERT_EQ(stored.size(), 51u);
  EXPECT_TRUE(std::equal(stored.begin(), stored.begin() + 49, drawn.begin()));
  EXPECT_EQ(stored[49].Kind, kEllipse);
  EXPECT_EQ(stored[50].Kind, kSquare);

  // What is undone in a window of another size is what it was.
  there.Stage().SetScreen(1);
  there.Commands().Run("Cadoffbutton");
  there.host.Advance(5000);
  EXPECT_EQ(Stored(path).size(), 0u);
  there.Stage().SetScreen(4);
  there.Commands().Run("UndoDrawing");
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_EQ(Stored(path).size(), 52u) << "with the one that was deleted here";
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  stored = Stored(path);
  EXPECT_EQ(stored.size(), 52u);
  EXPECT_TRUE(std::equal(drawn.begin(), drawn.end(), stored.begin()));
}

TEST(TwoWorkstations, KeepEachOthersWorkOnOneVideo) {
  AnalysisStage here, there;
  const std::string path = here.Video("a.avi");
  here.Open(1, path);
  there.Open(1, path);
  there.Draw(kLine, {10, 10}, {100, 100});
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  here.Open(1, path);
  ASSERT_EQ(here.Shapes().NumShapes, 1) << "who has done nothing writes over nothing";

  there.Open(1, path);
  there.Draw(kEllipse, {40, 40}, {90, 120});
  there.Keeping().SetNotes(1, "Stance");
  there.host.Advance(5000);
  here.Commands().Run("Lastcadoff");
  here.Draw(kSquare, {5, 100}, {60, 20});
  here.Keeping().SetNotes(1, "Grip");
  here.host.Advance(5000);
  EXPECT_TRUE(there.Videos().CloseVideo(1));
  EXPECT_TRUE(here.Videos().CloseVideo(1));
  here.Open(1, path);
  std::vector<int> kinds;
  for (const Shape& shape : ShapesOf(here.Shapes())) kinds.push_back(shape.Kind);
  std::ranges::sort(kinds);
  EXPECT_EQ(kinds, (std::vector<int>{kSquare, kEllipse})) << "the line was deleted here";
  const std::string& notes = here.Stage().At(1).data.Notes;
  EXPECT_TRUE(notes.find("Grip") != notes.npos && notes.find("Stance") != notes.npos) << notes;
}

TEST(ForeignSidecar, IsLeftAloneUntilThereIsWorkAndThenKeptBeside) {
  AnalysisStage stage;
  const std::string path = stage.Video("a.avi");
  const std::string sidecar = SidecarPath(path);
  const std::string foreign = "\x7F" "another program's bytes";
  std::ofstream(sidecar) << foreign;
  const auto bytesOf = [](const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  };
  stage.Open(1, path);
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(bytesOf(sidecar), foreign) << "opened and closed, and nothing done";
  stage.Open(1, path);
  stage.Draw(kLine, {10, 10}, {100, 100});
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(bytesOf(sidecar + ".old"), foreign);
  EXPECT_TRUE(ReadSidecarMarks(sidecar).HasDrawings());

  // One byte of its own has gone wrong: the number of dimensions of the points.
  std::string damaged = bytesOf(sidecar);
  damaged[44] = '\2';
  std::ofstream(sidecar) << damaged;
  stage.Open(1, path);
  stage.host.Advance(5000);
  EXPECT_TRUE(stage.Videos().CloseVideo(1));
  EXPECT_EQ(bytesOf(sidecar), damaged);
}

TEST(VideoNotesTest, LieUnderThePictureAndAreKeptWithTheVideo) {
  AnalysisStage stage("2");
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.Open(2, stage.Video("b.avi"));
  const int height = stage.MP(1).ControlHeightPixels();
  stage.Commands().Run("TN");
  EXPECT_EQ(stage.window.notes, "");
  EXPECT_LT(stage.MP(1).ControlHeightPixels(), height) << "they make room under the picture";
  stage.analysis.Notes().TakeNotes("Gro\u00DFer Schwung\r\nhead still");
  EXPECT_FALSE(ReadSidecarMarks(SidecarPath(path)).HasNotes());
  stage.host.Advance(2000);
  EXPECT_TRUE(ReadSidecarMarks(SidecarPath(path)).HasNotes()) << "written when typing rests";
  stage.analysis.Notes().TakeNotes("Gro\u00DFer Schwung\r\nhead still\r\ngrip");
  stage.Press(2, 5, 5);
  EXPECT_FALSE(stage.window.notes) << "another window closes the panel";
  EXPECT_EQ(stage.MP(1).ControlHeightPixels(), height);
  stage.Commands().Run("TN");
  EXPECT_EQ(stage.window.notes, "");
  stage.Videos().CloseAll();
  stage.Open(1, path);
  stage.Commands().Run("TN");
  EXPECT_EQ(stage.window.notes, "Gro\u00DFer Schwung\r\nhead still\r\ngrip");
}

TEST(VideoNotesTest, StayWithTheGridForTheNextVideoOfTheWindow) {
  AnalysisStage stage("2");
  stage.Open(1, stage.Video("a.avi"));
  const int height = stage.MP(1).ControlHeightPixels();
  stage.Commands().Run("TN");
  stage.Commands().Run("MenuDraw11");
  stage.analysis.Notes().TakeNotes("Grip");
  const int beside = stage.MP(1).ControlHeightPixels();
  stage.Open(1, stage.Video("b.avi"));
  EXPECT_EQ(stage.window.notes, "") << "those of the new video";
  EXPECT_EQ(stage.MP(1).ControlHeightPixels(), beside);
  EXPECT_TRUE(stage.Commands().Find("MenuDraw11")->checked());
  stage.Open(1, stage.folder + "/a.avi");
  EXPECT_EQ(stage.window.notes, "Grip");
  stage.Videos().CloseVideo(1);
  stage.EndTurn();
  EXPECT_FALSE(stage.window.notes) << "without a video there is nothing to note";
  stage.Open(1, stage.folder + "/a.avi");
  EXPECT_EQ(stage.MP(1).ControlHeightPixels(), height);
  EXPECT_TRUE(stage.Commands().Find("MenuDraw11")->checked());
}

TEST(DisplayRate, ReadsTheFirstTwoFiguresBehindThePoint) {
  EXPECT_EQ(DisplayRateTest::Result(114, 59), "Video Display Rate is 93%");
  EXPECT_EQ(DisplayRateTest::Result(118, 59), "Video Display Rate is 00%");
  EXPECT_EQ(DisplayRateTest::Result(4, 0), "Video Display Rate is 00%");

  AnalysisStage stage;
  stage.Open(1, stage.Video("a.avi"));
  stage.Commands().Run("VidTest");
  stage.host.Advance(3000);
  ASSERT_EQ(stage.host.messages.size(), 1u);
  EXPECT_EQ(stage.host.messages[0], DisplayRateTest::Result(60, 29) + "\n\n30 of 30 pictures were shown.");
  EXPECT_FALSE(stage.Commands().Find("VidTest")->checked());
  stage.analysis.Transport().TogglePlay();
  stage.host.Advance(3000);
  EXPECT_EQ(stage.host.messages.size(), 1u) << "an ordinary play is no test";
  stage.Commands().Run("VidTest");
  stage.host.Advance(300);
  stage.Key(kKeyEscape);
  stage.host.Advance(3000);
  EXPECT_EQ(stage.host.messages.size(), 1u) << "a test that is stopped has no result";
  EXPECT_TRUE(stage.Stage().HasVideo(1));
}

/// The figures of the length that is shown.
double Shown(const AnalysisStage& stage) {
  const auto at = stage.window.text.find("H-V");
  return at == std::string::npos ? -1 : std::stod(stage.window.text.substr(at + 3));
}

TEST(MeasureTest, BelongsToItsShapeAndGoesWithIt) {
  AnalysisStage stage;
  stage.Open(1, stage.Video("a.avi"));
  const auto draw = [&] {
    stage.Draw(kLine, {100, 100}, {200, 100});
    EXPECT_EQ(Shown(stage), 100);
  };
  draw();
  stage.MP(1).Play(3);
  EXPECT_EQ(Shown(stage), 100) << "the next picture changes nothing";
  stage.Stage().SetZoom(0.5);
  EXPECT_EQ(Shown(stage), 50) << "in the pixels that are shown";
  stage.Stage().SetZoom(1);
  EXPECT_EQ(Shown(stage), 100);
  stage.Key('Z', kCtrl);
  EXPECT_EQ(stage.window.text, "");
  for (const char* command : {"Lastcadoff", "Cadoffbutton"}) {
    draw();
    stage.Commands().Run(command);
    EXPECT_EQ(stage.window.text, "") << command;
  }
  draw();
  stage.Open(1, stage.Video("b.avi"));
  EXPECT_EQ(stage.window.text, "");

  // Under construction it has taken the place of the tool's name, which comes back.
  stage.Key(kKeyF1 + kLine);
  const std::string tool = stage.window.text;
  EXPECT_TRUE(stage.window.colour);
  stage.Click(1, 100, 100);
  stage.Move(1, 150, 100);
  EXPECT_EQ(Shown(stage), 50);
  EXPECT_FALSE(stage.window.colour);
  stage.Commands().Run("Lastcadoff");
  EXPECT_EQ(stage.window.text, tool);
  EXPECT_TRUE(stage.window.colour && stage.analysis.Tools().Drawing());
}

TEST(RulerCalibrationTest, ItsLineIsNoDrawing) {
  AnalysisStage stage;
  const std::string path = stage.Video("a.avi");
  stage.Open(1, path);
  stage.Draw(kSquare, {111, 33}, {157, 77});
  stage.host.Advance(3000);
  const auto saved = ReadWholeFile(SidecarPath(path));
  ASSERT_TRUE(saved);
  stage.Commands().Run("TCal");
  stage.Click(1, 100, 300);
  stage.Click(1, 200, 300);
  stage.Stage().SetZoom(0.3);
  stage.Videos().ToggleFlip();
  stage.Videos().ToggleFlip();
  stage.Stage().SetZoom(2);
  EXPECT_EQ(stage.window.calibrationLength, "200pts") << "the length follows the picture";
  stage.host.Advance(3000);
  EXPECT_EQ(ReadWholeFile(SidecarPath(path)), saved);
  EXPECT_EQ(stage.Shapes().NumShapes, 2);
  stage.analysis.Ruler().Calibrate(100, kInches, kInches);
  stage.Stage().SetZoom(1);
  EXPECT_EQ(stage.Shapes().NumShapes, 1);
  EXPECT_EQ(stage.PointOf(0, 0), (POINTAPI{111, 33})) << "and has not moved by a rounding";
  stage.host.Advance(3000);
  EXPECT_EQ(ReadWholeFile(SidecarPath(path)), saved);
  stage.Draw(kLine, {100, 300}, {200, 300});
  EXPECT_NE(stage.window.text.find("100\""), std::string::npos) << stage.window.text;

  // Undo knows nothing of it, and leaves it where it is.
  stage.Commands().Run("TCal");
  stage.Click(1, 100, 200);
  stage.Click(1, 140, 200);
  stage.Key('Z', kCtrl);
  EXPECT_EQ(stage.Shapes().NumShapes, 2) << "the square and the ruler's line";
  EXPECT_EQ(stage.window.calibrationLength, "40pts");
  // Deleted it cannot be measured any more.
  stage.Commands().Run("Lastcadoff");
  EXPECT_EQ(stage.window.calibrationLength, "");
  stage.Key('Z', kCtrl);
  EXPECT_EQ(stage.Shapes().NumShapes, 0);

  // A zoom between the two clicks of a drawing finds it, not the line that lies there.
  stage.Draw(kLine, {100, 200}, {140, 200});
  stage.Key(kKeyF1 + kSquare);
  stage.Click(1, 30, 40);
  stage.Stage().SetZoom(2);
  stage.Click(1, 90, 100);
  ASSERT_EQ(stage.Shapes().NumShapes, 2);
  EXPECT_TRUE(stage.Shapes().Shapes[1].Kind == kSquare && stage.Shapes().Shapes[1].Locked);
  EXPECT_EQ(Points(stage.Shapes(), 1), (std::vector<POINTAPI>{{60, 80}, {90, 100}}));
}

TEST(RulerCalibrationTest, TurnsPixelsIntoLengths) {
  AnalysisStage stage;
  stage.Open(1, stage.Video("a.avi"));
  stage.Draw(kLine, {100, 100}, {200, 100});
  EXPECT_NE(stage.window.text.find("100 px"), std::string::npos) << stage.window.text;

  stage.Commands().Run("TCal");
  EXPECT_TRUE(stage.window.calibration);
  stage.Click(1, 50, 300);
  stage.Click(1, 170, 300);
  EXPECT_EQ(stage.window.calibrationLength, "120pts");
  stage.analysis.Ruler().Calibrate(10, kInches, kCentimetres);
  EXPECT_EQ(stage.Shapes().NumShapes, 1) << "the measuring line goes, the other stays";
  EXPECT_EQ(stage.settings.CalibNumber, 120);
  EXPECT_FLOAT_EQ(stage.settings.CalibNumberOut, 12);
  stage.Draw(kLine, {100, 150}, {220, 150});
  EXPECT_NE(stage.window.text.find("25.4cm"), std::string::npos) << stage.window.text;

  // In another layout the picture has another size; what is seen in it has not.
  const int whole = stage.MP(1).ControlWidthPixels();
  stage.Stage().SetScreen(4);
  const int part = stage.MP(1).ControlWidthPixels();
  ASSERT_NE(part, whole);
  stage.Draw(kLine, {10, 100}, {10 + part / 2, 100});
  EXPECT_NEAR(Shown(stage), whole / 2.0 / 12 * 2.54, 1) << stage.window.text;
  // Upright or not, a picture as high shows things as large.
  TestVideo upright = MjpegVideo(30);
  std::swap(upright.format.width, upright.format.height);
  ASSERT_TRUE(stage.Open(2, upright));
  stage.Stage().SelectWindow(2);
  ASSERT_LT(stage.MP(2).ControlWidthPixels(), part);
  ASSERT_EQ(stage.MP(2).ControlHeightPixels(), stage.MP(1).ControlHeightPixels());
  stage.Draw(kLine, {10, 10}, {10, 110});
  const double other = Shown(stage);
  stage.Stage().SelectWindow(1);
  stage.Draw(kLine, {10, 10}, {10, 110});
  EXPECT_EQ(Shown(stage), other);
  stage.Commands().Run("Lastcadoff");
  stage.Commands().Run("Lastcadoff");
  stage.settings.CalibHeight = 0;  // as older settings have it
  stage.Draw(kLine, {10, 100}, {10 + part / 2, 100});
  EXPECT_NEAR(Shown(stage), whole / 2.0 / 12 * 2.54, 1) << stage.window.text;
  stage.Commands().Run("Lastcadoff");
  stage.Stage().SetScreen(1);

  // Cancelled in the middle of its line: only that line goes, and the numbers stay.
  stage.Commands().Run("TCal");
  stage.Click(1, 20, 20);
  stage.Move(1, 60, 60);
  stage.Key(kKeyEscape);
  EXPECT_FALSE(stage.window.calibration || stage.analysis.Tools().Drawing());
  EXPECT_EQ(stage.Shapes().NumShapes, 2);
  EXPECT_EQ(stage.settings.CalibNumber, 120);
}

}  // namespace
}  // namespace kinalyx::test
