#include "Backdrop.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Noise.h"
#include "Reduced.h"
#include "platform/paint/Canvas.h"

namespace kinalyx::demo {
namespace {

constexpr int kSamples = 2;

/// A colour with room between its steps.
struct Tone {
  double red = 0, green = 0, blue = 0;
};

Tone Mix(Tone a, Tone b, double t) {
  return {a.red + (b.red - a.red) * t, a.green + (b.green - a.green) * t, a.blue + (b.blue - a.blue) * t};
}

Tone Times(Tone a, double f) { return {a.red * f, a.green * f, a.blue * f}; }

Colour ToColour(Tone t) {
  const auto byte = [](double v) { return static_cast<int>(std::clamp(v, 0.0, 255.0) + 0.5); };
  return Rgb(byte(t.red), byte(t.green), byte(t.blue));
}

constexpr Tone kHaze{196, 214, 226};

class Painter {
 public:
  Painter(const Camera& camera, View view, double ballLine, std::uint32_t seed)
      : camera_(camera.Resized(kSamples)),
        view_(view),
        ballLine_(ballLine),
        seed_(seed),
        picture_(camera_.Width(), camera_.Height()),
        canvas_(picture_) {}

  Surface Paint() {
    SkyAndGround();
    Hills();
    if (view_ == View::FaceOn) {
      TreeRow(90, 13, 0.55, false);
      TreeRow(46, 7, 0.34, false);
      Hedge();
    } else {
      TreeRow(230, 16, 0.55, false);
      TreeRow(120, 13, 0.30, true);
      Flags();
      TreeRow(55, 11, 0.10, true);
    }
    return Reduced(picture_, kSamples);
  }

 private:
  void Put(int x, int y, Tone tone) {
    const Colour c = ToColour(tone);
    std::uint8_t* pixel = picture_.Row(y) + x * 4;
    pixel[0] = static_cast<std::uint8_t>(Blue(c));
    pixel[1] = static_cast<std::uint8_t>(Green(c));
    pixel[2] = static_cast<std::uint8_t>(Red(c));
  }

  Tone Sky(Vec3 ray) const {
    const double rise = std::clamp(ray.y * 2.6, 0.0, 1.0);
    Tone sky = Mix({206, 224, 236}, {96, 152, 208}, std::pow(rise, 0.7));
    // Clouds lie in a sheet far above.
    const double reach = 1 / std::max(ray.y + 0.06, 0.02);
    const double cover = Roughness(ray.x * reach * 0.9 + 3, ray.z * reach * 0.9, seed_ + 40, 5);
    return Mix(sky, {250, 251, 252}, Smooth(0.50, 0.74, cover) * 0.75 * Smooth(0.0, 0.10, ray.y));
  }

  Tone Grass(Vec3 place, double distance) const {
    const double broad = Roughness(place.x * 0.35, place.z * 0.35, seed_ + 7, 3);
    Tone grass = Mix({84, 130, 54}, {122, 160, 76}, broad);
    // The mower's stripes run along the range.
    const double across = view_ == View::FaceOn ? place.z : place.z + 3 * SmoothNoise(place.x * 0.02, 1, seed_);
    const double stripe = std::sin(across * kPi / 2.4);
    grass = Times(grass, 1 + 0.055 * std::clamp(stripe * 3, -1.0, 1.0));
    // Blades, as long as they can be told apart.
    const double fine = std::clamp(6 / distance, 0.0, 1.0);
    grass = Times(grass, 1 + fine * 0.26 * (Roughness(place.x * 38, place.z * 38, seed_ + 3, 2) - 0.5));
    grass = Times(grass, 1 + fine * 0.16 * (SmoothNoise(place.x * 7, place.z * 7, seed_ + 5) - 0.5));
    return Mix(grass, kHaze, 0.55 * (1 - std::exp(-distance / 160)));
  }

  Tone Ground(Vec3 place, double distance) const {
    // The mat: a dark rim, two worn places for the feet and a strip for the ball.
    const double left = -1.0, right = 1.0, back = -0.42, front = ballLine_ + 0.35;
    const double inside =
        std::min(std::min(place.x - left, right - place.x), std::min(place.z - back, front - place.z));
    if (inside < -0.05) return Grass(place, distance);
    if (inside < 0) return Mix(Times(Grass(place, distance), 0.62), {34, 46, 36}, Smooth(-0.05, -0.02, inside));
    if (inside < 0.035) return {42, 48, 46};
    Tone mat = Mix({48, 112, 74}, {58, 124, 82}, Roughness(place.x * 60, place.z * 60, seed_ + 11, 2));
    const double wear = std::exp(-(place.x * place.x) * 6 - (place.z - ballLine_) * (place.z - ballLine_) * 30);
    mat = Mix(mat, {92, 134, 98}, 0.35 * wear);
    const double line = std::abs(place.z - ballLine_ + 0.26);
    if (line < 0.012) mat = Mix(mat, {214, 226, 216}, 0.75);
    return mat;
  }

  void SkyAndGround() {
    for (int y = 0; y < picture_.Height(); ++y)
      for (int x = 0; x < picture_.Width(); ++x) {
        const std::optional<Vec3> place = camera_.Ground(x + 0.5, y + 0.5);
        if (!place) {
          Put(x, y, Sky(camera_.Ray(x + 0.5, y + 0.5)));
          continue;
        }
        Put(x, y, Ground(*place, Length(*place - camera_.Position())));
      }
  }

  double Horizon() const {
    return camera_.Project(camera_.Position() + Vec3{camera_.Forward().x, 0, camera_.Forward().z} * 1e5).y;
  }

  void Hills() {
    const double horizon = Horizon(), unit = camera_.Scale(1);
    for (int layer = 0; layer < 2; ++layer) {
      std::vector<POINTAPI> line{{0, static_cast<int>(horizon) + 4}};
      for (int x = 0; x <= picture_.Width() + 8; x += 4) {
        const double turn = (x - picture_.Width() / 2.0) / unit;
        const double rise = Roughness(turn * (3.2 + 2 * layer) + 9 * layer, 3, seed_ + 60 + layer, 4);
        line.push_back({x, static_cast<int>(horizon - unit * ((0.075 - 0.03 * layer) * rise + 0.012))});
      }
      line.push_back({picture_.Width() + 8, static_cast<int>(horizon) + 4});
      canvas_.SetPen({0, 1, 5});
      canvas_.SetBrush(ToColour(layer == 0 ? Tone{150, 178, 196} : Tone{126, 160, 152}));
      canvas_.Polygon(line);
    }
  }

  void Blob(double x, double y, double radius, double flat, Tone tone) {
    canvas_.SetPen({0, 1, 5});
    canvas_.SetBrush(ToColour(tone));
    canvas_.Ellipse({static_cast<int>(x - radius), static_cast<int>(y - radius * flat)},
                    {static_cast<int>(x + radius), static_cast<int>(y + radius * flat)});
  }

  /// A crown of leaves in many small heaps, dark below and light where the sun falls.
  void Tree(Vec3 foot, double height, double haze, Dice& dice) {
    const Projected root = camera_.Project(foot);
    const double scale = camera_.Scale(root.distance), tall = height * scale;
    const double wide = tall * dice.Between(0.34, 0.50);
    if (root.x < -wide * 2 || root.x > picture_.Width() + wide * 2) return;
    const Tone dark = Mix({30, 58, 36}, {44, 70, 34}, dice.Next()),
               light = Mix({104, 146, 70}, {132, 156, 78}, dice.Next());
    // Its shade on the grass, and the trunk.
    Blob(root.x + tall * 0.10, root.y, wide * 1.1, 0.10, Mix({58, 94, 44}, kHaze, haze * 0.8));
    canvas_.SetPen({ToColour(Mix({74, 60, 46}, kHaze, haze)), std::max(1, static_cast<int>(tall * 0.055)), 0});
    canvas_.Line({static_cast<int>(root.x), static_cast<int>(root.y)},
                 {static_cast<int>(root.x), static_cast<int>(root.y - tall * 0.4)});
    const int heaps = std::clamp(static_cast<int>(tall * 1.3), 60, 900);
    const double size = std::sqrt(90.0 / heaps) * 1.15;
    for (int i = 0; i < heaps; ++i) {
      const double share = static_cast<double>(i) / heaps;
      // From the shaded underside upwards and to the sun's side.
      const double angle = dice.Between(0, 2 * kPi), out = std::sqrt(dice.Next()) * (1 - 0.25 * share);
      double u = std::cos(angle) * out, v = std::sin(angle) * out;
      u -= 0.16 * share;
      v -= 0.26 * share;
      const double narrowing = 1 - 0.35 * std::max(0.0, -v);
      const double radius = tall * size * dice.Between(0.055, 0.105) * (1.15 - 0.55 * share);
      const Tone leaf =
          Mix(dark, light, std::clamp(0.92 * share - 0.25 * v * share + dice.Between(-0.12, 0.12), 0.0, 1.0));
      Blob(root.x + u * wide * narrowing, root.y - tall * 0.60 + v * tall * 0.36, radius, 0.85, Mix(leaf, kHaze, haze));
    }
  }

  /// Trees across the view at about this distance; `open` leaves room for the fairway in the middle.
  void TreeRow(double distance, double height, double haze, bool open) {
    Dice dice(seed_ * 31 + static_cast<std::uint32_t>(distance));
    const Vec3 eye = camera_.Position();
    const Vec3 ahead = Unit({camera_.Forward().x, 0, camera_.Forward().z}), side = Cross(ahead, {0, 1, 0});
    const double reach = distance * 0.75;
    const double step = height * 0.62;
    struct Place {
      double along, aside, height;
    };
    std::vector<Place> places;
    for (double aside = -reach; aside < reach; aside += step * dice.Between(0.6, 1.3)) {
      if (open && std::abs(aside - distance * 0.02) < distance * 0.17) continue;
      places.push_back({distance * dice.Between(0.92, 1.12), aside, height * dice.Between(0.7, 1.25)});
    }
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) { return a.along > b.along; });
    for (const Place& place : places) {
      const Vec3 foot = eye + ahead * place.along + side * place.aside;
      Tree({foot.x, 0, foot.z}, place.height, haze, dice);
    }
  }

  void Hedge() {
    Dice dice(seed_ + 91);
    constexpr int kRows = 7;
    for (int row = 0; row < kRows; ++row)
      for (double x = -9; x < 9; x += 0.055) {
        const double share = static_cast<double>(row) / (kRows - 1);
        const Projected foot =
            camera_.Project({x + dice.Between(-0.1, 0.1), 0.05 + 0.62 * share + dice.Between(-0.05, 0.05), -9.0});
        const double radius = camera_.Scale(foot.distance) * dice.Between(0.045, 0.085);
        const Tone leaf =
            Mix({40, 78, 42}, {112, 152, 76}, std::clamp(0.8 * share + dice.Between(-0.1, 0.2), 0.0, 1.0));
        Blob(foot.x, foot.y, radius, 0.9, Mix(leaf, kHaze, 0.12));
      }
  }

  void Flags() {
    struct Flag {
      double x, z;
      Colour colour;
    };
    for (const Flag& flag :
         {Flag{150, 9, Rgb(216, 176, 40)}, Flag{100, -7, Rgb(240, 240, 236)}, Flag{64, 5.5, Rgb(206, 52, 44)}}) {
      const Projected foot = camera_.Project({flag.x, 0, flag.z}), top = camera_.Project({flag.x, 3.2, flag.z});
      const double scale = camera_.Scale(foot.distance);
      Blob(foot.x, foot.y, scale * 4.5, 0.16, Mix({128, 172, 86}, kHaze, 0.2));
      const auto at = [](double x, double y) { return POINTAPI{static_cast<int>(x), static_cast<int>(y)}; };
      canvas_.SetPen({Rgb(235, 238, 238), std::max(2, static_cast<int>(scale * 0.07)), 0});
      canvas_.Line(at(foot.x, foot.y), at(top.x, top.y));
      canvas_.SetPen({0, 1, 5});
      canvas_.SetBrush(flag.colour);
      const POINTAPI cloth[] = {at(top.x, top.y), at(top.x + scale * 1.3, top.y + scale * 0.35),
                                at(top.x, top.y + scale * 0.75)};
      canvas_.Polygon(cloth);
    }
  }

  Camera camera_;
  View view_;
  double ballLine_;
  std::uint32_t seed_;
  Surface picture_;
  Canvas canvas_;
};

}  // namespace

Camera CameraFor(View view, int width, int height, double stretch) {
  if (view == View::FaceOn) return Camera({0.08, 1.12, 6.2}, {0.08, 1.06, 0}, 26.5, width, height, stretch);
  return Camera({-5.6, 1.12, 0.50}, {0, 1.07, 0.46}, 26.5, width, height, stretch);
}

Surface PaintBackdrop(const Camera& camera, View view, double ballLine, std::uint32_t seed) {
  return Painter(camera, view, ballLine, seed).Paint();
}

}  // namespace kinalyx::demo
