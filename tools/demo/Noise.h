#pragma once

#include <cmath>
#include <cstdint>

namespace kinalyx::demo {

/// 0 to 1, the same for the same arguments.
inline double HashNoise(int x, int y, std::uint32_t seed) {
  std::uint32_t h =
      static_cast<std::uint32_t>(x) * 0x8da6b343u ^ static_cast<std::uint32_t>(y) * 0xd8163841u ^ seed * 0xcb1ab31fu;
  h = (h ^ (h >> 15)) * 0x2c1b3c6du;
  h = (h ^ (h >> 12)) * 0x297a2d39u;
  return static_cast<double>((h ^ (h >> 15)) & 0xFFFFFF) / 0x1000000;
}

/// Smooth hills between 0 and 1, one to a unit.
inline double SmoothNoise(double x, double y, std::uint32_t seed) {
  const double fx = std::floor(x), fy = std::floor(y);
  const int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
  double u = x - fx, v = y - fy;
  u = u * u * (3 - 2 * u);
  v = v * v * (3 - 2 * v);
  const double top = HashNoise(ix, iy, seed) * (1 - u) + HashNoise(ix + 1, iy, seed) * u;
  const double bottom = HashNoise(ix, iy + 1, seed) * (1 - u) + HashNoise(ix + 1, iy + 1, seed) * u;
  return top * (1 - v) + bottom * v;
}

/// Hills with smaller hills on them.
inline double Roughness(double x, double y, std::uint32_t seed, int octaves) {
  double sum = 0, weight = 0.5, whole = 0;
  for (int i = 0; i < octaves; ++i) {
    sum += SmoothNoise(x, y, seed + static_cast<std::uint32_t>(i)) * weight;
    whole += weight;
    weight /= 2;
    x *= 2.03;
    y *= 2.03;
  }
  return sum / whole;
}

/// A row of numbers that look random, the same for the same seed.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : seed_(seed) {}
  double Next() { return HashNoise(count_++, 17, seed_); }
  double Between(double from, double to) { return from + (to - from) * Next(); }

 private:
  std::uint32_t seed_;
  int count_ = 0;
};

}  // namespace kinalyx::demo
