#pragma once

#include <cstdint>

namespace kinalyx {

/// Finds the place of each picture of a camera by its time stamp, and the rate at which the camera really takes
/// pictures. Stamps tremble, and cameras promise other rates than they keep; both make no gap. Only a picture that
/// comes more than half a picture time after its place leaves places before it empty.
class RecordingClock {
 public:
  /// @param promisedRate  pictures a second; 0 when nothing is promised
  explicit RecordingClock(double promisedRate)
      : period_(promisedRate > 0 ? 1 / promisedRate : 0),
        shortest_(promisedRate > 0 ? kLeastOfPromised / promisedRate : 0) {}

  /// Takes the stamp of the next picture, which must be later than the one before.
  /// @return places that stay empty before it
  std::int64_t Take(std::int64_t ns);
  /// Places a second, as measured; 0 with fewer than two.
  double Rate() const { return usualLine_.pictures > line_.pictures ? usualLine_.Slope() : line_.Slope(); }

 private:
  /// The straight line of places over times: means, and sums of what deviates from them.
  struct Line {
    std::int64_t pictures = 0;
    double meanTime = 0;
    double meanPlace = 0;
    double timeSpread = 0;
    double together = 0;

    void Add(double time, double place);
    double Slope() const { return timeSpread > 0 ? together / timeSpread : 0; }
  };

  std::int64_t Steps(double time);
  void Follow(double time, std::int64_t steps);
  void BeginAnew(double time);

  /// Once a picture has been held up on its way, those behind it come in bursts, which look as if the camera were
  /// faster than it promises: by more than this it is not.
  static constexpr double kLeastOfPromised = 0.95;

  std::int64_t firstNs_ = 0;
  double paused_ = 0;        ///< seconds that have no places
  std::int64_t places_ = 0;  ///< pictures and empty places so far
  std::int64_t due_ = 0;     ///< the place where the last picture belongs by its stamp; it stands there or later
  double phase_ = 0;         ///< the time of that place, freed of its trembling
  double period_ = 0;        ///< of one picture
  double shortest_;          ///< that it can be after that
  bool waited_ = false;      ///< a picture came late
  int followed_ = 0;

  // A camera that promises twice what it keeps looks at first as one that loses every second picture.
  bool promiseKept_ = false;
  int lateIntervals_ = 0;
  std::int64_t doubted_ = 0;  ///< places that would have been left empty

  Line line_;       ///< of the rate that the camera has now
  Line usualLine_;  ///< of the one that it had longest before
};

}  // namespace kinalyx
