#include "platform/widgets/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr const char* kFolderProperty = "kinalyxIcons";

QByteArray ReadDrawing(const QString& name) {
  QString folder = qApp ? qApp->property(kFolderProperty).toString() : QString();
  if (folder.isEmpty()) folder = QCoreApplication::applicationDirPath() + "/icons";
  QFile file(folder + "/" + name + ".svg");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class TintedEngine : public QIconEngine {
 public:
  TintedEngine(QByteArray drawing, QColor normal, QColor checked, QColor disabled)
      : drawing_(std::move(drawing)), normal_(normal), checked_(checked), disabled_(disabled) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    if (drawing_.isEmpty()) return;
    QColor colour = state == QIcon::On && checked_.isValid() ? checked_ : normal_;
    if (mode == QIcon::Disabled) colour = disabled_.isValid() ? disabled_ : CurrentTheme().faint;
    QByteArray tinted = drawing_;
    tinted.replace("currentColor", colour.name().toLatin1());
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

  bool isNull() override { return drawing_.isEmpty(); }
  QIconEngine* clone() const override { return new TintedEngine(*this); }

 private:
  QByteArray drawing_;
  QColor normal_;
  QColor checked_;
  QColor disabled_;
};

}  // namespace

QIcon Icon(const QString& name, QColor colour, QColor checked, QColor disabled) {
  return QIcon(new TintedEngine(ReadDrawing(name), colour, checked, disabled));
}

QPixmap IconPixmap(const QString& name, QColor colour, int size, qreal pixelRatio) {
  TintedEngine engine(ReadDrawing(name), colour, {}, {});
  QPixmap picture = engine.pixmap(QSize(size, size) * pixelRatio, QIcon::Normal, QIcon::Off);
  picture.setDevicePixelRatio(pixelRatio);
  return picture;
}

void SetIconFolder(const QString& folder) { qApp->setProperty(kFolderProperty, folder); }

}  // namespace kinalyx
