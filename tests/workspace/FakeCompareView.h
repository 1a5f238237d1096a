#pragma once

#include <array>

#include "workspace/CompareModes.h"

namespace kinalyx::test {

/// The windows of the comparing modes; they only remember what they were told.
class FakeCompareView final : public ICompareView {
 public:
  bool transparency = false, strip = false, carve = false, zoom = false, strobe = false;
  int carvePic = 0;  ///< slot under the canvas
  int stripsShown = 0;
  Surface mix;
  Surface piece;
  DualState dual;

 private:
  void ShowTransparency(bool shown) override { transparency = shown; }
  void PresentMix(const Surface& picture) override { mix = picture; }
  void SetTransScroll(int, bool) override {}
  void SelectOptShow(ShowOption) override {}
  void SetVideoScroll(int, int, int, int) override {}
  void SetVideoButtons(int, bool, bool, bool) override {}
  void ShowMultiPicture(bool shown) override { strip = shown; }
  int StripWidth() override { return 1000; }
  void PresentStrip(const Surface&, int) override { ++stripsShown; }
  void ShowCarve(bool shown) override { carve = shown; }
  void ShowCarvePic(int slot, bool shown) override { carvePic = shown ? slot : 0; }
  void ShowMark(int, int, int, int) override {}
  void ShowPiece(const Surface& picture, POINTAPI) override { piece = picture; }
  void ShowDual(const DualState& state) override { dual = state; }
  void ShowZoomForm(bool shown) override { zoom = shown; }
  void ShowStrobeForm(bool shown) override { strobe = shown; }
};

}  // namespace kinalyx::test
