#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "distribution/lessons/LessonSession.h"
#include "library/Profile.h"

class QLabel;
class QWidget;

namespace kinalyx {

class ClickRing;
class FloatCard;
class LessonPanel;
class SaveLessonForm;

/// What a desk asks of the section over which it works.
class ILessonStage {
 public:
  virtual ~ILessonStage() = default;
  /// The recorder has come or gone, or begun or ended: menus and buttons show it.
  virtual void LessonChanged() = 0;
  /// The video with which the user works; empty for none.
  virtual std::string CurrentVideo() const = 0;
  /// A card has been made over the stage.
  virtual void TakeCard(FloatCard& card) = 0;
  /// A lesson is to be looked at.
  virtual void PlayLesson(const std::string& path) = 0;
};

/// The lesson recorder over one stage: its session, its panel and its forms.
class LessonDesk : public QObject, private ILessonView {
  Q_OBJECT

 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    ProfileFields& fields;
    CaptureSetup& setup;
    IScreens& screens;
    LastStudentInfo& remembered;
    ILessonStage& events;
    std::function<std::unique_ptr<IGraph>(IGraphEvents&)> makeGraph;
  };
  /// All parts, and the stage, outlive the desk.
  LessonDesk(const Parts& parts, QWidget* stage);
  ~LessonDesk() override;

  LessonSession& Session() { return session_; }
  /// Offers what an earlier run has left, the latest first.
  void Offer(std::vector<RecordedLesson> lessons);
  /// What has been neither taken up nor refused, for the next desk.
  std::vector<RecordedLesson> TakeOffers() { return std::exchange(left_, {}); }

 private:
  void ChooseStudent();
  void ChooseOther();
  void ShowOffer();
  void MakeOffer();

  // --- ILessonView
  void LessonChanged() override;
  void ShowLevel(double level) override;
  ScreenPlace Screen() override;
  std::string CurrentVideo() const override { return parts_.events.CurrentVideo(); }
  void ShowSaveForm() override;
  void LessonSaved(const std::string& path) override;

  Parts parts_;
  QWidget* stage_;
  JobRunner jobs_;
  LessonSession session_;
  LessonPhase told_ = LessonPhase::Away;
  QPointer<LessonPanel> panel_;
  QPointer<SaveLessonForm> save_;
  ClickRing* ring_;
  std::vector<RecordedLesson> left_;  ///< by an earlier run
  QPointer<FloatCard> offer_;
  QLabel* offerWords_ = nullptr;
};

}  // namespace kinalyx
