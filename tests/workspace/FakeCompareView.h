#pragma once

#include <array>
#include <map>

#include "workspace/compare/CompareModes.h"

namespace kinalyx::test {

/// The windows of the comparing modes; they only remember what they were told. A slider or an option that is
/// set answers like a real control: it tells the mode of its change.
class FakeCompareView final : public ICompareView {
 public:
  Transparency* mixer = nullptr;
  bool transparency = false, strip = false, carve = false, zoom = false, strobe = false;
  Surface mix;
  int mixes = 0;  ///< shown so far
  int scroll = -1;
  bool scrollEnabled = false;
  ShowOption option = ShowOption::Transparency;
  std::map<int, std::array<int, 3>> bars;  ///< lowest, highest and value
  std::map<int, bool> playing;
  int stripWidth = 1200;
  int strips = 0;
  int carvePic = 0;  ///< slot under the canvas
  std::array<int, 4> mark{};
  Surface piece;
  POINTAPI corner;
  int pieces = 0;
  DualState dual;

 private:
  void ShowTransparency(bool shown) override { transparency = shown; }
  void PresentMix(const Surface& picture) override {
    mix = picture;
    ++mixes;
  }
  void SetTransScroll(int value, bool enabled) override {
    scroll = value;
    scrollEnabled = enabled;
    mixer->SlideMix(value);
  }
  void SelectOptShow(ShowOption which) override {
    option = which;
    mixer->Show(which);
  }
  void SetVideoScroll(int window, int lowest, int highest, int value) override {
    bars[window] = {lowest, highest, value};
  }
  void SetVideoButtons(int window, bool on, bool, bool) override { playing[window] = on; }
  void ShowMultiPicture(bool shown) override { strip = shown; }
  int StripWidth() override { return stripWidth; }
  void PresentStrip(const Surface&, int) override { ++strips; }
  void ShowCarve(bool shown) override { carve = shown; }
  void ShowCarvePic(int slot, bool shown) override { carvePic = shown ? slot : 0; }
  void ShowMark(int left, int top, int width, int height) override { mark = {left, top, width, height}; }
  void ShowPiece(const Surface& picture, POINTAPI at) override {
    piece = picture;
    corner = at;
    ++pieces;
  }
  void ShowDual(const DualState& state) override { dual = state; }
  void ShowZoomForm(bool shown) override { zoom = shown; }
  void ShowStrobeForm(bool shown) override { strobe = shown; }
};

}  // namespace kinalyx::test
