#include "platform/widgets/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <optional>
#include <utility>

#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

QByteArray ReadDrawing(const QString& name) {
  QFile file(QCoreApplication::applicationDirPath() + "/icons/" + name + ".svg");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Reads its drawing when it is first drawn: most icons of a page are tinted many times before anybody sees them.
class TintedEngine : public QIconEngine {
 public:
  TintedEngine(QString name, QColor normal, QColor checked, QColor disabled, QColor selected)
      : name_(std::move(name)), normal_(normal), checked_(checked), disabled_(disabled), selected_(selected) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    if (!drawing_) drawing_ = ReadDrawing(name_);
    if (drawing_->isEmpty()) return;
    QByteArray tinted = *drawing_;
    tinted.replace("currentColor", Colour(mode, state).name().toLatin1());
    QSvgRenderer renderer(tinted);
    painter->setRenderHint(QPainter::Antialiasing);
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    renderer.render(painter, square);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  bool isNull() override { return name_.isEmpty(); }
  QIconEngine* clone() const override { return new TintedEngine(*this); }

 private:
  QColor Colour(QIcon::Mode mode, QIcon::State state) const {
    if (mode == QIcon::Disabled) return disabled_.isValid() ? disabled_ : CurrentTheme().faint;
    if (mode == QIcon::Selected && selected_.isValid()) return selected_;
    return state == QIcon::On && checked_.isValid() ? checked_ : normal_;
  }

  QString name_;
  std::optional<QByteArray> drawing_;
  QColor normal_;
  QColor checked_;
  QColor disabled_;
  QColor selected_;
};

}  // namespace

QIcon Icon(const QString& name, QColor colour, QColor checked, QColor disabled, QColor selected) {
  return QIcon(new TintedEngine(name, colour, checked, disabled, selected));
}

QPixmap IconPixmap(const QString& name, QColor colour, int size, qreal pixelRatio) {
  TintedEngine engine(name, colour, {}, {}, {});
  QPixmap picture = engine.pixmap(QSize(size, size) * pixelRatio, QIcon::Normal, QIcon::Off);
  picture.setDevicePixelRatio(pixelRatio);
  return picture;
}

}  // namespace kinalyx
