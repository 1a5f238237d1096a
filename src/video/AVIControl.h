#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/media/VideoFile.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"
#include "video/CallbackInterfaces.h"
#include "video/FramePipeline.h"
#include "video/IPlayerView.h"
#include "video/Lifetime.h"
#include "video/PlayerServices.h"
#include "video/SystemColours.h"

namespace kinalyx {

/// Settings of a player by name, as a layout file keeps them; true is -1.
using PropertyBag = std::map<std::string, std::int64_t>;

/// The one video player: opens a file, holds one frame on an off-screen surface, plays by the clock.
/// A position is a frame or, with `SplitFields`, a field: position = 2 * frame + order of the field.
/// Knows nothing of shapes or students; what lies over the picture comes through IFrameInterface.
/// Its callbacks may call any operation, and may even destroy it.
class AVIControl {
 public:
  AVIControl(PlayerServices& services, IPlayerView* view);
  ~AVIControl();
  AVIControl(const AVIControl&) = delete;
  AVIControl& operator=(const AVIControl&) = delete;

  // --- opening

  /// Opens a file; an empty name opens the last one again. On failure the control is yellow (cannot
  /// be opened) or red (no frames), empty, and the result is false.
  bool Load(const std::string& FileName, bool SplitFields, bool ReverseFields);
  /// Stops, closes the file and clears the picture. Safe at any time.
  void Unload();
  const std::string& filename() const { return filename_; }
  void setFilename(const std::string& name) { filename_ = name; }
  /// Properties of the open file; null when none is open.
  const VideoInfo* Info() const { return VideoStream_ ? &VideoStream_->Info() : nullptr; }

  // --- moving

  /// With both arguments plays from `Start` to `End`; with `Start` alone shows that position; with none
  /// goes on from the present position to the last end. While playing it is a pause. Returns at once: the
  /// play goes on under the scheduler, late positions are skipped, the last is always drawn, and Notify
  /// tells its end, when IsPlaying is false and Repeat with it.
  void Play(int Start = -1, int End = -1);
  void LoopPlay();
  /// Ends a running play on the position that is shown, and the repeat with it.
  void StopPlay();
  void DrawFrame(int Position);
  /// Composes the current frame again, and so all that is drawn over it.
  void Refresh();
  bool IsPlaying() const { return IsPlaying_; }
  int CurrentFrame() const { return GetPosition(); }
  int Position() const { return GetPosition(); }
  /// Number of positions: frames, or fields with `SplitFields`.
  int VideoLength() const { return PositionCount(); }

  // --- pictures made of fields

  /// Shows the present field with its contrast pushed; see EnhanceField. Pictures of 24 bits only.
  void Enhance(double HighAmount, double LowAmount);
  /// Shows the field of the frame 20 frames on, without going there; nothing when there is none.
  void AttackBits();
  /// Begins a strobe: every `Step` frames after `Start` (raw frames, like `End`) a layer is laid over the
  /// picture of `Start`, against the scene of the present frame; one layer every `Step` x 50 ms. With an
  /// `End` not above `Start` it goes on to the last frame. Returns at once. A strobe ends with its last
  /// layer, with StopStrobe, with any other movement, or at once where a picture is too large or has
  /// not 24 bits; the picture stays until the next frame is drawn.
  void Strobeframes(int Start, int End, int Step);
  /// The same against a background estimated from four frames of the video, without a pause between
  /// the layers.
  void Strobeframes2(int Start, int End, int Step);
  bool StrobeRunning() const { return strobe_ != nullptr; }
  void StopStrobe();
  /// Called once at the end of each strobe, however it ends.
  void OnStrobeEnd(std::function<void()> action) { strobeEnd_ = std::move(action); }

  // --- what a picture is

  int VideoWidth() const { return VideoWidth_; }
  int VideoHeight() const { return VideoHeight_; }
  int CurFormatBits() const { return FormatHeader_.bitCount; }
  /// Always 0: nothing has ever stored the compression here, and the layouts rest on it.
  int CurFormatCmp() const { return 0; }

  // --- properties

  bool Repeat() const { return Repeat_; }
  void setRepeat(bool on) { Repeat_ = on; }
  bool FlipHorizontal() const { return FlipHorizontal_; }
  void setFlipHorizontal(bool on) { FlipHorizontal_ = on; }
  bool SplitFields() const { return SplitFields_; }
  /// Stores the value and the time of a position; the position stays where it is.
  void setSplitFields(bool on);
  bool ReverseFields() const { return ReverseFields_; }
  void setReverseFields(bool on) { ReverseFields_ = on; }
  /// Percent. During a play it goes on from the present position to the end at the new speed, with the
  /// repeat kept. Values below 1 are refused with false.
  bool setSpeed(int percent);
  int Speed() const { return Speed_; }
  int ID() const { return ID_; }
  void setID(int id) { ID_ = id; }
  int DrawStyle() const { return pen_.style; }
  void setDrawStyle(int style);
  int DrawMode() const { return DrawMode_; }
  /// Raster mode 1 to 16; anything else is refused with false.
  bool setDrawMode(int mode);
  int DrawWidth() const { return pen_.width; }
  void setDrawWidth(int width);
  Colour Forecolor() const { return Forecolor_; }
  /// Colours are red + 256 x green + 65536 x blue, or 0x80000000 + the number of a system colour; any
  /// other is refused with false.
  bool setForecolor(Colour colour);
  Colour BackColor() const { return BackColor_; }
  bool setBackColor(Colour colour);
  int ForceDisplayFormat() const { return ForceDisplayFormat_; }
  /// 0 best, 1 to 4 for 8, 16, 24, 32 bits; anything else is refused with false. Takes effect at Load.
  bool setForceDisplayFormat(int code);
  /// Kept for the layouts that store them; no picture depends on these two.
  bool Soften() const { return Soften_; }
  void setSoften(bool on) { Soften_ = on; }
  int CompSpeed() const { return CompSpeed_; }
  void setCompSpeed(int speed) { CompSpeed_ = speed & 255; }
  /// Takes all settings; what the bag lacks, or holds out of its range, takes its default.
  void ReadProperties(const PropertyBag& bag);
  PropertyBag WriteProperties() const;

  // --- surface and callbacks

  /// Gives the control its size in pixels; the surfaces are made anew and the frame composed again.
  void Resize(int width, int height);
  int ControlWidthPixels() const { return ControlWidthPixels_; }
  int ControlHeightPixels() const { return ControlHeightPixels_; }
  const Surface& Picture() const { return MainSurface_; }
  /// The canvas of the off-screen surface, with the control's pen.
  Canvas& hDC() { return *FrameGraphics_; }

  /// False for null, which leaves the present sink. Sinks are not owned.
  bool SetFrameInterface(IFrameInterface* Sink);
  bool ReleaseFrameInterface();
  bool SetMouseKeyboardInterface(IMouseAndKeyBoardEvents* Sink);
  bool ReleaseMouseKeyboardInterface();
  /// Where the view sends mouse and keys; null when nobody listens.
  IMouseAndKeyBoardEvents* InputSink() { return input_; }

 private:
  class Run;
  class Strobe;
  /// What a composed picture depends on, beside the size of the surface.
  struct Composition {
    int frame = 0;
    bool split = false;
    bool field = false;
    bool flip = false;
    bool operator==(const Composition&) const = default;
  };

  int GetPosition() const;
  void SetPosition(int position);
  int PositionCount() const;
  bool OpenFrameDecoder();
  bool ReadFirstFrame();
  void CreateSurfaces();
  void UpdatePenBrush();
  void CloseStream();
  void ResetState();
  void MeasureTime();
  void RenderCurrent();
  bool ComposeCurrent();
  void Compose(const PixelRows& picture);
  void PresentFrame();
  void FinishPlay();
  bool CopyFieldOf(int frame, std::vector<std::uint8_t>& target);
  void SoftenFrameBuffer();
  void ComposeFrameBuffer();
  void BeginStrobe(std::unique_ptr<Strobe> strobe);
  void EndStrobe();

  PlayerServices& services_;
  IPlayerView* view_;
  IFrameInterface* sink_ = nullptr;
  IMouseAndKeyBoardEvents* input_ = nullptr;
  Lifetime life_;  ///< the open file's; its watches are kept across callbacks

  int ControlWidthPixels_ = 0;
  int ControlHeightPixels_ = 0;
  Surface MainSurface_;
  Surface ScratchSurface_;
  std::unique_ptr<Canvas> FrameGraphics_;
  ScaleScratch scratch_;
  Pen pen_;
  int DrawMode_ = 13;
  Colour Forecolor_ = kButtonText;
  Colour BackColor_ = kButtonFace;
  std::optional<Composition> composed_;  ///< stood on the main surface last, before it was drawn over
  Surface Kept_;                         ///< the same as it was composed, once it has been wanted twice
  bool isKept_ = false;

  std::string filename_;
  std::unique_ptr<VideoFile> VideoStream_;
  int VideoWidth_ = 0;
  int VideoHeight_ = 0;
  int FrameCount_ = 0;
  double FrameTimeMs_ = 0;
  FormatHeader FormatHeader_;
  std::vector<std::uint8_t> FrameBuffer_;  ///< empty until a field is wanted
  bool softened_ = false;                  ///< a field has been softened since the file was opened

  int CurrentRawFrame_ = 0;
  bool CurrentField_ = false;
  int PlayEnd_ = 0;
  std::optional<int> playEndArgument_;
  bool IsPlaying_ = false;
  std::unique_ptr<Run> run_;
  bool RestartPending_ = false;
  bool RestartLoop_ = false;
  int RestartSpeed_ = 100;
  std::unique_ptr<IPlayRun> strobe_;
  int strobeNumber_ = 0;  ///< of the one that was begun last
  std::function<void()> strobeEnd_;

  bool Repeat_ = false;
  bool FlipHorizontal_ = false;
  bool SplitFields_ = false;
  bool ReverseFields_ = false;
  int ForceDisplayFormat_ = 3;
  int Speed_ = 100;
  int ID_ = 0;
  bool Soften_ = false;
  int CompSpeed_ = 1;
  std::int64_t KeyColor_ = 0;
};

}  // namespace kinalyx
