#include "video/AVIControl.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kinalyx {
namespace {

constexpr Colour kYellow = 65535;
constexpr Colour kRed = 255;
constexpr Colour kBlack = 0;

/// Bits of a display format code; 0 lets the decoder choose.
int BitsOfFormat(int code) {
  constexpr int kBits[] = {0, 8, 16, 24, 32};
  return kBits[code];
}

}  // namespace

/// A play from its start to its end. Position p falls due at base + p * interval. One object serves all
/// plays of its control: a picture's callbacks may end this play and begin the next while it draws.
class AVIControl::Run final : public IPlayRun {
 public:
  explicit Run(AVIControl& control) : control_(control) {}

  void Begin(int start) {
    counter_ = start;
    Restart(control_.services_.host.timeGetTime());
  }

  std::int64_t Tick(std::int64_t now) override {
    const Lifetime::Watch watch(control_.life_);
    if (wrap_) {
      // Counted on from the moment at which it fell due, so that videos looped together stay together.
      const std::int64_t end = base_ + (control_.PlayEnd_ + std::int64_t{1}) * interval_;
      counter_ = 0;
      Restart(now - end < interval_ * control_.PlayEnd_ ? end : now);
    } else if (const int due = PositionAt(now); due != counter_) {
      counter_ = due;
      Show();
    }
    if (watch.Gone()) return now;  // and this run with it
    return wrap_ ? now + interval_ : base_ + static_cast<std::int64_t>(counter_ + 1) * interval_;
  }

 private:
  int PositionAt(std::int64_t now) const {
    return static_cast<int>(std::clamp<std::int64_t>((now - base_) / interval_, counter_, control_.PlayEnd_ + 1));
  }

  /// Takes the present position as due now and shows it.
  void Restart(std::int64_t now) {
    ++play_;
    wrap_ = false;
    // Whole milliseconds, as the clock has them; at 240 pictures a second it still moves on.
    interval_ = std::max<std::int64_t>(1, std::llrint(control_.FrameTimeMs_ / control_.Speed_ * 100.0));
    base_ = now - interval_ * counter_;
    control_.services_.scheduler.Add(*this, now + interval_);
    Show();
  }

  /// Draws the present position; at or behind the end draws the end, which ends the play or, with a
  /// repeat, begins it anew one interval later, so that the last picture is seen as long as any other.
  void Show() {
    const int play = play_;
    const bool atEnd = counter_ >= control_.PlayEnd_;
    counter_ = std::min(counter_, control_.PlayEnd_);
    const Lifetime::Watch watch(control_.life_);
    control_.SetPosition(counter_);
    control_.RenderCurrent();
    if (watch.Gone() || !atEnd || play != play_ || !control_.IsPlaying_) return;
    wrap_ = control_.Repeat_;
    if (!wrap_) control_.FinishPlay();
  }

  AVIControl& control_;
  std::int64_t base_ = 0;
  std::int64_t interval_ = 1;
  int counter_ = 0;
  int play_ = 0;
  bool wrap_ = false;
};

AVIControl::AVIControl(PlayerServices& services, IPlayerView* view)
    : services_(services), view_(view), run_(std::make_unique<Run>(*this)) {
  setForecolor(Forecolor_);
}

AVIControl::~AVIControl() {
  services_.scheduler.Remove(*run_);
  if (strobe_) services_.scheduler.Remove(*strobe_);
}

// ---------------------------------------------------------------- opening

bool AVIControl::Load(const std::string& FileName, bool SplitFields, bool ReverseFields) {
  const std::string path = FileName.empty() ? filename_ : FileName;
  const Lifetime::Watch watch(life_);
  StopStrobe();
  if (IsPlaying_) StopPlay();
  // Whoever was told of the end may have opened another file already: that one wins.
  if (watch.Changed()) return false;
  CloseStream();
  ResetState();
  filename_ = path;

  auto opened = VideoFile::Open(path);
  if (!opened.file) {
    setBackColor(opened.fault == OpenFault::NoFrames ? kRed : kYellow);
    Unload();
    return false;
  }
  VideoStream_ = std::move(opened.file);
  setBackColor(kBlack);
  const VideoInfo& info = VideoStream_->Info();
  FrameCount_ = info.frameCount;
  VideoWidth_ = info.width;
  VideoHeight_ = info.height;
  const auto rate = info.scale > 0 ? static_cast<int>(info.rate / info.scale) : 0;
  services_.VideoFrameRate = rate == 29 ? 30 : rate;
  SplitFields_ = SplitFields;
  ReverseFields_ = ReverseFields;
  MeasureTime();
  if (!OpenFrameDecoder() || !ReadFirstFrame()) {
    setBackColor(kYellow);
    Unload();
    return false;
  }
  CreateSurfaces();
  UpdatePenBrush();
  return true;
}

void AVIControl::Unload() {
  const Lifetime::Watch watch(life_);
  StopStrobe();
  if (!watch.Gone() && IsPlaying_) StopPlay();
  if (watch.Changed()) return;
  CloseStream();
  ResetState();
  filename_.clear();
  MainSurface_.Clear(kBlack);
  if (view_) view_->Present(Surface());
}

void AVIControl::CloseStream() {
  life_.Change();
  VideoStream_.reset();
  FrameBuffer_ = {};
  softened_ = false;
  composed_.reset();
  Kept_ = {};
  isKept_ = false;
}

void AVIControl::ResetState() {
  FrameTimeMs_ = 0;
  CurrentRawFrame_ = 0;
  CurrentField_ = false;
  FrameCount_ = 0;
  VideoWidth_ = 0;
  VideoHeight_ = 0;
  FormatHeader_ = {};
}

void AVIControl::MeasureTime() {
  FrameTimeMs_ = PositionCount() > 0 && VideoStream_ ? VideoStream_->SampleToTime(FrameCount_) / PositionCount() : 0;
}

/// Takes the wanted format, then the best one, then 32, 24, 16 and 8 bits: the first that the decoder
/// gives. It gives 24 and 32; "best" is 24, which every part of the pipeline works on.
bool AVIControl::OpenFrameDecoder() {
  for (const int code : {ForceDisplayFormat_, 0, 4, 3, 2, 1, 0}) {
    const int bits = code == 0 ? 24 : BitsOfFormat(code);
    if (bits != 24 && bits != 32) continue;
    FormatHeader_ = {40, VideoWidth_, VideoHeight_, 1, bits, 0, 0};
    return true;
  }
  return false;
}

bool AVIControl::ReadFirstFrame() {
  FrameRows rows = VideoStream_->Frame(CurrentRawFrame_, FormatHeader_.bitCount);
  if (!rows && FrameCount_ > 2) {
    CurrentRawFrame_ = 2;
    rows = VideoStream_->Frame(CurrentRawFrame_, FormatHeader_.bitCount);
  }
  if (!rows) return false;
  FormatHeader_.width = rows.width;
  FormatHeader_.height = rows.height;
  FormatHeader_.imageSize = static_cast<std::int64_t>(rows.rowBytes) * rows.height;
  return true;
}

// ---------------------------------------------------------------- surfaces and pen

void AVIControl::Resize(int width, int height) {
  if (width == ControlWidthPixels_ && height == ControlHeightPixels_) return;
  ControlWidthPixels_ = std::max(0, width);
  ControlHeightPixels_ = std::max(0, height);
  CreateSurfaces();
  Refresh();
}

void AVIControl::CreateSurfaces() {
  if (MainSurface_.Width() == ControlWidthPixels_ && MainSurface_.Height() == ControlHeightPixels_ && FrameGraphics_)
    return;
  FrameGraphics_.reset();
  MainSurface_ = Surface(ControlWidthPixels_, ControlHeightPixels_);
  ScratchSurface_ = Surface();
  composed_.reset();
  Kept_ = {};
  isKept_ = false;
  UpdatePenBrush();
}

void AVIControl::UpdatePenBrush() {
  if (!FrameGraphics_) FrameGraphics_ = std::make_unique<Canvas>(MainSurface_);
  FrameGraphics_->SetPen(pen_);
  FrameGraphics_->SetROP2(static_cast<Rop2>(DrawMode_));
  FrameGraphics_->SetBrush(std::nullopt);
}

void AVIControl::setDrawStyle(int style) {
  pen_.style = style;
  UpdatePenBrush();
}

bool AVIControl::setDrawMode(int mode) {
  if (mode < 1 || mode > 16) return false;
  DrawMode_ = mode;
  UpdatePenBrush();
  return true;
}

void AVIControl::setDrawWidth(int width) {
  pen_.width = std::max(1, width);
  UpdatePenBrush();
}

bool AVIControl::setForecolor(Colour colour) {
  const auto shown = TranslateColour(colour);
  if (!shown) return false;
  Forecolor_ = colour;
  pen_.colour = *shown;
  UpdatePenBrush();
  return true;
}

bool AVIControl::setBackColor(Colour colour) {
  const auto shown = TranslateColour(colour);
  if (!shown) return false;
  BackColor_ = colour;
  if (view_) view_->SetBackColor(*shown);
  return true;
}

bool AVIControl::setForceDisplayFormat(int code) {
  if (code < 0 || code > 4) return false;
  ForceDisplayFormat_ = code;
  return true;
}

// ---------------------------------------------------------------- callbacks

bool AVIControl::SetFrameInterface(IFrameInterface* Sink) {
  if (!Sink) return false;
  sink_ = Sink;
  return true;
}

bool AVIControl::ReleaseFrameInterface() {
  sink_ = nullptr;
  return true;
}

bool AVIControl::SetMouseKeyboardInterface(IMouseAndKeyBoardEvents* Sink) {
  if (!Sink) return false;
  input_ = Sink;
  return true;
}

bool AVIControl::ReleaseMouseKeyboardInterface() {
  input_ = nullptr;
  return true;
}

// ---------------------------------------------------------------- positions

int AVIControl::GetPosition() const {
  if (!SplitFields_) return CurrentRawFrame_;
  return 2 * CurrentRawFrame_ + (CurrentField_ != ReverseFields_ ? 1 : 0);
}

void AVIControl::SetPosition(int position) {
  const int p = std::clamp(position, 0, std::max(0, PositionCount() - 1));
  if (!SplitFields_) {
    CurrentRawFrame_ = p;
    return;
  }
  CurrentRawFrame_ = p / 2;
  CurrentField_ = (p % 2 == 1) != ReverseFields_;
}

int AVIControl::PositionCount() const { return SplitFields_ ? 2 * FrameCount_ : FrameCount_; }

void AVIControl::setSplitFields(bool on) {
  SplitFields_ = on;
  MeasureTime();
}

// ---------------------------------------------------------------- drawing

void AVIControl::DrawFrame(int Position) {
  const Lifetime::Watch watch(life_);
  StopStrobe();
  if (watch.Changed()) return;
  SetPosition(Position);
  RenderCurrent();
}

void AVIControl::Refresh() {
  if (!VideoStream_) return;
  if (!strobe_) return RenderCurrent();
  // While a strobe runs its picture is the current one.
  ComposeFrameBuffer();
  PresentFrame();
}

void AVIControl::RenderCurrent() {
  if (!VideoStream_ || MainSurface_.Empty()) return;
  const Composition wanted{CurrentRawFrame_, SplitFields_, CurrentField_, FlipHorizontal_};
  if (composed_ == wanted && isKept_) {
    std::copy_n(Kept_.Row(0), static_cast<std::size_t>(Kept_.Stride()) * Kept_.Height(), MainSurface_.Row(0));
  } else if (ComposeCurrent()) {
    // A picture that is wanted twice will be wanted again: somebody draws on it.
    isKept_ = composed_ == wanted;
    if (isKept_) Kept_ = MainSurface_;
    composed_ = wanted;
  }
  PresentFrame();
}

/// Brings the current frame or field on the main surface. A picture that cannot be had any more (the
/// file has gone) leaves the last one standing, with false.
bool AVIControl::ComposeCurrent() {
  if (SplitFields_) {
    if (!CopyFieldOf(CurrentRawFrame_, FrameBuffer_)) return false;
    SoftenFrameBuffer();
    Compose({FrameBuffer_.data(), FormatHeader_.width, FormatHeader_.height,
             ScanLineBytes(FormatHeader_.width, FormatHeader_.bitCount), FormatHeader_.bitCount, true});
    return true;
  }
  // A whole frame is shown from the decoder's own rows, and 32 bits of each pixel are scaled fastest;
  // only a field needs a buffer to be rebuilt in.
  const FrameRows rows = VideoStream_->Frame(CurrentRawFrame_, 32);
  if (!rows) return false;
  Compose({rows.bits, rows.width, rows.height, rows.rowBytes, rows.bitCount, true});
  return true;
}

void AVIControl::Compose(const PixelRows& picture) {
  StretchRows(picture, MainSurface_, scratch_);
  if (FlipHorizontal_) MirrorHorizontal(MainSurface_, ScratchSurface_);
}

void AVIControl::PresentFrame() {
  const Lifetime::Watch watch(life_);
  if (sink_) sink_->PreDrawFrame(*FrameGraphics_, ID_);
  if (watch.Changed()) return;
  if (view_) view_->Present(MainSurface_);
  if (sink_) sink_->Signal(GetPosition(), ID_);
}

// ---------------------------------------------------------------- playing

void AVIControl::Play(int Start, int End) {
  if (filename_.empty() || !VideoStream_) return;
  if (IsPlaying_) return StopPlay();
  if (Start >= 0 && End < 0) return DrawFrame(Start);
  const Lifetime::Watch watch(life_);
  StopStrobe();
  if (watch.Changed() || IsPlaying_) return;
  // A new speed that waited for the end of another play holds for this one.
  if (std::exchange(RestartPending_, false)) Speed_ = RestartSpeed_;
  playEndArgument_.reset();
  if (Start >= 0) {
    playEndArgument_ = PlayEnd_ = End;
    CurrentRawFrame_ = Start;
  }
  IsPlaying_ = true;
  // The raw frame doubles as the play's first position, also where no start was given.
  run_->Begin(CurrentRawFrame_);
}

void AVIControl::LoopPlay() {
  Repeat_ = true;
  Play(-1, -1);
}

void AVIControl::StopPlay() {
  if (!IsPlaying_) return;
  FinishPlay();
}

/// The one end of every play.
void AVIControl::FinishPlay() {
  services_.scheduler.Remove(*run_);
  IsPlaying_ = false;
  Repeat_ = false;
  // A play without arguments takes up this end; with fields it has always been stored as a frame.
  if (playEndArgument_) PlayEnd_ = SplitFields_ ? *playEndArgument_ / 2 : *playEndArgument_;
  const Lifetime::Watch watch(life_);
  if (sink_) sink_->Notify(CurrentRawFrame_, ID_);
  if (watch.Changed()) return;
  if (RestartPending_ && !IsPlaying_) setSpeed(RestartSpeed_);
}

bool AVIControl::setSpeed(int percent) {
  if (percent < 1) return false;
  if (IsPlaying_) {
    RestartPending_ = true;
    RestartLoop_ = Repeat_;
    RestartSpeed_ = percent;
    StopPlay();
    return true;
  }
  Speed_ = percent;
  if (RestartPending_) {
    RestartPending_ = false;
    Repeat_ = RestartLoop_;
    Play(GetPosition(), PositionCount() - 1);
  }
  return true;
}

}  // namespace kinalyx
