#include "workspace/forms/VideoCell.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/PositionLine.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

/// The clip area: black round a picture; empty it tells how to fill it.
class VideoPanel : public QWidget {
 public:
  VideoPanel(int slot, QWidget* parent) : QWidget(parent), slot_(slot) {
    setObjectName(QString("VideoPanel%1").arg(slot));
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void SetFilled(bool filled) {
    filled_ = filled;
    update();
  }

  void SetReopen(bool possible) {
    if (std::exchange(reopen_, possible) != possible) update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), filled_ ? Qt::black : Mix(CurrentTheme().stage, Qt::black, 0.35));
    if (filled_) return;
    const StageLook look = StageLook::Current();
    const int icon = Px(34);
    const int top = std::max(8, height() / 2 - Px(46));
    painter.drawPixmap(QPointF((width() - icon) / 2.0, top),
                       IconPixmap("open", look.faintInk, icon, devicePixelRatioF()));
    painter.setFont(UiFont(kTextPixels));
    painter.setPen(look.faintInk);
    const QString open = VideoCell::tr("Double click or press O to open a video");
    const QString back = VideoCell::tr("Ctrl+Shift+T brings back those that were closed");
    DrawHint(painter, QRect(12, top + icon + 10, width() - 24, height() - (top + icon + 10) - 6),
             reopen_ ? QStringList{open, back} : QStringList{open});
    painter.setFont(UiFont(kCaptionPixels));
    painter.setPen(Mix(look.faintInk, look.ground, 0.35));
    painter.drawText(QRect(10, 8, width() - 20, Px(16)), Qt::AlignLeft | Qt::AlignTop,
                     VideoCell::tr("Window %1").arg(slot_));
  }

 private:
  /// A sentence that has no room is left out whole, and all after it.
  static void DrawHint(QPainter& painter, QRect room, const QStringList& sentences) {
    constexpr int kFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    for (const QString& sentence : sentences) {
      const int high =
          painter.boundingRect(QRect(room.topLeft(), QSize(room.width(), 10000)), kFlags, sentence).height();
      if (high > room.height()) return;
      painter.drawText(room, kFlags, sentence);
      room.setTop(room.top() + high);
    }
  }

  int slot_;
  bool filled_ = false;
  bool reopen_ = false;  // the videos that were closed can come back
};

VideoCell::VideoCell(int slot, PlayerServices& services, QWidget* parent) : QWidget(parent) {
  setObjectName(QString("BorderPanel%1").arg(slot));
  setAttribute(Qt::WA_OpaquePaintEvent);
  panel_ = new VideoPanel(slot, this);
  player_ = new VideoView(services, panel_);
  player_->setObjectName(QString("MP%1").arg(slot));
  player_->hide();
  title_ = new QLabel(this);
  title_->setObjectName(QString("CellTitle%1").arg(slot));
  title_->setTextFormat(Qt::PlainText);
  title_->setIndent(0);  // the padding of its sheet is all the blank there is
  title_->setAttribute(Qt::WA_TransparentForMouseEvents);
  WearSheet(title_,
            "background: rgba(12, 15, 19, 190); color: #e6ecf2; border-radius: @11; padding: 0 10px; font-size: @12;");
  title_->hide();
  lock_ = new QLabel(this);
  lock_->setObjectName(QString("LockPicture%1").arg(slot));
  lock_->setAttribute(Qt::WA_TransparentForMouseEvents);
  lock_->setAlignment(Qt::AlignCenter);
  WearSheet(lock_, "background: rgba(12, 15, 19, 190); border-radius: @11;");
  FixSize(lock_, {30, 23});
  lock_->hide();
  hide();
}

void VideoCell::Place(const QRect& cell, const QRect& panel) {
  setGeometry(cell);
  panel_->setGeometry(panel);
  PlaceTitle();
  show();
}

void VideoCell::PlacePlayer(const QRect& place, bool shown) {
  panel_->SetFilled(shown);
  if (!shown) {
    player_->hide();
    return;
  }
  player_->setGeometry(place);
  player_->show();
  // A window that is not on the screen yet is told of its size only when it comes there.
  const qreal ratio = player_->devicePixelRatioF();
  player_->Control().Resize(qRound(place.width() * ratio), qRound(place.height() * ratio));
}

void VideoCell::SetCurrent(bool current) {
  if (current_ == current) return;
  current_ = current;
  update();
}

void VideoCell::SetReopen(bool possible) { panel_->SetReopen(possible); }

void VideoCell::SetTitle(const QString& title) {
  name_ = title;
  PlaceTitle();
}

void VideoCell::PlaceTitle() {
  title_->setVisible(!name_.isEmpty());
  if (name_.isEmpty()) return;
  const QFontMetrics metrics(UiFont(12));
  const int room = panel_->width() - (lock_->isHidden() ? 36 : 42 + lock_->width());
  const QString text = metrics.elidedText(name_, Qt::ElideMiddle, std::max(40, room));
  title_->setText(text);
  title_->setGeometry(panel_->x() + 8, panel_->y() + 8, metrics.horizontalAdvance(text) + 22, Px(23));
  title_->raise();
  lock_->move(title_->geometry().right() + 6, title_->y());
  lock_->raise();
}

void VideoCell::SetLocked(bool locked) {
  if (locked) lock_->setPixmap(IconPixmap("lock", StageLook::Current().mark, Px(15), devicePixelRatioF()));
  lock_->setVisible(locked);
  PlaceTitle();
}

void VideoCell::SetPosition(int position, int maximum, const QString& line, bool covered) {
  position_ = position;
  maximum_ = maximum;
  line_ = line;
  if (!covered) update(0, panel_->geometry().bottom() + 1, width(), height());
}

void VideoCell::paintEvent(QPaintEvent* event) {
  const StageLook look = StageLook::Current();
  QPainter painter(this);
  painter.fillRect(event->rect(), look.ground);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(current_ ? look.accent : CurrentTheme().stageLine, 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), 3, 3);

  const QRect strip(panel_->x(), panel_->geometry().bottom() + 1, panel_->width(),
                    height() - panel_->geometry().bottom() - 5);
  if (line_.isEmpty() || strip.height() < 24) return;
  painter.setFont(UiFont(12));
  const QString line = FittingLine(painter.fontMetrics(), strip.width() - 24, line_);
  const int words = FiguresWidth(painter.fontMetrics(), line);
  const bool tall = strip.height() > Px(50);
  const double y = tall ? strip.top() + 14 : strip.center().y();
  const double left = strip.left() + 12;
  const double right = tall ? strip.right() - 12 : strip.right() - 26 - words;
  painter.setPen(Qt::NoPen);
  if (right - left > 20) {
    painter.setBrush(CurrentTheme().stageLine);
    painter.drawRoundedRect(QRectF(left, y - 1.5, right - left, 3), 1.5, 1.5);
    painter.setBrush(look.faintInk);
    const double done = maximum_ > 0 ? (right - left) * position_ / maximum_ : 0;
    painter.drawRoundedRect(QRectF(left, y - 1.5, done, 3), 1.5, 1.5);
    painter.drawEllipse(QPointF(left + done, y), 4, 4);
  }
  painter.setPen(look.faintInk);
  const QRect room = tall ? QRect(strip.left() + 12, strip.top() + 26, strip.width() - 24, strip.height() - 34)
                          : strip.adjusted(12, 0, -12, 0);
  DrawFigures(painter, room, Qt::AlignRight, line);
}

}  // namespace kinalyx
