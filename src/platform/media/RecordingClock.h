#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace kinalyx {

/// Finds the place of each picture of a camera by its time stamp, and the rate at which the camera really takes
/// pictures. Stamps tremble, pictures are held up on their way and then come in bursts, and cameras promise other rates
/// than they keep; none of these makes a gap. Places are left empty only where the pictures of the next second do not
/// catch up, so what is told of a picture at first is a guess, and what Settle tells later is certain.
class RecordingClock {
 public:
  /// @param promisedRate  pictures a second; 0 when nothing is promised
  explicit RecordingClock(double promisedRate) : promised_(promisedRate > 0 ? 1 / promisedRate : 0) {}

  /// Places before a picture.
  struct Gap {
    std::int64_t room = 0;     ///< that may turn out to be empty, at most
    std::int64_t guessed = 0;  ///< of these, what is empty if all further stamps are exact
  };
  /// Takes the stamp of the next picture, which must be later than the one before.
  Gap Take(std::int64_t ns);
  /// Tells of the pictures in turn, once it is certain, how many places before each are empty; nothing while the next
  /// one has to wait.
  std::optional<std::int64_t> Settle();
  /// The same when no more pictures come: all are settled with what is known.
  std::optional<std::int64_t> Conclude();
  /// Places a second, as measured; 0 as long as nothing is.
  double Rate() const;

 private:
  struct Waiting {
    double time = 0;
    Gap gap;
  };
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
  /// How many places late the first of the pictures that wait is at least, as those behind it show.
  struct Lateness {
    double least = 0;    ///< of all that wait
    bool falls = false;  ///< they are catching up
    double certain = 0;  ///< what the trembling of so few leaves of it
  };

  Gap Guess(double step) const;
  std::optional<std::int64_t> Next(bool last);
  Lateness Late() const;
  bool Ripe() const;
  double Tremble() const;
  void Begin();
  double Period(const std::vector<double>& times) const;
  std::int64_t Place(const Waiting& picture, std::int64_t empty, double lag);
  void Follow(double places);

  double promised_;      ///< seconds of one picture
  double shortest_ = 0;  ///< of all intervals
  std::int64_t firstNs_ = 0;
  double paused_ = 0;    ///< seconds that have no places
  double lastTime_ = 0;  ///< of the last picture that came
  std::deque<Waiting> waiting_;
  std::int64_t guessed_ = 0;  ///< empty places among them

  bool begun_ = false;       ///< period and phase are known
  std::int64_t places_ = 0;  ///< that are settled
  double phase_ = 0;         ///< the time of the last of them, freed of its trembling
  double period_ = 0;        ///< of one picture
  double leastPeriod_ = 0;   ///< that it can become
  int followed_ = 0;         ///< pictures that have told of both
  double early_ = 0;         ///< by how many places the early ones are early, on average

  Line line_;       ///< of the rate that the camera has now
  Line usualLine_;  ///< of the one that it had longest before
};

}  // namespace kinalyx
