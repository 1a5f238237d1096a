#pragma once

namespace kinalyx {

/// What the user has asked of all programs of the desktop.
struct DesktopManners {
  double textScale = 1;  ///< letters larger than a desktop has them by itself, 1 to 1.5
  bool still = false;    ///< nothing is to move that need not
};

/// Needs the application object, wearing the font that the desktop has given it.
DesktopManners AskDesktop();

}  // namespace kinalyx
