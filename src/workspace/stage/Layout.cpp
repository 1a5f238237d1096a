#include "workspace/stage/Layout.h"

#include <algorithm>
#include <cmath>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr ScreenMode kModes[] = {
    {1, "1", "SS", TrLater("&Single"), "single", 1, 1, 1},
    {2, "2", "SD", TrLater("&Double"), "double", 2, 2, 1},
    {7, "2H", "SDH", TrLater("Double {Horizontal}"), "double-horizontal", 2, 1, 2},
    {5, "3L", "SL", TrLater("Triple {Vertical}"), "triple", 3, 3, 1},
    {3, "3T", "ST", TrLater("&Triple {Triangular}"), "triple-triangular", 3, 2, 2},
    {4, "4", "squad", TrLater("&Quad"), "quad", 4, 2, 2},
    {6, "6", "SSix", TrLater("Six Windows"), "six", 6, 3, 2},
    {8, "8", "SEight", TrLater("Eight Windows"), "eight", 8, 4, 2},
};

constexpr double kSmallestZoom = 0.2;
constexpr double kLargestZoom = 4.0;
constexpr double kPlainShape = 1.33333;
constexpr double kWideShape = 1.7778;
constexpr int kRoundingGap = 10;  // twips that the last of three columns is widened by

}  // namespace

std::span<const ScreenMode> ScreenModes() { return kModes; }

const ScreenMode* FindScreenMode(int mode) {
  const auto found = std::ranges::find(kModes, mode, &ScreenMode::Mode);
  return found == std::end(kModes) ? nullptr : found;
}

const ScreenMode* FindScreenMode(std::string_view code) {
  const auto found = std::ranges::find(kModes, code, &ScreenMode::Code);
  return found == std::end(kModes) ? nullptr : found;
}

int Val(std::string_view text) {
  int value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    value = value * 10 + (c - '0');
  }
  return value;
}

std::vector<TwipRect> LayoutCells(std::string_view code, int panelWidth, int panelHeight) {
  const ScreenMode* mode = FindScreenMode(code);
  if (!mode) return {{0, 0, panelWidth, panelHeight}};
  const int width = panelWidth / mode->Columns;
  const int height = panelHeight / mode->Rows;
  std::vector<TwipRect> cells;
  for (int slot = 0; slot < mode->Slots; ++slot)
    cells.push_back({slot % mode->Columns * width, slot / mode->Columns * height, width, height});
  if (code == "3T") cells[2].Left = (panelWidth - width) / 2;
  if (code == "3L") cells[2].Width += kRoundingGap;
  return cells;
}

TwipRect CellBeneathStrip(int panelWidth, int panelHeight, bool wide) {
  const int height = std::min(panelHeight, static_cast<int>(panelWidth * 480.0 / 640.0));
  const int width = std::min(panelWidth, static_cast<int>(height * (wide ? kWideShape : kPlainShape)));
  return {(panelWidth - width) / 2, kStripHeight, width, std::max(height - kStripHeight, kTwipsPerPixel)};
}

double NearestZoom(double zoom) { return std::round(std::clamp(zoom, kSmallestZoom, kLargestZoom) * 10) / 10; }

TwipRect PlaceVideo(const VideoPlacement& video, int panelWidth, int panelHeight) {
  if (video.VideoWidth <= 0 || video.VideoHeight <= 0) return {};
  const double shape = video.Wide ? kWideProportion : static_cast<double>(video.VideoWidth) / video.VideoHeight;
  const double whole = video.Fits ? std::min<double>(panelHeight, panelWidth / shape) : panelHeight;
  const int height = static_cast<int>(whole * video.Zoom);
  const int width = video.Wide ? static_cast<int>(height * kWideProportion)
                               : static_cast<int>(static_cast<double>(height) * video.VideoWidth / video.VideoHeight);
  return {static_cast<int>(std::floor((panelWidth - width) / 2.0 + video.PanX * video.Zoom)),
          static_cast<int>(std::floor((panelHeight - height) / 2.0 + video.PanY * video.Zoom)), width, height};
}

int LastOfTopRow(std::string_view code) {
  if (code == "4") return 2;
  if (code == "6") return 3;
  if (code == "8") return 4;
  return 0;
}

}  // namespace kinalyx
