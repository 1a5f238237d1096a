#include <gtest/gtest.h>

#include <filesystem>

#include "LiveDrawFakes.h"
#include "drawing/Macros.h"
#include "platform/files/FileStore.h"

namespace kinalyx::test {
namespace {

class LiveDraw : public testing::Test, protected LiveDrawFixture {};

/// Red, green or blue: what is drawn on a grey picture.
bool IsColoured(Colour colour) {
  const int red = static_cast<int>(colour & 255), green = static_cast<int>(colour >> 8 & 255),
            blue = static_cast<int>(colour >> 16 & 255);
  return std::max({red, green, blue}) - std::min({red, green, blue}) > 60;
}

TEST_F(LiveDraw, TheCameraIsSeenInAMirrorUntilTheStudentIsToBeSeenByOthers) {
  EXPECT_FALSE(session->CanFreeze());
  OpenLive();
  EXPECT_EQ(graph->loaded, MVMotionDraw);
  EXPECT_EQ(graph->device, "Webcam");
  EXPECT_TRUE(session->Camera().Words().empty());
  EXPECT_EQ(session->Compose().Width(), 640);
  EXPECT_LT(session->Compose().Pixel(10, 10) & 255, 60U);
  session->SetMirror(false);
  EXPECT_EQ(graph->loaded, MVMotionDraw2);
  // Until the camera has begun anew the last picture is turned.
  EXPECT_GT(session->Compose().Pixel(10, 10) & 255, 180U);
  graph->Show();
  EXPECT_LT(session->Compose().Pixel(10, 10) & 255, 60U);
  session->Close();
  EXPECT_FALSE(graph->running);
}

TEST_F(LiveDraw, FreezeStopsTheGraphAndHoldsThePicture) {
  OpenLive();
  EXPECT_EQ(session->FreezeCaption(), "Freeze Video");
  session->PressFreeze();
  EXPECT_FALSE(graph->running);
  EXPECT_EQ(session->FreezeCaption(), "Live Video");
  EXPECT_FALSE(session->Compose().Empty());
  DrawLine({100, 100}, {200, 200});
  EXPECT_EQ(Drawings().size(), 1U);
  // Turned while it stands, and then live as it was turned.
  session->SetMirror(false);
  EXPECT_FALSE(graph->running);
  EXPECT_GT(session->Compose().Pixel(10, 300) & 255, 180U);
  session->PressFreeze();
  EXPECT_TRUE(graph->running);
  EXPECT_EQ(graph->loaded, MVMotionDraw2);
  EXPECT_EQ(session->FreezeCaption(), "Freeze Video");
  // Another camera is not looked at through a frozen picture.
  session->PressFreeze();
  devices.Plug(MakeCamera("Other"));
  EXPECT_TRUE(session->Camera().Frozen());
  session->Camera().ChooseCamera("Other");
  EXPECT_FALSE(session->Camera().Frozen());
  EXPECT_EQ(graph->device, "Other");
}

TEST_F(LiveDraw, DrawingsLieOverEachPictureInTheirColours) {
  OpenLive();
  DrawLine({320, 100}, {320, 300});
  ASSERT_EQ(Drawings().size(), 1U);
  EXPECT_EQ(Drawings()[0].Width, 3);
  EXPECT_TRUE(IsColoured(session->Compose().Pixel(320, 200)));
  graph->Show();
  EXPECT_TRUE(IsColoured(session->Compose().Pixel(320, 200)));
  EXPECT_FALSE(IsColoured(session->Compose().Pixel(330, 200)));
  // A tool without a colour of its own draws in blue.
  settings.NewColors[kLine] = 0;
  settings.RandomColor = 0;
  DrawLine({100, 100}, {100, 300});
  EXPECT_EQ(Drawings().back().Colour, 0xFF0000);
  session->ChooseColour(0);  // for what is taken, or nothing
  session->TakeTool([](DrawingTools& tools) { tools.TakeTool(kArrow); });
  session->ChooseColour(3);
  session->ChooseWidth(9);
  Drag({50, 50}, {150, 150});
  EXPECT_EQ(Drawings().back().Colour, kColorChoices[3]);
  EXPECT_EQ(Drawings().back().Width, 9);
  // The width stays for what comes.
  DrawLine({400, 100}, {400, 200});
  EXPECT_EQ(Drawings().back().Width, 9);
}

TEST_F(LiveDraw, WithoutDrawingsThePictureIsAsItCame) {
  OpenLive();
  const Surface& picture = session->Compose();
  // Near enough for an eye: it has been fitted to the window.
  EXPECT_NEAR(picture.Pixel(100, 100) & 255, 20, 3);
  EXPECT_NEAR(picture.Pixel(600, 400) & 255, 220, 3);
}

TEST_F(LiveDraw, DrawingsAndZonesTurnWithTheMirrorAndFollowTheWindow) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  AddZone({64, 48}, {192, 144});
  session->SetMirror(false);
  ASSERT_EQ(graph->detector.regions.size(), 1U);
  EXPECT_EQ(Drawings()[0].Pts[0], (POINTAPI{540, 100}));
  EXPECT_NEAR(session->Zones().All()[0].place.left, 0.7, 0.002);
  EXPECT_NEAR(graph->detector.regions.begin()->second.left, 0.7, 0.002);
  for (const int width : {333, 1281, 97, 640}) session->SetRoom(width, width * 3 / 4);
  EXPECT_EQ(Drawings()[0].Pts[0], (POINTAPI{540, 100}));
  EXPECT_EQ(Drawings()[0].Pts[1], (POINTAPI{440, 120}));
  // A window of another shape has the picture in its middle.
  session->SetRoom(1000, 480);
  EXPECT_EQ(session->Box(), (PictureBox{180, 0, 640, 480}));
  session->SetMirror(true);
  EXPECT_EQ(Drawings()[0].Pts[0], (POINTAPI{100, 100}));
  // What was before follows too.
  session->RemoveTaken();
  session->Undo();
  EXPECT_NEAR(session->Zones().All()[0].place.left, 0.1, 0.002);
}

TEST_F(LiveDraw, AZoneIsDrawnMovedResizedAndRemovedByTheMouse) {
  OpenLive();
  EXPECT_EQ(session->ZoneCaption(), "Add Hot Zone");
  session->PressZone();
  EXPECT_EQ(session->ZoneCaption(), "Cancel Zone");
  session->PressZone();
  EXPECT_EQ(session->ZoneCaption(), "Add Hot Zone");
  session->PressZone();
  EXPECT_TRUE(session->Escape());
  EXPECT_TRUE(session->Zones().All().empty());
  // A click is no zone yet.
  session->PressZone();
  Drag({100, 100}, {103, 101});
  EXPECT_TRUE(session->AddingZone());
  Drag({128, 96}, {256, 192});
  EXPECT_EQ(session->ZoneCaption(), "Add Hot Zone");
  ASSERT_EQ(session->Zones().All().size(), 1U);
  EXPECT_EQ(session->Zones().Taken(), 1);
  const auto place = [&] { return session->Zones().All()[0].place; };
  EXPECT_NEAR(place().left, 0.2, 1e-6);
  EXPECT_NEAR(place().width, 0.2, 1e-6);

  session->MouseMove(0, false, {192, 144});
  EXPECT_EQ(view.pointer, LivePointer::Zone);
  Drag({192, 144}, {256, 192});  // all of it
  EXPECT_NEAR(place().left, 0.3, 1e-6);
  EXPECT_NEAR(place().top, 0.3, 1e-6);
  session->MouseMove(0, false, {320, 240});
  EXPECT_EQ(view.pointer, LivePointer::ZoneFalling);
  Drag({320, 240}, {384, 384});  // its corner
  EXPECT_NEAR(place().width, 0.3, 1e-6);
  EXPECT_NEAR(place().height, 0.5, 1e-6);
  Drag({192, 300}, {900, 300});  // an edge, far beyond the other one
  EXPECT_NEAR(place().width, HotZones::kLeast, 1e-6);
  Drag({374, 300}, {-900, -900});
  EXPECT_EQ(place().left, 0);
  EXPECT_EQ(place().top, 0);
  EXPECT_EQ(graph->detector.regions.size(), 1U);
  EXPECT_EQ(graph->detector.regions.begin()->second, place());

  session->MouseDown(2, false, {5, 5});
  EXPECT_EQ(view.zoneMenus, 1);
  session->RemoveTaken();
  EXPECT_TRUE(session->Zones().All().empty());
  EXPECT_TRUE(graph->detector.regions.empty());
}

TEST_F(LiveDraw, AZoneAtItsSmallestStaysWhatIsUndone) {
  OpenLive();
  for (int at = 101; at < 141; ++at) {
    AddZone({at, 100}, {at + 200, 300});
    Drag({at + 200, 200}, {0, 200});  // its right edge, far beyond the left one
    AddZone({400, 50}, {500, 90});
    session->Undo();
    EXPECT_EQ(session->Zones().All().size(), 1U) << at;
    session->RemoveZones();
  }
}

TEST_F(LiveDraw, ThereIsRoomForTwelveZones) {
  OpenLive();
  for (int i = 0; i < HotZones::kMost; ++i) AddZone({10 + 40 * i, 100}, {40 + 40 * i, 140});
  EXPECT_EQ(session->Zones().All().size(), 12U);
  session->PressZone();
  EXPECT_FALSE(session->AddingZone());
  EXPECT_EQ(host.messages.back(), "There is room for twelve hot zones. Remove one of them first.");
}

TEST_F(LiveDraw, AZoneWhoseReleaseWasLostIsWatchedWhereItIs) {
  OpenLive();
  AddZone({100, 100}, {200, 200});
  session->MouseDown(1, false, {150, 150});
  session->MouseMove(1, false, {250, 250});
  session->MouseMove(0, false, {400, 400});
  EXPECT_NEAR(session->Zones().All()[0].place.left, 200.0 / 640, 1e-6) << "it does not stick to the mouse";
  EXPECT_EQ(graph->detector.regions.begin()->second, session->Zones().All()[0].place);
  session->Undo();
  EXPECT_NEAR(session->Zones().All()[0].place.left, 100.0 / 640, 1e-6);
}

/// A zone and a drawing one over the other: the drawing is nearer to the hand.
TEST_F(LiveDraw, OneThingIsTakenAtATime) {
  OpenLive();
  AddZone({100, 100}, {400, 400});
  DrawLine({150, 250}, {350, 250});
  session->MouseDown(1, false, {250, 250});
  session->MouseUp(1, false, {250, 250});
  EXPECT_TRUE(session->Board().Hand().Taken());
  EXPECT_EQ(session->Zones().Taken(), 0);
  session->MouseDown(1, false, {250, 320});
  session->MouseUp(1, false, {250, 320});
  EXPECT_FALSE(session->Board().Hand().Taken());
  EXPECT_EQ(session->Zones().Taken(), 1);
  EXPECT_TRUE(session->Escape());
  EXPECT_FALSE(session->AnyTaken());
  EXPECT_FALSE(session->Escape());
}

TEST_F(LiveDraw, AZoneThatFiresBeepsAndGlowsAndFades) {
  OpenLive();
  AddZone({64, 48}, {192, 144});
  AddZone({400, 200}, {500, 300});
  Move(1);
  host.Advance(50);
  ASSERT_EQ(sounds.played.size(), 1U);
  EXPECT_TRUE(sounds.played[0].ends_with("/pictures/beep.wav"));
  EXPECT_EQ(session->Glow(1), 0);
  EXPECT_GT(session->Glow(2), 0.9);
  EXPECT_TRUE(session->Moves(2));
  graph->detector.moving.clear();
  host.Advance(500);
  EXPECT_GT(session->Glow(2), 0.1);
  EXPECT_LT(session->Glow(2), 0.6);
  EXPECT_FALSE(session->Moves(2));
  host.Advance(1000);
  EXPECT_EQ(session->Glow(2), 0);
  const int painted = view.repaints;
  host.Advance(1000);
  EXPECT_EQ(view.repaints, painted) << "nothing moves, and it is painted all the time";
  // Muted it glows all the same; frozen nothing moves.
  session->SetMuted(true);
  Move(0);
  host.Advance(50);
  EXPECT_EQ(sounds.played.size(), 1U);
  EXPECT_GT(session->Glow(1), 0.9);
  session->SetMuted(false);
  session->PressFreeze();
  Move(0);
  host.Advance(2000);
  EXPECT_EQ(sounds.played.size(), 1U);
}

TEST_F(LiveDraw, SensitivityAndZonesReachEveryGraph) {
  OpenLive();
  AddZone({64, 48}, {192, 144});
  session->SetSensitivity(130);
  EXPECT_EQ(graph->detector.sensitivity, 100);
  session->SetSensitivity(70);
  session->Close();
  OpenLive();
  EXPECT_EQ(graph->detector.sensitivity, 70);
  EXPECT_EQ(graph->detector.regions.size(), 1U);
  for (int i = 0; i < 20; ++i) AddZone({10 + 24 * i, 300}, {32 + 24 * i, 330});
  EXPECT_EQ(session->Zones().All().size(), static_cast<std::size_t>(HotZones::kMost));
}

TEST_F(LiveDraw, UndoTakesBackDrawingsAndZonesInTheirOrder) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  AddZone({64, 48}, {192, 144});
  DrawLine({300, 100}, {300, 220});
  session->RemoveAll();
  EXPECT_EQ(session->Zones().All().size(), 1U);
  session->Undo();
  EXPECT_EQ(Drawings().size(), 2U);
  session->Undo();
  EXPECT_EQ(Drawings().size(), 1U);
  session->Undo();
  EXPECT_TRUE(session->Zones().All().empty());
  EXPECT_TRUE(graph->detector.regions.empty());
  session->Undo();
  EXPECT_TRUE(Drawings().empty());
  EXPECT_FALSE(session->CanUndo());
  session->Redo();
  session->Redo();
  EXPECT_EQ(Drawings().size(), 1U);
  EXPECT_EQ(session->Zones().All().size(), 1U);
  // A turn, or another size, between them is none.
  session->SetMirror(false);
  session->SetRoom(320, 240);
  session->ToggleGrid();
  session->Undo();
  EXPECT_TRUE(session->Zones().All().empty());
  EXPECT_EQ(Drawings().size(), 1U);
}

TEST_F(LiveDraw, AllToolsDrawUponThePicture) {
  OpenLive();
  for (const int kind : {kFreehand, kFlag, kSquare, kLine, kEllipse, kClock, kArrow}) {
    session->TakeTool([kind](DrawingTools& tools) { tools.TakeTool(kind); });
    Drag({100, 100}, {200, 180});
    ASSERT_FALSE(Drawings().empty());
    EXPECT_EQ(Drawings().back().Kind, kind);
  }
  session->TakeTool([](DrawingTools& tools) { tools.TakeTool(kSwingPath); });
  for (const POINTAPI at : {POINTAPI{50, 50}, POINTAPI{80, 60}, POINTAPI{120, 90}}) {
    session->MouseDown(1, false, at);
    session->MouseUp(1, false, at);
  }
  EXPECT_TRUE(session->PressPathKey(true));
  EXPECT_EQ(Drawings().back().Kind, kSwingPath);
  EXPECT_EQ(Drawings().back().NumBound, 3);
  session->TakeTool([](DrawingTools& tools) { tools.TakeTextTool(); });
  session->MouseDown(1, false, {300, 200});
  session->MouseUp(1, false, {300, 200});
  ASSERT_TRUE(view.textAt);
  session->WriteText(*view.textAt, "Στάση, 姿勢", false);
  EXPECT_EQ(Drawings().back().Text, "Στάση, 姿勢");
}

// ---------------------------------------------------------------- cameras that come and go

TEST_F(LiveDraw, ACameraThatIsPulledOutComesBackByItself) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  devices.Pull("Webcam");
  graph->events.SourceFailed("VideoSource", "Webcam has gone.");
  EXPECT_EQ(session->Camera().Words(), "Webcam has gone.");
  EXPECT_TRUE(session->Compose().Empty());
  EXPECT_FALSE(session->CanFreeze());
  host.Advance(5000);
  EXPECT_FALSE(graph->running);
  session->WriteText({300, 200}, "typed meanwhile", false);
  EXPECT_EQ(Drawings().size(), 1U);
  devices.Plug(MakeCamera("Webcam"));
  EXPECT_TRUE(graph->running);
  graph->Show();
  EXPECT_FALSE(session->Compose().Empty());
  ASSERT_EQ(Drawings().size(), 2U);
  EXPECT_EQ(Drawings().back().Text, "typed meanwhile");
}

TEST_F(LiveDraw, AFrozenCameraThatIsPulledOutIsLiveAgainWhenItIsBack) {
  OpenLive();
  session->PressFreeze();
  devices.Pull("Webcam");
  session->SetMirror(false);
  EXPECT_EQ(session->FreezeCaption(), "Live Video") << "the picture stands";
  session->PressFreeze();
  EXPECT_EQ(session->Camera().Words(), "Webcam is not connected. Plug it in, and it shows here.");
  devices.Plug(MakeCamera("Webcam"));
  EXPECT_TRUE(graph->running);
}

TEST_F(LiveDraw, ACameraThatIsBusyIsAskedAgain) {
  OpenLive();
  graph->events.SourceFailed("VideoSource", "Another program has Webcam.");
  EXPECT_FALSE(graph->running);
  host.Advance(3000);
  EXPECT_TRUE(graph->running);
  graph->Show();
  EXPECT_TRUE(session->Camera().Words().empty());
}

TEST_F(LiveDraw, WithoutACameraThereAreWordsAndNothingBreaks) {
  devices.cameras.clear();
  Start();
  session->Open();
  EXPECT_EQ(session->Camera().Words(), "No camera is connected. Plug one in, and it shows here.");
  session->PressFreeze();
  session->PressZone();
  EXPECT_FALSE(session->AddingZone());
  DrawLine({100, 100}, {200, 120});
  EXPECT_TRUE(Drawings().empty());
  devices.known = false;
  session->Close();
  session->Open();
  EXPECT_EQ(session->Camera().Words(), "Looking for cameras...");
}

TEST_F(LiveDraw, TheCapturePageHasTheCameraFirst) {
  OpenLive();
  const int runs = graph->runs;
  session->Camera().GiveAway(true);
  EXPECT_TRUE(session->Compose().Empty());
  EXPECT_NE(session->Camera().Words().find("Capture Videos"), std::string::npos);
  devices.Plug(MakeCamera("Other"));
  host.Advance(10'000);
  session->Camera().GiveAway(false);
  host.Advance(1000);
  EXPECT_TRUE(graph->running);
  EXPECT_EQ(graph->runs, 1) << "of a graph of its own, after " << runs;
  graph->Show();
  EXPECT_FALSE(session->Compose().Empty());
}

// ---------------------------------------------------------------- what is kept

TEST_F(LiveDraw, EverythingIsThereAgainWhenTheWindowOrTheProgramOpens) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  AddZone({64, 48}, {192, 144});
  session->SetMirror(false);
  session->SetSensitivity(35);
  session->SetWordsShown(false);
  session->ToggleGrid();
  session->Close();
  OpenLive();
  EXPECT_EQ(Drawings().size(), 1U);
  const auto before = Drawings();
  session->Close();
  Start();
  OpenLive();
  ASSERT_EQ(Drawings().size(), 1U);
  EXPECT_TRUE(IsSameDrawing(Drawings()[0], before[0]));
  EXPECT_EQ(session->Zones().All().size(), 1U);
  EXPECT_NEAR(session->Zones().All()[0].place.left, 0.7, 0.002);
  EXPECT_FALSE(session->Camera().Mirror());
  EXPECT_EQ(session->Sensitivity(), 35);
  EXPECT_FALSE(session->WordsShown());
  EXPECT_TRUE(session->Board().List().GridOn);
  EXPECT_EQ(graph->loaded, MVMotionDraw2);
  EXPECT_FALSE(session->CanUndo());
}

/// A second after the last change, so that a program that is killed loses nothing.
TEST_F(LiveDraw, WhatIsDrawnIsKeptWhileTheWindowIsOpen) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  host.Advance(3000);
  EXPECT_EQ(ReadLiveDraw(folder.Path("data/livedraw.json")).drawings.shapes.size(), 1U);
}

TEST_F(LiveDraw, ADamagedFileGivesWhatCanBeRead) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  session->TakeTool([](DrawingTools& tools) { tools.TakeTool(kClock); });
  Drag({300, 100}, {400, 200});
  AddZone({64, 48}, {192, 144});
  session->Close();
  const std::string path = folder.Path("data/livedraw.json");
  const auto whole = ReadWholeFile(path);
  ASSERT_TRUE(whole);
  for (std::size_t cut = 0; cut < whole->size(); cut += 7) {
    ASSERT_TRUE(WriteWholeFile(path, std::span(*whole).first(cut)));
    EXPECT_TRUE(ReadLiveDraw(path).zones.empty());
  }
  for (std::size_t at = 0; at < whole->size(); ++at) {
    auto damaged = *whole;
    damaged[at] ^= 0x11;
    ASSERT_TRUE(WriteWholeFile(path, damaged));
    HotZones zones;
    const LiveDrawKept kept = ReadLiveDraw(path);
    zones.Replace(kept.zones);
    for (const HotZone& zone : zones.All()) {
      EXPECT_GE(zone.place.left, 0);
      EXPECT_LE(zone.place.left + zone.place.width, 1 + 1e-9);
    }
    for (const Shape& shape : kept.drawings.shapes) EXPECT_LE(shape.NumBound, static_cast<int>(shape.Pts.size()));
  }
  ASSERT_TRUE(WriteWholeFile(path, std::string_view(R"({"zones": [{"number": 1, "left": 1e300, "width": -4}, 7, {}],
    "sensitivity": 1e9, "mirror": "no", "pictureWidth": 640, "pictureHeight": 480, "drawings": [{"kind": "Line",
    "points": [[1, 2]]}, {"kind": "Club", "points": []}, {"kind": "Arrow", "points": [[1, 2], [1e99, 4]]},
    {"kind": "Line", "points": [[1, 2], [30, 40]]}]})")));
  const LiveDrawKept kept = ReadLiveDraw(path);
  EXPECT_TRUE(kept.mirror);
  EXPECT_EQ(kept.sensitivity, 50);
  EXPECT_EQ(kept.drawings.shapes.size(), 1U);
  Start();
  OpenLive();
  EXPECT_TRUE(session->Zones().All().empty());
  EXPECT_FALSE(session->Compose().Empty());
}

TEST_F(LiveDraw, DrawingsGoToAnalysisAsAMacro) {
  OpenLive();
  DrawLine({100, 100}, {200, 120});
  Macros macros(folder.Path("app"), folder.Path("data"));
  std::filesystem::create_directories(folder.Path("app"));
  ASSERT_TRUE(session->SaveMacro(macros, "Posture"));
  Macros other(folder.Path("app"), folder.Path("data"));
  other.LoadMList({1920 * 15, 1080 * 15});
  ASSERT_EQ(other.IndexOf("Posture"), 0);
  EXPECT_EQ(other.NumShapesInMacro(0), 1);
  EXPECT_EQ(other.Macro(0).CanvasWidth, 640 * 15);
}

}  // namespace
}  // namespace kinalyx::test
