#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/media/VideoFile.h"
#include "video/CallbackInterfaces.h"
#include "video/FramePipeline.h"
#include "video/FrameSurface.h"
#include "video/IPlayerView.h"
#include "video/PlayerNews.h"
#include "video/PlayerProperties.h"
#include "video/PlayerServices.h"

namespace kinalyx {

/// The one video player: opens a file, holds one frame on an off-screen surface, plays by the clock.
/// A position is a frame or, with `SplitFields`, a field: position = 2 * frame + order of the field.
/// Knows nothing of shapes or students; what lies over the picture comes through IFrameInterface.
/// What it has to tell its sink comes when the operation that was called has done its work, so who is told
/// may call any operation and may even destroy it; only PreDrawFrame comes in the middle, and paints.
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
  /// Properties of the open file; null when none is open.
  const VideoInfo* Info() const { return VideoStream_ ? &VideoStream_->Info() : nullptr; }

  // --- moving

  /// With both arguments plays from `Start` to `End`; with `Start` alone shows that position; with none
  /// goes on from the present position to the last end. While playing it is a pause. Returns at once: the
  /// play goes on under the scheduler, late positions are skipped, the last is always drawn, and Notify
  /// tells its end, when IsPlaying is false and Repeat with it.
  void Play(int Start = -1, int End = -1);
  void LoopPlay();
  /// Plays backward from the present position to the first one, or that of the range. While playing it is a pause.
  void PlayBack();
  bool PlaysBack() const { return IsPlaying_ && playsBack_; }
  /// Ends a running play on the position that is shown, and the repeat with it.
  void StopPlay();
  void DrawFrame(int Position);
  /// The positions between which a play runs that was asked for no others, and to whose first one a repeat returns.
  struct Range {
    int first = 0;
    int last = 0;

    friend bool operator==(const Range&, const Range&) = default;
  };
  /// The whole video, unless the user wants a part of it.
  Range PlayRange() const;
  /// Keeps a part of the open video; nothing, or what is no part of it, for the whole.
  void setPlayRange(const std::optional<Range>& range) { range_ = range; }
  /// Composes the current frame again, and so all that is drawn over it.
  void Refresh();
  /// A picture that takes long to decode is shown by a stand-in at once, smaller or that of a frame nearby, and
  /// gives way to the exact one as soon as that has come: the sink is told again of the same position. With
  /// true the exact one is waited for, for those who keep what is shown.
  void setExactPictures(bool on);
  /// What is shown is the picture of the position itself, at full quality.
  bool PictureIsExact() const { return !better_.Running(); }
  bool IsPlaying() const { return IsPlaying_; }
  int CurrentFrame() const { return GetPosition(); }
  int Position() const { return GetPosition(); }
  /// Number of positions: frames, or fields with `SplitFields`.
  int VideoLength() const { return PositionCount(); }
  /// Milliseconds that a position lasts at full speed, on the average; 0 without a video.
  double PositionTime() const { return FrameTimeMs_; }
  /// Milliseconds from the start of the video to a position, by the file's own times.
  double TimeOf(int position) const { return BeatOf(position) * FrameTimeMs_; }
  /// Where a position would stand if all lasted equally long: of most videos the position itself.
  double BeatOf(int position) const;
  /// The position that is shown at a beat; at most one past the last.
  int PositionAtBeat(double beat) const;

  /// A small picture of a position for a glance, which changes nothing that is shown: the nearest that is at hand, in
  /// the video's proportions and mirrored as the control is, `width` pixels wide. Gives the position whose picture it
  /// is; -1 without one.
  int Glimpse(int position, int width, Surface& target);

  // --- pictures made of fields

  /// Shows the present field with its contrast pushed; see EnhanceField. Pictures of 24 bits only.
  void Enhance(double HighAmount, double LowAmount);
  /// Shows the field of the frame 20 frames on, without going there; nothing when there is none.
  void AttackBits();
  /// Begins a strobe: every `Step` frames after `Start` (raw frames, like `End`) a layer is laid over the
  /// picture of `Start`, against the scene of the present frame; one layer every `Step` x 50 ms. With an
  /// `End` not above `Start` it goes on to the last frame. Returns at once. A strobe ends with its last
  /// layer, with StopStrobe, with any other movement, or at once where a picture is too large or has
  /// not 24 bits; the sink's StrobeEnded tells so, and the picture stays until the next frame is drawn.
  void Strobeframes(int Start, int End, int Step);
  /// The same against a background estimated from four frames of the video, without a pause between
  /// the layers.
  void Strobeframes2(int Start, int End, int Step);
  bool StrobeRunning() const;
  void StopStrobe();

  // --- what a picture is

  int VideoWidth() const { return Info() ? Info()->width : 0; }
  int VideoHeight() const { return Info() ? Info()->height : 0; }
  int CurFormatBits() const { return FormatHeader_.bitCount; }
  /// Always 0: the compression of the file is no matter of the picture.
  int CurFormatCmp() const { return 0; }

  // --- properties; those that layout files keep are described in PlayerProperties

  bool Repeat() const { return properties_.Repeat; }
  void setRepeat(bool on) { properties_.Repeat = on; }
  bool FlipHorizontal() const { return properties_.FlipHorizontal; }
  void setFlipHorizontal(bool on) { properties_.FlipHorizontal = on; }
  bool SplitFields() const { return properties_.SplitFields; }
  /// Stores the value and the time of a position; the position stays where it is.
  void setSplitFields(bool on);
  bool ReverseFields() const { return ReverseFields_; }
  void setReverseFields(bool on) { ReverseFields_ = on; }
  int Speed() const { return properties_.Speed; }
  /// During a play it goes on from the present position to the end at the new speed, with the repeat kept.
  /// False for what is no speed; the other setters answer a value out of its range so too.
  bool setSpeed(int percent);
  int ID() const { return properties_.ID; }
  void setID(int id) { properties_.ID = id; }
  int DrawStyle() const { return properties_.DrawStyle; }
  void setDrawStyle(int style);
  void setDrawMode(Rop2 mode);
  int DrawWidth() const { return properties_.DrawWidth; }
  void setDrawWidth(int width);
  Colour Forecolor() const { return properties_.Forecolor; }
  bool setForecolor(Colour colour);
  Colour BackColor() const { return properties_.BackColor; }
  bool setBackColor(Colour colour);
  int ForceDisplayFormat() const { return properties_.ForceDisplayFormat; }
  /// Takes effect at Load.
  bool setForceDisplayFormat(int code);
  bool Soften() const { return properties_.Soften; }
  void setSoften(bool on) { properties_.Soften = on; }
  int CompSpeed() const { return properties_.CompSpeed; }
  void setCompSpeed(int speed) { properties_.CompSpeed = speed & 255; }
  /// Takes all of them; what the bag lacks, or holds out of its range, takes its default.
  void ReadProperties(const PropertyBag& bag);
  PropertyBag WriteProperties() const { return kinalyx::WriteProperties(properties_); }

  // --- surface and callbacks

  /// Gives the control its size in pixels; the surfaces are made anew and the frame composed again.
  void Resize(int width, int height);
  int ControlWidthPixels() const { return surface_.Picture().Width(); }
  int ControlHeightPixels() const { return surface_.Picture().Height(); }
  const Surface& Picture() const { return surface_.Picture(); }
  /// The canvas of the off-screen surface, with the control's pen.
  Canvas& hDC() { return surface_.hDC(); }

  /// False for null, which leaves the present sink. Sinks are not owned.
  bool SetFrameInterface(IFrameInterface* Sink);
  bool ReleaseFrameInterface();
  bool SetMouseKeyboardInterface(IMouseAndKeyBoardEvents* Sink);
  bool ReleaseMouseKeyboardInterface();
  /// Where the view sends mouse and keys; null when nobody listens.
  IMouseAndKeyBoardEvents* InputSink() { return input_; }
  /// Hands the sink what PlayerNews has kept for it.
  void Tell(PlayerNews::Kind kind, int frame);

 private:
  class Run;
  class Strobe;

  int GetPosition() const;
  void SetPosition(int position);
  int FrameCount() const { return Info() ? Info()->frameCount : 0; }
  int PositionCount() const;
  bool OpenFrameDecoder();
  bool ReadFirstFrame();
  void UpdatePenBrush();
  void CloseStream();
  void MeasureTime();
  void RenderCurrent();
  bool ComposeWhole();
  void AwaitBetter();
  bool ComposeCurrent();
  void PresentFrame();
  void FinishPlay();
  bool CopyFieldOf(int frame, std::vector<std::uint8_t>& target);
  bool CopySoftFieldOf(int frame, std::vector<std::uint8_t>& target);
  void SoftenFrameBuffer();
  void ComposeField(const std::vector<std::uint8_t>& field);
  void ShowFrameBuffer();
  bool ReadyForStrobe();
  void Post(PlayerNews::Kind kind, int frame) { News().Post(*this, kind, frame); }
  PlayerNews& News() { return services_.scheduler.News(); }

  PlayerServices& services_;
  IPlayerView* view_;
  IFrameInterface* sink_ = nullptr;
  IMouseAndKeyBoardEvents* input_ = nullptr;

  FrameSurface surface_;
  std::string filename_;
  std::unique_ptr<VideoFile> VideoStream_;
  double FrameTimeMs_ = 0;
  bool exactPictures_ = false;
  HostTimer better_;  ///< runs while a stand-in is shown
  std::shared_ptr<std::atomic<bool>> hasBetter_ = std::make_shared<std::atomic<bool>>();  ///< set by the file's threads
  FormatHeader FormatHeader_;
  std::vector<std::uint8_t> FrameBuffer_;  ///< what Enhance and strobes compose; empty until then
  bool softened_ = false;                  ///< a field has been softened since the file was opened

  int CurrentRawFrame_ = 0;
  bool CurrentField_ = false;
  int PlayEnd_ = 0;
  std::optional<int> playEndArgument_;
  bool IsPlaying_ = false;
  bool playsBack_ = false;
  std::optional<Range> range_;
  std::unique_ptr<Run> run_;
  std::unique_ptr<Strobe> strobe_;

  PlayerProperties properties_;
  bool ReverseFields_ = false;
};

}  // namespace kinalyx
