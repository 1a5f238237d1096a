#pragma once

namespace kinalyx {

/// Key codes as the key tables of the workspace name them.
enum KeyCode : int {
  kKeyBackspace = 8,
  kKeyTab = 9,
  kKeyReturn = 13,
  kKeyCtrl = 17,
  kKeyEscape = 27,
  kKeySpace = 32,
  kKeyPageUp = 33,
  kKeyPageDown = 34,
  kKeyEnd = 35,
  kKeyHome = 36,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
  kKeyDelete = 46,
  kKey0 = 48,
  kKeyNumpad0 = 96,
  kKeyNumpad9 = 105,
  kKeyF1 = 112,
  kKeyF12 = 123,
};

/// The keys held down with another one, added up.
constexpr int kShift = 1;
constexpr int kCtrl = 2;

}  // namespace kinalyx
