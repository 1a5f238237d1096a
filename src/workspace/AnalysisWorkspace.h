#pragma once

#include <array>
#include <optional>
#include <string>

#include "drawing/DrawingTools.h"
#include "drawing/ShapeStore.h"
#include "video/CallbackInterfaces.h"
#include "workspace/IWorkspaceView.h"
#include "workspace/commands/MenuBar.h"
#include "workspace/compare/CompareModes.h"
#include "workspace/edits/DrawingEdits.h"
#include "workspace/edits/DrawingTimes.h"
#include "workspace/edits/SpeedHint.h"
#include "workspace/edits/StageHint.h"
#include "workspace/keeping/Keeping.h"
#include "workspace/stage/PlayerPlace.h"
#include "workspace/stage/Stage.h"
#include "workspace/transport/PlaySound.h"
#include "workspace/videos/Videos.h"

namespace kinalyx {

/// The analysis section as one object: makes its rooms (stage, keeping, videos, compare, transport, edits,
/// commands), ties them to each other, and serves the players. A window shows it through IWorkspaceView and
/// hands it eight players; everything else works without a window.
///
/// Calls go down from here to the rooms; what they have to tell comes back as StageChanged, once for each turn
/// of the event loop, but for what must happen in the middle (IVideoEvents, ICompareEvents). Nothing is asked of
/// the windows before Start.
class AnalysisWorkspace final : public IFrameInterface,
                                public IMouseAndKeyBoardEvents,
                                private IStageEvents,
                                private IVideoEvents,
                                private ICompareEvents,
                                private IDrawingWorkspace {
 public:
  /// @param sound  where playing videos are heard; null: nowhere
  AnalysisWorkspace(IHost& host, Settings& settings, PlayScheduler& scheduler, IWorkspaceView& view,
                    IDrawingEditsView& editsView, ICompareView& compareView, INavigation& navigation,
                    ISoundOutput* sound = nullptr);
  AnalysisWorkspace(const AnalysisWorkspace&) = delete;
  AnalysisWorkspace& operator=(const AnalysisWorkspace&) = delete;

  /// Hands over the player of a slot, which then reports here. Players are not owned; they must outlive
  /// this object or be detached.
  void AttachPlayer(int slot, AVIControl& player);
  /// Lets go of all players; none reports here any more.
  void DetachPlayers();
  /// Shows everything for the first time; all players must be attached.
  void Start();

  kinalyx::Stage& Stage() { return stage_; }
  kinalyx::Videos& Videos() { return videos_; }
  kinalyx::Keeping& Keeping() { return keeping_; }
  kinalyx::Transport& Transport() { return transport_; }
  DrawingTools& Tools() { return tools_; }
  DrawingEdits& Edits() { return edits_; }
  DrawingTimes& Times() { return times_; }
  MenuBar& Commands() { return menuBar_; }
  VideoTimer& Timer() { return timer_; }
  VideoNotes& Notes() { return notes_; }
  RulerCalibration& Ruler() { return ruler_; }
  CompareModes& Compare() { return compare_; }

  PlaySound& Sound() { return sound_; }

  /// A video, or a folder with videos, has another path while there is no section: it opens again from there.
  static void FollowInSession(const Settings& settings, const std::string& from, const std::string& to);

  /// Line width, outline, colours or the word for a student have been changed on another page.
  void SettingsChanged();

  // --- from the window
  /// The stage has another size.
  void StageResized();
  /// A mouse press on a cell beside its picture, and a double click there: an empty window opens a video.
  void CellPressed(int slot);
  void CellDoubleClicked(int slot);
  /// Opens the videos among files and folders as they lie: the first in the window on whose cell they were dropped,
  /// the others, or, for slot 0, all of them, in free ones as long as there are any. Returns how many were opened.
  int OpenFiles(int slot, const std::vector<std::string>& paths);
  /// Sends videos to free windows; two of them are locked where they stand side by side. False when none was opened.
  bool OpenTogether(const std::vector<std::string>& paths);
  void PutToolDown();
  void ChooseColour(int Index);
  /// Pixels of the line of the tool in hand, or of what is taken.
  void ChooseWidth(int pixels);

  // --- IFrameInterface
  void PreDrawFrame(Canvas& hDC, int ID) override;
  void Signal(int Frame, int ID) override;
  void Notify(int Frame, int ID) override;
  void StrobeEnded(int ID) override;

  // --- IMouseAndKeyBoardEvents
  void MouseDown(int Button, int Shift, float X, float Y, int ID) override;
  void MouseMove(int Button, int Shift, float X, float Y, int ID) override;
  void MouseUp(int Button, int Shift, float X, float Y, int ID) override;
  void Click(int) override {}
  void DblClick(int ID) override;
  void KeyDown(int KeyCode, int Shift, int ID) override;
  void KeyPress(int KeyAscii, int ID) override;
  void KeyUp(int, int, int) override {}

 private:
  void ShowFocus();
  void KeepLocks();
  void Select(int slot);
  void MoveFrame(int window, int by);

  // --- from the rooms
  void StageChanged(unsigned changes) override;
  void VideoOpened(int slot) override { compare_.Strobe().VideoOpened(slot); }
  void VideoClosing(int slot) override;
  void VideoClosed(int slot) override;
  void VideosGone(int count, const std::string& name) override;
  std::array<bool, 3> Locks() const override { return compare_.Locks().DualLocked; }
  void LockAgain(const std::array<bool, 3>& locks) override;
  void FieldsSplit(int) override { compare_.Locks().VideosChanged(); }
  void GiveWay() override;
  void TakeSquareTool() override;

  // --- IDrawingWorkspace
  int ActiveWindow() override { return stage_.CurrentWindow; }
  void SetActiveWindow(int window) override { Select(window); }
  bool HasVideo(int window) override { return stage_.HasVideo(window); }
  int PictureWidth(int window) override { return stage_.MP(window).ControlWidthPixels(); }
  int PictureHeight(int window) override { return stage_.MP(window).ControlHeightPixels(); }
  bool IsPlaying(int window) override;
  void StopClick(int window) override;
  void ReleaseLoopButton() override;
  void Refresh(int window) override { stage_.MP(window).Refresh(); }
  bool OnLastFrame(int window) override;
  void AdvanceFrame(int window) override { MoveFrame(window, 1); }
  void RetreatFrame(int window) override { MoveFrame(window, -1); }
  void DisplayData(const std::string& text) override { transport_.DisplayData(text); }
  void ShowToolCaption(const std::string& caption) override { view_.SetDisplayText(caption); }
  void ShowVectorColor(Colour colour) override { view_.ShowVectorColor(colour); }
  void HideVectorColor() override { view_.HideVectorColor(); }
  void SetColorButton(int index) override { view_.SetColorButton(index); }
  void ShowDrawError(const std::string& text) override;
  void ShapeTaken() override;
  void ShowPointer(int window, HandPointer pointer) override { edits_.ShowPointer(window, pointer); }
  void ShowShapeMenu(int window, POINTAPI at) override { edits_.ShowShapeMenu(window, at); }
  void AskText(int window, POINTAPI at, const std::string& text) override { edits_.AskText(window, at, text); }
  void MouseWanted() override { compare_.StopWaiting(); }
  void DrawingsChanged(int window) override;
  bool TakeSquare(int window, const Shape& square) override;
  std::optional<VideoRuler> RulerOf(int window) override { return stage_.At(window).data.Study.Ruler; }
  std::optional<ExactDrawing> ExactOf(int window, const Shape& shape) override {
    return keeping_.ExactOf(window, shape);
  }
  double Proportion(int window) override { return ProportionOf(stage_.At(window)); }
  double PositionsPerSecond(int window) override;
  std::optional<PathTime> PositionNow(int window) override {
    return PathTime{stage_.MP(window).Position(), stage_.MP(window).SplitFields()};
  }
  int FrameOf(int window) override;
  bool CalibrationShown() override { return ruler_.Shown(); }
  void ShowCalibrationLength(const std::string& length) override { ruler_.ShowLength(length); }

  IHost& host_;
  Settings& settings_;
  IWorkspaceView& view_;
  INavigation& navigation_;
  ShapeEngine engine_;
  kinalyx::Stage stage_;
  DrawingTools tools_;
  kinalyx::Keeping keeping_;
  kinalyx::Videos videos_;
  CompareModes compare_;
  kinalyx::Transport transport_;
  PlaySound sound_;
  DrawingEdits edits_;
  DrawingTimes times_;
  VideoTimer timer_;
  VideoNotes notes_;
  DisplayRateTest rateTest_;
  StageHint hint_;
  SpeedHint speedHint_;
  RulerCalibration ruler_;
  MenuBar menuBar_;
  HostTimer drawError_;
  std::array<bool, kSlots + 1> locked_{};
  POINTAPI pressedAt_;  ///< where the mouse went down last
};

}  // namespace kinalyx
