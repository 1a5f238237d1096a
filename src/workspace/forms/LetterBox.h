#pragma once

#include <QLineEdit>

namespace kinalyx {

/// The box on the picture in which the letters of a drawing are typed. Enter, or leaving it, takes them; Escape
/// leaves everything as it was.
class LetterBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit LetterBox(QWidget* stage);

  /// @param middle  where the letters will stand, on the stage
  /// @param room    the part of the stage in which it may lie
  void Ask(QPoint middle, const QRect& room, const QString& text);

 signals:
  void Typed(const QString& text);
  /// The keys are the stage's again.
  void Done();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void End(bool take);

  bool asking_ = false;
};

}  // namespace kinalyx
