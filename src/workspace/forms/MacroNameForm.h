#pragma once

#include <QDialog>

#include "drawing/Macros.h"

class QLineEdit;

namespace kinalyx {

/// "New macro": asks for its name under a picture of the drawing that it keeps.
class MacroNameForm : public QDialog {
  Q_OBJECT

 public:
  MacroNameForm(const ShapeList& drawing, const ShapeLook& look, QWidget* parent);

  QString Name() const;

 private:
  QLineEdit* name_ = nullptr;
};

}  // namespace kinalyx
