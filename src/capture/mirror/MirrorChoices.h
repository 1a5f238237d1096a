#pragma once

#include <array>
#include <string>

#include "platform/files/Result.h"

namespace kinalyx {

inline constexpr int kMostPanes = 4;
inline constexpr double kMostDelay = 60;  ///< seconds
inline constexpr double kDelayStep = 0.5;
inline constexpr int kLeastLoop = 2;  ///< seconds
inline constexpr int kMostLoop = 20;

/// How fast a loop runs.
enum class LoopSpeed { Quarter, Half, Full };
double PartOf(LoopSpeed speed);

/// How the user has set the delayed mirror; it is so again at the next start.
struct MirrorChoices {
  /// Seconds, for each number of panes its own.
  using Delays = std::array<double, kMostPanes>;

  int panes = 1;
  std::array<Delays, kMostPanes> delays{{{10}, {0, 10}, {0, 5, 10}, {0, 5, 10, 20}}};
  std::array<int, kMostPanes> cameras{};  ///< of each pane, 0 or 1
  int loopSeconds = 5;
  LoopSpeed speed = LoopSpeed::Quarter;
  bool mirrored = false;

  // Where the window was: pixels of the desktop; no width before it was anywhere.
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool fullScreen = false;
  std::string screen;  ///< the monitor that it filled

  bool operator==(const MirrorChoices&) const = default;
  double Delay(int pane) const { return delays[Row()][static_cast<std::size_t>(pane)]; }
  /// Brought to a step, 0 to 60.
  void SetDelay(int pane, double seconds);

 private:
  std::size_t Row() const { return static_cast<std::size_t>(panes - 1); }
};

/// What a file holds; what is missing in it, or makes no sense, is as at the first start.
MirrorChoices ReadMirrorChoices(const std::string& path);
Outcome WriteMirrorChoices(const std::string& path, const MirrorChoices& choices);

}  // namespace kinalyx
