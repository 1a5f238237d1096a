#pragma once

#include <QPushButton>
#include <QString>

namespace kinalyx {

/// How a button looks; see StyleSheetOf.
enum class Look {
  Filled,   ///< the actions of a group
  Quiet,    ///< choices and lesser actions on a panel
  Flat,     ///< tools in a strip
  Stage,    ///< tools on the dark stage
  Section,  ///< a row of a list of sections, caption to the left
};

/// A push button whose icon follows the theme. With an empty caption it is a square of the button
/// height. `name` becomes the objectName. Return presses it as the space bar does.
class Button : public QPushButton {
 public:
  Button(const QString& name, const QString& caption, const QString& icon = {}, Look look = Look::Filled,
         QWidget* parent = nullptr);

  /// Another icon of the family; empty for none.
  void SetIcon(const QString& icon);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Tint();

  QString icon_;
  Look look_;
};

/// A square button with an icon and a tip, which also is its name for screen readers.
Button* IconButton(const QString& name, const QString& icon, const QString& tip, Look look = Look::Filled,
                   QWidget* parent = nullptr);

/// A large button with the icon above its words: an entry of the rail, or a tile on the menu picture.
class TileButton : public QPushButton {
 public:
  enum class Place { Rail, Picture };

  TileButton(const QString& name, const QString& caption, const QString& icon, Place place, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent*) override;

 private:
  QString icon_;
  Place place_;
};

/// For what is not built yet, or has been since: a control that comes later is out of sight and out of reach.
void SetComing(QWidget* widget, bool coming = true);

}  // namespace kinalyx
