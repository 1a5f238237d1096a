#pragma once

#include <QDialog>

class QLineEdit;

namespace kinalyx {

/// Asks for a name, where wanted under a picture of what gets it. Its parts are called after `name`: of "MacroName",
/// which is the box, the form is `MacroNameForm` and the buttons `MacroNameOK` and `MacroNameCancel`.
class NameForm : public QDialog {
  Q_OBJECT

 public:
  /// @param longest  characters that the name may have
  NameForm(const QString& name, const QString& title, const QString& prompt, int longest, QWidget* parent);

  /// Takes a picture over, which stands above the question.
  void ShowAbove(QWidget* picture);
  /// The name that it has, to be changed or typed over.
  void BeginWith(const QString& name);
  /// Without blanks round it, and never empty once the form was accepted.
  QString Name() const;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLineEdit* name_ = nullptr;
};

}  // namespace kinalyx
