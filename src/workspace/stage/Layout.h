#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Shape.h"  // kTwipsPerPixel

namespace kinalyx {

constexpr int kSlots = 8;  ///< video slots, numbered from 1

/// Two states of the stage that are no layouts: the current video alone, or beneath its film strip.
inline constexpr std::string_view kMaximized = "MAX";
inline constexpr std::string_view kMultiFrame = "MF";

/// A place on the workspace in twips, relative to what holds it.
struct TwipRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  friend bool operator==(const TwipRect&, const TwipRect&) = default;
};

/// One of the eight screen layouts.
struct ScreenMode {
  int Mode;                  ///< number in menus, keys and the setting ScreenMode
  std::string_view Code;     ///< value of ScreenLayout
  std::string_view Item;     ///< name of the menu item
  std::string_view Caption;  ///< its caption
  std::string_view Icon;
  int Slots;
  int Columns;
  int Rows;
};

/// All layouts in the order of the Windows menu.
std::span<const ScreenMode> ScreenModes();
/// Null for a number outside 1 to 8.
const ScreenMode* FindScreenMode(int mode);
/// Null for the states "MAX" and "MF" and anything else that is no layout.
const ScreenMode* FindScreenMode(std::string_view code);

/// The number at the beginning of a text, 0 when there is none: the slots of a layout code.
int Val(std::string_view text);

/// The cells of a layout over a panel of this size, slot 1 first. All cells are equal, but for the last
/// of three side by side, which takes the rounding gap. "MAX" has one cell: the whole panel.
std::vector<TwipRect> LayoutCells(std::string_view code, int panelWidth, int panelHeight);

/// Twips that the film strip takes off the top of the stage.
inline constexpr int kStripHeight = 2655;
/// The cell of a video beneath its film strip, on a stage of this size: that of a 4:3 picture, or of a 16:9 one
/// for a wide video, less the strip above it.
TwipRect CellBeneathStrip(int panelWidth, int panelHeight, bool wide);

/// Width by height of a wide picture.
constexpr double kWideProportion = 1.77777777777778;

/// The nearest zoom that a video may have: tenths from 0.2 to 4. They stay tenths, however often one is added.
double NearestZoom(double zoom);

/// How a slot shows its video.
struct VideoPlacement {
  int VideoWidth = 0;  ///< pixels of the file's picture
  int VideoHeight = 0;
  bool Wide = false;  ///< shown 16:9
  double Zoom = 1.0;  ///< 1 fills the height of the cell, or is the largest size at which all of it is seen
  double PanX = 0;    ///< twips before zoom
  double PanY = 0;
  bool Fits = false;  ///< zoom 1 shows all of it
};

/// Where the player stands in a cell of this size: centred, as high as the cell at zoom 1, in the
/// video's proportion; it may reach beyond the cell, but for one that fits at that zoom. An empty rectangle for a video
/// without a size.
TwipRect PlaceVideo(const VideoPlacement& video, int panelWidth, int panelHeight);

/// The last slot of the top row that "fill top" reaches: 2 of "4", 3 of "6", 4 of "8"; 0 for the others.
int LastOfTopRow(std::string_view code);

}  // namespace kinalyx
