#include "workspace/forms/VideoCell.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/FilmRow.h"
#include "workspace/forms/PositionLine.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kSlimFoot = 34;  // as designed, where the play bar does not lie over it
constexpr double kReach = 11;  // pixels beside the line of a strip that still mean it

}  // namespace

/// The clip area: black round a picture; empty it tells how to fill it.
class VideoPanel : public QWidget {
 public:
  VideoPanel(int slot, QWidget* parent) : QWidget(parent), slot_(slot) {
    setObjectName(QString("VideoPanel%1").arg(slot));
    setAttribute(Qt::WA_OpaquePaintEvent);
    back_ = new QToolButton(this);
    back_->setObjectName(QString("ReopenHint%1").arg(slot));
    back_->setText(VideoCell::tr("Reopen closed videos"));
    back_->setToolTip(VideoCell::tr("Brings back what was closed last (Ctrl+Shift+T)"));
    back_->setCursor(Qt::PointingHandCursor);
    back_->setFocusPolicy(Qt::NoFocus);
    back_->hide();
  }

  QToolButton* Back() { return back_; }
  void SetFilled(bool filled) {
    filled_ = filled;
    Arrange();
  }

  void SetHints(const QString& openKey, bool canReopen) {
    if (openKey == openKey_ && canReopen == reopen_) return;
    openKey_ = openKey;
    reopen_ = canReopen;
    Arrange();
  }

 protected:
  void resizeEvent(QResizeEvent*) override { Arrange(); }
  void changeEvent(QEvent* event) override {
    if (event->type() == QEvent::StyleChange) Arrange();
    QWidget::changeEvent(event);
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), filled_ ? Qt::black : Mix(CurrentTheme().stage, Qt::black, 0.35));
    if (filled_) return;
    const StageLook look = StageLook::Current();
    const int icon = Px(kPicture);
    painter.drawPixmap(QPointF((width() - icon) / 2.0, Top()),
                       IconPixmap("open", look.faintInk, icon, devicePixelRatioF()));
    painter.setFont(UiFont(kTextPixels));
    painter.setPen(look.faintInk);
    if (const QRect words = Words(); words.height() <= Room().height()) painter.drawText(words, kFlags, Open());
    painter.setFont(UiFont(kCaptionPixels));
    painter.setPen(Mix(look.faintInk, look.ground, 0.35));
    painter.drawText(QRect(10, 8, width() - 20, Px(16)), Qt::AlignLeft | Qt::AlignTop,
                     VideoCell::tr("Window %1").arg(slot_));
  }

 private:
  static constexpr int kFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
  static constexpr int kPicture = 34;  // as designed

  QString Open() const { return VideoCell::tr("Double click or press %1 to open a video").arg(openKey_); }
  int Top() const { return std::max(8, height() / 2 - Px(46)); }
  QRect Room() const {
    const int below = Top() + Px(kPicture) + 10;
    return {12, below, width() - 24, height() - below - 6};
  }
  /// As high as the sentence needs.
  QRect Words() const {
    return QFontMetrics(UiFont(kTextPixels))
        .boundingRect({Room().topLeft(), QSize(Room().width(), 10000)}, kFlags, Open());
  }
  /// The button beneath the sentence, where there is room for both.
  void Arrange() {
    WearStageSheet(back_,
                   "QToolButton { background: @card; color: @ink; border: 1px solid @cardLine; border-radius: @11;"
                   "  padding: 0 12px; font-size: @13; } QToolButton:hover { background: @hover; }");
    const QSize size(back_->sizeHint().width(), Px(28));
    const int top = Words().bottom() + 10;
    back_->setGeometry((width() - size.width()) / 2, top, size.width(), size.height());
    back_->setVisible(!filled_ && reopen_ && top + size.height() + 4 < height() && size.width() + 16 < width());
    update();
  }

  int slot_;
  bool filled_ = false;
  QString openKey_ = "O";
  bool reopen_ = false;  // the videos that were closed can come back
  QToolButton* back_;
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
  zoom_ = new QToolButton(this);
  zoom_->setObjectName(QString("ZoomFigure%1").arg(slot));
  zoom_->setFocusPolicy(Qt::NoFocus);
  zoom_->setToolTip(tr("Not all of the picture is seen: a click brings the whole of it back"));
  WearSheet(zoom_,
            "QToolButton { background: rgba(12, 15, 19, 190); color: #e6ecf2; border: none; border-radius: @11;"
            "  padding: 0 10px; font-size: @12; } QToolButton:hover { background: rgba(46, 54, 64, 230); }");
  connect(zoom_, &QToolButton::clicked, this, &VideoCell::WholeWanted);
  zoom_->hide();
  hint_ = new QToolButton(this);
  hint_->setObjectName(QString("Hint%1").arg(slot));
  hint_->setFocusPolicy(Qt::NoFocus);
  hint_->setCursor(Qt::PointingHandCursor);
  WearSheet(hint_,
            "QToolButton { background: rgba(12, 15, 19, 215); color: #ffd479; border: none; border-radius: @11;"
            "  padding: 0 10px; font-size: @12; } QToolButton:hover { background: rgba(46, 54, 64, 235); }");
  connect(hint_, &QToolButton::clicked, this, &VideoCell::HintPressed);
  connect(panel_->Back(), &QToolButton::clicked, this, &VideoCell::ReopenWanted);
  hint_->hide();
  film_ = new FilmRow(player_->Control(), this);
  film_->setObjectName(QString("FilmRow%1").arg(slot));
  connect(film_, &FilmRow::Sought, this, &VideoCell::Sought);
  connect(film_, &FilmRow::SeekEnded, this, &VideoCell::SeekEnded);
  connect(film_, &FilmRow::MenuWanted, this, &VideoCell::MenuWanted);
  connect(film_, &FilmRow::Hovered, this,
          [this](int position, int x) { emit Hovered(position, QPoint(film_->x() + x, film_->y())); });
  connect(film_, &FilmRow::Left, this, &VideoCell::Left);
  film_->hide();
  setMouseTracking(true);
  hide();
}

void VideoCell::PlaceFilm(const QRect& place) {
  film_->setVisible(place.height() > 0);
  film_->setGeometry(place);
}

void VideoCell::SetZoomFigure(const QString& figure) {
  zoom_->setText(figure);
  zoom_->setVisible(!figure.isEmpty());
  PlaceZoom();
}

void VideoCell::SetHint(const QString& words) {
  hintWords_ = words;
  hint_->setVisible(!words.isEmpty());
  PlaceHint();
}

/// At the foot on the left; it gives way to the figure of the zoom.
void VideoCell::PlaceHint() {
  if (hint_->isHidden()) return;
  const QFontMetrics metrics(UiFont(12));
  const QRect room = panel_->geometry();
  const int most = room.width() - 16 - (zoom_->isHidden() ? 0 : zoom_->width() + 6);
  const QString text = metrics.elidedText(hintWords_, Qt::ElideRight, std::max(40, most - 22));
  hint_->setText(text);
  hint_->setToolTip(text == hintWords_ ? QString() : hintWords_);
  hint_->setGeometry(room.left() + 8, room.bottom() - 8 - Px(23), metrics.horizontalAdvance(text) + 22, Px(23));
  hint_->raise();
}

/// At the foot of the picture, away from its name and from what a tool says.
void VideoCell::PlaceZoom() {
  if (zoom_->isHidden()) return PlaceHint();
  const QFontMetrics metrics(UiFont(12));
  const QRect room = panel_->geometry();
  const QSize size(metrics.horizontalAdvance(zoom_->text()) + 22, Px(23));
  zoom_->setGeometry(room.right() - 8 - size.width(), room.bottom() - 8 - size.height(), size.width(), size.height());
  zoom_->raise();
  PlaceHint();
}

void VideoCell::Place(const QRect& cell, const QRect& panel) {
  setGeometry(cell);
  panel_->setGeometry(panel);
  PlaceTitle();
  PlaceZoom();
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

void VideoCell::SetHints(const QString& openKey, bool canReopen) { panel_->SetHints(openKey, canReopen); }

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
  if (!film_->isHidden()) film_->SetPosition(position, maximum);
  if (!covered) update(0, panel_->geometry().bottom() + 1, width(), height());
}

void VideoCell::paintEvent(QPaintEvent* event) {
  const StageLook look = StageLook::Current();
  QPainter painter(this);
  painter.fillRect(event->rect(), look.ground);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(current_ ? look.accent : CurrentTheme().stageLine, 2));
  const Strip strip = StripNow();
  painter.drawRoundedRect(QRectF(3, 3, width() - 6, strip.all.bottom() - 1), 3, 3);

  if (strip.words.isEmpty()) return;
  painter.setPen(Qt::NoPen);
  if (strip.HasLine()) {
    const double length = strip.right - strip.left;
    painter.setBrush(CurrentTheme().stageLine);
    painter.drawRoundedRect(QRectF(strip.left, strip.y - 1.5, length, 3), 1.5, 1.5);
    painter.setBrush(look.faintInk);
    const double done = maximum_ > 0 ? length * position_ / maximum_ : 0;
    painter.drawRoundedRect(QRectF(strip.left, strip.y - 1.5, done, 3), 1.5, 1.5);
    painter.drawEllipse(QPointF(strip.left + done, strip.y), 4, 4);
  }
  painter.setFont(UiFont(12));
  painter.setPen(look.faintInk);
  const QRect& all = strip.all;
  const int words = qRound(strip.y) + (current_ ? 12 : 7);  // where they begin
  const QRect room =
      strip.tall ? QRect(all.left() + 12, words, all.width() - 24, all.bottom() - words) : all.adjusted(12, 0, -12, 0);
  DrawFigures(painter, room, Qt::AlignRight, strip.words);
}

// ---------------------------------------------------------------- the strip beneath the picture

VideoCell::Strip VideoCell::StripNow() const {
  Strip strip;
  const int top = (film_->isHidden() ? panel_ : static_cast<const QWidget*>(film_))->geometry().bottom() + 1;
  // Without the play bar over it the foot is as slim as its line.
  const int slim = line_.isEmpty() ? 0 : Px(kSlimFoot);
  const int room = height() - top - 4;
  strip.all = QRect(panel_->x(), top, panel_->width(), current_ ? room : std::min(room, slim));
  if (line_.isEmpty() || strip.all.height() < 24) return strip;
  const QFontMetrics metrics(UiFont(12));
  strip.words = FittingLine(metrics, strip.all.width() - 24, line_);
  // Slim or not, the words stand below the line where there is room for both.
  strip.tall = strip.all.height() > (current_ ? Px(50) : Px(30));
  strip.y = !strip.tall ? strip.all.center().y() : strip.all.top() + (current_ ? 14 : 9);
  strip.left = strip.all.left() + 12;
  strip.right = strip.tall ? strip.all.right() - 12 : strip.all.right() - 26 - FiguresWidth(metrics, strip.words);
  return strip;
}

bool VideoCell::Strip::IsOnLine(QPointF pointer) const {
  return HasLine() && pointer.x() >= left - kReach && pointer.x() <= right + kReach &&
         std::abs(pointer.y() - y) <= kReach;
}

int VideoCell::PositionAt(const Strip& strip, double x) const {
  return std::clamp(qRound((x - strip.left) / (strip.right - strip.left) * maximum_), 0, maximum_);
}

void VideoCell::SeekTo(double x) {
  const int position = PositionAt(StripNow(), x);
  if (position != position_) emit Sought(position);
}

/// A press on the line moves the film at once, and the window becomes the current one when it is let go: until then
/// the line stays where it is.
void VideoCell::mousePressEvent(QMouseEvent* event) {
  const Strip strip = StripNow();
  const QPointF at = event->position();
  seeking_ = event->button() == Qt::LeftButton && maximum_ > 0 && strip.IsOnLine(at);
  if (event->button() == Qt::RightButton) return emit MenuWanted();
  if (!seeking_) return emit Pressed();
  emit Left();
  SeekTo(at.x());
}

void VideoCell::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  if (seeking_) return SeekTo(at.x());
  const Strip strip = StripNow();
  const bool over = maximum_ > 0 && strip.IsOnLine(at);
  setCursor(over ? Qt::PointingHandCursor : Qt::ArrowCursor);
  if (over) emit Hovered(PositionAt(strip, at.x()), QPoint(qRound(at.x()), strip.all.top()));
  else emit Left();
}

void VideoCell::mouseReleaseEvent(QMouseEvent*) {
  if (std::exchange(seeking_, false)) emit SeekEnded();
}

}  // namespace kinalyx
