#pragma once

#include <QFrame>

class QLabel;

namespace kinalyx {

class Button;
class FigureLabel;
class PreviewPlayer;
class TrimSlider;

/// The panel in which a video is trimmed: a slider with two ends over the frames of the preview. The
/// preview shows the frame that is being chosen.
class EditPanel : public QFrame {
  Q_OBJECT

 public:
  /// `preview` outlives the panel.
  EditPanel(PreviewPlayer& preview, const QString& help, QWidget* parent = nullptr);

  /// Begins with all of the video that the preview shows.
  void Open();
  int FirstFrame() const;
  int LastFrame() const;

 signals:
  void SaveWanted();
  void CancelWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void StartHere();
  void EndHere();
  void PlayKept();
  void ShowRange();

  PreviewPlayer& preview_;
  TrimSlider* HScroll1_;
  FigureLabel* range_;
  Button* save_;
};

}  // namespace kinalyx
