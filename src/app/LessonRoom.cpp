#include "app/LessonRoom.h"

#include <QGuiApplication>
#include <utility>

#include "app/CaptureRoom.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Text.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx {

/// What the search finds, for as long as there is a room.
class LessonRoom::Finding final : public IJobEvents {
 public:
  explicit Finding(LessonRoom& room) : room_(room) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override {
    const auto* found = dynamic_cast<FindUnfinishedLessons*>(job);
    if (!found || found->Found().empty()) return;
    if (room_.desk_) room_.desk_->Offer(found->Found());
    else room_.left_ = found->Found();
  }

 private:
  LessonRoom& room_;
};

LessonRoom::LessonRoom(Parts parts)
    : parts_(parts),
      screens_(DesktopScreens::KindOf(Std(QGuiApplication::platformName())), parts.capture.Post()),
      finder_(parts.host, JobRunner::On::Worker) {
  finder_.Start(std::make_unique<FindUnfinishedLessons>(JoinPath(parts.settings.DataPath, "capture")),
                std::make_unique<Finding>(*this));
}

LessonRoom::~LessonRoom() = default;

void LessonRoom::Serve(AnalysisForm* analysis) {
  if (desk_) left_ = desk_->TakeOffers();
  desk_.reset();
  parts_.sign("");
  analysis_ = analysis;
  auto* stage = analysis ? analysis->findChild<QWidget*>("MainPanel") : nullptr;
  if (!stage) return;
  desk_ = std::make_unique<LessonDesk>(
      LessonDesk::Parts{.host = parts_.host,
                        .settings = parts_.settings,
                        .fields = parts_.fields,
                        .setup = parts_.capture.Setup(),
                        .screens = screens_,
                        .remembered = parts_.remembered,
                        .events = *this,
                        .makeGraph = [this](IGraphEvents& events) { return parts_.capture.MakeGraph(events); }},
      stage);
  if (!left_.empty()) desk_->Offer(std::exchange(left_, {}));
}

void LessonRoom::Toggle() {
  if (desk_) desk_->Session().Toggle();
}

bool LessonRoom::MayLeave() {
  if (!desk_) return true;
  const LessonPhase phase = desk_->Session().Phase();
  if (!IsUnderWay(phase) && phase < LessonPhase::Finished) return true;
  return parts_.host.Question("",
                              Tr("The lesson has not been saved. Do you want to leave it? It is offered again at the "
                                 "next start."));
}

void LessonRoom::Stop() {
  if (UnderWay()) desk_->Session().PressRecord();
}

void LessonRoom::LessonChanged() {
  analysis_->Section().Stage().News().Note(kCommandsChanged);
  parts_.sign(!UnderWay()                                       ? ""
              : desk_->Session().Phase() == LessonPhase::Paused ? Tr("Lesson paused: Stop Recording")
                                                                : Tr("Lesson: Stop Recording"));
}

std::string LessonRoom::CurrentVideo() const {
  const Stage& stage = analysis_->Section().Stage();
  return stage.HasVideo(stage.CurrentWindow) ? stage.At(stage.CurrentWindow).path : "";
}

void LessonRoom::TakeCard(FloatCard& card) { analysis_->TakeCard(card); }

void LessonRoom::PlayLesson(const std::string& path) { analysis_->Section().OpenFiles(0, {path}); }

}  // namespace kinalyx
