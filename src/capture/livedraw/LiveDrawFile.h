#pragma once

#include <string>
#include <vector>

#include "capture/livedraw/HotZones.h"
#include "drawing/ShapeHistory.h"
#include "platform/files/FileStore.h"

namespace kinalyx {

/// What live draw keeps for the next time.
struct LiveDrawKept {
  bool mirror = true;
  bool muted = false;
  bool words = true;
  int sensitivity = IMotionDetectionFilter::kUsualSensitivity;
  std::vector<HotZone> zones;  ///< as the mirror shows them, or not
  DrawnShapes drawings;
  bool grid = false;
};

/// Reads "livedraw.json". What is missing, of the wrong kind or out of its range is as at first; a file that is none
/// gives nothing at all.
LiveDrawKept ReadLiveDraw(const std::string& path);
Outcome WriteLiveDraw(const std::string& path, const LiveDrawKept& kept, IDisk& disk = RealDisk());

}  // namespace kinalyx
