#pragma once

#include <array>

#include "distribution/lessons/LessonSession.h"
#include "workspace/forms/FloatCard.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;

namespace kinalyx {

class FigureLabel;
class LevelMeter;

/// The recorder over the stage. Before a lesson it has the choices; while it records it is a small strip that leaves
/// the stage to the lesson. No part of it takes the keys from the stage.
class LessonPanel : public FloatCard {
  Q_OBJECT

 public:
  /// The members of the control array `RecordBtn`.
  enum Button { kMain, kPause, kCancel, kStudent, kSave, kButtons };

  /// All that is passed outlives the panel.
  LessonPanel(LessonSession& session, const Settings& settings, QWidget* stage);

  /// Shows what the session says; comes and goes with it.
  void Update();
  void ShowLevel(double level);

 signals:
  void StudentWanted();
  void SaveWanted();

 protected:
  void Dress() override;

 private:
  QWidget* MakeChoices();
  QPushButton* MakeButton(Button which, const QString& caption);
  void FillMicrophones();
  void Fit();

  LessonSession& session_;
  const Settings& settings_;
  LessonPhase shown_ = LessonPhase::Away;
  QWidget* content_;
  QHBoxLayout* first_;
  QHBoxLayout* last_;
  QWidget* choices_;
  QLabel* status_;
  QLabel* dot_;
  FigureLabel* RecordMinuteLbl_;
  LevelMeter* meter_;
  QLabel* RecordStudent_;
  QComboBox* microphone_;
  QComboBox* kind_;
  QProgressBar* progress_;
  std::array<QPushButton*, kButtons> RecordBtn_{};
};

}  // namespace kinalyx
