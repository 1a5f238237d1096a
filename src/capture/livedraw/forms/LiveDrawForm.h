#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "capture/livedraw/LiveDrawSession.h"
#include "platform/host/ScreenAwake.h"
#include "workspace/commands/MenuBar.h"

class QComboBox;
class QLabel;
class QSlider;

namespace kinalyx {

class Button;
class ColorRow;
class DrawCaption;
class LiveDrawPicture;
class ToolStrip;

/// What leads from live draw to the analysis section.
class ILiveDrawWays {
 public:
  virtual ~ILiveDrawWays() = default;
  /// Goes to the analysis section with a macro that has just been kept: laid on the current video where nothing is
  /// drawn on it yet, else shown in the list of macros.
  virtual void TakeToAnalysis(const std::string& macro) = 0;
};

/// `LiveDrawForm`: the camera's picture with the drawing tools above it and the camera's buttons beneath, in a window
/// of its own.
class LiveDrawForm : public QWidget, private ILiveDrawView {
  Q_OBJECT

 public:
  /// All outlives the form.
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    LiveDrawSession& session;
    ILiveDrawWays& ways;
  };
  explicit LiveDrawForm(Parts parts);
  ~LiveDrawForm() override;

  // --- handlers
  void Form_Load();
  void Form_Activate();
  /// 0 freezes and goes live, 2 adds a hot zone or cancels it.
  void CamCtlBtn_Click(int index);
  void SSRibbon1_Click(bool value);
  void Cadoffbutton_Click();
  void PixSlider_Change(int value);
  void SendToAnalysis_Click();
  void ToggleFullScreen();

 signals:
  void Closed();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeCommands();
  QWidget* MakeChoices();
  QWidget* MakeControls();
  void Run(const std::string& name);
  void RunTwice(const std::string& name);
  bool PressKey(const QKeyEvent& event);
  void FillCameras();
  void PlaceCaption();
  void UpdateAll();

  // --- ILiveDrawView
  void Repaint() override;
  void LiveDrawChanged() override;
  void CamerasChanged() override { FillCameras(); }
  void ShowPointer(LivePointer pointer) override;
  void ShowShapeMenu(POINTAPI at) override;
  void ShowZoneMenu(POINTAPI at) override;
  void AskText(POINTAPI at, const std::string& text) override;

  Parts parts_;
  LiveDrawSession& session_;
  Macros macros_;
  std::vector<Command> commands_;
  ToolStrip* strip_ = nullptr;
  ColorRow* colors_ = nullptr;
  QComboBox* camera_ = nullptr;
  LiveDrawPicture* picture_ = nullptr;
  DrawCaption* caption_ = nullptr;
  Button* freeze_ = nullptr;
  Button* zone_ = nullptr;
  Button* mirror_ = nullptr;
  Button* mute_ = nullptr;
  Button* words_ = nullptr;
  Button* send_ = nullptr;
  Button* full_ = nullptr;
  QSlider* PixSlider_ = nullptr;
  QLabel* status_ = nullptr;
  std::unique_ptr<ScreenAwake> awake_;  ///< as long as it is open
  bool changing_ = false;               ///< news is on its way to UpdateAll
  bool maximized_ = false;              ///< before it filled the screen
};

}  // namespace kinalyx
