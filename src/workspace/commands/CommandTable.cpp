// The command table: what the menus and the tool strip hold, in their order.

#include <algorithm>
#include <iterator>
#include <string_view>

#include "video/KeyCodes.h"
#include "workspace/commands/DrawToolWords.h"
#include "workspace/commands/MenuBar.h"
#include "workspace/transport/Speeds.h"

namespace kinalyx {
namespace {

constexpr const char* kGoTo = "&Go To";
constexpr const char* kVideo = "&Video";
constexpr const char* kPlaying = "&Video/Speed and Part Played";
constexpr const char* kDraw = "&Draw";
constexpr const char* kMoments = "&Draw/Seen When";
constexpr const char* kWindows = "&Windows";
constexpr const char* kTools = "&Tools";
constexpr const char* kAdvanced = "Advanced";
constexpr const char* kSetup = "Setup";

// Groups of the tool strip, from left to right.
enum Group { kNoButton, kOpening, kScreens, kDrawing, kErasing, kPicture, kMeasuring, kSharing };

struct ScreenButton {
  int mode;
  const char* tip;
};

/// Every layout has its button; the four of old carry their old names.
constexpr ScreenButton kScreenButtons[] = {
    {1, "Single Screen"},
    {2, "Double Screen"},
    {7, "Double Screen, one over the other"},
    {5, "Triple Screen, side by side"},
    {3, "Triple Screen"},
    {4, "Quad Screen"},
    {6, "Six Windows"},
    {8, "Eight Windows"},
};

/// What stands in the menus or under a key as well, and is wanted least often on the strip.
constexpr std::string_view kSpareButtons[] = {
    "Closeallbtn",     "Scn3",           "Scn5",  "Scn6",        "Scn7",
    "RedoBtn",         "CmdAfunctions1", "smbar", "ribShowGrid", "CmdAfunctions7",
    "CentreCircleBtn", "DDSLBtn"};

/// Which keys a row belongs to.
enum class KeySet { Both, Classic, Editor };

struct KeyRow {
  const char* item;
  KeyStroke key;
  KeySet set = KeySet::Both;
};

constexpr KeyStroke Key(int code, std::optional<int> shift = {}) { return {KeyStroke::Kind::Code, code, shift}; }
constexpr KeyStroke Letter(char capital) { return {KeyStroke::Kind::Letter, capital, {}}; }

/// What each key does, by the name of its command. F1 to F12 and 1 to 8 are the drawing tools and the layouts,
/// in the order of the menus.
constexpr KeyRow kKeyRows[] = {
    {"VLib", Key(kKeyHome), KeySet::Classic},
    {"EKTMM", Key(kKeyEnd), KeySet::Classic},
    {"CG", Key(kKeyPageUp)},
    {"PDkeyA", Key(kKeyPageDown)},
    {"vo", Letter('O'), KeySet::Classic},
    {"vr", Letter('R')},
    {"vF", Key(kKeyUp)},
    {"vplay", Letter('P')},
    {"PlayPause", Key(kKeySpace, 0), KeySet::Classic},
    {"vplay", Key(kKeySpace, 0), KeySet::Editor},
    {"VL", Key(kKeyDown)},
    {"vp", Key(kKeyLeft)},
    {"vn", Key(kKeyRight)},
    {"vloop", Letter('L'), KeySet::Classic},
    {"vs", Letter('S')},
    {"vFlip", Letter('F')},
    {"MZoom", Letter('Z')},
    {"MnuClose", Letter('C')},
    {"Escape", Key(kKeyEscape)},
    {"ReopenVideos", Key('T', kShift | kCtrl)},
    {"UndoDrawing", Key('Z', kCtrl)},
    {"RedoDrawing", Key('Z', kShift | kCtrl)},
    {"Lastcadoff", Key(kKeyDelete)},
    {"TMark", Letter('M')},
    {"NextDrawing", Letter('N')},
    {"HideDrawings", Letter('V')},
    {"ShapeLabels", Letter('D')},
    {"LineUp", Letter('U')},
    {"TTES", Key(kKeyCtrl), KeySet::Classic},
    {"TSaveClip", Key('E', kCtrl)},
    {"TCopyPicture", Key('C', kCtrl)},
    {"PanUp", Key(kKeyNumpad0 + 8)},
    {"PanUp", Letter('Y')},
    {"PanDown", Key(kKeyNumpad0 + 2)},
    {"PanDown", Letter('B')},
    {"PanLeft", Key(kKeyNumpad0 + 4)},
    {"PanLeft", Letter('G')},
    {"PanRight", Key(kKeyNumpad0 + 6)},
    {"PanRight", Letter('H')},
    {"WholePicture", Key(kKeyNumpad0 + 5)},
    {"WholePicture", Letter('J'), KeySet::Classic},
    {"ZoomIn", Letter('+')},
    {"ZoomIn", Letter('=')},
    {"ZoomOut", Letter('-')},
    {"ZoomNone", Letter('*')},
    {"FitPicture", Letter('W')},
    {"Slower", Letter('[')},
    {"Faster", Letter(']')},
    {"AllVideos", Letter('A')},
    {"PlayAll", Key(kKeySpace, kShift)},
    {"RewindAll", Key(kKeyUp, kCtrl)},
    {"BackAll", Key(kKeyLeft, kCtrl)},
    {"ForwardAll", Key(kKeyRight, kCtrl)},
    {"VLib", Key(kKeyHome, kCtrl), KeySet::Editor},
    {"EKTMM", Key(kKeyEnd, kCtrl), KeySet::Editor},
    {"vo", Key('O', kCtrl), KeySet::Editor},
    {"vloop", Key('L', kCtrl), KeySet::Editor},
    {"WholePicture", Key(kKey0, 0), KeySet::Editor},
    {"PlayBackward", Letter('J'), KeySet::Editor},
    {"Pause", Letter('K'), KeySet::Editor},
    {"PlayForward", Letter('L'), KeySet::Editor},
    {"RangeStart", Letter('I'), KeySet::Editor},
    {"RangeEnd", Letter('O'), KeySet::Editor},
    {"ToFirst", Key(kKeyHome, 0), KeySet::Editor},
    {"ToLast", Key(kKeyEnd, 0), KeySet::Editor},
    {"LeapBack", Key(kKeyLeft, kShift), KeySet::Editor},
    {"LeapForward", Key(kKeyRight, kShift), KeySet::Editor},
    {"SaveNow", Key('S', kCtrl), KeySet::Editor},
    {"MnuClose", Key('W', kCtrl), KeySet::Editor},
    {"Quit", Key('Q', kCtrl), KeySet::Editor},
    {"Window1", Key(kKeyNumpad0 + 7)},
    {"Window2", Key(kKeyNumpad0 + 9)},
    {"Window3", Key(kKeyNumpad0 + 3)},
    {"Window4", Key(kKeyNumpad0 + 1)},
};

/// What fits a window, in the order of its menu; an empty name divides.
constexpr const char* kWindowMenu[] = {"vo",    "OpenFromDisk", "ReopenVideos", "MnuClose",
                                       "",      "FitPicture",   "TMAX",         "vFlip",
                                       "",      "TMark",        "LineUp",       "",
                                       "vloop", "TSFrames",     "TN",           "PrintCall",
                                       "",      "TSaveClip",    "TCopyPicture", "TSavePicture"};

using Obstacle = std::function<std::string()>;

/// The obstacle of a command that needs `met` to hold.
Obstacle Needs(std::function<bool()> met, const char* why) {
  return [met = std::move(met), why] { return std::string(met() ? "" : why); };
}

}  // namespace

std::function<std::string()> MenuBar::NeedsVideo(std::function<std::string()> further) const {
  return [this, further = std::move(further)] {
    return !HasVideo() ? "Open a video first" : further ? further() : std::string();
  };
}

void MenuBar::Add(Command command) {
  const std::string& name = command.button.empty() ? command.item : command.button;
  command.spare = std::ranges::find(kSpareButtons, name) != std::end(kSpareButtons);
  commands_.push_back(std::move(command));
}

void MenuBar::AddSeparator(const char* menu) { Add({"", menu, "", "", "", "", kNoButton, nullptr}); }

void MenuBar::AddGoTo() {
  const auto to = [this](const char* item, const char* caption, const char* icon, std::function<void()> page) {
    Add({item, kGoTo, caption, "", icon, "", kNoButton, std::move(page)});
  };
  to("VLib", "Student Profiles - Home key", "students", [this] { navigation_.GoToLibrary(); });
  to("CG", "Capture Video - Page Up key", "camera", [this] { navigation_.GoToCapture(); });
  to("PDkeyA", "Analyze Video - Page Down key", "analyze", [this] { stage_.FocusKeyBox(); });
  to("EKTMM", "Main Menu - End key", "home", [this] { navigation_.GoToMainMenu(); });
  to("GoHelp", "Help and Demos", "help", [this] { navigation_.GoToHelp(); });
}

/// In a lesson nobody is shown lists of names: what stands open is done with, as by its button "Done".
void MenuBar::cmdOpen() {
  if (!navigation_.Handouts().LessonUnderWay()) return view_.ShowOpenPanel();
  view_.CloseOpenPanel();
  if (compare_.Transparency().TransparencyOn())
    for (const int slot : {1, 2})
      if (stage_.HasVideo(slot)) stage_.MP(slot).Refresh();
  transport_.Announce("While a lesson is recorded, videos are dropped on a window or opened from the disk");
}

void MenuBar::AddVideo() {
  const auto hasVideo = NeedsVideo();
  const auto anyVideo = Needs([this] { return stage_.AnyVideo(); }, "Open a video first");
  const auto plain = [&](const char* item, const char* caption, const char* icon, std::function<void()> run) {
    Add({item, kVideo, caption, "", icon, "", kNoButton, std::move(run), hasVideo});
  };
  Add({"vo", kVideo, "O - Open New Video", "Openbtn", "open", "Open Videos", kOpening, [this] { cmdOpen(); }});
  Add({"OpenFromDisk", kVideo, "Open From Disk...", "", "", "", kNoButton, [this] { view_.OpenFromDisk(); }});
  plain("vr", "R - Rewind Video", "rewind", [this] { transport_.Rewind(); });
  plain("vplay", "P - Play / Pause Toggle", "play", [this] { transport_.TogglePlay(); });
  Add({"vloop", kVideo, "L - Loop Video", "", "loop", "", kNoButton, [this] { transport_.ToggleLoop(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->Repeat(); }});
  Add({"vs", kVideo, "S - Speed Toggle", "", "slow", "", kNoButton, [this] { transport_.ToggleSlomo(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->Speed() != 100; }});
  Add({"vFlip", kVideo, "F - Flip Video", "CmdAfunctions0", "flip", "Flip Video", kPicture,
       [this] { videos_.ToggleFlip(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->FlipHorizontal(); }});
  Add({"MZoom",
       kVideo,
       "Z - Zoom Videos",
       "",
       "zoom",
       "",
       kNoButton,
       [this] { compare_.ToggleZoomForm(); },
       {},
       [this] { return compare_.ZoomShown(); }});
  Add({"MnuClose", kVideo, "C - Close Current Video", "Closebtn", "close", "Close Current Video", kOpening,
       [this] {
         if (videos_.CloseVideo(stage_.CurrentWindow)) transport_.DisplayData("");
       },
       hasVideo});
  Add({"MnuCloseAll", kVideo, "Esc - Close All Videos", "Closeallbtn", "close-all", "Close All Videos", kOpening,
       [this] { videos_.CloseAll(videos_.Stood()); }, anyVideo});
  Add({"ReopenVideos", kVideo, "Reopen Closed Videos", "", "", "", kNoButton, [this] { videos_.ReopenClosed(); },
       Needs([this] { return videos_.CanReopen(); }, "No video was closed, or every window is taken")});
  AddSeparator(kVideo);
  plain("vF", "Up Arrow - Rewind", "", [this] { transport_.Rewind(); });
  plain("VL", "Down Arrow - Play", "", [this] { transport_.TogglePlay(); });
  plain("vp", "Left Arrow - Back 1 Frame", "step-back", [this] { transport_.StepBack(); });
  plain("vn", "Right Arrow - Next Frame", "step-forward", [this] { transport_.StepForward(); });
  AddPlaying();
}

void MenuBar::AddPlaying() {
  const auto hasVideo = NeedsVideo();
  const auto unlocked =
      NeedsVideo([this] { return compare_.Locks().IsLocked(stage_.CurrentWindow) ? "Unlock the videos first" : ""; });
  const auto add = [&](const char* item, const char* caption, Obstacle obstacle, std::function<void()> run) {
    Add({item, kPlaying, caption, "", "", "", kNoButton, std::move(run), std::move(obstacle)});
  };
  AddSeparator(kVideo);
  Add({"FitPicture", kVideo, "Fit Picture in Window", "", "fit", "", kNoButton, [this] { compare_.Zoom().ToggleFit(); },
       hasVideo, [this] { return HasVideo() && stage_.Current().Fits; }});
  add("Slower", "Slower", hasVideo, [this] { transport_.SetSpeed(NextSpeed(transport_.Speed(), false)); });
  add("Faster", "Faster", hasVideo, [this] { transport_.SetSpeed(NextSpeed(transport_.Speed(), true)); });
  add("PlayBackward", "Play Backward", hasVideo, [this] { transport_.PlayBackward(); });
  add("RangeStart", "Play From Here", unlocked, [this] { transport_.ToggleRangeStart(); });
  add("RangeEnd", "Play Up To Here", unlocked, [this] { transport_.ToggleRangeEnd(); });
  add("RangeOff", "Play Whole Video",
      Needs([this] { return transport_.HasRange(); }, "The whole of the current video is played"),
      [this] { transport_.PlayWholeVideo(); });
  Add({"SaveNow", kVideo, "Save Drawings and Notes", "", "", "", kNoButton, [this] { SaveNow(); },
       Needs([this] { return stage_.AnyVideo(); }, "Open a video first")});
}

void MenuBar::AddDraw() {
  const auto hasVideo = NeedsVideo();
  const auto hasShapes = Needs([this] { return HasVideo() && tools_.HasShapes(stage_.CurrentWindow); },
                               "Nothing is drawn in the current window");
  const auto inHand = [this](int kind, bool straight) {
    return tools_.Drawing() && tools_.InHand() == ToolInHand::Plain && tools_.DrawKind() == kind &&
           tools_.Engine().StraightMode == straight;
  };
  const auto heldAs = [this](ToolInHand way) { return tools_.Drawing() && tools_.InHand() == way; };
  const std::size_t firstTool = commands_.size();
  for (int kind = 0; kind < static_cast<int>(std::size(kDrawTools)); ++kind) {
    const DrawToolWords& tool = kDrawTools[kind];
    Add({"MenuDraw" + std::to_string(kind), kDraw, tool.caption, "CmdMakeShape" + std::to_string(kind), tool.icon,
         tool.tip, kDrawing, [this, kind] { tools_.ChooseFromMenu(kind); }, hasVideo,
         [inHand, kind] { return inHand(kind, false); }});
  }
  Add({"MenuDraw11", kDraw, "F12 - Grid", "ribShowGrid", "grid", "Grid", kDrawing, [this] { edits_.ToggleGrid(); },
       hasVideo, [this] { return HasVideo() && edits_.GridOn(); }});
  AddSeparator(kDraw);
  Add({"DDSL", kDraw, "Draw Straight Line", "DDSLBtn", "straight-line", "Draw Straight Line", kDrawing,
       [this] { tools_.TakeStraightLine(); }, hasVideo, [inHand] { return inHand(kLine, true); }});
  Add({"DDSA", kDraw, "Draw Straight Arrow", "DDSABtn", "straight-arrow", "Draw Straight Arrow", kDrawing,
       [this] { tools_.TakeStraightArrow(); }, hasVideo, [inHand] { return inHand(kArrow, true); }});
  Add({"DrawCentreCircle", kDraw, "Draw Circle from Center", "CentreCircleBtn", "centre-circle",
       "Draw Circle from Center", kDrawing, [this] { tools_.TakeCentreCircle(); }, hasVideo,
       [heldAs] { return heldAs(ToolInHand::CentreCircle); }});
  Add({"DrawText", kDraw, "Draw Text", "DrawTextBtn", "text", "Draw Text", kDrawing, [this] { tools_.TakeTextTool(); },
       hasVideo, [heldAs] { return heldAs(ToolInHand::Text); }});
  commands_[firstTool + kAngle].how = "click one end, the corner, the other end";
  commands_[firstTool + kSwingPath].how = "one click on each picture, which moves on by itself; a right click ends it";
  for (std::size_t i = firstTool; i < commands_.size(); ++i) {
    Command& tool = commands_[i];
    if (tool.group == kDrawing && tool.item != "MenuDraw11") tool.twice = [this] { tools_.StayInHand(); };
  }
  AddSeparator(kDraw);
  Add({"UndoDrawing", kDraw, "Undo", "UndoBtn", "undo", "Undo (Ctrl+Z)", kErasing, [this] { edits_.Undo(); },
       Needs([this] { return HasVideo() && edits_.CanUndo(); },
             "No change of the drawings in the current window to undo")});
  Add({"RedoDrawing", kDraw, "Redo", "RedoBtn", "redo", "Redo (Ctrl+Shift+Z)", kErasing, [this] { edits_.Redo(); },
       Needs([this] { return HasVideo() && edits_.CanRedo(); },
             "No change of the drawings in the current window was undone")});
  Add({"Lastcadoff", "", "", "", "delete-last", "Delete Last Object Drawn", kErasing, [this] { tools_.DeleteLast(); },
       hasShapes});
  Add({"Cadoffbutton", "", "", "", "trash", "Delete All Drawings in Window", kErasing, [this] { tools_.DeleteAll(); },
       hasShapes});
}

/// When drawings are seen.
void MenuBar::AddTimes() {
  const auto hasDrawing =
      Needs([this] { return HasVideo() && times_.Time(); }, "Nothing is drawn in the current window");
  const auto plain = [&](const char* item, const char* caption, std::function<void()> run,
                         std::function<bool(const ShapeTime&)> is) {
    Add({item, kMoments, caption, "", "", "", kNoButton, std::move(run), hasDrawing, [this, is = std::move(is)] {
           const auto time = times_.Time();
           return HasVideo() && time && is(*time);
         }});
  };
  AddSeparator(kDraw);
  plain(
      "DrawingAlways", "On Whole Video", [this] { times_.ShowAlways(); }, &ShapeTime::Always);
  plain(
      "DrawingHere", "On This Picture", [this] { times_.ShowHere(); },
      [](const ShapeTime& time) { return time.First == time.Last; });
  plain(
      "DrawingFromHere", "From Here On", [this] { times_.ShowFromHere(); }, [](const ShapeTime&) { return false; });
  plain(
      "DrawingUntilHere", "Until Here", [this] { times_.ShowUntilHere(); }, [](const ShapeTime&) { return false; });
  Add({"NextDrawing", kMoments, "Next Drawing", "", "", "", kNoButton, [this] { times_.GoToNext(); },
       Needs([this] { return HasVideo() && times_.AnyTimed(); },
             "No drawing of the current video belongs to a moment")});
  Add({"HideDrawings",
       kDraw,
       "Hide Drawings",
       "",
       "",
       "",
       kNoButton,
       [this] { tools_.HideDrawings(!tools_.Hidden()); },
       {},
       [this] { return tools_.Hidden(); }});
  Add({"ShapeLabels",
       kDraw,
       "Figures Beside Drawings",
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
    const char* tip = "";
    for (const ScreenButton& button : kScreenButtons)
      if (button.mode == mode.Mode) tip = button.tip;
    Add({std::string(mode.Item),
         kWindows,
         std::string(mode.Caption),
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
                          "Needs a layout of four, six or eight windows and a video in the current one");
  const auto stageFree = [this] { return compare_.StageTaken(); };
  Add({"TF", kTools, "Fill All w/Current Video", "", "fill-all", "", kNoButton, [this] { videos_.FillAll(); },
       Needs([this] { return videos_.CanFill(); },
             "Needs a layout of several windows and a video in the current one")});
  Add({"TFT", kTools, "Fill Top w/Current Video", "", "", "", kNoButton, [this] { videos_.FillTopRow(); }, rows});
  Add({"TFB", kTools, "Fill Bottom w/Current Video", "", "", "", kNoButton, [this] { videos_.FillBottomRow(); }, rows});
  AddSeparator(kTools);
  Add({"PrintCall", kTools, "Print Video(s)", "CmdAfunctions7", "print", "Print Video(s)", kSharing,
       [this] { navigation_.Handouts().ShowPrintForm(); },
       Needs([this] { return stage_.AnyVideo(); }, "Open a video first")});
  Add({"TLAV", kTools, "Loop All Videos", "", "loop", "", kNoButton, [this] { transport_.ToggleLoopAll(); },
       Needs([this] { return stage_.AnyVideo(); }, "Open a video first"), [this] { return transport_.AllLooping(); }});
  const auto several = Needs([this] { return transport_.All().Several(); }, "Needs videos in two windows or more");
  Add({"AllVideos", kTools, "Move All Videos", "", "", "", kNoButton, [this] { transport_.ToggleMovesAll(); }, several,
       [this] { return transport_.MovesAll(); }});
  Add({"PlayAll", kTools, "Play / Pause All Videos", "", "play", "", kNoButton,
       [this] { transport_.All().TogglePlay(); }, several});
  Add({"RewindAll", kTools, "Rewind All Videos", "", "rewind", "", kNoButton, [this] { transport_.All().Rewind(); },
       several});
  Add({"BackAll", kTools, "All Back 1 Frame", "", "step-back", "", kNoButton, [this] { transport_.All().Step(false); },
       several});
  Add({"ForwardAll", kTools, "All Next Frame", "", "step-forward", "", kNoButton,
       [this] { transport_.All().Step(true); }, several});
  AddSeparator(kTools);
  Add({"TVT",
       kTools,
       "Video Timer",
       "CmdAfunctions3",
       "timer",
       "Show Video Timer",
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
  Add({"TSFrames", kTools, "Strobe Frames", "StrobeBtn", "strobe", "Strobe Video", kPicture,
       [this] { compare_.Strobe().ToggleStrobe(); },
       [this] { return compare_.Strobe().StrobeRunning() ? "" : compare_.Strobe().Obstacle(); },
       [this] { return compare_.Strobe().StrobeRunning(); }});
  Add({"TMAX", kTools, "Maximize Current Video", "CmdAfunctions6", "maximize", "Maximize Current Video", kScreens,
       [this] { stage_.ToggleMaximize(); }, NeedsVideo(stageFree), [this] { return stage_.Maximized(); }});
  Add({"TTCarve", kTools, "Transparency Carve", "", "carve", "", kNoButton,
       [this] { compare_.Carving().ToggleCarve(); }, [this] { return compare_.WhyNoCarve(); },
       [this] { return compare_.Carving().Shown(); }});
  AddSeparator(kTools);
  Add({"TMark", kTools, "Mark Video Position", "", "mark", "", kNoButton, [this] { AddMark(); }, hasVideo});
  Add({"TMarkoff", kTools, "Video Marks Off", "", "", "", kNoButton, [this] { transport_.ClearMarks(); },
       Needs([this] { return !stage_.Current().data.Study.Marks.empty(); }, "The current video has no marks")});
  Add({"LineUp", kTools, "Line Up Videos by Mark", "", "lock", "", kNoButton,
       [this] {
         const std::string why = compare_.LineUp().Obstacle();
         why.empty() ? compare_.LineUp().ByMark() : transport_.Announce(why);
       },
       several});
  Add({"TN", kTools, "Show Video &Notes", "Notesbutton", "notes", "Show Video Notes", kMeasuring,
       [this] { notes_.ToggleNotes(); }, NeedsVideo(stageFree), [this] { return notes_.Shown(); }});
}

void MenuBar::AddAdvanced() {
  const auto hasVideo = NeedsVideo();
  // The handles lie on a picture in its window, of which the mix shows nothing.
  const auto noMix = [this] { return compare_.Transparency().TransparencyOn() ? compare_.StageTaken() : ""; };
  Add({"CLive", kAdvanced, "Live Draw && Hot Zones", "", "hot-zone", "", kNoButton,
       [this] { navigation_.OpenLiveDraw(); }});
  Add({"CMirror", kAdvanced, "Delayed Mirror", "", "delayed-mirror", "", kNoButton,
       [this] { navigation_.OpenMirror(); }});
  Add({"TRL",
       kAdvanced,
       "Record Lesson",
       "CmdAfunctions5",
       "microphone",
       "Record Lesson",
       kSharing,
       [this] { navigation_.Handouts().ToggleLesson(); },
       {},
       [this] { return navigation_.Handouts().LessonShown(); }});
  Add({"STM", kAdvanced, "&Transparency Mode", "", "overlay", "Transparency Mode", kPicture,
       [this] { compare_.Transparency().ToggleTransparency(); }, [this] { return compare_.WhyNoTransparency(); },
       [this] { return compare_.Transparency().TransparencyOn(); }});
  Add({"smbar", kAdvanced, "&Multi-Pic Mode", "", "multi-picture", "Multi-Picture Mode", kPicture,
       [this] { compare_.Strip().ToggleStrip(); }, [this] { return compare_.WhyNoStrip(); },
       [this] { return compare_.Strip().Shown(); }});
  Add({"TTES", kAdvanced, "Email- Take SnapShot", "", "", "", kNoButton,
       [this] { navigation_.Handouts().TakeSnapshot(); },
       Needs([this] { return stage_.AnyVideo(); }, "Open a video first")});
  Add({"TES", kAdvanced, "Email- Send SnapShots", "", "send", "", kNoButton,
       [this] { navigation_.Handouts().SendSnapshots(); }});
  Add({"MenuEdit", kAdvanced, "Edit Drawings", "CmdAfunctions2", "edit", "Open Edit Bar", kErasing,
       [this] { edits_.ToggleEditBar(); }, NeedsVideo(noMix), [this] { return edits_.Editing(); }});
  Add({"AddMacro", kAdvanced, "Insert Drawing Macro", "", "", "", kNoButton, [this] { edits_.ToggleMacroForm(); },
       noMix, [this] { return edits_.MacroFormShown(); }});
  Add({"DTMacro", kAdvanced, "Save Drawing Macro", "", "macro-save", "", kNoButton, [this] { edits_.SaveMacro(); },
       hasVideo});
  Add({"DTClone", kAdvanced, "Clone Drawings", "CmdAfunctions1", "clone", "Clone Drawings", kErasing,
       [this] { edits_.CloneDrawings(); },
       Needs([this] { return edits_.CanClone(); }, "Needs drawings in the current window and a video in another one")});
  Add({"TASF", kAdvanced, "Advanced Strobe", "", "advanced-strobe", "", kNoButton,
       [this] { compare_.ToggleStrobeForm(); },
       Needs([this] { return HasVideo() || compare_.StrobeShown(); }, "Open a video first"),
       [this] { return compare_.StrobeShown(); }});
  Add({"LockAll", kAdvanced, "Lock All Four Videos", "", "", "", kNoButton, [this] { compare_.Locks().LockAll(); },
       Needs([this] { return compare_.Locks().CanLockAll(); },
             "Needs videos in windows 1 to 4, in a layout of four windows or more"),
       [this] { return compare_.Locks().AllLocked(); }});
  AddSeparator(kAdvanced);
  Add({"TSaveClip", kAdvanced, "Save Video with Drawings", "", "clip", "Save Video with Drawings", kSharing,
       [this] { navigation_.Handouts().ShowClipForm(); }, hasVideo});
  Add({"TCopyPicture", kAdvanced, "Copy Picture", "", "", "", kNoButton,
       [this] { navigation_.Handouts().CopyPicture(); }, hasVideo});
  Add({"TSavePicture", kAdvanced, "Save Picture", "", "", "", kNoButton,
       [this] { navigation_.Handouts().SavePicture(); }, hasVideo});
  Add({"TReport", kAdvanced, "Report...", "", "", "", kNoButton, [this] { navigation_.Handouts().ShowReportForm(); },
       Needs([this] { return stage_.AnyVideo(); }, "Open a video first")});
  Add({"cmdDualPlay", "", "", "", "lock", "Lock Videos Together", kPicture, [this] { compare_.Locks().ToggleLock(); },
       Needs([this] { return compare_.Locks().CanLock(); },
             "Needs videos in windows 1 and 2, or 3 and 4, side by side"),
       [this] { return compare_.Locks().IsLocked(stage_.CurrentWindow); }});
}

void MenuBar::AddSetup() {
  const auto hasVideo = NeedsVideo();
  const auto unlocked =
      Needs([this] { return !compare_.Locks().IsLocked(stage_.CurrentWindow); }, "Unlock the videos first");
  Add({"mnuDownloadVideos", kSetup, "Download Model Videos", "", "", "", kNoButton,
       [this] { navigation_.Handouts().ShowModelsForm(); }});
  Add({"TCal", kSetup, "Calculate Distance for Lines", "CmdAfunctions4", "ruler", "Calibrate Ruler", kMeasuring,
       [this] { ruler_.ToggleCalibration(); }, hasVideo, [this] { return ruler_.Shown(); }});
  Add({"TrueRate", kSetup, "True Frame Rate...", "", "", "", kNoButton, [this] { view_.ShowRateForm(); }, hasVideo});
  Add({"TAGrid",
       kSetup,
       "Adjust Grid Size",
       "",
       "",
       "",
       kNoButton,
       [this] { edits_.ToggleGridPanel(); },
       {},
       [this] { return edits_.GridPanelShown(); }});
  Add({"VidTest", kSetup, "Test Video Display rate", "", "", "", kNoButton, [this] { rateTest_.StartRateTest(); },
       NeedsVideo(unlocked), [this] { return rateTest_.Running(); }});
  Add({"MenuReverseFields", kSetup, "Reverse Field Order", "", "", "", kNoButton,
       [this] { videos_.ToggleReverseFields(); }, hasVideo,
       [this] { return HasVideo() && stage_.Current().MP->ReverseFields(); }});
  Add({"MenuSplitFields", kSetup, "Split Video Fields", "", "", "", kNoButton, [this] { videos_.ToggleSplitFields(); },
       hasVideo, [this] { return HasVideo() && stage_.Current().MP->SplitFields(); }});
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
  for (const KeyRow& row : kKeyRows) {
    if (row.set != KeySet::Both && (row.set == KeySet::Editor) != editor) continue;
    // What an editor is used to is what the menus tell.
    auto& keys = find(row.item).keys;
    keys.insert(row.set == KeySet::Editor ? keys.begin() : keys.end(), row.key);
  }
  for (int tool = 0; tool < 12; ++tool) find("MenuDraw" + std::to_string(tool)).keys.push_back(Key(kKeyF1 + tool));
  for (const ScreenMode& mode : ScreenModes()) find(std::string(mode.Item)).keys.push_back(Key(kKey0 + mode.Mode, 0));
}

}  // namespace kinalyx
