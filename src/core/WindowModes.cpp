#include "core/WindowModes.h"

#include <algorithm>

#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr WindowModeItem kItems[] = {
    {"1", TrLater("Full Screen Mode (Recommended)")},
    {"2", TrLater("Large (Windowed 1280x800)")},
    {"3", TrLater("Medium (Windowed 1024x768)")},
};

/// A window's size, and how far its corner stands from the middle of the screen, in twips.
struct Window {
  std::string_view mode;
  std::int32_t width, height;
  std::int32_t fromMiddleX, fromMiddleY;
};

constexpr Window kWindows[] = {
    {"2", 1280 * kTwipsPerPixel, 800 * kTwipsPerPixel, 9600, 6000},
    // 7860 is not half of the width: the window has always stood a little to the left.
    {"3", 1024 * kTwipsPerPixel, 768 * kTwipsPerPixel, 7860, 5760},
    {"4", 800 * kTwipsPerPixel, 600 * kTwipsPerPixel, 6000, 4500},
};

}  // namespace

std::span<const WindowModeItem> WindowModeItems() { return kItems; }

WindowPlace PlaceForMode(std::string_view mode, int screenWidth, int screenHeight) {
  const std::int32_t width = screenWidth * kTwipsPerPixel;
  const std::int32_t height = screenHeight * kTwipsPerPixel;
  for (const Window& window : kWindows) {
    if (window.mode == mode)
      return {height / 2 - window.fromMiddleY, width / 2 - window.fromMiddleX, window.width, window.height, false};
  }
  return {0, 0, width, height, true};
}

ScreenArea FitOnScreen(ScreenArea window, const ScreenArea& available) {
  window.width = std::min(window.width, available.width);
  window.height = std::min(window.height, available.height);
  window.left = std::clamp(window.left, available.left, available.left + available.width - window.width);
  window.top = std::clamp(window.top, available.top, available.top + available.height - window.height);
  return window;
}

int ScreenClass(std::int32_t formWidth) { return formWidth / kTwipsPerPixel < 1025 ? 1 : 2; }

bool ChooseWindowMode(Settings& settings, std::string_view mode) {
  if (settings.WindowMode == mode) return false;
  settings.Set(settings.WindowMode, std::string(mode));
  settings.Set(settings.RestartOption, 1);
  return true;
}

bool ChooseLanguage(Settings& settings, const std::string& code) {
  if (settings.Language == code) return false;
  settings.Set(settings.Language, code);
  settings.Set(settings.RestartOption, 1);
  return true;
}

bool TakeRestartRequest(Settings& settings) {
  const bool setupPage = settings.RestartOption == 1;
  if (settings.RestartOption != 0) settings.Set(settings.RestartOption, 0);
  return setupPage;
}

}  // namespace kinalyx
