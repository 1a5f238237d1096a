#include "video/AVIControl.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "video/PlayClock.h"
#include "video/Strobe.h"

namespace kinalyx {
namespace {

constexpr Colour kYellow = 65535;
constexpr Colour kRed = 255;
constexpr Colour kBlack = 0;
constexpr int kBetterMs = 10;  // between two looks for a better picture than a stand-in

/// Bits of a display format code; 0 lets the decoder choose.
int BitsOfFormat(int code) {
  constexpr int kBits[] = {0, 8, 16, 24, 32};
  return kBits[code];
}

}  // namespace

/// A play from its start to its end. One object serves all plays of its control.
class AVIControl::Run final : public IPlayRun {
 public:
  explicit Run(AVIControl& control) : control_(control) {}

  void Begin(int start, bool back) {
    const std::int64_t now = control_.services_.host.timeGetTime();
    back_ = back;
    // Going back, the clock counts how far below the end of the first picture the play has come.
    top_ = control_.BeatOf(start + 1);
    clock_.Start(now, back ? 0 : control_.BeatOf(start), control_.FrameTimeMs_ / control_.properties_.Speed * 100.0);
    control_.services_.scheduler.Add(*this, DueAfter(start));
    Show(start);
  }

  std::int64_t Tick(std::int64_t now) override {
    if (wrap_) {
      const int first = control_.PlayRange().first;
      clock_.Wrap(now, control_.BeatOf(control_.PlayEnd_ + 1), control_.BeatOf(first));
      Show(first);
    } else if (const int due = DueAt(now); back_ ? due < counter_ : due > counter_) {
      Show(due);
    }
    return DueAfter(counter_);
  }

 private:
  int DueAt(std::int64_t now) const {
    const double beat = clock_.BeatAt(now);
    return control_.PositionAtBeat(back_ ? std::max(0.0, top_ - beat) : beat);
  }
  std::int64_t DueAfter(int position) const {
    return clock_.Due(back_ ? top_ - control_.BeatOf(position) : control_.BeatOf(position + 1));
  }

  /// Draws a position; at or behind the end draws the end, which ends the play or, with a repeat, begins it
  /// anew one interval later, so that the last picture is seen as long as any other.
  void Show(int position) {
    const int end = back_ ? control_.PlayRange().first : control_.PlayEnd_;
    const bool atEnd = back_ ? position <= end : position >= end;
    counter_ = atEnd ? end : position;
    control_.SetPosition(counter_);
    control_.RenderCurrent();
    wrap_ = atEnd && !back_ && control_.properties_.Repeat;
    if (atEnd && !wrap_) control_.FinishPlay();
  }

  AVIControl& control_;
  PlayClock clock_;
  double top_ = 0;
  int counter_ = 0;
  bool back_ = false;
  bool wrap_ = false;
};

AVIControl::AVIControl(PlayerServices& services, IPlayerView* view)
    : services_(services), view_(view), run_(std::make_unique<Run>(*this)), strobe_(std::make_unique<Strobe>(*this)) {
  UpdatePenBrush();
}

AVIControl::~AVIControl() {
  services_.scheduler.Remove(*run_);
  services_.scheduler.Remove(*strobe_);
  News().Forget(*this);
}

// ---------------------------------------------------------------- opening

bool AVIControl::Load(const std::string& FileName, bool SplitFields, bool ReverseFields) {
  const std::string path = FileName.empty() ? filename_ : FileName;
  const PlayerNews::Hold hold(News());
  StopStrobe();
  StopPlay();
  CloseStream();
  filename_ = path;

  auto opened = VideoFile::Open(path);
  if (!opened) {
    services_.host.Note(MessageKind::Warning, "a video could not be opened: " + opened.Why());
    setBackColor(opened.Kind() == Fault::NoFrames ? kRed : kYellow);
    Unload();
    return false;
  }
  VideoStream_ = std::move(*opened);
  VideoStream_->SetShownSize(ControlWidthPixels(), ControlHeightPixels());
  VideoStream_->OnBetterPicture([flag = hasBetter_] { *flag = true; });
  setBackColor(kBlack);
  const VideoInfo& info = VideoStream_->Info();
  const auto rate = info.scale > 0 ? static_cast<int>(info.rate / info.scale) : 0;
  services_.VideoFrameRate = rate == 29 ? 30 : rate;
  properties_.SplitFields = SplitFields;
  ReverseFields_ = ReverseFields;
  MeasureTime();
  if (!OpenFrameDecoder() || !ReadFirstFrame()) {
    setBackColor(kYellow);
    Unload();
    return false;
  }
  return true;
}

void AVIControl::Unload() {
  const PlayerNews::Hold hold(News());
  StopStrobe();
  StopPlay();
  CloseStream();
  filename_.clear();
  surface_.Clear(kBlack);
  if (view_) view_->Present(Surface());
}

void AVIControl::CloseStream() {
  better_.Stop();
  VideoStream_.reset();
  range_.reset();
  FrameBuffer_ = {};
  softened_ = false;
  surface_.DropKept();
  FrameTimeMs_ = 0;
  CurrentRawFrame_ = 0;
  CurrentField_ = false;
  FormatHeader_ = {};
}

void AVIControl::MeasureTime() {
  FrameTimeMs_ = PositionCount() > 0 && VideoStream_ ? VideoStream_->SampleToTime(FrameCount()) / PositionCount() : 0;
}

/// Takes the wanted format, then the best one, then 32, 24, 16 and 8 bits: the first that the decoder
/// gives. It gives 24 and 32; "best" is 24, which every part of the pipeline works on.
bool AVIControl::OpenFrameDecoder() {
  for (const int code : {properties_.ForceDisplayFormat, 0, 4, 3, 2, 1, 0}) {
    const int bits = code == 0 ? 24 : BitsOfFormat(code);
    if (bits != 24 && bits != 32) continue;
    FormatHeader_ = {40, VideoWidth(), VideoHeight(), 1, bits, 0, 0};
    return true;
  }
  return false;
}

bool AVIControl::ReadFirstFrame() {
  FrameRows rows = VideoStream_->Frame(CurrentRawFrame_, FormatHeader_.bitCount);
  if (!rows && FrameCount() > 2) {
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
  if (width == ControlWidthPixels() && height == ControlHeightPixels()) return;
  surface_.CreateSurfaces(std::max(0, width), std::max(0, height));
  if (VideoStream_) VideoStream_->SetShownSize(ControlWidthPixels(), ControlHeightPixels());
  Refresh();
}

void AVIControl::UpdatePenBrush() {
  const Colour ink = TranslateColour(properties_.Forecolor).value_or(kBlack);
  surface_.UpdatePenBrush({ink, properties_.DrawWidth, properties_.DrawStyle}, static_cast<Rop2>(properties_.DrawMode));
}

void AVIControl::setDrawStyle(int style) {
  properties_.DrawStyle = style;
  UpdatePenBrush();
}

void AVIControl::setDrawMode(Rop2 mode) {
  properties_.DrawMode = static_cast<int>(mode);
  UpdatePenBrush();
}

void AVIControl::setDrawWidth(int width) {
  properties_.DrawWidth = std::max(1, width);
  UpdatePenBrush();
}

bool AVIControl::setForecolor(Colour colour) {
  if (!TranslateColour(colour)) return false;
  properties_.Forecolor = colour;
  UpdatePenBrush();
  return true;
}

bool AVIControl::setBackColor(Colour colour) {
  const auto shown = TranslateColour(colour);
  if (!shown) return false;
  properties_.BackColor = colour;
  if (view_) view_->SetBackColor(*shown);
  return true;
}

void AVIControl::ReadProperties(const PropertyBag& bag) {
  PlayerProperties read = kinalyx::ReadProperties(bag);
  const int speed = std::exchange(read.Speed, properties_.Speed);
  properties_ = read;
  UpdatePenBrush();
  setBackColor(properties_.BackColor);
  MeasureTime();
  setSpeed(speed);  // a running play goes on at it
}

bool AVIControl::setForceDisplayFormat(int code) {
  if (!PlayerProperties::IsDisplayFormat(code)) return false;
  properties_.ForceDisplayFormat = code;
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

void AVIControl::Tell(PlayerNews::Kind kind, int frame) {
  if (!sink_) return;
  switch (kind) {
    case PlayerNews::Kind::Signal: return sink_->Signal(frame, properties_.ID);
    case PlayerNews::Kind::Notify: return sink_->Notify(frame, properties_.ID);
    case PlayerNews::Kind::StrobeEnded: return sink_->StrobeEnded(properties_.ID);
  }
}

// ---------------------------------------------------------------- positions

int AVIControl::GetPosition() const {
  if (!properties_.SplitFields) return CurrentRawFrame_;
  return 2 * CurrentRawFrame_ + (CurrentField_ != ReverseFields_ ? 1 : 0);
}

void AVIControl::SetPosition(int position) {
  const int p = std::clamp(position, 0, std::max(0, PositionCount() - 1));
  if (!properties_.SplitFields) {
    CurrentRawFrame_ = p;
    return;
  }
  CurrentRawFrame_ = p / 2;
  CurrentField_ = (p % 2 == 1) != ReverseFields_;
}

double AVIControl::BeatOf(int position) const {
  // The fields of a picture share its time, whatever that is.
  if (!VideoStream_ || !Info()->rateVaries || properties_.SplitFields || FrameTimeMs_ <= 0) return position;
  return VideoStream_->SampleToTime(position) / FrameTimeMs_;
}

int AVIControl::PositionAtBeat(double beat) const {
  const int end = PositionCount();
  if (!VideoStream_ || !Info()->rateVaries || properties_.SplitFields || FrameTimeMs_ <= 0)
    return static_cast<int>(std::clamp<double>(std::floor(beat), 0, end));
  const double ms = beat * FrameTimeMs_;
  return ms >= VideoStream_->SampleToTime(end) ? end : VideoStream_->FrameAtTime(ms);
}

int AVIControl::PositionCount() const { return properties_.SplitFields ? 2 * FrameCount() : FrameCount(); }

void AVIControl::setSplitFields(bool on) {
  if (on != properties_.SplitFields) range_.reset();
  properties_.SplitFields = on;
  MeasureTime();
}

// ---------------------------------------------------------------- drawing

void AVIControl::DrawFrame(int Position) {
  const PlayerNews::Hold hold(News());
  StopStrobe();
  SetPosition(Position);
  RenderCurrent();
}

void AVIControl::Refresh() {
  if (!VideoStream_) return;
  const PlayerNews::Hold hold(News());
  // While a strobe runs its picture is the current one.
  StrobeRunning() ? ShowFrameBuffer() : RenderCurrent();
}

void AVIControl::RenderCurrent() {
  if (!VideoStream_ || surface_.Empty()) return;
  const FrameSurface::Content wanted{CurrentRawFrame_, properties_.SplitFields, CurrentField_,
                                     properties_.FlipHorizontal};
  better_.Stop();
  if (!surface_.BringBack(wanted) && ComposeCurrent()) surface_.Composed(wanted);
  PresentFrame();
}

void AVIControl::setExactPictures(bool on) {
  exactPictures_ = on;
  if (on && better_.Running()) Refresh();
}

/// Looks now and then whether there is a better picture than the stand-in that is shown.
void AVIControl::AwaitBetter() {
  better_ = HostTimer(services_.host, kBetterMs, true, [this] {
    if (hasBetter_->exchange(false)) Refresh();
  });
}

/// Brings the current frame or field on the main surface; true when it is the exact one. A picture that cannot be
/// had any more (the file has gone) leaves the last one standing.
bool AVIControl::ComposeCurrent() {
  if (properties_.SplitFields) {
    if (!CopySoftFieldOf(CurrentRawFrame_, services_.field)) return false;
    ComposeField(services_.field);
    return true;
  }
  return ComposeWhole();
}

/// A whole frame is shown from the decoder's own rows, and 32 bits of each pixel are scaled fastest; only a field
/// needs a buffer to be rebuilt in.
bool AVIControl::ComposeWhole() {
  FrameAtHand found;
  if (VideoStream_->HasStandIns() && !exactPictures_) {
    hasBetter_->store(false);
    found = VideoStream_->FrameNow(CurrentRawFrame_, 32);
    if (!found.exact) AwaitBetter();
  } else {
    found = {VideoStream_->Frame(CurrentRawFrame_, 32), CurrentRawFrame_, true};
  }
  const FrameRows& rows = found.rows;
  if (!rows) return false;
  surface_.Compose({rows.bits, rows.width, rows.height, rows.rowBytes, rows.bitCount, true}, properties_.FlipHorizontal,
                   services_.scratch);
  return found.exact;
}

int AVIControl::Glimpse(int position, int width, Surface& target) {
  if (!VideoStream_ || width <= 0) return -1;
  const int each = properties_.SplitFields ? 2 : 1;
  const FrameAtHand found = VideoStream_->Glimpse(position / each);
  const FrameRows& rows = found.rows;
  if (!rows) return -1;
  const int height =
      std::max(1, static_cast<int>(std::lround(static_cast<double>(width) * VideoHeight() / VideoWidth())));
  if (target.Width() != width || target.Height() != height) target = Surface(width, height);
  StretchRows({rows.bits, rows.width, rows.height, rows.rowBytes, rows.bitCount, true}, target, services_.scratch);
  if (Surface scratch; properties_.FlipHorizontal) MirrorHorizontal(target, scratch);
  return found.frame * each;
}

void AVIControl::PresentFrame() {
  if (sink_) sink_->PreDrawFrame(surface_.hDC(), properties_.ID);
  if (view_) view_->Present(surface_.Picture());
  Post(PlayerNews::Kind::Signal, GetPosition());
}

// ---------------------------------------------------------------- playing

void AVIControl::Play(int Start, int End) {
  if (filename_.empty() || !VideoStream_) return;
  if (IsPlaying_) return StopPlay();
  if (Start >= 0 && End < 0) return DrawFrame(Start);
  const PlayerNews::Hold hold(News());
  StopStrobe();
  playEndArgument_.reset();
  if (Start >= 0) {
    playEndArgument_ = PlayEnd_ = End;
    CurrentRawFrame_ = Start;
  }
  IsPlaying_ = true;
  // The raw frame doubles as the play's first position, also where no start was given.
  run_->Begin(CurrentRawFrame_, false);
}

void AVIControl::PlayBack() {
  if (filename_.empty() || !VideoStream_) return;
  if (IsPlaying_) return StopPlay();
  const PlayerNews::Hold hold(News());
  StopStrobe();
  playEndArgument_.reset();
  IsPlaying_ = playsBack_ = true;
  run_->Begin(GetPosition(), true);
}

AVIControl::Range AVIControl::PlayRange() const {
  const Range whole{0, std::max(0, PositionCount() - 1)};
  return range_ && range_->first >= 0 && range_->first < range_->last && range_->last <= whole.last ? *range_ : whole;
}

void AVIControl::LoopPlay() {
  properties_.Repeat = true;
  Play(-1, -1);
}

void AVIControl::StopPlay() {
  if (!IsPlaying_) return;
  const PlayerNews::Hold hold(News());
  FinishPlay();
}

/// The one end of every play.
void AVIControl::FinishPlay() {
  services_.scheduler.Remove(*run_);
  IsPlaying_ = false;
  playsBack_ = false;
  properties_.Repeat = false;
  // A play without arguments takes up this end; with fields it has always been stored as a frame.
  if (playEndArgument_) PlayEnd_ = properties_.SplitFields ? *playEndArgument_ / 2 : *playEndArgument_;
  Post(PlayerNews::Kind::Notify, CurrentRawFrame_);
}

bool AVIControl::setSpeed(int percent) {
  if (!PlayerProperties::IsSpeed(percent)) return false;
  if (!IsPlaying_) {
    properties_.Speed = percent;
    return true;
  }
  const PlayerNews::Hold hold(News());
  const bool repeat = properties_.Repeat;
  const bool back = playsBack_;
  FinishPlay();
  properties_.Speed = percent;
  properties_.Repeat = repeat;
  // Behind the range it goes on to the end of the video.
  const int last = PlayRange().last;
  if (back) PlayBack();
  else Play(GetPosition(), GetPosition() < last ? last : PositionCount() - 1);
  return true;
}

}  // namespace kinalyx
