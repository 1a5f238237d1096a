#pragma once

#include <map>

#include "core/forms/SetupSection.h"

class QButtonGroup;
class QCheckBox;

namespace kinalyx {

class ColourButton;

/// How the analysis section opens, plays and draws.
class AnalysisSection : public SetupSection {
  Q_OBJECT

 public:
  explicit AnalysisSection(Settings& settings, QWidget* parent = nullptr);

  void SetupProgram() override;

 signals:
  /// A setting of the analysis section has changed.
  void AnalysisChanged();

 private:
  void AddLayouts();
  void AddShowing();
  void AddPlaying();
  void AddDrawing();
  void AddColours();
  void AddMeasuring();
  void NewColor_Click(int index, const QString& title);

  template <typename T>
  void StoreAndTell(T& setting, std::type_identity_t<T> value) {
    if (Store(setting, value)) emit AnalysisChanged();
  }

  QButtonGroup* layouts_ = nullptr;
  QButtonGroup* sides_ = nullptr;
  QButtonGroup* widths_ = nullptr;
  QButtonGroup* colouring_ = nullptr;
  QButtonGroup* keys_ = nullptr;
  QButtonGroup* standards_ = nullptr;
  QButtonGroup* angles_ = nullptr;
  QButtonGroup* speeds_ = nullptr;
  QButtonGroup* fits_ = nullptr;
  QSlider* slomo_ = nullptr;
  QSlider* volume_ = nullptr;
  QSlider* strobe_ = nullptr;
  QSlider* grid_ = nullptr;
  QCheckBox* outline_ = nullptr;
  QCheckBox* barPictures_ = nullptr;
  QCheckBox* shortGame_ = nullptr;
  QCheckBox* labels_ = nullptr;
  QCheckBox* ownRuler_ = nullptr;
  std::map<int, ColourButton*> colours_;
};

}  // namespace kinalyx
