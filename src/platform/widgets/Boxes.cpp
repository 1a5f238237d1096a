#include "platform/widgets/Boxes.h"

#include <QAction>
#include <QLineEdit>

namespace kinalyx {

void LetClear(QLineEdit& box) {
  box.setClearButtonEnabled(true);
  if (auto* clear = box.findChild<QAction*>("_q_qlineeditclearaction")) clear->setText(QObject::tr("Clear"));
}

}  // namespace kinalyx
