#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "distribution/lessons/LessonFiles.h"
#include "distribution/lessons/forms/LessonDesk.h"
#include "library/JobRunner.h"
#include "platform/graph/DesktopScreens.h"

namespace kinalyx {

class AnalysisForm;
class CaptureRoom;

/// The lesson recorder of the program: a desk for each analysis section that stands, the screens of this desktop, and
/// the search for what an earlier run has left.
class LessonRoom final : private ILessonStage {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    ProfileFields& fields;
    LastStudentInfo& remembered;
    CaptureRoom& capture;
    std::function<void(const std::string& words)> sign;  ///< what goes on, for other pages; empty for nothing
  };
  /// All outlives the room. What was left is looked for from now on, on a worker.
  explicit LessonRoom(Parts parts);
  ~LessonRoom() override;

  /// The section that stands now; null when it goes.
  void Serve(AnalysisForm* analysis);
  void Toggle();
  bool Shown() const { return desk_ && desk_->Session().Shown(); }
  /// Ends what is being recorded; the form that asks for its name follows.
  void Stop();
  bool UnderWay() const { return desk_ && IsUnderWay(desk_->Session().Phase()); }
  /// Whether the section may go. Asks where a lesson is not kept yet.
  bool MayLeave();

 private:
  class Finding;
  void LessonChanged() override;
  std::string CurrentVideo() const override;
  void TakeCard(FloatCard& card) override;
  void PlayLesson(const std::string& path) override;

  Parts parts_;
  DesktopScreens screens_;
  JobRunner finder_;
  std::vector<RecordedLesson> left_;
  AnalysisForm* analysis_ = nullptr;
  std::unique_ptr<LessonDesk> desk_;
};

}  // namespace kinalyx
