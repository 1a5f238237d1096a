#pragma once

#include "platform/widgets/Buttons.h"

namespace kinalyx {

/// A flat button that fits into the heading of a panel.
inline Button* HeadButton(const QString& name, const QString& caption, const QString& icon = {}) {
  auto* button = new Button(name, caption, icon, Look::Flat);
  button->setIconSize(QSize(16, 16));
  button->setStyleSheet("QPushButton { min-height: 22px; max-height: 22px; padding: 0 8px; }"
                        "QPushButton[square=\"true\"] { min-width: 20px; max-width: 20px; border-width: 1px; padding: 0; }");
  return button;
}

}  // namespace kinalyx
