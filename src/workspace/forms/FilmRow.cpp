#include "workspace/forms/FilmRow.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kNext = 20;     // milliseconds from one picture to the next
constexpr int kAgain = 1500;  // until better ones are looked for
constexpr int kRounds = 40;   // so often
constexpr int kMargin = 8;
constexpr int kGap = 2;

}  // namespace

FilmRow::FilmRow(AVIControl& player, QWidget* parent) : QWidget(parent), player_(player) {
  setMouseTracking(true);
  setCursor(Qt::PointingHandCursor);
  fetch_.setSingleShot(true);
  connect(&fetch_, &QTimer::timeout, this, &FilmRow::Fetch);
}

FilmRow::Film FilmRow::FilmNow() const { return {player_.filename(), player_.VideoLength(), player_.FlipHorizontal()}; }

void FilmRow::SetPosition(int position, int maximum) {
  position_ = position;
  maximum_ = maximum;
  if (FilmNow() != film_) Begin();
  update();
}

void FilmRow::Begin() {
  film_ = FilmNow();
  pictures_.clear();
  next_ = 0;
  rounds_ = 0;
  const int high = height() - 2 * kGap;
  if (film_.positions <= 0 || high < 16 || player_.VideoHeight() <= 0) return;
  const int wide = std::clamp(high * player_.VideoWidth() / player_.VideoHeight(), high / 3, 3 * high);
  const int count = std::clamp((width() - 2 * kMargin + kGap) / (wide + kGap), 1, film_.positions);
  pictures_.resize(static_cast<std::size_t>(count));
  // Each shows the middle of its stretch.
  for (int i = 0; i < count; ++i)
    pictures_[static_cast<std::size_t>(i)].wanted = static_cast<int>((2LL * i + 1) * film_.positions / (2 * count));
  fetch_.start(kNext);
}

void FilmRow::Fetch() {
  if (pictures_.empty() || !isVisible() || FilmNow() != film_) return;
  if (player_.IsPlaying() || seeking_) return fetch_.start(kAgain);
  while (next_ < pictures_.size() && pictures_[next_].shown == pictures_[next_].wanted) ++next_;
  if (next_ < pictures_.size()) {
    Picture& picture = pictures_[next_++];
    const qreal ratio = devicePixelRatioF();
    const int high = height() - 2 * kGap;
    const int wide = qRound(ratio * high * player_.VideoWidth() / player_.VideoHeight());
    Surface surface;
    const int shown = player_.Glimpse(picture.wanted, wide, surface);
    if (shown >= 0 && shown != picture.shown) {
      picture.shown = shown;
      picture.image =
          QImage(surface.Row(0), surface.Width(), surface.Height(), surface.Stride(), QImage::Format_RGB32).copy();
      picture.image.setDevicePixelRatio(ratio);
      update();
    }
    return fetch_.start(kNext);
  }
  // Those that another picture stands in for get their own when it has come.
  next_ = 0;
  const bool all = std::ranges::all_of(pictures_, [](const Picture& each) { return each.shown == each.wanted; });
  if (!all && ++rounds_ < kRounds) fetch_.start(kAgain);
}

int FilmRow::PositionAt(double x) const {
  const double room = std::max(1, width() - 2 * kMargin);
  return std::clamp(qRound((x - kMargin) / room * maximum_), 0, maximum_);
}

void FilmRow::paintEvent(QPaintEvent*) {
  const StageLook look = StageLook::Current();
  QPainter painter(this);
  painter.fillRect(rect(), look.ground);
  if (pictures_.empty() || maximum_ <= 0) return;
  const double room = width() - 2 * kMargin;
  const double each = room / static_cast<double>(pictures_.size());
  for (std::size_t i = 0; i < pictures_.size(); ++i) {
    const QRectF place(kMargin + each * static_cast<double>(i), kGap, each - kGap, height() - 2 * kGap);
    painter.fillRect(place, look.card);
    const QImage& image = pictures_[i].image;
    if (image.isNull()) continue;
    painter.setClipRect(place);
    const double wide = image.width() / image.devicePixelRatio();
    painter.drawImage(QPointF(place.center().x() - wide / 2, kGap), image);
    painter.setClipping(false);
  }
  const double x = kMargin + room * position_ / maximum_;
  painter.fillRect(QRectF(x - 1.5, 0, 3, height()), look.ground);
  painter.fillRect(QRectF(x - 0.5, 0, 1.5, height()), Qt::white);
}

void FilmRow::mousePressEvent(QMouseEvent* event) {
  if (maximum_ <= 0) return;
  const bool menu = event->button() == Qt::RightButton;
  if (!menu && event->button() != Qt::LeftButton) return;
  emit Left();
  emit Sought(PositionAt(event->position().x()));
  if (menu) return emit MenuWanted();
  seeking_ = true;
}

void FilmRow::mouseMoveEvent(QMouseEvent* event) {
  const int position = PositionAt(event->position().x());
  if (!seeking_) return maximum_ > 0 ? emit Hovered(position, qRound(event->position().x())) : void();
  if (position != position_) emit Sought(position);
}

void FilmRow::mouseReleaseEvent(QMouseEvent*) {
  if (std::exchange(seeking_, false)) emit SeekEnded();
}

}  // namespace kinalyx
