#include "workspace/forms/SeekPreview.h"

#include <QPainter>
#include <algorithm>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kSoon = 25;   // milliseconds from a move of the pointer to its picture
constexpr int kWide = 168;  // of a picture that lies, as designed
constexpr int kHigh = 120;  // and the most that one may be high
constexpr int kEdge = 4;
constexpr int kTimeHeight = 22;

}  // namespace

SeekPreview::SeekPreview(Stage& stage, Transport& transport, QWidget* parent)
    : QWidget(parent), theStage_(stage), transport_(transport) {
  setObjectName("SeekPreview");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  soon_.setSingleShot(true);
  soon_.setInterval(kSoon);
  connect(&soon_, &QTimer::timeout, this, &SeekPreview::ShowWanted);
  hide();
}

void SeekPreview::Want(int slot, int position, QPoint above) {
  slot_ = slot;
  position_ = position;
  above_ = above;
  if (!soon_.isActive()) soon_.start();
}

void SeekPreview::Away() {
  soon_.stop();
  hide();
}

void SeekPreview::ShowWanted() {
  if (!theStage_.HasVideo(slot_)) return Away();
  AVIControl& player = theStage_.MP(slot_);
  const qreal ratio = devicePixelRatioF();
  const double shape = static_cast<double>(player.VideoWidth()) / std::max(1, player.VideoHeight());
  const int wide = std::min(Px(kWide), static_cast<int>(Px(kHigh) * shape));
  if (player.Glimpse(position_, qRound(wide * ratio), picture_) < 0) picture_ = {};
  time_ = QString::fromStdString(transport_.TimeText(slot_, position_));
  const int high = picture_.Empty() ? 0 : qRound(picture_.Height() / ratio);
  resize(wide + 2 * kEdge, high + Px(kTimeHeight) + kEdge);
  const int left = std::clamp(above_.x() - width() / 2, 0, std::max(0, parentWidget()->width() - width()));
  move(left, std::max(0, above_.y() - height() - kEdge));
  show();
  raise();
  update();
}

void SeekPreview::paintEvent(QPaintEvent*) {
  const StageLook look = StageLook::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(look.cardLine);
  painter.setBrush(look.card);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
  if (!picture_.Empty()) {
    QImage image(picture_.Row(0), picture_.Width(), picture_.Height(), picture_.Stride(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    painter.drawImage(kEdge, kEdge, image);
  }
  painter.setFont(UiFont(kTextPixels));
  painter.setPen(look.ink);
  DrawFigures(painter, QRect(0, height() - Px(kTimeHeight), width(), Px(kTimeHeight)), Qt::AlignCenter, time_);
}

}  // namespace kinalyx
