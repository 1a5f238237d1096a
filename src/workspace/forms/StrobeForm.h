#pragma once

#include <array>

#include "workspace/compare/StrobeControl.h"
#include "workspace/forms/FloatCard.h"
#include "workspace/forms/SeekBar.h"
#include "workspace/forms/StageParts.h"

class QComboBox;
class QPushButton;

namespace kinalyx {

/// `StrobeForm`, "Advanced Strobe": start, end and step of a strobe, and its picture as a file.
class StrobeForm : public FloatCard, private IStrobeView {
  Q_OBJECT

 public:
  StrobeForm(StrobeControl& strobe, QWidget* parent);
  ~StrobeForm() override;

  /// Hands itself to the strobe and shows its choices; whoever shows it gives it its place.
  void Begin();

 signals:
  /// What it shows is to be saved as a picture.
  void SaveWanted();

 private:
  void SetCaption(StrobeButton button, const std::string& caption) override;
  void SetSlider(int lowest, int highest, int value) override;
  void SetObstacle(const std::string& why) override;
  void SetResult(bool there) override;
  void Dress() override;

  StrobeControl& strobe_;
  QWidget* content_ = nullptr;
  SeekBar* ESlider_;
  std::array<QPushButton*, 3> SSCommand1_{};
  QComboBox* Combo1_;
  QPushButton* save_;
};

}  // namespace kinalyx
