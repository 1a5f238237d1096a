#pragma once

#include "platform/widgets/Panel.h"

class QLineEdit;

namespace kinalyx {

class Button;
class NameList;

/// The list of instructors and databases with what can be done to them: a box for the name of a new one, and
/// the buttons that rename and delete.
class InstructorsPanel : public Panel {
  Q_OBJECT

 public:
  explicit InstructorsPanel(NameList* list, QWidget* parent = nullptr);

  /// Shows the box for a new name, or takes it away.
  void ShowNameBox(bool shown);
  /// The chosen one may be renamed and deleted.
  void SetChangeable(bool changeable);
  /// The list can be used, and entries be added.
  void SetUsable(bool usable);

 signals:
  /// The name as it was typed. The box stays until it is taken away.
  void AddWanted(const QString& name);
  /// The box was left without a name.
  void AddCancelled();
  void RenameWanted();
  void DeleteWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void SSCommand2();

  NameList* list_;
  QWidget* nameBox_;
  QLineEdit* Text2_;
  Button* add_;
  Button* rename_;
  Button* delete_;
};

}  // namespace kinalyx
