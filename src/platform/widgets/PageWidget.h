#pragma once

#include <QWidget>

namespace kinalyx {

/// A page of the main window. That window alone says when a page comes and goes: what Qt tells by show and hide
/// events comes also when the window is minimised, and then nobody has left the page.
class PageWidget : public QWidget {
 public:
  using QWidget::QWidget;

  /// The page is on the screen, and what it shows may be old.
  virtual void Open() {}
  /// The page is about to be left. False, after a message, when it must stay.
  virtual bool Leave() { return true; }
};

}  // namespace kinalyx
