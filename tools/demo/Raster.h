#pragma once

#include <cstdint>
#include <vector>

#include "Camera.h"
#include "Light.h"
#include "Mesh.h"
#include "platform/paint/Surface.h"

namespace kinalyx::demo {

/// A picture of lit surfaces with their depth, in several samples to a pixel, to be laid over a
/// background with soft edges.
class Raster {
 public:
  /// @param samples  per pixel and direction, 1 to 4
  Raster(const Camera& camera, int samples);

  void Clear();
  /// Draws what is nearer than what is there. `shadow` may be null.
  void Draw(const Mesh& mesh, const SunShadow* shadow);
  /// Draws a thing that moves while the shutter is open, `steps` times: what of it is nearer than the
  /// still picture is mixed by its share of the time. LayOver lays the mixture down.
  void BeginMotion(int steps);
  void DrawMotion(const Mesh& mesh, const SunShadow* shadow);
  /// Lays everything over a picture of the camera's size.
  void LayOver(Surface& target);

 private:
  struct Box {
    int left, top, right, bottom;  // samples, right and bottom beyond
    void Take(int l, int t, int r, int b);
    bool Empty() const { return left >= right; }
  };
  struct Shade {
    float red, green, blue;
  };
  /// A vertex in the picture, with its light in the shade and what the sun adds.
  struct Corner {
    Projected place;
    bool away;
    Shade shaded;
    Shade sunny;
  };
  struct Layer {
    std::vector<std::uint32_t> colours;  // 0 where nothing is, else 0xFFrrggbb
    std::vector<float> nearness;
    Box used;
  };

  static void Light(const Material& material, Vec3 normal, Vec3 toEye, Corner& corner);
  void ClearLayer(Layer& layer) const;
  void PrepareCorners(const Mesh& mesh);
  void DrawOn(Layer& layer, const Mesh& mesh, const SunShadow* shadow, const Layer* behind);
  void GatherMotion();

  Camera camera_;
  int samples_;
  int width_;  // in samples
  int height_;
  Layer still_;
  Layer moving_;
  int motionSteps_ = 0;
  Box motionUsed_;
  std::vector<float> motion_;  // per pixel red, green, blue and share, summed
  std::vector<Corner> corners_;
};

}  // namespace kinalyx::demo
