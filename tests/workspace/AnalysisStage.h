#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "FakeCompareView.h"
#include "core/Settings.h"
#include "library/Sidecar.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "video/KeyCodes.h"
#include "workspace/AnalysisWorkspace.h"

namespace kinalyx::test {

/// A window that only remembers what it was told.
class FakeWindow final : public IWorkspaceView {
 public:
  int width = 1280;  ///< pixels of the stage
  int height = 720;
  std::array<AVIControl*, kSlots + 1> players{};
  std::map<int, TwipRect> cells;  ///< shown ones
  std::map<int, TwipRect> films;
  std::map<int, bool> borders;  ///< true: current
  std::map<int, std::string> titles;
  std::map<int, std::string> lines;
  std::map<int, std::string> zooms;
  TwipRect playBar;
  int range = -1, value = -1, speed = 0;
  std::pair<int, int> played;
  bool playing = false, slomo = false, loop = false;
  std::string line, counter, text, calibrationLength, reading, rate;
  bool negative = false, timer = false, calibration = false, lists = false, markList = false;
  int markNamings = 0;
  std::vector<int> marks;
  std::string videoRuler;
  std::map<int, std::pair<std::string, std::string>> hints;  ///< words and command
  std::optional<Colour> colour;
  std::optional<std::string> notes;
  int openPanels = 0;
  int windowMenus = 0;
  int updates = 0;  ///< of menus and buttons

 private:
  int MainPanelWidth() override { return width * kTwipsPerPixel; }
  int MainPanelHeight() override { return height * kTwipsPerPixel; }
  void PlaceCell(int slot, const TwipRect& border, const TwipRect&) override { cells[slot] = border; }
  void HideCell(int slot) override { cells.erase(slot); }
  void PlaceFilm(int slot, const TwipRect& place) override { films[slot] = place; }
  void PlacePlayer(int slot, const TwipRect& place, bool shown) override {
    if (shown)
      players[static_cast<std::size_t>(slot)]->Resize(place.Width / kTwipsPerPixel, place.Height / kTwipsPerPixel);
  }
  void PaintBorder(int slot, bool current) override { borders[slot] = current; }
  void SetCellTitle(int slot, const std::string& title) override { titles[slot] = title; }
  void SetCellPosition(int slot, int, int, const std::string& words) override { lines[slot] = words; }
  void SetZoomFigure(int slot, const std::string& figure) override { zooms[slot] = figure; }
  void PlacePlayBar(const TwipRect& place) override { playBar = place; }
  void SetScrollRange(int, int maximum) override { range = maximum; }
  void SetScrollValue(int position) override { value = position; }
  void SetPlayRange(int first, int last) override { played = {first, last}; }
  void SetPlayPicture(bool on) override { playing = on; }
  void SetSlomoButton(bool down) override { slomo = down; }
  void SetSpeed(int percent) override { speed = percent; }
  void SetLoopButton(bool down) override { loop = down; }
  void SetDisplayLine(const std::string& words, const std::string& number) override {
    line = words;
    counter = number;
  }
  void SetMarks(const std::vector<ShownMark>& shown) override {
    marks.clear();
    for (const ShownMark& mark : shown) marks.push_back(mark.position);
  }
  void SetDisplayText(const std::string& words) override { text = words; }
  void ShowVectorColor(Colour shown) override { colour = shown; }
  void HideVectorColor() override { colour.reset(); }
  void SetColorButton(int) override {}
  void ShowNotesPnl(const TwipRect&, const std::string& shown) override { notes = shown; }
  void HideNotesPnl() override { notes.reset(); }
  void ShowVideoTimer(bool shown) override { timer = shown; }
  void SetVideoTimer(const std::string& shown, bool below, const std::string& perSecond) override {
    reading = shown;
    negative = below;
    rate = perSecond;
  }
  void ShowCalibration(bool shown) override { calibration = shown; }
  void SetVideoRuler(const std::string& words) override { videoRuler = words; }
  void ShowHint(int slot, const std::string& words, const std::string& command) override {
    hints[slot] = {words, command};
  }
  void SetCalibrationLength(const std::string& length) override { calibrationLength = length; }
  void ShowRateForm() override {}
  void ShowOpenPanel() override {
    ++openPanels;
    lists = true;
  }
  void ShowWindowMenu() override { ++windowMenus; }
  void OpenFromDisk() override {}
  bool CloseMomentary() override { return std::exchange(markList, false); }
  void NameLastMark() override { ++markNamings; }
  bool CloseOpenPanel() override { return std::exchange(lists, false); }
  void CommandsChanged() override { ++updates; }
  void FocusKeyBox() override {}
};

/// The windows of the editing of drawings; they only remember what they were told.
class FakeEditWindows final : public IDrawingEditsView {
 public:
  bool bar = false, macroForm = false, gridPanel = false, multi = false;
  std::map<int, bool> handles;  ///< enabled
  std::optional<SelectionMarks> marks;
  std::string words;
  std::vector<std::string> macros;
  std::optional<std::string> macroName;  ///< what the user will type
  std::optional<int> cloneTarget;        ///< what the user will choose
  std::vector<int> offeredTargets;

 private:
  void ShowEditBar(bool shown) override { bar = shown; }
  void PlaceEditBar(int) override {}
  void EnableHandle(EditHandle handle, bool enabled) override { handles[handle] = enabled; }
  void SetMultiButton(bool, bool down) override { multi = down; }
  void ShowRotationGuide(bool) override {}
  int HandleWidth(EditHandle) override { return 32 * kTwipsPerPixel; }
  int HandleHeight(EditHandle) override { return 32 * kTwipsPerPixel; }
  bool HandleEnabled(EditHandle handle) override { return handles[handle]; }
  void ShowSelection(int, const std::optional<SelectionMarks>& at, const std::string& said) override {
    marks = at;
    words = said;
  }
  std::optional<std::string> AskMacroName(const ShapeList&) override { return macroName; }
  void ShowMacroForm(bool shown) override { macroForm = shown; }
  void FillMacroList(const std::vector<std::string>& names, int) override { macros = names; }
  void ShowGridPanel(bool shown) override { gridPanel = shown; }
  std::optional<int> AskCloneTarget(int, const std::vector<int>& targets) override {
    offeredTargets = targets;
    return cloneTarget;
  }
};

/// The whole analysis section with real players and no window: what a test does to it is what a user does.
class AnalysisStage : private IFrameInterface, private INavigation {
 public:
  /// @param width, height  pixels of the stage
  /// @param compare  the windows of the comparing modes; without them the stage starts at once, and they only remember
  /// @param sound  where playing videos are heard
  explicit AnalysisStage(const std::string& layout = "1", int width = 1280, int height = 720,
                         ICompareView* compare = nullptr, ISoundOutput* sound = nullptr)
      : folder(NewFolder()),
        settings(host, folder + "/data", folder),
        analysis(host, settings, scheduler, window, edits, compare ? *compare : compareView, *this, sound) {
    settings.LoadSettings();
    // Places are counted in pictures that fill their cells.
    settings.VideoFit = settings.BarPictures = 0;
    window.width = width;
    window.height = height;
    compareView.mixer = &analysis.Compare().Transparency();
    compareView.mixer->Resize(width, height);
    Stage().ScreenLayout = layout;
    for (int slot = 1; slot <= kSlots; ++slot) {
      auto& player = players_[static_cast<std::size_t>(slot - 1)];
      player = std::make_unique<AVIControl>(services, nullptr);
      window.players[static_cast<std::size_t>(slot)] = player.get();
      analysis.AttachPlayer(slot, *player);
      player->SetFrameInterface(this);
    }
    if (!compare) Start();
  }
  /// With windows of the test's own: they are there now, and may be spoken to.
  void Start() { analysis.Start(); }
  ~AnalysisStage() { analysis.DetachPlayers(); }

  /// A video of its own, with no sidecar yet.
  std::string Video(const std::string& name, const TestVideo& kind = MjpegVideo(30)) {
    const std::string path = folder + "/" + name;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::filesystem::copy_file(MakeTestVideo(kind), path, std::filesystem::copy_options::overwrite_existing);
    return path;
  }
  bool Open(int slot, const std::string& path) {
    const bool opened = Videos().OpenVideo(slot, path);
    EndTurn();
    return opened;
  }
  /// Opens a video of its own file and shows a position.
  bool Open(int slot, const TestVideo& kind, int position = 0) {
    if (!Open(slot, Video("video" + std::to_string(++videos_) + ".avi", kind))) return false;
    MP(slot).DrawFrame(position);
    return true;
  }

  /// Closes the video of a window and opens it there again, as it lies on the disk.
  bool Reopen(int slot) {
    const std::string path = Stage().At(slot).path;
    return Videos().CloseVideo(slot) && Open(slot, path);
  }
  bool Run(const char* command) {
    const bool done = Commands().Run(command);
    EndTurn();
    return done;
  }
  /// The hands rest so long that all is saved.
  void Rest() { host.Advance(5000); }

  kinalyx::Stage& Stage() { return analysis.Stage(); }
  kinalyx::Videos& Videos() { return analysis.Videos(); }
  kinalyx::Keeping& Keeping() { return analysis.Keeping(); }
  MenuBar& Commands() { return analysis.Commands(); }
  CompareModes& Modes() { return analysis.Compare(); }
  AVIControl& MP(int slot) { return Stage().MP(slot); }
  int At(int slot) { return MP(slot).Position(); }
  ShapeList& Shapes(int slot = 1) { return analysis.Tools().List(slot); }
  /// What was clicked of a shape.
  std::vector<POINTAPI> Points(int shape, int slot = 1) {
    const auto points = BoundPoints(Shapes(slot).Shapes[static_cast<std::size_t>(shape)]);
    return {points.begin(), points.end()};
  }
  POINTAPI PointOf(int shape, int point, int slot = 1) {
    return Shapes(slot).Shapes[static_cast<std::size_t>(shape)].Pts[static_cast<std::size_t>(point)];
  }

  // --- the mouse, in pixels of the picture
  void Press(int slot, int x, int y, int button = 1) {
    analysis.MouseDown(button, 0, float(x), float(y), slot);
    EndTurn();
  }
  void Move(int slot, int x, int y) { analysis.MouseMove(1, 0, float(x), float(y), slot); }
  void Release(int slot, int x, int y, int button = 1) {
    analysis.MouseUp(button, 0, float(x), float(y), slot);
    EndTurn();
  }
  void Click(int slot, int x, int y, int button = 1) {
    Move(slot, x, y);
    Press(slot, x, y, button);
    Release(slot, x, y, button);
  }
  /// Takes up a tool of two points and draws with it in the current window.
  void Draw(int tool, POINTAPI from, POINTAPI to) {
    Key(kKeyF1 + tool);
    Click(Stage().CurrentWindow, from.x, from.y);
    Move(Stage().CurrentWindow, (from.x + to.x) / 2, (from.y + to.y) / 2);
    Click(Stage().CurrentWindow, to.x, to.y);
  }
  bool Key(int code, int shift = 0) {
    const bool taken = Commands().PressKey(code, shift);
    EndTurn();
    return taken;
  }
  void Type(char letter) {
    analysis.KeyPress(letter, Stage().CurrentWindow);
    EndTurn();
  }
  /// The present turn of the event loop is over: the windows are told what has changed.
  void EndTurn() { Stage().News().Tell(); }

  const std::string folder;
  TestHost host;
  Settings settings;
  PlayScheduler scheduler{host};
  PlayerServices services{host, scheduler};
  FakeWindow window;
  FakeCompareView compareView;
  FakeEditWindows edits;
  std::vector<std::string> offers;  ///< to bring back what was closed
  int libraryVisits = 0, captureVisits = 0, menuVisits = 0, helpVisits = 0, liveDrawVisits = 0, mirrorVisits = 0,
      exits = 0, quits = 0;
  IHandouts handouts;
  AnalysisWorkspace analysis;

  std::function<void(int slot)> signalled;         ///< after the section itself was told
  std::function<void(Canvas&, int slot)> painted;  ///< over what the section has painted

 private:
  void PreDrawFrame(Canvas& hDC, int ID) override {
    analysis.PreDrawFrame(hDC, ID);
    if (painted) painted(hDC, ID);
  }
  void Signal(int Frame, int ID) override {
    analysis.Signal(Frame, ID);
    if (signalled) signalled(ID);
  }
  void Notify(int Frame, int ID) override { analysis.Notify(Frame, ID); }
  void StrobeEnded(int ID) override { analysis.StrobeEnded(ID); }
  void GoToLibrary() override { ++libraryVisits; }
  void GoToCapture() override { ++captureVisits; }
  void GoToMainMenu() override { ++menuVisits; }
  void GoToHelp() override { ++helpVisits; }
  void OpenLiveDraw() override { ++liveDrawVisits; }
  void OpenMirror() override { ++mirrorVisits; }
  void ExitAnalysis() override { ++exits; }
  void OfferReopen(const std::string& words) override { offers.push_back(words); }
  void QuitProgram() override { ++quits; }
  IHandouts& Handouts() override { return handouts; }

  static std::string NewFolder() {
    static int count = 0;
    const std::string path = TestPath("analysis" + std::to_string(++count));
    std::filesystem::create_directories(path);
    return path;
  }

  std::array<std::unique_ptr<AVIControl>, kSlots> players_;
  int videos_ = 0;
};

/// A section with a video in its first window.
struct OpenStage : AnalysisStage {
  explicit OpenStage(const std::string& layout = "1") : AnalysisStage(layout) { Open(1, path); }
  const std::string path = Video("a.avi");
  const std::string sidecar = SidecarPath(path);
};

}  // namespace kinalyx::test
