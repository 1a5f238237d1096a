#pragma once

#include <string>

#include "platform/paint/Geometry.h"

namespace kinalyx {

/// What lies under the mouse.
enum class LivePointer { Nothing, Shape, Point, Zone, ZoneLevel, ZoneUpright, ZoneFalling, ZoneRising, NewZone };

/// What a session asks of its window, and tells it.
class ILiveDrawView {
 public:
  virtual ~ILiveDrawView() = default;
  /// The picture is to be painted anew, soon.
  virtual void Repaint() = 0;
  /// Captions, buttons, words, whatever stands beside the picture.
  virtual void LiveDrawChanged() = 0;
  /// Other cameras, or another one chosen.
  virtual void CamerasChanged() = 0;
  virtual void ShowPointer(LivePointer pointer) = 0;
  /// Opens the menu of the drawing, or else of the zone, that is taken; pixels of the picture.
  virtual void ShowShapeMenu(POINTAPI at) = 0;
  virtual void ShowZoneMenu(POINTAPI at) = 0;
  /// Asks for letters round a point of the picture; they come by WriteText, later or never.
  virtual void AskText(POINTAPI at, const std::string& text) = 0;
};

}  // namespace kinalyx
