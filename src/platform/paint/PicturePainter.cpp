#include "platform/paint/PicturePainter.h"

#include <QFont>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "platform/paint/PictureContent.h"
#include "platform/paint/QtFonts.h"

namespace kinalyx {
namespace {

constexpr int kFarthest = 1 << 20;

/// Keeps the rasteriser's numbers small; nothing that far away is seen.
QRectF ToQt(const PictureBox& box) {
  const auto bounded = [](int value) { return static_cast<double>(std::clamp(value, -kFarthest, kFarthest)); };
  return {bounded(box.x), bounded(box.y), bounded(box.width), bounded(box.height)};
}

}  // namespace

struct PicturePainter::State {
  Surface* surface = nullptr;
  Picture* picture = nullptr;
  QTransform transform;
  bool smooth = true;
  bool softText = true;

  /// Runs `work` on the target's image, which may have got another size since the last time.
  template <typename Work>
  bool OnImage(Work work) {
    if (surface) {
      QImage over = ImageOver(*surface);
      if (over.isNull()) return false;
      work(over);
      return true;
    }
    if (picture->Empty() || picture->Kind() == PictureKind::Indexed8) return false;
    work(picture->Inside().image);
    return true;
  }

  template <typename Work>
  bool Paint(Work work) {
    return OnImage([&](QImage& image) {
      QPainter painter(&image);
      painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
      painter.setTransform(transform);
      work(painter);
    });
  }
};

PicturePainter::PicturePainter(Surface& target) : state_(std::make_unique<State>()) { state_->surface = &target; }
PicturePainter::PicturePainter(Picture& target) : state_(std::make_unique<State>()) { state_->picture = &target; }
PicturePainter::PicturePainter(PicturePainter&&) noexcept = default;
PicturePainter& PicturePainter::operator=(PicturePainter&&) noexcept = default;
PicturePainter::~PicturePainter() = default;

void PicturePainter::Translate(double dx, double dy) { state_->transform.translate(dx, dy); }
void PicturePainter::Rotate(double degrees) { state_->transform.rotate(degrees); }
void PicturePainter::ResetTransform() { state_->transform.reset(); }
void PicturePainter::SetSmooth(bool smooth) { state_->smooth = smooth; }
void PicturePainter::SetSoftText(bool soft) { state_->softText = soft; }

bool PicturePainter::Clear(Argb colour) {
  return state_->OnImage([&](QImage& image) {
    image.fill(image.hasAlphaChannel() ? QColor::fromRgba(colour) : QColor::fromRgb(colour));
  });
}

bool PicturePainter::Draw(const Picture& picture, const PictureBox& to, const PictureBox& from, const PictureLook& look) {
  if (picture.Empty() || to.width == 0 || to.height == 0 || from.width < 1 || from.height < 1) return false;
  Picture keyed;
  if (look.transparent) {
    keyed = picture;
    keyed.MakeTransparent(*look.transparent);
  }
  // Drawn into itself, a picture is read as it was before.
  const QImage image = look.transparent ? keyed.Inside().image : picture.Inside().image;
  return state_->Paint([&](QPainter& painter) {
    painter.setOpacity(std::clamp(look.opacity, 0.0, 1.0));
    painter.drawImage(ToQt(to), image, ToQt(from));
  });
}

bool PicturePainter::Text(const std::string& text, const FontFace& face, Argb colour, const PictureBox& box) {
  if (!HasFonts() || !(face.pixels > 0)) return false;
  QFont font = ToQtFont(face);
  if (!state_->softText) font.setStyleStrategy(QFont::NoAntialias);
  QRectF area = ToQt(box);
  int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip;
  if (area.width() > 0) flags |= Qt::TextWordWrap;
  if (area.width() <= 0) area.setWidth(kFarthest);
  if (area.height() <= 0) area.setHeight(kFarthest);
  return state_->Paint([&](QPainter& painter) {
    painter.setFont(font);
    painter.setPen(QColor::fromRgba(colour));
    painter.drawText(area, flags, QString::fromStdString(text));
  });
}

}  // namespace kinalyx
