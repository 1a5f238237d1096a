#include "platform/graph/ImpactDetector.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kinalyx {
namespace {

constexpr int kLeastRate = 8000;
constexpr int kMostRate = 192000;
constexpr double kFullDecibels = 50;   // from silence to full scale on the meter: a quiet room lies below it
constexpr double kFallPerMs = 0.0005;  // of the meter: two seconds from full to silence
constexpr double kMostGain = 100;

// What is heard. Below the first lie wind, hum, rumble, and most of a breath against the microphone. Above the second
// a voice has little and an impact much; the slowest rate still has an octave there. The third keeps what fast rates
// have beyond hearing, power supplies for one, from counting.
constexpr double kAudibleHz = 250;
constexpr double kSharpHz = 2000;
constexpr double kCeilingHz = 12000;
constexpr double kButterworth = std::numbers::sqrt2 / 2;

// Below this is what microphones hiss; nothing is compared with less.
constexpr double kLeastPower = 1e-9;

// The shape of an impact: milliseconds from its onset, and decibels between the powers that are compared.
constexpr int kAttackMs = 8;       // within which it reaches its height, a clap in several pieces
constexpr double kOnset = 12;      // below its height it begins
constexpr int kBeforeMs = 100;     // that it rises out of,
constexpr int kSoonMs = 10;        // and also of these; gusts and soles swell slower
constexpr int kGuardMs = 3;        // but for what filters and a slow rise bring before it,
constexpr double kRise = 20;       // by so much in the high band: consonants, drums in music, and clipped gusts do not
constexpr int kContextMs = 500;    // in which a word begins before its last letter
constexpr double kContext = 6;     // that an impact is louder, in its loudest millisecond, than who speaks,
constexpr double kLoud = 90;       // who is louder than that for a tenth of the time; a step before a hit is shorter
constexpr double kSpread = -12;    // of all that is audible so much at least lies high up, or it is a thud or a step
constexpr int kTailFromMs = 20;    // from when on only the room sounds on, while a letter hisses and a drum rings
constexpr int kTailToMs = 60;      // when the breath of a "t" is over
constexpr double kTail = 9;        // that a hard room is lower by then
constexpr double kMostly = 75;     // percent of the time; echoes have the rest
constexpr int kAfterToMs = 120;    // when a vowel has come after its consonant
constexpr double kAfter = 8;       // that it must not come up to; a vowel is as loud as its consonant, or louder
constexpr double kAfterHigh = 11;  // and in the high band, where each pulse of a loud voice is a little impact
constexpr double kNearlyAll = 85;  // percent of the time, so that those pulses count
constexpr int kEchoMs = 250;       // from one impact to the next: the walls of a driving bay answer sooner

double Ratio(double decibels) { return std::pow(10.0, decibels / 10); }

}  // namespace

double ImpactDetector::LevelOf(double amplitude) {
  if (!(amplitude > 0)) return 0;
  return std::clamp(1 + 20 * std::log10(amplitude) / kFullDecibels, 0.0, 1.0);
}

double ImpactDetector::AmplitudeOf(double level) { return std::pow(10.0, (level - 1) * kFullDecibels / 20); }

void ImpactDetector::SetThreshold(double level) {
  if (!std::isnan(level)) threshold_ = level;
}

void ImpactDetector::SetGain(double gain) {
  if (!std::isnan(gain)) gain_ = std::clamp(gain, 0.0, kMostGain);
}

double ImpactDetector::Stage::Pass(double x) {
  const double y = b0 * x + z1;
  z1 = b1 * x - a1 * y + z2;
  z2 = b2 * x - a2 * y;
  return y;
}

void ImpactDetector::Begin(int rate) {
  const auto design = [rate](double hz, bool high) {
    const double w = 2 * std::numbers::pi * hz / rate;
    const double c = std::cos(w);
    const double alpha = std::sin(w) / (2 * kButterworth);
    const double b = high ? (1 + c) / 2 : (1 - c) / 2;
    const double a0 = 1 + alpha;
    return Stage{.b0 = b / a0, .b1 = (high ? -2 : 2) * b / a0, .b2 = b / a0, .a1 = -2 * c / a0, .a2 = (1 - alpha) / a0};
  };
  rate_ = rate;
  audible_ = {design(kAudibleHz, true), rate > 2.5 * kCeilingHz ? design(kCeilingHz, false) : Stage{}};
  sharp_ = {design(kSharpHz, true), design(kSharpHz, true)};
  samples_ = sliceBegan_ = 0;
  sliceEnd_ = (rate + 999) / 1000;
  count_ = 0;
  last_ = -kEchoMs;
  slice_ = {};
}

std::vector<std::int64_t> ImpactDetector::Hear(std::span<const float> samples, int rate, std::int64_t ns) {
  std::vector<std::int64_t> found;
  if (rate < kLeastRate || rate > kMostRate) return found;
  constexpr std::int64_t kSecond = 1'000'000'000;
  if (rate != rate_ || std::abs(ns - nextNs_) > kGapMs * 1'000'000LL) Begin(rate);
  nextNs_ = ns + static_cast<std::int64_t>(samples.size()) * kSecond / rate;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    if (samples_ == sliceBegan_) slice_.ns = ns + static_cast<std::int64_t>(i) * kSecond / rate;
    Take(samples[i]);
    if (++samples_ < sliceEnd_) continue;
    EndSlice();
    const std::int64_t asked = count_ - kDecisionMs;
    if (asked < kSettlingMs || asked < last_ + kEchoMs || !IsImpact(asked)) continue;
    last_ = asked;
    found.push_back(At(asked).ns);
  }
  return found;
}

void ImpactDetector::Take(double sample) {
  // The tiny offset keeps the filters from counting down for ever in silence, which is slow.
  constexpr double kNoise = 1e-15;
  double heard = (std::isfinite(sample) ? std::clamp(sample * gain_, -kMostGain, kMostGain) : 0) + kNoise;
  for (Stage& stage : audible_) heard = stage.Pass(heard);
  double sharp = heard;
  for (Stage& stage : sharp_) sharp = stage.Pass(sharp);
  slice_.peak = std::max(slice_.peak, std::abs(heard));
  slice_.all += heard * heard;
  slice_.sharp += sharp * sharp;
}

void ImpactDetector::EndSlice() {
  const auto taken = static_cast<double>(samples_ - sliceBegan_);
  slice_.all = slice_.all / taken + kLeastPower;
  slice_.sharp = slice_.sharp / taken + kLeastPower;
  level_ = std::max(LevelOf(slice_.peak), level_ - kFallPerMs);
  slices_[static_cast<std::size_t>(count_++) % kSlices] = slice_;
  slice_ = {};
  sliceBegan_ = samples_;
  // Slices of a millisecond, also where that is no whole number of samples.
  sliceEnd_ = ((count_ + 1) * rate_ + 999) / 1000;
}

double ImpactDetector::Mean(std::int64_t from, std::int64_t to, double Slice::*power) const {
  double sum = 0;
  for (std::int64_t i = from; i < to; ++i) sum += At(i).*power;
  return sum / static_cast<double>(to - from);
}

double ImpactDetector::Most(std::int64_t from, std::int64_t to, double Slice::*power) const {
  double most = 0;
  for (std::int64_t i = from; i < to; ++i) most = std::max(most, At(i).*power);
  return most;
}

/// The power that is not exceeded in so many percent of the time: what sounds on, without single echoes.
double ImpactDetector::Lasting(std::int64_t from, std::int64_t to, double Slice::*power, double percent) const {
  std::array<double, kSlices> powers;
  const auto end = powers.begin() + (to - from);
  for (std::int64_t i = from; i < to; ++i) powers[static_cast<std::size_t>(i - from)] = At(i).*power;
  const auto part = powers.begin() + static_cast<std::ptrdiff_t>((to - from) * percent / 100);
  std::nth_element(powers.begin(), part, end);
  return *part;
}

/// Whether an impact begins in a slice. All that is needed of it and of what surrounds it has been heard.
bool ImpactDetector::IsImpact(std::int64_t slice) const {
  const auto below = [](double power, double height, double decibels) { return power <= height / Ratio(decibels); };
  const std::int64_t reached = slice + kAttackMs;
  if (threshold_ >= 1 || LevelOf(Most(slice, reached, &Slice::peak)) < threshold_) return false;
  const double height = Most(slice, reached, &Slice::sharp);
  if (!below(height, At(slice).sharp, -kOnset)) return false;
  if (!below(Mean(slice - kBeforeMs, slice - kGuardMs, &Slice::sharp), height, kRise)) return false;
  if (!below(Mean(slice - kSoonMs, slice - kGuardMs, &Slice::sharp), height, kRise)) return false;
  if (!below(Mean(slice, reached, &Slice::all), Mean(slice, reached, &Slice::sharp), kSpread)) return false;
  const std::int64_t tail = slice + kTailFromMs;
  const std::int64_t after = slice + kAfterToMs;
  if (!below(Lasting(tail, slice + kTailToMs, &Slice::sharp, kMostly), height, kTail)) return false;
  if (!below(Lasting(tail, after, &Slice::sharp, kNearlyAll), height, kAfterHigh)) return false;
  const double loudness = Most(slice, reached, &Slice::all);
  return below(Lasting(slice - kContextMs, slice - kGuardMs, &Slice::all, kLoud), loudness, kContext) &&
         below(Lasting(tail, after, &Slice::all, kNearlyAll), loudness, kAfter);
}

}  // namespace kinalyx
