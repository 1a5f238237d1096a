#pragma once

#include <QToolButton>
#include <vector>

#include "workspace/transport/Transport.h"
#include "workspace/forms/MarkBox.h"
#include "workspace/forms/PositionLine.h"
#include "workspace/forms/SeekBar.h"
#include "workspace/forms/SoundButton.h"
#include "workspace/forms/SpeedButton.h"
#include "workspace/forms/StagePanel.h"

namespace kinalyx {

/// `Playbar`: seek bar, transport buttons, marks and the transport's line. Wide it is one row, narrow two, and
/// in the smallest windows the words have a third. Marks that find no room in a row are on a card that a
/// button opens. Undocked it floats over the stage and is dragged by its ground.
class PlayBar : public StagePanel {
  Q_OBJECT

 public:
  PlayBar(Transport& transport, QWidget* parent);

  void SetScrollRange(int minimum, int maximum) { seek_->SetRange(minimum, maximum); }
  void SetScrollValue(int position) { seek_->SetValue(position); }
  void SetPlayPicture(bool playing);
  void SetSlomo(bool down) { slomo_->setChecked(down); }
  void SetLoop(bool down) { loop_->setChecked(down); }
  void SetSpeed(int percent) { speed_->SetSpeed(percent); }
  void SetPlayRange(int first, int last) { seek_->SetPlayRange(first, last); }
  /// The buttons are for all videos in sight; `possible` while there are several.
  void SetMovesAll(bool on, bool possible);
  /// The loudspeaker is there for a video that has sound.
  void SetSound(bool possible, int volume);
  /// What the loop is called by, for its tip.
  void SetLoopKey(const QString& key);
  void SetLine(const QString& line, const QString& counter);
  void SetMarks(const std::vector<ShownMark>& marks);
  /// Closes the card of the marks; false when it was not open.
  bool CloseMarks();
  /// Offers names for the mark that was made last.
  void NameLastMark() { markBox_->NameLast(); }

  /// Without a video in the current window there is nothing to press; locked videos are played and rewound
  /// by the bar of the lock.
  void SetState(bool hasVideo, bool locked);
  bool Docked() const { return docked_; }

 signals:
  /// The bar wants its docked place again.
  void Redocked();
  /// The pointer is over a position of the film's line, and `above` a point over it on the stage; or it has gone.
  void Hovered(int position, QPoint above);
  void Left();
  /// Percent.
  void VolumeChosen(int volume);

 protected:
  void resizeEvent(QResizeEvent*) override;
  void moveEvent(QMoveEvent*) override;
  void showEvent(QShowEvent*) override;
  void hideEvent(QHideEvent*) override;
  bool Movable() const override { return !docked_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* Button(const char* name, const QString& tip);
  void ShowTips();
  void ShowSpares();
  void Arrange();
  bool MarksFit(int room);
  void PlaceCard();
  int CounterWidth() const;
  void SetSmallWords(bool on);
  void SizeButtons(int side, int playWidth);
  void ArrangeWide();
  void ArrangeNarrow();
  void Dress() override;
  void ToggleDock();

  Transport& transport_;
  SeekBar* seek_;
  QWidget* buttons_;
  PositionLine* line_;
  FigureLabel* plain_;  ///< the line in other words, in wide windows
  FigureLabel* counter_;
  QToolButton* rewind_;
  QToolButton* back_;
  QToolButton* play_;
  QToolButton* next_;
  QToolButton* slomo_;
  QToolButton* loop_;
  SpeedButton* speed_;
  QToolButton* all_;
  SoundButton* sound_;
  QToolButton* detach_;
  MarkBox* markBox_;
  QToolButton* marksButton_ = nullptr;  ///< opens the card of the marks
  std::vector<ShownMark> marks_;
  QStringList names_;  // of marks elsewhere
  QString longest_;    ///< the line for which there is room
  bool docked_ = true;
  bool playing_ = false;
  bool hasVideo_ = true;
  bool locked_ = false;
  bool several_ = false;
  bool hasSound_ = false;
};

}  // namespace kinalyx
