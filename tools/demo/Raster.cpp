#include "Raster.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace kinalyx::demo {
namespace {

constexpr int kNone = std::numeric_limits<int>::max();

float Linear(int byte) {
  const float v = static_cast<float>(byte) / 255;
  return v * v;
}

/// From light to the byte of a picture.
std::uint32_t Byte(float light) {
  static const auto kTable = [] {
    std::array<std::uint8_t, 4097> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
      table[i] = static_cast<std::uint8_t>(std::sqrt(static_cast<double>(i) / 4096) * 255 + 0.5);
    return table;
  }();
  return kTable[static_cast<std::size_t>(std::clamp(light, 0.0f, 1.0f) * 4096)];
}

}  // namespace

/// Light of the sun, of the blue sky above and of the grass below.
void Raster::Light(const Material& material, Vec3 normal, Vec3 toEye, Corner& corner) {
  const float red = Linear(Red(material.colour)), green = Linear(Green(material.colour)),
              blue = Linear(Blue(material.colour));
  const float direct = static_cast<float>(std::max(0.0, Dot(normal, kSun)) * 0.92);
  const float sky = static_cast<float>(0.5 + 0.5 * normal.y);
  float glow = 0, glint = 0;
  if (material.gloss > 0) {
    const double half = std::max(0.0, Dot(normal, Unit(kSun + toEye)));
    const double glancing = 1 - std::max(0.0, Dot(normal, toEye));
    glow = static_cast<float>(material.gloss * 0.25 * glancing * glancing) * sky;
    glint = static_cast<float>(material.gloss * 0.9 * std::pow(half, 40));
  }
  corner.shaded = {(0.21f + 0.13f * sky) * red + glow, (0.24f + 0.14f * sky) * green + glow,
                   (0.21f + 0.24f * sky) * blue + glow};
  corner.sunny = {direct * red + glint, direct * 0.97f * green + glint, direct * 0.88f * blue + glint};
}

void Raster::Box::Take(int l, int t, int r, int b) {
  left = std::min(left, l);
  top = std::min(top, t);
  right = std::max(right, r);
  bottom = std::max(bottom, b);
}

Raster::Raster(const Camera& camera, int samples)
    : camera_(camera.Resized(samples)), samples_(samples), width_(camera_.Width()), height_(camera_.Height()) {
  for (Layer* layer : {&still_, &moving_}) {
    layer->colours.resize(static_cast<std::size_t>(width_) * height_);
    layer->nearness.resize(layer->colours.size());
    layer->used = {kNone, kNone, 0, 0};
  }
  motionUsed_ = {kNone, kNone, 0, 0};
  motion_.resize(static_cast<std::size_t>(camera.Width()) * camera.Height() * 4);
}

void Raster::ClearLayer(Layer& layer) const {
  if (!layer.used.Empty())
    for (int y = layer.used.top; y < layer.used.bottom; ++y) {
      const std::size_t row = static_cast<std::size_t>(y) * width_;
      std::fill(layer.colours.begin() + row + layer.used.left, layer.colours.begin() + row + layer.used.right, 0u);
      std::fill(layer.nearness.begin() + row + layer.used.left, layer.nearness.begin() + row + layer.used.right, 0.0f);
    }
  layer.used = {kNone, kNone, 0, 0};
}

void Raster::Clear() {
  ClearLayer(still_);
  ClearLayer(moving_);
  if (!motionUsed_.Empty()) {
    const int width = width_ / samples_;
    for (int y = motionUsed_.top; y < motionUsed_.bottom; ++y) {
      const auto row = motion_.begin() + static_cast<std::ptrdiff_t>(y) * width * 4;
      std::fill(row + motionUsed_.left * 4, row + motionUsed_.right * 4, 0.0f);
    }
  }
  motionUsed_ = {kNone, kNone, 0, 0};
  motionSteps_ = 0;
}

void Raster::Draw(const Mesh& mesh, const SunShadow* shadow) { DrawOn(still_, mesh, shadow, nullptr); }

void Raster::PrepareCorners(const Mesh& mesh) {
  corners_.resize(mesh.Vertices().size());
  for (std::size_t i = 0; i < corners_.size(); ++i) {
    const Mesh::Vertex& vertex = mesh.Vertices()[i];
    Corner& corner = corners_[i];
    const Vec3 toEye = Unit(camera_.Position() - vertex.position);
    corner.place = camera_.Project(vertex.position);
    corner.away = Dot(vertex.normal, toEye) < -0.3;
    if (!corner.away) Light(mesh.Materials()[vertex.material], vertex.normal, toEye, corner);
  }
}

void Raster::DrawOn(Layer& layer, const Mesh& mesh, const SunShadow* shadow, const Layer* behind) {
  PrepareCorners(mesh);
  for (const Mesh::Triangle& triangle : mesh.Triangles()) {
    const Corner &ca = corners_[triangle[0]], &cb = corners_[triangle[1]], &cc = corners_[triangle[2]];
    // What looks away is covered by the other side of the same body.
    if (ca.away || cb.away || cc.away) continue;
    const Projected a = ca.place, b = cb.place, c = cc.place;
    const double area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (std::abs(area) < 1e-6) continue;
    const int left = std::max(0, static_cast<int>(std::ceil(std::min({a.x, b.x, c.x}) - 0.5)));
    const int right = std::min(width_ - 1, static_cast<int>(std::floor(std::max({a.x, b.x, c.x}) - 0.5)));
    const int top = std::max(0, static_cast<int>(std::ceil(std::min({a.y, b.y, c.y}) - 0.5)));
    const int bottom = std::min(height_ - 1, static_cast<int>(std::floor(std::max({a.y, b.y, c.y}) - 0.5)));
    if (left > right || top > bottom) continue;
    layer.used.Take(left, top, right + 1, bottom + 1);
    const auto mapped = [&](int corner) {
      const Mesh::Vertex& vertex = mesh.Vertices()[triangle[corner]];
      return shadow ? shadow->InMap(vertex.position + vertex.normal * 0.006) : Vec3{};
    };
    const Vec3 ma = mapped(0), mb = mapped(1), mc = mapped(2);
    // The shares of the second and third corner grow evenly along a row, and nearness with them.
    const double inverse = 1 / area;
    const double vStep = (c.y - a.y) * inverse, wStep = (a.y - b.y) * inverse;
    const double nearA = 1 / a.distance, nearB = 1 / b.distance, nearC = 1 / c.distance;
    for (int y = top; y <= bottom; ++y) {
      const double px = left + 0.5 - a.x, py = y + 0.5 - a.y;
      double v = (px * (c.y - a.y) - py * (c.x - a.x)) * inverse;
      double w = ((b.x - a.x) * py - (b.y - a.y) * px) * inverse;
      for (int x = left; x <= right; ++x, v += vStep, w += wStep) {
        if (v < 0 || w < 0 || v + w > 1) continue;
        const double u = 1 - v - w;
        const float near = static_cast<float>(nearA * u + nearB * v + nearC * w);
        const std::size_t place = static_cast<std::size_t>(y) * width_ + x;
        if (near <= layer.nearness[place] || (behind && near <= behind->nearness[place])) continue;
        layer.nearness[place] = near;
        const auto mix = [u = static_cast<float>(u), v = static_cast<float>(v), w = static_cast<float>(w)](
                             const Shade& p, const Shade& q, const Shade& r) {
          return Shade{p.red * u + q.red * v + r.red * w, p.green * u + q.green * v + r.green * w,
                       p.blue * u + q.blue * v + r.blue * w};
        };
        Shade light = mix(ca.shaded, cb.shaded, cc.shaded);
        const Shade sunny = mix(ca.sunny, cb.sunny, cc.sunny);
        if (sunny.red + sunny.green + sunny.blue > 0.004f) {
          const float sun = shadow ? static_cast<float>(shadow->SunAt(ma * u + mb * v + mc * w)) : 1.0f;
          light = {light.red + sunny.red * sun, light.green + sunny.green * sun, light.blue + sunny.blue * sun};
        }
        layer.colours[place] = 0xFF000000u | Byte(light.red) << 16 | Byte(light.green) << 8 | Byte(light.blue);
      }
    }
  }
}

void Raster::BeginMotion(int steps) { motionSteps_ = steps; }

void Raster::DrawMotion(const Mesh& mesh, const SunShadow* shadow) {
  ClearLayer(moving_);
  DrawOn(moving_, mesh, shadow, &still_);
  GatherMotion();
}

void Raster::GatherMotion() {
  if (moving_.used.Empty()) return;
  const int width = width_ / samples_;
  const int left = moving_.used.left / samples_, top = moving_.used.top / samples_;
  const int right = (moving_.used.right + samples_ - 1) / samples_,
            bottom = (moving_.used.bottom + samples_ - 1) / samples_;
  motionUsed_.Take(left, top, right, bottom);
  const float share = 1.0f / static_cast<float>(samples_ * samples_ * motionSteps_);
  for (int y = top; y < bottom; ++y)
    for (int x = left; x < right; ++x) {
      int red = 0, green = 0, blue = 0, covered = 0;
      for (int j = 0; j < samples_; ++j)
        for (int i = 0; i < samples_; ++i) {
          const std::uint32_t colour =
              moving_.colours[static_cast<std::size_t>(y * samples_ + j) * width_ + x * samples_ + i];
          covered += static_cast<int>(colour >> 31);
          red += (colour >> 16) & 0xFF;
          green += (colour >> 8) & 0xFF;
          blue += colour & 0xFF;
        }
      float* sum = &motion_[(static_cast<std::size_t>(y) * width + x) * 4];
      sum[0] += static_cast<float>(red) * share;
      sum[1] += static_cast<float>(green) * share;
      sum[2] += static_cast<float>(blue) * share;
      sum[3] += static_cast<float>(covered) * share;
    }
}

void Raster::LayOver(Surface& target) {
  const int width = std::min(target.Width(), width_ / samples_), height = std::min(target.Height(), height_ / samples_);
  Box used = motionUsed_;
  if (!still_.used.Empty())
    used.Take(still_.used.left / samples_, still_.used.top / samples_, (still_.used.right + samples_ - 1) / samples_,
              (still_.used.bottom + samples_ - 1) / samples_);
  if (used.Empty()) return;
  const float whole = 1.0f / static_cast<float>(samples_ * samples_);
  for (int y = used.top; y < std::min(used.bottom, height); ++y) {
    std::uint8_t* pixel = target.Row(y) + used.left * 4;
    for (int x = used.left; x < std::min(used.right, width); ++x, pixel += 4) {
      int sums[3] = {0, 0, 0}, covered = 0;
      for (int j = 0; j < samples_; ++j) {
        const std::uint32_t* row = &still_.colours[static_cast<std::size_t>(y * samples_ + j) * width_ + x * samples_];
        for (int i = 0; i < samples_; ++i) {
          covered += static_cast<int>(row[i] >> 31);
          sums[0] += row[i] & 0xFF;
          sums[1] += (row[i] >> 8) & 0xFF;
          sums[2] += (row[i] >> 16) & 0xFF;
        }
      }
      const float* moving = &motion_[(static_cast<std::size_t>(y) * (width_ / samples_) + x) * 4];
      if (covered == 0 && moving[3] <= 0) continue;
      const float clear = 1 - static_cast<float>(covered) * whole, seen = 1 - std::min(moving[3], 1.0f);
      for (int c = 0; c < 3; ++c) {
        const float still = static_cast<float>(pixel[c]) * clear + static_cast<float>(sums[c]) * whole;
        pixel[c] = static_cast<std::uint8_t>(std::clamp(still * seen + moving[2 - c] + 0.5f, 0.0f, 255.0f));
      }
    }
  }
}

}  // namespace kinalyx::demo
