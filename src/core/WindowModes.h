#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/Settings.h"
#include "core/Twips.h"

namespace kinalyx {

/// A place on the screen in twips.
struct WindowPlace {
  std::int32_t top = 0;
  std::int32_t left = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool fullScreen = false;

  friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

/// One entry of the list `cboResolution`.
struct WindowModeItem {
  std::string_view mode;  ///< value of the setting `WindowMode`
  std::string_view text;
};

/// The three modes that are offered. A fourth, "4", small, is honoured where the settings file names it.
std::span<const WindowModeItem> WindowModeItems();

/// Where the main form stands in a mode; an unknown mode is full screen. Centred, but for the large
/// and medium windows' fixed offsets, which are kept as they always were. On a screen smaller than the
/// window the place is partly outside.
/// @param screenWidth, screenHeight  pixels
WindowPlace PlaceForMode(std::string_view mode, int screenWidth, int screenHeight);

/// A window's place as far as the screen has room for it, its frame included. Pixels.
struct ScreenArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const ScreenArea&, const ScreenArea&) = default;
};
/// Cuts and moves a window, so that all of it lies in the part of the screen that is free of panels.
ScreenArea FitOnScreen(ScreenArea window, const ScreenArea& available);

/// 1 for a main form less than 1025 pixels wide, else 2.
/// @param formWidth  twips
int ScreenClass(std::int32_t formWidth);

/// Takes another window mode: stores it and asks for the setup page after the restart, which the caller
/// must bring about. False, and nothing changed, when it is the present mode.
bool ChooseWindowMode(Settings& settings, std::string_view mode);

/// Takes another language, by its code or empty for the desktop's, in the same way.
bool ChooseLanguage(Settings& settings, const std::string& code);

/// True when the program was restarted from the setup page and should open there. Asks once: any request
/// is cleared, here and in the file.
bool TakeRestartRequest(Settings& settings);

}  // namespace kinalyx
