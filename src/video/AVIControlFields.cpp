#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "video/AVIControl.h"
#include "video/StrobeLayers.h"

namespace kinalyx {
namespace {

constexpr int kAttackDistance = 20;
/// Milliseconds that a layer stands for each frame of the step.
constexpr int kLayerMs = 50;

}  // namespace

/// One strobe, from its reference pictures to its last layer.
class AVIControl::Strobe final : public IPlayRun {
 public:
  enum class Kind { Scene, Background };

  Strobe(AVIControl& control, Kind kind, int start, int end, int step)
      : control_(control), kind_(kind), frame_(start), end_(end), step_(step) {}

  /// Takes the reference pictures and the start picture; false when one cannot be had.
  bool Prepare() {
    const int start = frame_;
    if (kind_ == Kind::Scene) {
      references_.resize(1);
      if (!control_.CopyFieldOf(control_.CurrentRawFrame_, references_[0])) return false;
      layers_.emplace(Shape());
    } else {
      references_.resize(4);
      for (int i = 1; i <= 4; ++i) {
        const int frame = static_cast<int>(std::nearbyint(i * 0.24 * control_.FrameCount()));
        if (!control_.CopyFieldOf(std::min(frame, control_.FrameCount() - 1), references_[static_cast<std::size_t>(i - 1)]))
          return false;
      }
    }
    const int first = kind_ == Kind::Scene ? start : control_.CurrentRawFrame_;
    if (!control_.CopyFieldOf(first, control_.FrameBuffer_)) return false;
    control_.CurrentRawFrame_ = start;
    return true;
  }

  std::int64_t Wait() const { return kind_ == Kind::Scene ? std::int64_t{step_} * kLayerMs : 0; }

  std::int64_t Tick(std::int64_t) override {
    AVIControl& control = control_;  // this object may end before the control does
    if (!AddLayer()) {
      control.EndStrobe();
      return 0;
    }
    control.SoftenFrameBuffer();
    const std::int64_t wait = Wait();
    const int number = control.strobeNumber_;
    const Lifetime::Watch watch(control.life_);
    control.ShowFrameBuffer();
    if (watch.Changed() || !control.strobe_ || control.strobeNumber_ != number) return 0;
    return control.services_.host.timeGetTime() + wait;
  }

 private:
  RowShape Shape() const {
    return {ScanLineBytes(control_.FormatHeader_.width, control_.FormatHeader_.bitCount), control_.FormatHeader_.height};
  }

  /// False when the strobe is over.
  bool AddLayer() {
    if (frame_ > end_ || std::int64_t{frame_} + step_ >= end_) return false;
    frame_ += step_;
    control_.CurrentRawFrame_ += step_;
    const bool field = control_.CurrentField_;
    if (!control_.CopyFieldOf(control_.CurrentRawFrame_, picture_)) return false;
    // A control that has not softened anything yet shows its first picture as it is.
    if (!control_.softened_) return true;
    if (kind_ == Kind::Scene) {
      layers_->Add(references_[0].data(), picture_.data(), field, control_.FrameBuffer_.data());
    } else {
      AddAgainstBackground(Shape(), {references_[0].data(), references_[1].data(), references_[2].data(), references_[3].data()},
                           picture_.data(), field, control_.FrameBuffer_.data());
    }
    return true;
  }

  AVIControl& control_;
  Kind kind_;
  int frame_;
  int end_;
  int step_;
  std::optional<StrobeLayers> layers_;
  std::vector<std::vector<std::uint8_t>> references_;
  std::vector<std::uint8_t> picture_;
};

/// Copies the current field of a frame into a block of the frames' size; its other rows stay.
bool AVIControl::CopyFieldOf(int frame, std::vector<std::uint8_t>& target) {
  const FrameRows rows = VideoStream_->Frame(frame, FormatHeader_.bitCount);
  if (!rows || rows.width != FormatHeader_.width || rows.height != FormatHeader_.height) return false;
  target.resize(static_cast<std::size_t>(FormatHeader_.imageSize));
  CopyField(rows.bits, rows.rowBytes, rows.height, CurrentField_, target.data());
  return true;
}

void AVIControl::SoftenFrameBuffer() {
  if (FormatHeader_.bitCount != 24) return;
  SoftenField(FrameBuffer_.data(), ScanLineBytes(FormatHeader_.width, 24), FormatHeader_.height, CurrentField_);
  softened_ = true;
}

void AVIControl::ComposeFrameBuffer() {
  const int bits = FormatHeader_.bitCount;
  surface_.Compose({FrameBuffer_.data(), FormatHeader_.width, FormatHeader_.height, ScanLineBytes(FormatHeader_.width, bits),
                    bits, true},
                   properties_.FlipHorizontal);
}

/// Shows the buffer, which may hold what no position has.
void AVIControl::ShowFrameBuffer() {
  surface_.ForgetComposed();
  ComposeFrameBuffer();
  PresentFrame();
}

void AVIControl::AttackBits() {
  if (!VideoStream_ || surface_.Empty() || !CopyFieldOf(CurrentRawFrame_ + kAttackDistance, FrameBuffer_)) return;
  SoftenFrameBuffer();
  ShowFrameBuffer();
}

void AVIControl::Enhance(double HighAmount, double LowAmount) {
  if (!VideoStream_ || surface_.Empty()) return;
  const Lifetime::Watch watch(life_);
  if (FormatHeader_.bitCount == 24 && CopyFieldOf(CurrentRawFrame_, FrameBuffer_)) {
    const int rowBytes = ScanLineBytes(FormatHeader_.width, 24);
    if (softened_) EnhanceField(FrameBuffer_.data(), rowBytes, FormatHeader_.height, CurrentField_, HighAmount, LowAmount);
    SoftenFrameBuffer();
    ShowFrameBuffer();
    if (watch.Gone()) return;
  }
  services_.host.DoEvents();
  if (watch.Changed() || FrameBuffer_.empty()) return;
  std::fill(FrameBuffer_.begin() + ScanLineBytes(FormatHeader_.width, FormatHeader_.bitCount), FrameBuffer_.end(), 0);
}

// ---------------------------------------------------------------- strobe

void AVIControl::Strobeframes(int Start, int End, int Step) {
  BeginStrobe(std::make_unique<Strobe>(*this, Strobe::Kind::Scene, Start, End > Start ? End : FrameCount() - 1, std::max(1, Step)));
}

void AVIControl::Strobeframes2(int Start, int End, int Step) {
  BeginStrobe(std::make_unique<Strobe>(*this, Strobe::Kind::Background, Start, End > Start ? End : FrameCount() - 1, std::max(1, Step)));
}

void AVIControl::BeginStrobe(std::unique_ptr<Strobe> strobe) {
  const Lifetime::Watch watch(life_);
  StopStrobe();
  if (!watch.Changed() && IsPlaying_) StopPlay();
  if (watch.Changed() || !VideoStream_) return;
  const bool possible = !surface_.Empty() && FormatHeader_.bitCount == 24 && strobe->Prepare();
  const std::int64_t due = services_.host.timeGetTime() + strobe->Wait();
  strobe_ = std::move(strobe);
  ++strobeNumber_;
  if (!possible) return EndStrobe();
  services_.scheduler.Add(*strobe_, due);
}

void AVIControl::StopStrobe() {
  if (strobe_) EndStrobe();
}

void AVIControl::EndStrobe() {
  services_.scheduler.Remove(*strobe_);
  strobe_.reset();
  surface_.ForgetComposed();
  const auto action = strobeEnd_;  // may replace itself
  if (action) action();
}

}  // namespace kinalyx
