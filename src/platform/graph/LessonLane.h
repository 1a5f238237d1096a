#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/graph/FileLane.h"
#include "platform/graph/GraphNews.h"
#include "platform/media/LessonFile.h"

namespace kinalyx {

/// A picture of the screen on its way to a lesson, of even size.
struct ScreenPicture {
  LessonPicture pixels;
  int width = 0;
  int height = 0;
};

/// The way of the screen's pictures and the voice to the file of a lesson: a thread of its own encodes and writes, so
/// that neither the screen nor the microphone waits for it. Two seconds of pictures and ten of the voice are taken on
/// credit. What is further behind loses pictures, for which the one before stands; a voice that is lost is silence.
class LessonLane final : public IFileLane {
 public:
  /// @param label  of the sink, for the news
  /// @param voice  samples will come
  LessonLane(std::string label, GraphNews news, LessonKind kind, bool voice);
  /// Closes what is open, without waiting.
  ~LessonLane() override;
  LessonLane(const LessonLane&) = delete;
  LessonLane& operator=(const LessonLane&) = delete;

  void Open(const std::string& path) override;
  void Close(std::int64_t lastNs) override;
  void CloseNow() override;
  void Pause(bool on) override;
  bool WaitClosed(std::chrono::steady_clock::time_point until) const override;
  RecordingTally Tally() const override;

  // From the streaming threads; times are nanoseconds of CLOCK_MONOTONIC.
  void PushPicture(ScreenPicture picture, std::int64_t ns);
  void PushSound(std::vector<std::int16_t> samples, std::int64_t ns);

 private:
  struct Desk;
  std::shared_ptr<Desk> desk_;  ///< shared with the thread, which may outlive this
};

}  // namespace kinalyx
