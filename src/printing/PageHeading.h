#pragma once

#include <array>
#include <string>

#include "core/Settings.h"
#include "platform/host/Host.h"
#include "platform/paint/Surface.h"
#include "platform/print/Page.h"

namespace kinalyx {

/// What stands at the head of every page: the instructor's lines and logo.
struct PageHeading {
  std::array<std::string, 5> lines;
  bool withLogo = false;
  Surface logo;  ///< in the proportions of its place; empty where the file could not be read
};

/// Taken from the settings. A logo whose drive does not answer is left out.
PageHeading ReadHeading(IHost& host, const Settings& settings);

/// The box with the lines and, beside them, the logo; leaves the page with the font and the width of its rules.
void PrintHeading(IPage& page, const PageHeading& heading);

/// The font of a printed page at this size.
PageFont PrintFont(double points, bool bold = false);
/// Of the rules of a page, in dots.
constexpr int kRuleWidth = 10;

}  // namespace kinalyx
