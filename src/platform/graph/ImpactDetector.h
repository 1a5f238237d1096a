#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kinalyx {

/// Hears when a club, a bat or a racket meets a ball, a gymnast lands, hands clap or a start pistol goes off, and does
/// not hear what people say, wind, hum, steps and music. It goes by what such a sound is: louder than the threshold,
/// there within a few milliseconds, with much of it high up, and gone as quickly. Since it waits for the last, it tells
/// of an impact kDecisionMs later; the time that it tells is that of the impact.
///
/// What it says depends on the samples alone, however they are cut into blocks. Not safe to use from two threads.
class ImpactDetector {
 public:
  /// From an impact to the sample with which it is told.
  static constexpr int kDecisionMs = 125;
  /// At the beginning, and after a gap, it gets to know what is heard anyway; no impact is told meanwhile.
  static constexpr int kSettlingMs = 510;
  static constexpr double kDefaultThreshold = 0.5;

  /// Level and threshold count decibels: 1 is full scale, and each 0.01 less is half a decibel; 0 is silence.
  /// @param amplitude  1 is full scale
  static double LevelOf(double amplitude);
  static double AmplitudeOf(double level);

  /// How loud an impact must be, as Level counts; 1 and more: none is heard.
  void SetThreshold(double level);
  /// How many times its samples are taken.
  void SetGain(double gain);

  /// @param samples  of one channel, full scale is 1; what is not a number counts as silence
  /// @param rate     samples a second, 8000 to 192000; at another one nothing is heard
  /// @param ns       when the first of them was taken, nanoseconds of CLOCK_MONOTONIC; where more than kGapMs are
  ///                 missing it settles anew
  /// @return  when those impacts happened of which it is sure now, in the order of time
  std::vector<std::int64_t> Hear(std::span<const float> samples, int rate, std::int64_t ns);

  /// The meter, 0 to 1: what was loudest, falling calmly. Rumble, wind and hum are left out of it, as they are of what
  /// is held against the threshold.
  double Level() const { return level_; }

  static constexpr int kGapMs = 50;

 private:
  /// Two poles and two zeros, as one stage of a filter.
  struct Stage {
    double b0 = 1, b1 = 0, b2 = 0, a1 = 0, a2 = 0;
    double z1 = 0, z2 = 0;
    double Pass(double x);
  };
  /// What was heard in a millisecond.
  struct Slice {
    std::int64_t ns = 0;  ///< of its first sample
    double peak = 0;      ///< of the audible band, as an amplitude
    double all = 0;       ///< mean power of the audible band
    double sharp = 0;     ///< and of its high part
  };
  static constexpr std::size_t kSlices = 1024;  ///< that are remembered; a power of two

  void Begin(int rate);
  void Take(double sample);
  void EndSlice();
  bool IsImpact(std::int64_t slice) const;
  const Slice& At(std::int64_t slice) const { return slices_[static_cast<std::size_t>(slice) % kSlices]; }
  double Mean(std::int64_t from, std::int64_t to, double Slice::*power) const;
  double Most(std::int64_t from, std::int64_t to, double Slice::*power) const;
  double Lasting(std::int64_t from, std::int64_t to, double Slice::*power, double percent) const;

  double threshold_ = kDefaultThreshold;
  double gain_ = 1;
  double level_ = 0;

  int rate_ = 0;
  std::array<Stage, 2> audible_;
  std::array<Stage, 2> sharp_;
  std::int64_t samples_ = 0;  ///< since it began
  std::int64_t sliceEnd_ = 0;
  std::int64_t sliceBegan_ = 0;
  std::int64_t nextNs_ = 0;  ///< that the next block should have

  Slice slice_;  ///< under way, its powers not yet divided
  std::array<Slice, kSlices> slices_;
  std::int64_t count_ = 0;  ///< of slices
  std::int64_t last_ = 0;   ///< slice of the last impact
};

}  // namespace kinalyx
