// The command table: what the menus and the tool strip hold, in their order.

#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/files/Tr.h"
#include "video/KeyCodes.h"
#include "workspace/commands/CommandKeys.h"
#include "workspace/commands/DrawToolWords.h"
#include "workspace/commands/MenuBar.h"
#include "workspace/transport/Speeds.h"

namespace kinalyx {
namespace {

constexpr const char* kGoTo = TrLater("&Go To");
constexpr const char* kVideo = TrLater("&Video");
constexpr const char* kPlaying = TrLater("&Video/Speed and Part Played");
constexpr const char* kDraw = TrLater("&Draw");
constexpr const char* kMoments = TrLater("&Draw/Seen When");
constexpr const char* kWindows = TrLater("&Windows");
constexpr const char* kTools = TrLater("&Tools");
constexpr const char* kAdvanced = TrLater("Advanced");
constexpr const char* kSetup = TrLater("Setup");

// Groups of the tool strip, from left to right.
enum Group { kNoButton, kOpening, kScreens, kDrawing, kErasing, kPicture, kMeasuring, kSharing };

struct ScreenButton {
  int mode;
  const char* tip;
};

/// Every layout has its button; the four of old carry their old names.
constexpr ScreenButton kScreenButtons[] = {
    {1, TrLater("Single Screen")},
    {2, TrLater("Double Screen")},
    {7, TrLater("Double Screen, one over the other")},
    {5, TrLater("Triple Screen, side by side")},
    {3, TrLater("Triple Screen")},
    {4, TrLater("Quad Screen")},
    {6, TrLater("Six Windows")},
    {8, TrLater("Eight Windows")},
};

/// What stands in the menus or under a key as well, and is wanted least often on the strip.
constexpr std::string_view kSpareButtons[] = {
    "Closeallbtn",     "Scn3",           "Scn5",  "Scn6",        "Scn7",
    "RedoBtn",         "CmdAfunctions1", "smbar", "ribShowGrid", "CmdAfunctions7",
    "CentreCircleBtn", "DDSLBtn"};

/// What fits a window, in the order of its menu; an empty name divides.
constexpr const char* kWindowMenu[] = {"vo",    "OpenFromDisk", "ReopenVideos", "MnuClose",
                                       "",      "FitPicture",   "TMAX",         "vFlip",
                                       "",      "TMark",        "LineUp",       "",
                                       "vloop", "TSFrames",     "TN",           "PrintCall",
                                       "",      "TSaveClip",    "TCopyPicture", "TSavePicture"};

using Obstacle = std::function<std::string()>;

/// The obstacle of a command that needs `met` to hold.
Obstacle Needs(std::function<bool()> met, std::string why) {
  return [met = std::move(met), why = std::move(why)] { return met() ? std::string() : why; };
}

}  // namespace

std::function<std::string()> MenuBar::NeedsVideo(std::function<std::string()> further) const {
  return [this, further = std::move(further)] {
    return !HasVideo() ? Tr("Open a video first") : further ? further() : std::string();
  };
}

void MenuBar::Add(Command command) {
  const std::string& name = command.button.empty() ? command.item : command.button;
  command.spare = std::ranges::find(kSpareButtons, name) != std::end(kSpareButtons);
  commands_.push_back(std::move(command));
}

void MenuBar::AddSeparator(const char* menu) { Add({"", menu, "", "", "", "", kNoButton, nullptr}); }

void MenuBar::AddGoTo() {
  const auto to = [this](const char* item, const std::string& caption, const char* icon, std::function<void()> page) {
    Add({item, kGoTo, caption, "", icon, "", kNoButton, std::move(page)});
  };
  to("VLib", Tr("Student Profiles - Home key"), "students", [this] { navigation_.GoToLibrary(); });
  to("CG", Tr("Capture Video - Page Up key"), "camera", [this] { navigation_.GoToCapture(); });
  to("PDkeyA", Tr("Analyze Video - Page Down key"), "analyze", [this] { stage_.FocusKeyBox(); });
  to("EKTMM", Tr("Main Menu - End key"), "home", [this] { navigation_.GoToMainMenu(); });
  to("GoHelp", Tr("Help and Demos"), "help", [this] { navigation_.GoToHelp(); });
}

/// In a lesson nobody is shown lists of names: what stands open is done with, as by its button "Done".
void MenuBar::cmdOpen() {
  if (!navigation_.Handouts().LessonUnderWay()) return view_.ShowOpenPanel();
  view_.CloseOpenPanel();
  if (compare_.Transparency().TransparencyOn())
    for (const int slot : {1, 2})
      if (stage_.HasVideo(slot)) stage_.MP(slot).Refresh();
  transport_.Announce(Tr("While a lesson is recorded, videos are dropped on a window or opened from the disk"));
}

void MenuBar::AddVideo() {
  const auto hasVideo = NeedsVideo();
  const auto anyVideo = Needs([this] { return stage_.AnyVideo(); }, Tr("Open a video first"));
  const auto plain = [&](const char* item, const std::string& caption, const char* icon, std::function<void()> run) {
    Add({item, kVideo, caption, "", icon, "", kNoButton, std::move(run), hasVideo});
  };
  Add({"vo", kVideo, Tr("O - Open New Video"), "Openbtn", "open", Tr("Open Videos"), kOpening, [this] { cmdOpen(); }});
  Add({"OpenFromDisk", kVideo, Tr("Open From Disk..."), "", "", "", kNoButton, [this] { view_.OpenFromDisk(); }});
  plain("vr", Tr("R - Rewind Video"), "rewind", [this] { transport_.Rewind(); });
  plain("vplay", Tr("P - Play / Pause Toggle"), "play", [this] { transport_.TogglePlay(); });
  Add({"vloop", kVideo, Tr("L - Loop Video"), "", "loop", "", kNoButton, [this] { transport_.ToggleLoop(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->Repeat(); }});
  Add({"vs", kVideo, Tr("S - Speed Toggle"), "", "slow", "", kNoButton, [this] { transport_.ToggleSlomo(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->Speed() != 100; }});
  Add({"vFlip", kVideo, Tr("F - Flip Video"), "CmdAfunctions0", "flip", Tr("Flip Video"), kPicture,
       [this] { videos_.ToggleFlip(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->FlipHorizontal(); }});
  Add({"MZoom",
       kVideo,
       Tr("Z - Zoom Videos"),
       "",
       "zoom",
       "",
       kNoButton,
       [this] { compare_.ToggleZoomForm(); },
       {},
       [this] { return compare_.ZoomShown(); }});
  Add({"MnuClose", kVideo, Tr("C - Close Current Video"), "Closebtn", "close", Tr("Close Current Video"), kOpening,
       [this] {
         if (videos_.CloseVideo(stage_.CurrentWindow)) transport_.DisplayData("");
       },
       hasVideo});
  Add({"MnuCloseAll", kVideo, Tr("Esc - Close All Videos"), "Closeallbtn", "close-all", Tr("Close All Videos"),
       kOpening, [this] { videos_.CloseAll(videos_.Stood()); }, anyVideo});
  Add({"ReopenVideos", kVideo, Tr("Reopen Closed Videos"), "", "", "", kNoButton, [this] { videos_.ReopenClosed(); },
       Needs([this] { return videos_.CanReopen(); }, Tr("No video was closed, or every window is taken"))});
  AddSeparator(kVideo);
  plain("vF", Tr("Up Arrow - Rewind"), "", [this] { transport_.Rewind(); });
  plain("VL", Tr("Down Arrow - Play"), "", [this] { transport_.TogglePlay(); });
  plain("vp", Tr("Left Arrow - Back 1 Frame"), "step-back", [this] { transport_.StepBack(); });
  plain("vn", Tr("Right Arrow - Next Frame"), "step-forward", [this] { transport_.StepForward(); });
  AddPlaying();
}

void MenuBar::AddPlaying() {
  const auto hasVideo = NeedsVideo();
  const auto unlocked = NeedsVideo(
      [this] { return compare_.Locks().IsLocked(stage_.CurrentWindow) ? Tr("Unlock the videos first") : ""; });
  const auto add = [&](const char* item, const std::string& caption, Obstacle obstacle, std::function<void()> run) {
    Add({item, kPlaying, caption, "", "", "", kNoButton, std::move(run), std::move(obstacle)});
  };
  AddSeparator(kVideo);
  Add({"FitPicture", kVideo, Tr("Fit Picture in Window"), "", "fit", "", kNoButton,
       [this] { compare_.Zoom().ToggleFit(); }, hasVideo, [this] { return HasVideo() && stage_.Current().Fits; }});
  add("Slower", Tr("Slower"), hasVideo, [this] { transport_.SetSpeed(NextSpeed(transport_.Speed(), false)); });
  add("Faster", Tr("Faster"), hasVideo, [this] { transport_.SetSpeed(NextSpeed(transport_.Speed(), true)); });
  add("PlayBackward", Tr("Play Backward"), hasVideo, [this] { transport_.PlayBackward(); });
  add("RangeStart", Tr("Play From Here"), unlocked, [this] { transport_.ToggleRangeStart(); });
  add("RangeEnd", Tr("Play Up To Here"), unlocked, [this] { transport_.ToggleRangeEnd(); });
  add("RangeOff", Tr("Play Whole Video"),
      Needs([this] { return transport_.HasRange(); }, Tr("The whole of the current video is played")),
      [this] { transport_.PlayWholeVideo(); });
  Add({"SaveNow", kVideo, Tr("Save Drawings and Notes"), "", "", "", kNoButton, [this] { SaveNow(); },
       Needs([this] { return stage_.AnyVideo(); }, Tr("Open a video first"))});
}

void MenuBar::AddDraw() {
  const auto hasVideo = NeedsVideo();
  const auto hasShapes = Needs([this] { return HasVideo() && tools_.HasShapes(stage_.CurrentWindow); },
                               Tr("Nothing is drawn in the current window"));
  const auto inHand = [this](int kind, bool straight) {
    return tools_.Drawing() && tools_.InHand() == ToolInHand::Plain && tools_.DrawKind() == kind &&
           tools_.Engine().StraightMode == straight;
  };
  const auto heldAs = [this](ToolInHand way) { return tools_.Drawing() && tools_.InHand() == way; };
  const std::size_t firstTool = commands_.size();
  for (int kind = 0; kind < static_cast<int>(std::size(kDrawTools)); ++kind) {
    const DrawToolWords& tool = kDrawTools[kind];
    Add({"MenuDraw" + std::to_string(kind), kDraw, Tr(tool.caption), "CmdMakeShape" + std::to_string(kind), tool.icon,
         Tr(tool.tip), kDrawing, [this, kind] { tools_.ChooseFromMenu(kind); }, hasVideo,
         [inHand, kind] { return inHand(kind, false); }});
  }
  Add({"MenuDraw11", kDraw, Tr("F12 - Grid"), "ribShowGrid", "grid", Tr("Grid"), kDrawing,
       [this] { edits_.ToggleGrid(); }, hasVideo, [this] { return HasVideo() && edits_.GridOn(); }});
  AddSeparator(kDraw);
  Add({"DDSL", kDraw, Tr("Draw Straight Line"), "DDSLBtn", "straight-line", Tr("Draw Straight Line"), kDrawing,
       [this] { tools_.TakeStraightLine(); }, hasVideo, [inHand] { return inHand(kLine, true); }});
  Add({"DDSA", kDraw, Tr("Draw Straight Arrow"), "DDSABtn", "straight-arrow", Tr("Draw Straight Arrow"), kDrawing,
       [this] { tools_.TakeStraightArrow(); }, hasVideo, [inHand] { return inHand(kArrow, true); }});
  Add({"DrawCentreCircle", kDraw, Tr("Draw Circle from Center"), "CentreCircleBtn", "centre-circle",
       Tr("Draw Circle from Center"), kDrawing, [this] { tools_.TakeCentreCircle(); }, hasVideo,
       [heldAs] { return heldAs(ToolInHand::CentreCircle); }});
  Add({"DrawText", kDraw, Tr("Draw Text"), "DrawTextBtn", "text", Tr("Draw Text"), kDrawing,
       [this] { tools_.TakeTextTool(); }, hasVideo, [heldAs] { return heldAs(ToolInHand::Text); }});
  commands_[firstTool + kAngle].how = Tr("click one end, the corner, the other end");
  commands_[firstTool + kSwingPath].how =
      Tr("one click on each picture, which moves on by itself; a right click ends it");
  for (std::size_t i = firstTool; i < commands_.size(); ++i) {
    Command& tool = commands_[i];
    if (tool.group == kDrawing && tool.item != "MenuDraw11") tool.twice = [this] { tools_.StayInHand(); };
  }
  AddSeparator(kDraw);
  Add({"UndoDrawing", kDraw, Tr("Undo"), "UndoBtn", "undo", Tr("Undo (Ctrl+Z)"), kErasing, [this] { edits_.Undo(); },
       Needs([this] { return HasVideo() && edits_.CanUndo(); },
             Tr("No change of the drawings in the current window to undo"))});
  Add({"RedoDrawing", kDraw, Tr("Redo"), "RedoBtn", "redo", Tr("Redo (Ctrl+Shift+Z)"), kErasing,
       [this] { edits_.Redo(); },
       Needs([this] { return HasVideo() && edits_.CanRedo(); },
             Tr("No change of the drawings in the current window was undone"))});
  Add({"Lastcadoff", "", "", "", "delete-last", Tr("Delete Last Object Drawn"), kErasing,
       [this] { tools_.DeleteLast(); }, hasShapes});
  Add({"Cadoffbutton", "", "", "", "trash", Tr("Delete All Drawings in Window"), kErasing,
       [this] { tools_.DeleteAll(); }, hasShapes});
}

/// When drawings are seen.
void MenuBar::AddTimes() {
  const auto hasDrawing =
      Needs([this] { return HasVideo() && times_.Time(); }, Tr("Nothing is drawn in the current window"));
  const auto plain = [&](const char* item, const std::string& caption, std::function<void()> run,
                         std::function<bool(const ShapeTime&)> is) {
    Add({item, kMoments, caption, "", "", "", kNoButton, std::move(run), hasDrawing, [this, is = std::move(is)] {
           const auto time = times_.Time();
           return HasVideo() && time && is(*time);
         }});
  };
  AddSeparator(kDraw);
  plain(
      "DrawingAlways", Tr("On Whole Video"), [this] { times_.ShowAlways(); }, &ShapeTime::Always);
  plain(
      "DrawingHere", Tr("On This Picture"), [this] { times_.ShowHere(); },
      [](const ShapeTime& time) { return time.First == time.Last; });
  plain(
      "DrawingFromHere", Tr("From Here On"), [this] { times_.ShowFromHere(); }, [](const ShapeTime&) { return false; });
  plain(
      "DrawingUntilHere", Tr("Until Here"), [this] { times_.ShowUntilHere(); }, [](const ShapeTime&) { return false; });
  Add({"NextDrawing", kMoments, Tr("Next Drawing"), "", "", "", kNoButton, [this] { times_.GoToNext(); },
       Needs([this] { return HasVideo() && times_.AnyTimed(); },
             Tr("No drawing of the current video belongs to a moment"))});
  Add({"HideDrawings",
       kDraw,
       Tr("Hide Drawings"),
       "",
       "",
       "",
       kNoButton,
       [this] { tools_.HideDrawings(!tools_.Hidden()); },
       {},
       [this] { return tools_.Hidden(); }});
  Add({"ShapeLabels",
       kDraw,
       Tr("Figures Beside Drawings"),
       "",
       "",
       "",
       kNoButton,
       [this] { tools_.ToggleLabels(); },
       {},
       [this] { return tools_.LabelsShown(); }});
}

void MenuBar::AddWindows() {
  for (const ScreenMode& mode : ScreenModes()) {
    std::string tip;
    for (const ScreenButton& button : kScreenButtons)
      if (button.mode == mode.Mode) tip = Tr(button.tip);
    Add({std::string(mode.Item),
         kWindows,
         Tr(std::string(mode.Caption)),
         "Scn" + std::to_string(mode.Mode),
         std::string(mode.Icon),
         tip,
         kScreens,
         [this, number = mode.Mode] { stage_.SetScreen(number); },
         {},
         [this, code = mode.Code] { return stage_.ScreenLayout == code && !stage_.Home().Away(); }});
  }
}

void MenuBar::AddTools() {
  const auto hasVideo = NeedsVideo();
  const auto rows = Needs([this] { return videos_.CanFillRows(); },
                          Tr("Needs a layout of four, six or eight windows and a video in the current one"));
  const auto stageFree = [this] { return compare_.StageTaken(); };
  Add({"TF", kTools, Tr("Fill All w/Current Video"), "", "fill-all", "", kNoButton, [this] { videos_.FillAll(); },
       Needs([this] { return videos_.CanFill(); },
             Tr("Needs a layout of several windows and a video in the current one"))});
  Add({"TFT", kTools, Tr("Fill Top w/Current Video"), "", "", "", kNoButton, [this] { videos_.FillTopRow(); }, rows});
  Add({"TFB", kTools, Tr("Fill Bottom w/Current Video"), "", "", "", kNoButton, [this] { videos_.FillBottomRow(); },
       rows});
  AddSeparator(kTools);
  Add({"PrintCall", kTools, Tr("Print Video(s)"), "CmdAfunctions7", "print", Tr("Print Video(s)"), kSharing,
       [this] { navigation_.Handouts().ShowPrintForm(); },
       Needs([this] { return stage_.AnyVideo(); }, Tr("Open a video first"))});
  Add({"TLAV", kTools, Tr("Loop All Videos"), "", "loop", "", kNoButton, [this] { transport_.ToggleLoopAll(); },
       Needs([this] { return stage_.AnyVideo(); }, Tr("Open a video first")),
       [this] { return transport_.AllLooping(); }});
  const auto several = Needs([this] { return transport_.All().Several(); }, Tr("Needs videos in two windows or more"));
  Add({"AllVideos", kTools, Tr("Move All Videos"), "", "", "", kNoButton, [this] { transport_.ToggleMovesAll(); },
       several, [this] { return transport_.MovesAll(); }});
  Add({"PlayAll", kTools, Tr("Play / Pause All Videos"), "", "play", "", kNoButton,
       [this] { transport_.All().TogglePlay(); }, several});
  Add({"RewindAll", kTools, Tr("Rewind All Videos"), "", "rewind", "", kNoButton, [this] { transport_.All().Rewind(); },
       several});
  Add({"BackAll", kTools, Tr("All Back 1 Frame"), "", "step-back", "", kNoButton,
       [this] { transport_.All().Step(false); }, several});
  Add({"ForwardAll", kTools, Tr("All Next Frame"), "", "step-forward", "", kNoButton,
       [this] { transport_.All().Step(true); }, several});
  AddSeparator(kTools);
  Add({"TVT",
       kTools,
       Tr("Video Timer"),
       "CmdAfunctions3",
       "timer",
       Tr("Show Video Timer"),
       kMeasuring,
       [this] { timer_.ToggleTimer(); },
       {},
       [this] { return timer_.Shown(); }});
  Add({"TZP",
       kTools,
       "Zoom/Pan",
       "",
       "zoom",
       "",
       kNoButton,
       [this] { compare_.ToggleZoomForm(); },
       {},
       [this] { return compare_.ZoomShown(); }});
  Add({"TSFrames", kTools, Tr("Strobe Frames"), "StrobeBtn", "strobe", Tr("Strobe Video"), kPicture,
       [this] { compare_.Strobe().ToggleStrobe(); },
       [this] { return compare_.Strobe().StrobeRunning() ? "" : compare_.Strobe().Obstacle(); },
       [this] { return compare_.Strobe().StrobeRunning(); }});
  Add({"TMAX", kTools, Tr("Maximize Current Video"), "CmdAfunctions6", "maximize", Tr("Maximize Current Video"),
       kScreens, [this] { stage_.ToggleMaximize(); }, NeedsVideo(stageFree), [this] { return stage_.Maximized(); }});
  Add({"TTCarve", kTools, Tr("Transparency Carve"), "", "carve", "", kNoButton,
       [this] { compare_.Carving().ToggleCarve(); }, [this] { return compare_.WhyNoCarve(); },
       [this] { return compare_.Carving().Shown(); }});
  AddSeparator(kTools);
  Add({"TMark", kTools, Tr("Mark Video Position"), "", "mark", "", kNoButton, [this] { AddMark(); }, hasVideo});
  Add({"TMarkoff", kTools, Tr("Video Marks Off"), "", "", "", kNoButton, [this] { transport_.ClearMarks(); },
       Needs([this] { return !stage_.Current().data.Study.Marks.empty(); }, Tr("The current video has no marks"))});
  Add({"LineUp", kTools, Tr("Line Up Videos by Mark"), "", "lock", "", kNoButton,
       [this] {
         const std::string why = compare_.LineUp().Obstacle();
         why.empty() ? compare_.LineUp().ByMark() : transport_.Announce(why);
       },
       several});
  Add({"TN", kTools, Tr("Show Video &Notes"), "Notesbutton", "notes", Tr("Show Video Notes"), kMeasuring,
       [this] { notes_.ToggleNotes(); }, NeedsVideo(stageFree), [this] { return notes_.Shown(); }});
}

void MenuBar::AddAdvanced() {
  const auto hasVideo = NeedsVideo();
  // The handles lie on a picture in its window, of which the mix shows nothing.
  const auto noMix = [this] { return compare_.Transparency().TransparencyOn() ? compare_.StageTaken() : ""; };
  Add({"CLive", kAdvanced, Tr("Live Draw && Hot Zones"), "", "hot-zone", "", kNoButton,
       [this] { navigation_.OpenLiveDraw(); }});
  Add({"CMirror", kAdvanced, Tr("Delayed Mirror"), "", "delayed-mirror", "", kNoButton,
       [this] { navigation_.OpenMirror(); }});
  Add({"TRL",
       kAdvanced,
       Tr("Record Lesson"),
       "CmdAfunctions5",
       "microphone",
       Tr("Record Lesson"),
       kSharing,
       [this] { navigation_.Handouts().ToggleLesson(); },
       {},
       [this] { return navigation_.Handouts().LessonShown(); }});
  Add({"STM", kAdvanced, Tr("&Transparency Mode"), "", "overlay", Tr("Transparency Mode"), kPicture,
       [this] { compare_.Transparency().ToggleTransparency(); }, [this] { return compare_.WhyNoTransparency(); },
       [this] { return compare_.Transparency().TransparencyOn(); }});
  Add({"smbar", kAdvanced, Tr("&Multi-Pic Mode"), "", "multi-picture", Tr("Multi-Picture Mode"), kPicture,
       [this] { compare_.Strip().ToggleStrip(); }, [this] { return compare_.WhyNoStrip(); },
       [this] { return compare_.Strip().Shown(); }});
  Add({"TTES", kAdvanced, Tr("Email- Take SnapShot"), "", "", "", kNoButton,
       [this] { navigation_.Handouts().TakeSnapshot(); },
       Needs([this] { return stage_.AnyVideo(); }, Tr("Open a video first"))});
  Add({"TES", kAdvanced, Tr("Email- Send SnapShots"), "", "send", "", kNoButton,
       [this] { navigation_.Handouts().SendSnapshots(); }});
  Add({"MenuEdit", kAdvanced, Tr("Edit Drawings"), "CmdAfunctions2", "edit", Tr("Open Edit Bar"), kErasing,
       [this] { edits_.ToggleEditBar(); }, NeedsVideo(noMix), [this] { return edits_.Editing(); }});
  Add({"AddMacro", kAdvanced, Tr("Insert Drawing Macro"), "", "", "", kNoButton, [this] { edits_.ToggleMacroForm(); },
       noMix, [this] { return edits_.MacroFormShown(); }});
  Add({"DTMacro", kAdvanced, Tr("Save Drawing Macro"), "", "macro-save", "", kNoButton, [this] { edits_.SaveMacro(); },
       hasVideo});
  Add({"DTClone", kAdvanced, Tr("Clone Drawings"), "CmdAfunctions1", "clone", Tr("Clone Drawings"), kErasing,
       [this] { edits_.CloneDrawings(); },
       Needs([this] { return edits_.CanClone(); },
             Tr("Needs drawings in the current window and a video in another one"))});
  Add({"TASF", kAdvanced, Tr("Advanced Strobe"), "", "advanced-strobe", "", kNoButton,
       [this] { compare_.ToggleStrobeForm(); },
       Needs([this] { return HasVideo() || compare_.StrobeShown(); }, Tr("Open a video first")),
       [this] { return compare_.StrobeShown(); }});
  Add({"LockAll", kAdvanced, Tr("Lock All Four Videos"), "", "", "", kNoButton, [this] { compare_.Locks().LockAll(); },
       Needs([this] { return compare_.Locks().CanLockAll(); },
             Tr("Needs videos in windows 1 to 4, in a layout of four windows or more")),
       [this] { return compare_.Locks().AllLocked(); }});
  AddSeparator(kAdvanced);
  Add({"TSaveClip", kAdvanced, Tr("Save Video with Drawings"), "", "clip", Tr("Save Video with Drawings"), kSharing,
       [this] { navigation_.Handouts().ShowClipForm(); }, hasVideo});
  Add({"TCopyPicture", kAdvanced, Tr("Copy Picture"), "", "", "", kNoButton,
       [this] { navigation_.Handouts().CopyPicture(); }, hasVideo});
  Add({"TSavePicture", kAdvanced, Tr("Save Picture"), "", "", "", kNoButton,
       [this] { navigation_.Handouts().SavePicture(); }, hasVideo});
  Add({"TReport", kAdvanced, "Report...", "", "", "", kNoButton, [this] { navigation_.Handouts().ShowReportForm(); },
       Needs([this] { return stage_.AnyVideo(); }, Tr("Open a video first"))});
  Add({"cmdDualPlay", "", "", "", "lock", Tr("Lock Videos Together"), kPicture,
       [this] { compare_.Locks().ToggleLock(); },
       Needs([this] { return compare_.Locks().CanLock(); },
             Tr("Needs videos in windows 1 and 2, or 3 and 4, side by side")),
       [this] { return compare_.Locks().IsLocked(stage_.CurrentWindow); }});
}

void MenuBar::AddSetup() {
  const auto hasVideo = NeedsVideo();
  const auto unlocked =
      Needs([this] { return !compare_.Locks().IsLocked(stage_.CurrentWindow); }, Tr("Unlock the videos first"));
  Add({"mnuDownloadVideos", kSetup, Tr("Download Model Videos"), "", "", "", kNoButton,
       [this] { navigation_.Handouts().ShowModelsForm(); }});
  Add({"TCal", kSetup, Tr("Calculate Distance for Lines"), "CmdAfunctions4", "ruler", Tr("Calibrate Ruler"), kMeasuring,
       [this] { ruler_.ToggleCalibration(); }, hasVideo, [this] { return ruler_.Shown(); }});
  Add({"TrueRate", kSetup, Tr("True Frame Rate..."), "", "", "", kNoButton, [this] { view_.ShowRateForm(); },
       hasVideo});
  Add({"TAGrid",
       kSetup,
       Tr("Adjust Grid Size"),
       "",
       "",
       "",
       kNoButton,
       [this] { edits_.ToggleGridPanel(); },
       {},
       [this] { return edits_.GridPanelShown(); }});
  Add({"VidTest", kSetup, Tr("Test Video Display rate"), "", "", "", kNoButton, [this] { rateTest_.StartRateTest(); },
       NeedsVideo(unlocked), [this] { return rateTest_.Running(); }});
  Add({"MenuReverseFields", kSetup, Tr("Reverse Field Order"), "", "", "", kNoButton,
       [this] { videos_.ToggleReverseFields(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->ReverseFields(); }});
  Add({"MenuSplitFields", kSetup, Tr("Split Video Fields"), "", "", "", kNoButton,
       [this] { videos_.ToggleSplitFields(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->SplitFields(); }});
}

std::vector<const Command*> MenuBar::WindowMenu() const {
  std::vector<const Command*> live;
  for (const char* item : kWindowMenu) {
    const Command* command = Find(item);
    if (!command && !HasVideo()) break;  // an empty window can only be opened: that is the first group
    if (!command && !live.empty() && live.back()) live.push_back(nullptr);
    if (command && command->Reason().empty()) live.push_back(command);
  }
  while (!live.empty() && !live.back()) live.pop_back();
  return live;
}

/// What only keys and hints do.
void MenuBar::AddKeysAlone() {
  const auto add = [this](std::string item, std::function<void()> run) {
    Add({std::move(item), "", "", "", "", "", kNoButton, std::move(run)});
  };
  add("Escape", [this] { Escape(); });
  add("PlayPause", [this] { transport_.PlayPause(); });
  add("PlayForward", [this] { transport_.PlayForward(); });
  add("Pause", [this] { transport_.Pause(); });
  add("ToFirst", [this] { transport_.ToFirst(); });
  add("ToLast", [this] { transport_.ToLast(); });
  add("LeapBack", [this] { transport_.Leap(false); });
  add("LeapForward", [this] { transport_.Leap(true); });
  add("Quit", [this] { navigation_.QuitProgram(); });
  add("LastRuler", [this] { ruler_.TakeLastRuler(); });
  add("NameMark", [this] { view_.NameLastMark(); });
  add("PanUp", [this] { stage_.Pan(0, -kPanStep); });
  add("PanDown", [this] { stage_.Pan(0, kPanStep); });
  add("PanLeft", [this] { stage_.Pan(-kPanStep, 0); });
  add("PanRight", [this] { stage_.Pan(kPanStep, 0); });
  add("WholePicture", [this] { stage_.ResetZoom(); });
  add("ZoomIn", [this] { stage_.SetZoom(stage_.Current().VideoZoom + kZoomStep); });
  add("ZoomOut", [this] { stage_.SetZoom(stage_.Current().VideoZoom - kZoomStep); });
  add("ZoomNone", [this] { stage_.SetZoom(1.0); });
  for (int slot = 1; slot <= 4; ++slot) add("Window" + std::to_string(slot), [this, slot] { SelectByKeypad(slot); });
}

void MenuBar::TakeKeys(bool editor) {
  const auto find = [this](const std::string& item) -> Command& {
    return *std::ranges::find(commands_, item, &Command::item);
  };
  for (Command& command : commands_) {
    command.keys.clear();
    command.keyInColumn = editor;
  }
  for (const KeyRow& row : KeyRows()) {
    if (row.set != KeySet::Both && (row.set == KeySet::Editor) != editor) continue;
    // What an editor is used to is what the menus tell.
    auto& keys = find(row.item).keys;
    keys.insert(row.set == KeySet::Editor ? keys.begin() : keys.end(), row.key);
  }
  for (int tool = 0; tool < 12; ++tool) find("MenuDraw" + std::to_string(tool)).keys.push_back(Key(kKeyF1 + tool));
  for (const ScreenMode& mode : ScreenModes()) find(std::string(mode.Item)).keys.push_back(Key(kKey0 + mode.Mode, 0));
}

}  // namespace kinalyx
