#pragma once

#include <string>
#include <vector>

#include "core/Settings.h"
#include "distribution/clips/ClipScene.h"
#include "platform/files/Result.h"

namespace kinalyx {

/// How drawings look, as values of the settings.
struct FilmLook {
  ShapeLook Shapes;
  bool Labels = false;  ///< figures beside them
  bool FromUpright = false;
  int Speed = kSpeedOfRuler;
  std::vector<Colour> ToolColours;  ///< for the drawings of old sidecars
};
FilmLook LookIn(const Settings& settings);

/// A video as its files lie on the disk, with the drawings of its sidecar, whole and at its own size: what the stage
/// would show of it. It reads the disk. Fails as VideoFile::Open does.
Result<ClipScene> SceneOfFile(const std::string& path, const FilmLook& look);
/// Something is drawn on it.
bool HasDrawings(const ClipScene& scene);

}  // namespace kinalyx
