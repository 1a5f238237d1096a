#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>
#include <string>

#include "capture/import/ImportSession.h"
#include "video/PlayerServices.h"

class QCheckBox;
class QLabel;
class QProgressBar;

namespace kinalyx {

class Button;
class FigureLabel;
class ImportRows;
class NameList;
class Panel;
class PreviewPlayer;
class TrimSlider;

/// What the capture page shows where videos come as files: the files, the chosen one in a player with a bar for the
/// trim, the watch over a folder, and how far a conversion is. Files can be dropped on it.
class ImportPanel : public QWidget, private IImportEvents {
  Q_OBJECT

 public:
  /// All that is passed outlives it.
  ImportPanel(PlayerServices& services, Settings& settings, IVideoNaming& naming, QWidget* parent = nullptr);
  ~ImportPanel() override;

  /// Takes another way of importing, or the same, and reads its folder.
  void SetKind(ImportKind kind);
  /// The page is on the screen again.
  void Open();
  ImportSession& Session() { return session_; }

  // --- handlers
  void AutoConvertBtn_Click() { session_.ToggleAuto(); }
  void SSCommand8_Click(int index);
  void List1_Click();

 signals:
  /// A new video is in the student's folder.
  void VideoSaved(const std::string& path);
  /// The video that was saved last is wanted in the analysis section.
  void AnalyzeWanted(const std::string& path);
  /// Program Setup, section Capture, is wanted.
  void SetupWanted();

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  enum Command { kSetStart, kSetEnd, kBrowse, kSave, kCommands };

  QWidget* MakeWatch();
  QWidget* MakeFiles();
  QWidget* MakeList();
  QWidget* MakeTrim();
  void MakeFoot();
  QWidget* MakeProgress();
  void ConnectParts();

  void ImportChanged() override;
  void VideoImported(const std::string& path) override;
  void GoToCaptureSetup() override { emit SetupWanted(); }

  void ShowAll();
  void ShowKind();
  void ShowPreview();
  void ShowTrim();
  void ShowTime();
  void ShowProgress();
  QString Hint() const;
  QString CountText() const;
  std::vector<std::string> ToSave() const;
  double TimeOf(int frame) const;
  void DropFiles(const std::vector<std::string>& paths);

  PlayerServices& services_;
  Settings& settings_;
  ImportSession session_;
  std::string previewed_;  ///< path of the file in the player
  std::string saved_;      ///< path of the video that was saved last
  QTimer soon_;            ///< until what has changed is shown
  QTimer lookAgain_;       ///< for files that a camera brings

  QWidget* watch_ = nullptr;
  Button* AutoConvertBtn_ = nullptr;
  QLabel* AutoImportLbl_ = nullptr;
  Panel* files_ = nullptr;
  FigureLabel* count_ = nullptr;
  Button* refresh_ = nullptr;
  Button* setup_ = nullptr;
  NameList* List1_ = nullptr;
  ImportRows* rows_ = nullptr;
  PreviewPlayer* preview_ = nullptr;
  QWidget* trim_ = nullptr;
  TrimSlider* HScroll_ = nullptr;
  Button* play_ = nullptr;
  Button* clear_ = nullptr;
  FigureLabel* startTime_ = nullptr;
  FigureLabel* endTime_ = nullptr;
  FigureLabel* shownTime_ = nullptr;
  QCheckBox* keepSize_ = nullptr;
  std::array<QCheckBox*, 2> VidSetupCheck_{};
  std::array<Button*, kCommands> SSCommand8_{};
  Button* saveAll_ = nullptr;
  QWidget* progress_ = nullptr;
  QLabel* progressText_ = nullptr;
  QProgressBar* gauge_ = nullptr;
  QLabel* status_ = nullptr;
  Button* analyze_ = nullptr;
};

}  // namespace kinalyx
