#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QElapsedTimer>
#include <QWidget>

#include "capture/BeepCapture.h"
#include "capture/CaptureSession.h"
#include "capture/MicrophoneMeter.h"

class QButtonGroup;
class QComboBox;
class QLabel;
class QShortcut;
class QSlider;
class QStackedWidget;

namespace kinalyx {

class Button;
class CountPanel;
class NamingPanel;
class Panel;
class SoundMeter;

/// How videos are taken without a hand at the desk: the choice of the method, the panel with what belongs to it, its
/// buttons, and the digits of the countdown. The page places these parts and says when they are to be shown.
class HandsFree : public QObject, private IBeepEvents {
  Q_OBJECT

 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    VideoNaming& naming;
    NamingPanel& names;
    CaptureSession& session;
    IMeterEvents& meter;
    IShortSounds& sounds;
    MicrophoneMeter::MakeGraph makeGraph;
  };
  /// All of it outlives this.
  /// @param page   whose keys fire a trigger
  /// @param stage  over which the countdown stands
  HandsFree(Parts parts, QWidget* page, QWidget* stage);
  ~HandsFree() override;

  QWidget* Methods() { return methods_; }
  QWidget* SidePanel();
  QWidget* Buttons() { return buttons_; }
  /// What who has chosen a student presses next; null where videos are taken by hand.
  QWidget* MainButton() const;

  /// Brings all up to date with the session.
  /// @param shown  live pictures are on the page
  void SetupCapMode(bool shown);
  /// The meter of the microphone, 0 to 1.
  void SoundCame(double level, bool fired);
  /// A press on the picture, or on the button.
  void FireByMouse();
  /// The page is left.
  void StopAnyCapture();
  bool Running() const { return beep_.Running() || parts_.session.Triggers().Armed(); }

  // --- handlers
  void CapOptionBtn_Click(int method);
  void AutoCapturebtn_Click();
  void OneClickbtn_Click(int index);
  void BeepCaptureStart_Click();

 signals:
  void MethodChosen();
  /// Something has begun or ended.
  void Changed();

 private:
  void MakeSound();
  void MakeClick();
  void MakeBeep();
  void MakeButtons();
  QComboBox* MakeTimes(QLayout& rows, int index, const QString& caption);
  QSlider* MakeBeepSlider(QLayout& rows, int index, const QString& caption, int most);
  void FillTimes();
  void ShowCounts();
  void PressMonitor();
  std::int32_t& BeepSetting(int index);

  void BeepChanged() override;

  Parts parts_;
  BeepCapture beep_;
  MicrophoneMeter meter_;
  QWidget* page_;
  QWidget* methods_;
  QButtonGroup* CapOptionBtn_;
  Panel* panel_;
  QStackedWidget* pages_;
  SoundMeter* sound_ = nullptr;
  std::array<QComboBox*, 3> BlockTimeList_{};
  std::array<QSlider*, 3> BeepArray_{};
  std::array<QLabel*, 3> beepCaptions_{};
  std::array<QLabel*, 2> memory_{};
  QLabel* microphone_ = nullptr;
  QLabel* AutoCountLbl_ = nullptr;
  QLabel* OneClickCountLbl_ = nullptr;
  std::vector<Button*> remote_;
  std::vector<QShortcut*> keys_;
  QWidget* buttons_;
  Button* AutoCapturebtn_;
  std::array<Button*, 2> OneClickbtn_{};
  Button* BeepCaptureStart_;
  CountPanel* CountPnl_;
  QElapsedTimer sinceMouse_;
};

}  // namespace kinalyx
