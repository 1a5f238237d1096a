#pragma once

#include <QPixmap>
#include <QStringList>
#include <QWidget>

#include "core/Settings.h"
#include "core/forms/HeadingInk.h"
#include "core/forms/PictureFile.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// The picture of the main menu with the heading lines over it, at any size: the ground of the menu page,
/// and small on the setup page.
class MenuCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit MenuCanvas(const QString& name, QWidget* parent = nullptr);

  /// Takes picture, lines and their place from the settings. A picture that has gone is reported and reset;
  /// one that cannot be read gives a ground in the scheme's colours. One whose drive does not answer comes as
  /// soon as that does, and the default is shown meanwhile.
  /// @param host, settings  outlive the canvas
  void SetupMenu(IHost& host, Settings& settings);
  /// True while another picture stands in for the one of the settings.
  bool StandsIn() const { return standsIn_; }
  /// Only the lines and their place.
  void SetupCaptionLabels(const Settings& settings);

  /// Draws pale boxes where the page has its buttons.
  void SetSample(bool on);
  /// Height, in parts of the whole, that is kept free at the bottom for the buttons.
  static constexpr double kButtonRoom = 0.25;
  /// Blank to the left and right of a page of this width, logical pixels.
  static int SideMargin(int width);

  QSize sizeHint() const override { return QSize(360, 225); }

 protected:
  void paintEvent(QPaintEvent*) override;
  void changeEvent(QEvent* event) override;

 private:
  QPixmap MakeGround(const QSize& pixels) const;
  void PaintHeading(QPainter& painter);
  void PaintSample(QPainter& painter) const;

  PictureReader reader_;
  std::string file_;
  bool standsIn_ = false;
  HostTimer again_;  ///< runs while the drive of the picture does not answer
  QPixmap picture_;
  QPixmap ground_;  ///< what lies beneath everything, at the widget's present size in pixels
  HeadingInk ink_;
  QRect inked_;  ///< the part of `ground_` that `ink_` was chosen for
  QStringList lines_;
  int position_ = 1;
  bool sample_ = false;
};

}  // namespace kinalyx
