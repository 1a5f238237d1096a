#pragma once

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Scale.h"

namespace kinalyx {

/// A flat button that fits into the heading of a panel.
inline Button* HeadButton(const QString& name, const QString& caption, const QString& icon = {}) {
  auto* button = new Button(name, caption, icon, Look::Flat);
  FixIcon(button, 16);
  WearSheet(button,
            "QPushButton { min-height: @26-4; max-height: @26-4; padding: 0 @8; }"
            "QPushButton[square=\"true\"] { min-width: @22-2; max-width: @22-2; border-width: 1px; padding: 0; }");
  return button;
}

}  // namespace kinalyx
