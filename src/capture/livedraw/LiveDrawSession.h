#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "capture/livedraw/DrawingBoard.h"
#include "capture/livedraw/HotZones.h"
#include "capture/livedraw/ILiveDrawView.h"
#include "capture/livedraw/LiveCamera.h"
#include "capture/livedraw/LiveDrawFile.h"
#include "drawing/Macros.h"
#include "platform/files/Tr.h"
#include "platform/graph/IShortSounds.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

/// Where the picture stands in its window, pixels of the screen.
struct PictureBox {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const PictureBox&, const PictureBox&) = default;
};

/// Live draw: the camera's picture, live or frozen and as in a mirror or not, what is drawn upon it, and the hot zones
/// that beep. All of it outlives the window, and is kept for the next run of the program.
class LiveDrawSession : private ILiveCameraEvents, private IDrawingBoardEvents {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    IShortSounds& sounds;
    LiveCamera::MakeGraph makeGraph;
  };
  /// All parts outlive this.
  explicit LiveDrawSession(Parts parts);
  ~LiveDrawSession() override;

  /// Null for none.
  void SetView(ILiveDrawView* view) { view_ = view; }
  LiveCamera& Camera() { return camera_; }
  const LiveCamera& Camera() const { return camera_; }
  DrawingBoard& Board() { return board_; }
  const DrawingBoard& Board() const { return board_; }
  const HotZones& Zones() const { return zones_; }

  /// The window is on the screen, or no more.
  void Open();
  void Close();
  bool IsOpen() const { return open_; }
  /// Writes at once what is to be kept and is not yet.
  void Keep();

  // --- buttons
  /// `CamCtlBtn` 0: "Freeze Video", "Live Video".
  void PressFreeze();
  std::string FreezeCaption() const { return camera_.Frozen() ? Tr("Live Video") : Tr("Freeze Video"); }
  bool CanFreeze() const { return board_.HasPicture(); }
  /// `CamCtlBtn` 2: "Add Hot Zone", "Cancel Zone".
  void PressZone();
  std::string ZoneCaption() const { return adding_ ? Tr("Cancel Zone") : Tr("Add Hot Zone"); }
  bool AddingZone() const { return adding_; }
  void SetMirror(bool on);
  /// 0 to 100.
  void SetSensitivity(int sensitivity);
  int Sensitivity() const { return kept_.sensitivity; }
  void SetMuted(bool muted);
  bool Muted() const { return kept_.muted; }
  /// Figures and numbers stand over the picture. What the user has written there himself is a drawing, and stays.
  void SetWordsShown(bool shown);
  bool WordsShown() const { return kept_.words; }
  void ChooseColour(int index);
  void ChooseWidth(int pixels);
  /// Takes a tool of the board up, or puts it down; an open zone is cancelled by it.
  void TakeTool(const std::function<void(DrawingTools&)>& take);
  void ToggleGrid();
  void RemoveLast();
  /// All drawings; zones stay.
  void RemoveAll();
  bool HasDrawings() const { return board_.Tools().HasShapes(DrawingBoard::kWindow); }
  void Undo();
  void Redo();
  bool CanUndo() const;
  bool CanRedo() const;
  /// Letters that come while the camera is away are written when it is back.
  void WriteText(POINTAPI at, const std::string& text, bool anew);
  /// The drawing or the zone that is taken.
  void RemoveTaken();
  bool AnyTaken() const { return board_.Tools().Hand().Taken() || zones_.Taken() > 0; }
  void RemoveZones();

  // --- keys and mouse; in pixels of the window on the screen. Button 1 is the left one, 2 the right one
  void MouseDown(int button, bool shift, POINTAPI at);
  void MouseMove(int button, bool shift, POINTAPI at);
  void MouseUp(int button, bool shift, POINTAPI at);
  void MouseTwice(POINTAPI at);
  /// Puts down, lets go or cancels what is nearest to the hand; false when there is nothing.
  bool Escape();
  /// Return ends a path, Backspace takes its last point back. False when none is traced.
  bool PressPathKey(bool end);

  // --- what is seen
  /// The window has another size.
  void SetRoom(int width, int height);
  PictureBox Box() const;
  /// The picture with what is drawn on it, as large as the box; empty when there is none. Good until the next call.
  const Surface& Compose();
  /// Of a zone: 1 as it fires, fading to 0; and whether something moves in it now.
  double Glow(int zone) const;
  bool Moves(int zone) const;
  /// The zone that is being drawn.
  std::optional<MotionRect> Draft() const;

  // --- to analysis
  /// Keeps the drawings as a macro.
  Outcome SaveMacro(Macros& macros, const std::string& name) const;

 private:
  enum class Step { Drawings, Zones };
  struct Corners {
    PicturePoint from, to;
  };

  void SetAdding(bool adding);
  void EndZoneDrag();
  void ZonesChanged(const std::vector<HotZone>& before);
  void UndoWhatIsDrawn();
  void PutZones(const std::vector<HotZone>& zones);
  void BeginWatching();
  void MotionTimer_Timer();
  void KeepLater();
  void Changed() const;
  void Repaint() const;
  POINTAPI OnPicture(POINTAPI at) const;
  PicturePoint InParts(POINTAPI at) const;
  std::optional<ZonePart> ZoneAt(POINTAPI at) const;
  bool PressZoneAt(int button, POINTAPI at);
  void Show(LivePointer pointer);
  void FollowView();
  /// The drawings but for what is under construction.
  std::vector<Shape> Finished() const;

  // --- ILiveCameraEvents
  void LivePictureCame() override;
  void CameraChanged() override;
  void CamerasChanged() override;
  // --- IDrawingBoardEvents
  void BoardRepaint() override { Repaint(); }
  void BoardChanged() override { Changed(); }
  void DrawingsDone() override;
  void ShowPointer(HandPointer pointer) override;
  void ShowShapeMenu(POINTAPI at) override;
  void AskText(POINTAPI at, const std::string& text) override;

  Parts parts_;
  ILiveDrawView* view_ = nullptr;
  LiveDrawKept kept_;
  DrawingBoard board_;
  LiveCamera camera_;
  HotZones zones_;
  bool open_ = false;
  bool adding_ = false;
  std::optional<Corners> draft_;
  std::vector<HotZone> grabbed_;  ///< the zones as a drag began
  // What can be undone, the latest last: the board knows its own past.
  std::vector<std::pair<Step, std::vector<HotZone>>> done_, undone_;
  std::vector<Shape> noted_;  ///< drawings of the last step
  struct Letters {
    POINTAPI at;
    std::string text;
    bool anew;
  };
  std::optional<Letters> unwritten_;
  bool stepping_ = false;
  std::map<int, std::int64_t> fired_;  ///< by zone, when, in the host's milliseconds
  std::vector<int> moving_;
  LivePointer pointer_ = LivePointer::Nothing;
  int roomWidth_ = 0;
  int roomHeight_ = 0;
  double aspect_ = 4.0 / 3;
  Surface surface_;
  Surface scratchSurface_;
  ScaleScratch scratch_;
  HostTimer MotionTimer_;
  HostTimer keep_;
};

}  // namespace kinalyx
