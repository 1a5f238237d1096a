#include "platform/media/RecordingClock.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kinalyx {
namespace {

/// A stamp that is further away, in seconds, belongs to another time: nobody wants to look at that much of nothing.
constexpr double kLongestGap = 60;
// So many pictures and seconds show whether a stream catches up; where it does, that may take so long.
constexpr std::size_t kEnough = 20;
constexpr double kPatience = 1;
constexpr double kLongPatience = 5;
constexpr double kLongestBurst = 10;
/// A picture of which the next comes that much later, in places, may be followed by an empty one.
constexpr double kSomeRoom = 0.8;
/// Seconds by which all pictures are off their places: the camera has taken up another rate.
constexpr double kOtherRate = 1;
// What is expected follows the stamps as fast as if so many had been seen, or as came in so many seconds.
constexpr int kMemory = 240;
constexpr int kLongestMemory = 1920;
constexpr double kRemembered = 8;
/// Early pictures after which their earliness is known.
constexpr double kEarlyMemory = 30;
/// A camera whose pictures come late seems faster than it is, by their bursts; by more than this it is not, as long as
/// it keeps to its rate.
constexpr double kLeastOfBegun = 0.95;
/// A picture that is less late, in places, came in time, however much the others tremble.
constexpr double kInTime = 0.2;
constexpr double kMostEarly = 0.35;
constexpr double kWithoutPromise = 1.0 / 30;
/// Seconds from picture to picture.
constexpr double kShortest = 1e-5;

double Median(std::vector<double>& values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

/// The usual time from one picture to the next, by all pairs that are at most so far apart.
double UsualStep(std::span<const double> times, std::size_t furthest) {
  std::vector<double> steps;
  for (std::size_t i = 0; i < times.size(); ++i)
    for (std::size_t j = i + 1; j < times.size() && j - i <= furthest; ++j)
      steps.push_back((times[j] - times[i]) / static_cast<double>(j - i));
  return Median(steps);
}

/// By how much of a period the steps are off it, the half of them that are off least.
double Trembling(std::span<const double> times, double period) {
  std::vector<double> off;
  for (std::size_t i = 1; i < times.size(); ++i) off.push_back(std::abs((times[i] - times[i - 1]) / period - 1));
  return Median(off);
}

bool Near(double a, double b, double part) { return std::abs(a - b) < part * b; }

}  // namespace

RecordingClock::Gap RecordingClock::Take(std::int64_t ns) {
  if (places_ == 0 && waiting_.empty()) {
    firstNs_ = ns;
    waiting_.emplace_back();
    return {};
  }
  double step = static_cast<double>(ns - firstNs_) * 1e-9 - paused_ - lastTime_;
  shortest_ = shortest_ > 0 ? std::min(shortest_, step) : step;
  if (step > kLongestGap) {
    const double period = begun_ ? period_ : std::max(promised_, shortest_);
    paused_ += step - period;
    step = period;
  }
  lastTime_ += step;
  waiting_.push_back({lastTime_, Guess(step)});
  guessed_ += waiting_.back().gap.guessed;
  return waiting_.back().gap;
}

/// @param step  seconds from the picture before to the one that has just come
RecordingClock::Gap RecordingClock::Guess(double step) const {
  Gap gap;
  const double least = begun_ ? period_ : promised_ > 0 ? std::min(promised_, shortest_) : shortest_;
  gap.room = std::max<std::int64_t>(0, std::llround(std::floor(step / std::max(kShortest, least) - 1 + kSomeRoom)));
  std::int64_t guessed = 0;
  if (begun_) {
    const auto before = static_cast<std::int64_t>(waiting_.size()) + guessed_;
    guessed = std::llround((lastTime_ - phase_) / period_) - 1 - before;
  } else {
    guessed = std::llround(step / std::max({kShortest, promised_, shortest_})) - 1;
  }
  gap.guessed = std::clamp<std::int64_t>(guessed, 0, gap.room);
  return gap;
}

std::optional<std::int64_t> RecordingClock::Settle() { return Next(false); }

std::optional<std::int64_t> RecordingClock::Conclude() { return Next(true); }

std::optional<std::int64_t> RecordingClock::Next(bool last) {
  if (waiting_.empty() || !(begun_ || last || Ripe())) return std::nullopt;
  if (!begun_) Begin();
  const Lateness late = Late();
  const bool gap = late.least >= std::max(kInTime, 0.5 - Tremble());
  // Further pictures only bring it down: what is no gap now never will be.
  if (gap && !last && !Ripe()) return std::nullopt;
  const Waiting picture = waiting_.front();
  if (gap && !last && late.falls && waiting_.back().time - picture.time < kLongestBurst) return std::nullopt;
  waiting_.pop_front();
  guessed_ -= picture.gap.guessed;
  const std::int64_t empty = gap ? std::clamp<std::int64_t>(std::llround(late.certain), 0, picture.gap.room) : 0;
  return Place(picture, empty, late.least);
}

/// Whether the pictures that wait show what is to be known of the first of them.
bool RecordingClock::Ripe() const {
  const double seconds = waiting_.back().time - waiting_.front().time;
  return seconds >= kPatience && (waiting_.size() >= kEnough || seconds >= kLongPatience);
}

RecordingClock::Lateness RecordingClock::Late() const {
  const std::size_t count = waiting_.size();
  double least[2] = {1e9, 1e9};
  for (std::size_t i = 0; i < count; ++i) {
    const double late = (waiting_[i].time - phase_) / period_ - static_cast<double>(i + 1);
    double& half = least[i < count / 2 ? 0 : 1];
    half = std::min(half, late);
  }
  Lateness result;
  result.least = std::min(least[0], least[1]);
  result.falls = least[1] < least[0] - 0.5;
  // The least of many is as early as pictures get; of a few nobody knows.
  const auto n = static_cast<double>(count);
  result.certain = result.least + Tremble() * (n - 3) / (n + 1);
  return result;
}

/// Finds out period and phase from the pictures that wait.
void RecordingClock::Begin() {
  std::vector<double> times;
  for (const Waiting& picture : waiting_) times.push_back(picture.time);
  period_ = std::max(kShortest, Period(times));
  leastPeriod_ = kLeastOfBegun * period_;
  double earliest = times.front();
  for (std::size_t i = 1; i < times.size(); ++i)
    earliest = std::min(earliest, times[i] - static_cast<double>(i) * period_);
  // Evenly spread between -a and a, two stamps are off each other by 0.586 a, as often as by less.
  constexpr double kOfDifferences = 0.5 / 0.586;
  early_ = std::min(kMostEarly, kOfDifferences * Trembling(times, period_));
  const auto n = static_cast<double>(times.size());
  phase_ = earliest + (Tremble() * (n - 1) / (n + 1) - 1) * period_;
  followed_ = static_cast<int>(std::min<std::size_t>(kMemory, times.size()));
  begun_ = true;
}

/// Seconds from picture to picture, whatever is lost among them.
double RecordingClock::Period(const std::vector<double>& times) const {
  constexpr std::size_t kMost = 256;
  constexpr std::size_t kNeighbours = 4;
  const double otherwise = promised_ > 0 ? promised_ : kWithoutPromise;
  if (times.size() < 2) return otherwise;
  std::span<const double> seen = std::span(times).last(std::min(kMost, times.size()));
  double usual = UsualStep(seen, kNeighbours);
  // A stream may begin with what has piled up before.
  const auto later = seen.last(seen.size() - seen.size() / 2);
  const double usualLater = UsualStep(later, kNeighbours);
  if (usualLater > 1.3 * usual) {
    usual = usualLater;
    seen = later;
  }
  // By all pairs it is exact, but too long where much is lost.
  const double exact = UsualStep(seen, seen.size());
  if (Trembling(seen, exact) > 0.2) return exact > 0.6 * promised_ ? std::max(exact, promised_) : exact;
  if (Near(exact, usual, 0.05) || Near(exact, promised_, 0.03)) return exact;
  return Near(usual, promised_, 0.15) ? promised_ : usual;
}

/// @param empty  places before it
/// @param lag  by how many places all are late, before these
std::int64_t RecordingClock::Place(const Waiting& picture, std::int64_t empty, double lag) {
  const double late = (picture.time - phase_) / period_ - static_cast<double>(empty + 1);
  phase_ += static_cast<double>(empty + 1) * period_;
  places_ += empty + 1;
  if (late <= 1) {
    line_.Add(picture.time, static_cast<double>(places_ - 1));
    // Places that were left empty for a picture that came after all stay so until as many are lost.
    Follow(late >= -1 ? late : late - std::round(late));
  }
  if (std::abs(lag - static_cast<double>(empty)) * period_ > kOtherRate) {
    if (line_.pictures > usualLine_.pictures) usualLine_ = line_;
    line_ = {};
    begun_ = false;
  }
  return empty;
}

/// @param late  by how many places a picture is late
void RecordingClock::Follow(double late) {
  const int memory = std::clamp(static_cast<int>(kRemembered / period_), kMemory, kLongestMemory);
  const double n = followed_ + 1;
  if (followed_ < memory) ++followed_;
  if (late < 0) early_ += (std::min(kMostEarly * 2, -late) - early_) / kEarlyMemory;
  phase_ += late * period_ * 2 * (2 * n - 1) / (n * (n + 1));
  period_ = std::max(leastPeriod_, period_ * (1 + 6 * late / (n * (n + 1))));
}

/// By how many places pictures are early at most.
double RecordingClock::Tremble() const { return 2 * std::min(kMostEarly, early_); }

double RecordingClock::Rate() const {
  const Line& line = usualLine_.pictures > line_.pictures ? usualLine_ : line_;
  if (line.pictures > 1) return line.Slope();
  return begun_ && places_ + static_cast<std::int64_t>(waiting_.size()) > 1 ? 1 / period_ : 0;
}

void RecordingClock::Line::Add(double time, double place) {
  ++pictures;
  const double fromTime = time - meanTime;
  meanTime += fromTime / static_cast<double>(pictures);
  meanPlace += (place - meanPlace) / static_cast<double>(pictures);
  timeSpread += fromTime * (time - meanTime);
  together += fromTime * (place - meanPlace);
}

}  // namespace kinalyx
