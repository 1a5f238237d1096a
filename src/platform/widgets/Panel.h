#pragma once

#include <QFrame>
#include <QString>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace kinalyx {

/// A rounded panel: a heading bar, a body and, when asked for, a bar of actions beneath.
class Panel : public QFrame {
 public:
  /// `name` becomes the objectName of the heading's label. An empty title gives no heading bar until
  /// SetTitle is called with words.
  Panel(const QString& name, const QString& title, QWidget* parent = nullptr);

  void SetTitle(const QString& title);
  /// To the right of the title.
  QHBoxLayout* Head() { return head_; }
  /// No margins: lists fill the panel from edge to edge.
  QVBoxLayout* Body() { return body_; }
  /// The bar of actions, made at the first call.
  QHBoxLayout* Foot();

 private:
  QFrame* headFrame_;
  QLabel* title_;
  QHBoxLayout* head_;
  QVBoxLayout* body_;
  QHBoxLayout* foot_ = nullptr;
};

/// A label with a look of the style sheet ("caption", "muted", "heading" ...).
QLabel* MakeLabel(const QString& name, const QString& text, const char* look = nullptr, QWidget* parent = nullptr);

/// A bare frame with a look of the style sheet ("strip", "status", "stage" ...).
QFrame* MakeFrame(const char* look, QWidget* parent = nullptr);

/// Gives a widget another look while it is shown.
void SetLook(QWidget* widget, const char* look);

}  // namespace kinalyx
