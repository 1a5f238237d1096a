#pragma once

#include "platform/widgets/Panel.h"

namespace kinalyx {

/// A thin line between two parts of a panel, beneath one another or, `upright`, side by side.
inline QFrame* Divider(bool upright = false) {
  QFrame* line = MakeFrame("divider");
  if (upright) line->setFixedWidth(1);
  else line->setFixedHeight(1);
  return line;
}

}  // namespace kinalyx
