#pragma once

#include <span>
#include <vector>

#include "distribution/clips/ClipScene.h"

namespace kinalyx {

/// The times of a video's pictures.
class IFilmTimes {
 public:
  virtual ~IFilmTimes() = default;
  /// Positions, as the player counts them: frames, or fields.
  virtual int Count() const = 0;
  /// Milliseconds from the start of the video; `Count()` gives its end.
  virtual double TimeOf(int position) const = 0;
  /// The position that is shown at a time, between the first and the last.
  virtual int PositionAt(double ms) const = 0;
};

/// Which stretch of the lead a clip shows, and how fast.
struct ClipStretch {
  int First = 0;  ///< positions of the lead, both shown
  int Last = 0;
  int Slower = 1;        ///< times slower than filmed: 1, 2, 4 or 8
  double MostRate = 60;  ///< pictures in a second of the clip; no telephone shows more
  double PauseMs = 0;    ///< how long it stands where drawings begin; 0 for no pause
};

/// One picture of a clip.
struct ClipFrame {
  double Ms = 0;               ///< from which it is shown
  std::vector<int> Positions;  ///< of the videos of the scene, in their order
  bool Paused = false;         ///< it stands here longer than the film does

  friend bool operator==(const ClipFrame&, const ClipFrame&) = default;
};

/// A clip, picture by picture.
struct ClipPlan {
  std::vector<ClipFrame> Frames;
  double EndMs = 0;

  /// A stretch of the lead's sound that is heard as it was.
  struct Sound {
    double Ms = 0;      ///< of the clip
    double FromMs = 0;  ///< of the video
    double LengthMs = 0;
  };
  std::vector<Sound> Sounds;  ///< none of a clip in slow motion
};

/// Plans a clip of a scene. What is locked to the lead goes along with it position by position, as far as it reaches;
/// the others by the clock, from where they stand to the moment that the lead shows now. Where a video has come to its
/// end, or has not begun, it stands. A stretch beyond the video is brought inside it.
/// @param times  of the scene's videos, in their order
ClipPlan PlanClip(const ClipScene& scene, std::span<const IFilmTimes* const> times, const ClipStretch& stretch);

}  // namespace kinalyx
