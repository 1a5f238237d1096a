#include "platform/graph/MotionDetector.h"

#include <algorithm>
#include <cmath>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <utility>

#include "platform/graph/LightChange.h"

namespace kinalyx {
namespace {

// Whatever the camera's size, a picture is looked at in about as many cells.
constexpr int kCellsHigh = 240;
constexpr std::int64_t kLeastNs = 14'000'000;  // from one look to the next
constexpr double kMeanSeconds = 0.8;           // how long a cell remembers what it was
constexpr double kRestSeconds = 2.5;           // and how restless
constexpr double kClipped = 250;

/// What it takes, by the sensitivity: half as much with every 25 more.
struct Measures {
  double levels;      ///< by which a quiet cell must differ
  double restlessly;  ///< and how many times more by which it usually does
  double patch;       ///< cells that differ from the picture before
  double body;        ///< cells in one piece that differ from the last second
};

Measures MeasuresFor(int sensitivity) {
  const double half = std::pow(2.0, (IMotionDetectionFilter::kUsualSensitivity - sensitivity) / 25.0);
  return {16 * half, 2.5 * std::sqrt(half), 10 * half, 110 * half};
}

/// What has become of two brightnesses of the same cells.
class Comparison {
 public:
  /// @param then  CV_8U or CV_32F
  void Compare(const cv::Mat& now, const cv::Mat& then, const LightChange& light) {
    then.convertTo(expected_, CV_8U, light.gain, light.offset);
    cv::absdiff(now, expected_, difference_);
    if (light.None()) return;
    // What is as bright as can be does not tell how it has changed.
    cv::compare(now, kClipped, clipped_, cv::CMP_GE);
    difference_.setTo(0, clipped_);
    cv::compare(then, kClipped, clipped_, cv::CMP_GE);
    difference_.setTo(0, clipped_);
  }

  /// Marks the cells that differ by more than they may, where all those round them do so too.
  /// @return  how many
  int Solid(const Measures& measures, const LightChange& light) {
    if (restless_.empty()) restless_ = cv::Mat::zeros(difference_.size(), CV_32F);
    // A camera's brightness is no straight line.
    const double base = light.None() ? measures.levels : measures.levels * (1 + 2 * std::abs(light.gain - 1));
    restless_.convertTo(expected_, CV_8U, measures.restlessly, base);
    cv::subtract(difference_, expected_, solid_);
    cv::erode(solid_, solid_, cv::Mat());
    return cv::countNonZero(solid_);
  }

  void Learn(double part) { cv::accumulateWeighted(difference_, restless_, part); }

  int LargestPiece() {
    cv::compare(solid_, 0, solid_, cv::CMP_GT);
    const int pieces = cv::connectedComponentsWithStats(solid_, labels_, stats_, middles_, 8, CV_16U);
    int largest = 0;
    for (int i = 1; i < pieces; ++i) largest = std::max(largest, stats_.at<int>(i, cv::CC_STAT_AREA));
    return largest;
  }

 private:
  cv::Mat restless_;
  cv::Mat difference_, expected_, solid_, clipped_;
  cv::Mat labels_, stats_, middles_;
};

/// One region, and what it has seen.
class Watch {
 public:
  explicit Watch(const MotionRegion& region) : region_(region) {}

  const MotionRegion& Region() const { return region_; }

  /// @return  something moves
  bool Look(const LumaPicture& picture, const Measures& measures, const LightMeter& light, double seconds) {
    if (!TakeCells(picture)) return false;
    const bool hit = !before_.empty() && Moves(measures, light);
    Learn(light, seconds);
    // One picture may be a fault of the camera.
    hits_ = (hits_ << 1 | (hit ? 1U : 0U)) & 7U;
    return (hits_ & 1U) + (hits_ >> 1 & 1U) + (hits_ >> 2) >= 2;
  }

 private:
  /// False where nothing of it lies on the picture.
  bool TakeCells(const LumaPicture& picture) {
    const auto at = [](double part, int whole) {
      return std::clamp(static_cast<int>(std::lround(part * whole)), 0, whole);
    };
    const MotionRect& place = region_.place;
    const int left = at(place.left, picture.width), right = at(place.left + place.width, picture.width);
    const int top = at(place.top, picture.height), bottom = at(place.top + place.height, picture.height);
    int side = std::max(1, static_cast<int>(std::lround(static_cast<double>(picture.height) / kCellsHigh)));
    constexpr int kFewest = 8;  // cells of a small region
    side = std::clamp(std::min(right - left, bottom - top) / kFewest, 1, side);
    const cv::Size cells((right - left) / side, (bottom - top) / side);
    if (cells.width < 2 || cells.height < 2) return false;
    // The picture is only read.
    const cv::Mat whole(picture.height, picture.width, CV_8U, const_cast<std::uint8_t*>(picture.bytes),
                        static_cast<std::size_t>(picture.stride));
    cv::resize(whole(cv::Rect(left, top, cells.width * side, cells.height * side)), now_, cells, 0, 0, cv::INTER_AREA);
    if (before_.empty()) now_.convertTo(mean_, CV_32F);
    return true;
  }

  bool Moves(const Measures& measures, const LightMeter& light) {
    last_.Compare(now_, before_, light.SinceLast());
    lastSecond_.Compare(now_, mean_, light.SinceMean());
    // A small region cannot have more than it has.
    const auto cells = static_cast<double>(now_.total());
    const int patch = last_.Solid(measures, light.SinceLast());
    const int body = lastSecond_.Solid(measures, light.SinceMean());
    if (patch >= std::min(measures.patch, cells * 0.08)) return true;
    const double wanted = std::min(measures.body, cells * 0.25);
    return body >= wanted && lastSecond_.LargestPiece() >= wanted;
  }

  void Learn(const LightMeter& light, double seconds) {
    if (!before_.empty()) {
      const double part = 1 - std::exp(-seconds / kRestSeconds);
      last_.Learn(part);
      lastSecond_.Learn(part);
      if (!light.SinceMean().None()) mean_.convertTo(mean_, CV_32F, light.SinceMean().gain, light.SinceMean().offset);
    }
    cv::accumulateWeighted(now_, mean_, 1 - std::exp(-seconds / kMeanSeconds));
    cv::swap(now_, before_);
  }

  MotionRegion region_;
  cv::Mat now_, before_, mean_;
  Comparison last_;
  Comparison lastSecond_;
  unsigned hits_ = 0;  ///< of the last three pictures
};

}  // namespace

struct MotionDetector::Eye {
  std::vector<Watch> watches;
  Measures measures = MeasuresFor(IMotionDetectionFilter::kUsualSensitivity);
  LightMeter light;
  std::int64_t lastNs = 0;
  bool begun = false;
  cv::Size size;  ///< of the picture that was looked at last
  std::vector<int> moving;
};

MotionDetector::MotionDetector() : eye_(std::make_unique<Eye>()) {
  // A picture is a small job, and the other processors have their own.
  cv::setNumThreads(1);
}

MotionDetector::~MotionDetector() = default;
MotionDetector::MotionDetector(MotionDetector&&) noexcept = default;
MotionDetector& MotionDetector::operator=(MotionDetector&&) noexcept = default;

void MotionDetector::SetRegions(std::span<const MotionRegion> regions) {
  std::vector<Watch> watches;
  for (const MotionRegion& region : regions) {
    const auto known = std::ranges::find(eye_->watches, region, &Watch::Region);
    watches.push_back(known != eye_->watches.end() ? std::move(*known) : Watch(region));
  }
  eye_->watches = std::move(watches);
}

void MotionDetector::SetSensitivity(int sensitivity) { eye_->measures = MeasuresFor(std::clamp(sensitivity, 0, 100)); }

const std::vector<int>& MotionDetector::Look(const LumaPicture& picture) {
  Eye& eye = *eye_;
  if (!picture.bytes || picture.width < 2 || picture.height < 1) return eye.moving;
  if (eye.begun && picture.ns >= eye.lastNs && picture.ns - eye.lastNs < kLeastNs) return eye.moving;
  const double seconds =
      eye.begun ? std::clamp(static_cast<double>(picture.ns - eye.lastNs) / 1e9, 0.005, 0.2) : 1.0 / 30;
  eye.lastNs = picture.ns;
  eye.begun = true;
  eye.moving.clear();
  if (const cv::Size size(picture.width, picture.height); std::exchange(eye.size, size) != size) {
    for (Watch& watch : eye.watches) watch = Watch(MotionRegion(watch.Region()));
    eye.light = {};
  }
  if (eye.watches.empty()) {
    eye.light = {};
    return eye.moving;
  }
  eye.light.Look(picture, 1 - std::exp(-seconds / kMeanSeconds));
  for (Watch& watch : eye.watches)
    if (watch.Look(picture, eye.measures, eye.light, seconds)) eye.moving.push_back(watch.Region().number);
  return eye.moving;
}

}  // namespace kinalyx
