#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "distribution/clips/ClipDesk.h"
#include "platform/graph/VoiceRecorder.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QSlider;

namespace kinalyx {

class Button;
class ClipPicture;

/// "Save Video with Drawings": what of the stage becomes a clip, with a picture of it.
class ClipForm : public QDialog {
  Q_OBJECT

 public:
  struct Parts {
    IHost& host;
    AnalysisWorkspace& analysis;
    ClipDesk& desk;
    IVoiceRecorder& voice;
    std::string microphone;  ///< that is heard; empty without one
  };
  /// All outlives the form.
  ClipForm(Parts parts, QWidget* over);
  ~ClipForm() override;

 private:
  QWidget* MakeChoices();
  QWidget* MakePreview();
  QWidget* MakeTarget();
  QComboBox* AddChoice(class QFormLayout& rows, const QString& name, const QString& caption);
  ClipWish Wish() const;
  void Show(const ClipWish& wish);
  void Enable();
  void Changed();
  bool OpenVideos();
  void Preview();
  void Play(bool on);
  void NextPicture();
  void RecordVoice(bool on);
  void DropVoice(const QString& words);
  void ChooseFolder();
  void Save();

  IHost& host_;
  AnalysisWorkspace& analysis_;
  ClipDesk& desk_;
  IVoiceRecorder& recorder_;
  std::string microphone_;
  std::vector<ClipMoment> moments_;
  std::string folder_;
  bool filling_ = true;  ///< the controls are being set; what they say is no choice

  ClipPicture* picture_ = nullptr;
  QSlider* seek_ = nullptr;
  Button* play_ = nullptr;
  QLabel* length_ = nullptr;
  Button* voice_ = nullptr;
  Button* noVoice_ = nullptr;
  QProgressBar* level_ = nullptr;
  QLabel* voiceWords_ = nullptr;
  QButtonGroup* windows_ = nullptr;
  QComboBox* from_ = nullptr;
  QComboBox* to_ = nullptr;
  QComboBox* speed_ = nullptr;
  QComboBox* pause_ = nullptr;
  QComboBox* size_ = nullptr;
  QComboBox* file_ = nullptr;
  QComboBox* count_ = nullptr;
  QLabel* countTitle_ = nullptr;
  QCheckBox* names_ = nullptr;
  QCheckBox* timer_ = nullptr;
  QCheckBox* notes_ = nullptr;
  QCheckBox* sound_ = nullptr;
  QCheckBox* card_ = nullptr;
  QLineEdit* name_ = nullptr;
  QLabel* place_ = nullptr;
  QLabel* fault_ = nullptr;
  Button* save_ = nullptr;

  std::unique_ptr<ScenePainter> painter_;
  ClipOrder order_;
  ClipWish shown_;  ///< for which the videos were opened
  ClipPlan plan_;
  std::vector<std::int16_t> spoken_;
  HostTimer soon_;
  HostTimer playing_;
  std::int64_t playedFrom_ = 0;  ///< of the host's clock, when the clip began
};

}  // namespace kinalyx
