#pragma once

#include <QFrame>

#include "video/CallbackInterfaces.h"
#include "video/forms/VideoView.h"

class QLabel;
class QSlider;

namespace kinalyx {

class Button;
class FigureLabel;

/// A small player for the browsers: the picture in its own proportions on the dark stage, and beneath it
/// a play button, a seek bar and the time. A click on the picture plays and pauses too.
class PreviewPlayer : public QFrame, private IFrameInterface, private IMouseAndKeyBoardEvents {
  Q_OBJECT

 public:
  explicit PreviewPlayer(PlayerServices& services, QWidget* parent = nullptr);
  ~PreviewPlayer() override;

  AVIControl& Control() { return view_->Control(); }
  /// Shows the first picture; false, with an empty stage, when the file cannot be opened. Interlaced material is shown
  /// field by field, as the analysis section would without a sidecar.
  bool Load(const std::string& path);
  void Unload();
  /// What the stage says in the place of a picture, until the next Load or Unload.
  void ShowWords(const QString& words);
  /// Plays on from the present picture, from the first one when the last is shown; or pauses.
  void TogglePlay();
  /// The same from one frame to another.
  void TogglePlay(int first, int last);

  // --- by frames, whether the video is shown by frames or by fields

  int FrameCount();
  int Frame();
  void ShowFrame(int frame);
  /// Hides the bar beneath the picture where a form has one of its own.
  void SetBarShown(bool shown);

  QSize sizeHint() const override { return {320, 240}; }
  QSize minimumSizeHint() const override { return {140, 110}; }

 signals:
  /// Another picture is shown.
  void Moved();
  /// A play has begun or ended, or another video is open.
  void StateChanged();

 protected:
  void resizeEvent(QResizeEvent*) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int FieldsOfFrame() { return Control().SplitFields() ? 2 : 1; }
  void StopOrPlay(int from, int last);
  void PlaceView();
  void ShowState();
  void ShowTime();

  void PreDrawFrame(Canvas&, int) override {}
  void Signal(int Frame, int ID) override;
  void Notify(int Frame, int ID) override;
  void MouseDown(int Button, int Shift, float X, float Y, int ID) override;
  void MouseMove(int, int, float, float, int) override {}
  void MouseUp(int, int, float, float, int) override {}
  void Click(int) override {}
  void DblClick(int) override {}
  void KeyDown(int, int, int) override {}
  void KeyPress(int, int) override {}
  void KeyUp(int, int, int) override {}

  QWidget* stage_;
  VideoView* view_;
  QLabel* words_;
  QFrame* bar_;
  Button* play_;
  QSlider* seek_;
  FigureLabel* time_;
};

}  // namespace kinalyx
