#pragma once

#include <string>

#include "core/Settings.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// The picture and the heading lines of the main menu page.

/// The picture that comes with the program.
std::string DefaultBackground(const Settings& settings);

/// The picture to show; empty when even the default is missing: the page then shows a ground in the scheme's
/// colours.
struct Background {
  std::string file;
  bool standsIn = false;  ///< the default, for one whose drive does not answer
};
/// A picture that has gone is reported and replaced by the default, which is written. While its drive does not
/// answer the default only stands in for it. Never waits long.
Background CheckBackground(IHost& host, Settings& settings);

/// Tells whether a file holds a picture that can be shown. Called on another thread.
using IsPicture = bool (*)(const std::string& path);
/// Lets the user choose another picture and writes it. False when the dialog was cancelled or, after a message,
/// when there is no picture in the file or its drive does not answer: the old one stays.
bool ChooseBackground(IHost& host, Settings& settings, IsPicture isPicture);
/// The same for the logo of printouts.
bool ChooseLogo(IHost& host, Settings& settings, IsPicture isPicture);
/// Goes back to the picture that comes with the program.
void ResetBackground(Settings& settings);
/// Goes back to the logo that comes with the program.
void ResetLogo(Settings& settings);

/// Moves the heading lines to the next of the ten places, from the last to the first, and writes it.
void NextCaptionPosition(Settings& settings);

/// Where a place stands on the page: three rows of three on the left half, and the lower right corner; the
/// upper right stays free for the face in the picture. Parts of the free width and height, 0 the left
/// or upper edge, 1 the right or lower. A position outside 1 to 10 counts as 1.
struct CaptionPlace {
  double across = 0;
  double down = 0;
};
CaptionPlace PlaceOfCaption(std::int32_t position);

}  // namespace kinalyx
