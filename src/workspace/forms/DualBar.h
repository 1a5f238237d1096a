#pragma once

#include "platform/widgets/Figures.h"
#include "workspace/compare/CompareModes.h"
#include "workspace/forms/SeekBar.h"
#include "workspace/forms/StageParts.h"
#include "workspace/forms/StagePanel.h"

class QComboBox;
class QPushButton;

namespace kinalyx {

/// The controls of locked videos: lock, one frame back and on, rewind, play together at any speed, and the
/// bar that moves all of them.
class DualBar : public StagePanel {
  Q_OBJECT

 public:
  DualBar(CompareModes& modes, Stage& theStage, QWidget* parent);

  void ShowState(const DualState& state);

 private:
  void Dress() override;

  CompareModes& modes_;
  QToolButton* lock_ = nullptr;
  QToolButton* lockAll_;
  QToolButton* rewind_;
  QToolButton* back_;
  QToolButton* play_;
  QToolButton* forward_;
  QToolButton* repeat_;
  QToolButton* byTime_;  ///< shown where the locked videos were taken at different rates
  QComboBox* speed_;
  SeekBar* scroll_;
  FigureLabel* line_;
  bool setting_ = false;  ///< the controls are being set; what they say is no command
};

}  // namespace kinalyx
