#include "SwingMovie.h"

#include <algorithm>
#include <cmath>

#include "GolferMesh.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx::demo {
namespace {

constexpr double kShutter = 1.0 / 350;  // seconds
constexpr double kTraceLife = 0.9;

int SamplesFor(int height) { return height > 600 ? 2 : 3; }

}  // namespace

SwingMovie::SwingMovie(const SwingStyle& style, View view, int width, int height, double stretch, std::uint32_t seed)
    : style_(style),
      skeleton_(style),
      camera_(CameraFor(view, width, height, stretch)),
      backdrop_(PaintBackdrop(camera_, view, skeleton_.BallAt(-1).z, seed)),
      raster_(camera_, SamplesFor(height)) {
  FindGround();
}

void SwingMovie::FindGround() {
  for (int y = 0; y < camera_.Height(); ++y)
    for (int x = 0; x < camera_.Width(); ++x)
      if (const std::optional<Vec3> place = camera_.Ground(x + 0.5, y + 0.5); place && shadow_.Holds(*place))
        ground_.push_back({x, y, shadow_.InMap(*place)});
}

/// Darkens the ground where the sun does not reach it. Shade keeps the blue of the sky.
void SwingMovie::ShadeGround() {
  constexpr float kShade[] = {0.62f, 0.52f, 0.48f};
  for (const GroundPixel& ground : ground_) {
    const float sun = static_cast<float>(shadow_.SunAt(ground.place));
    if (sun >= 1) continue;
    std::uint8_t* pixel = picture_.Row(ground.y) + ground.x * 4;
    for (int c = 0; c < 3; ++c)
      pixel[c] = static_cast<std::uint8_t>(static_cast<float>(pixel[c]) * (kShade[c] + (1 - kShade[c]) * sun));
  }
}

/// The club, in as many steps as its head moves pixels while the shutter is open, and the ball.
void SwingMovie::DrawMoving(double time) {
  const auto headAt = [&](double t) { return camera_.Project(skeleton_.At(t).clubHead); };
  const Projected from = headAt(time - kShutter / 2), to = headAt(time + kShutter / 2);
  const int steps = std::clamp(static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / 2.0), 1, 32);
  raster_.BeginMotion(steps);
  for (int i = 0; i < steps; ++i) {
    club_.Clear();
    AddClub(club_, skeleton_.At(time + kShutter * ((i + 0.5) / steps - 0.5)), style_.club);
    raster_.DrawMotion(club_, steps == 1 ? &shadow_ : nullptr);
  }
}

/// A fading line along the way of the ball.
void SwingMovie::DrawTrace(double time) {
  const double impact = skeleton_.PhaseTime(SwingPhase::Impact);
  const double flown = time - impact;
  if (flown <= 0 || flown > kTraceLife) return;
  // The way goes into the distance: equal steps of the picture are growing steps of time.
  constexpr int kPieces = 240;
  Canvas canvas(picture_);
  Projected from = camera_.Project(skeleton_.BallAt(impact));
  for (int i = 1; i <= kPieces; ++i) {
    const double share = static_cast<double>(i) / kPieces;
    const Projected to = camera_.Project(skeleton_.BallAt(impact + flown * std::pow(share, 2.5)));
    const double x = (from.x + to.x) / 2, y = (from.y + to.y) / 2;
    if (x < 0 || y < 0 || x >= picture_.Width() || y >= picture_.Height()) break;
    if (std::hypot(to.x - from.x, to.y - from.y) < 1.5 && i < kPieces) continue;
    const double strength = 0.6 * share * (1 - flown / kTraceLife);
    const Colour under = picture_.Pixel(static_cast<int>(x), static_cast<int>(y));
    const auto mixed = [strength](int ground, int light) {
      return static_cast<int>(ground + (light - ground) * strength);
    };
    canvas.SetPen({Rgb(mixed(Red(under), 255), mixed(Green(under), 250), mixed(Blue(under), 225)), 2, 0});
    canvas.Line({static_cast<int>(from.x), static_cast<int>(from.y)}, {static_cast<int>(to.x), static_cast<int>(to.y)});
    from = to;
  }
}

const Surface& SwingMovie::At(double time) {
  const Pose pose = skeleton_.At(time);
  body_.Clear();
  club_.Clear();
  ball_.Clear();
  AddGolfer(body_, pose, style_.look);
  const Vec3 teed = skeleton_.BallAt(-1);
  if (style_.club == ClubKind::Driver) AddTee(body_, teed);
  const double stick[] = {0.006, 0.006};
  body_.AddLimb({-0.75, 0.007, teed.z + 0.20}, {0.75, 0.007, teed.z + 0.20}, stick, {Rgb(236, 112, 40), 0.3}, 8);
  AddBall(ball_, skeleton_.BallAt(time - kShutter / 2), skeleton_.BallAt(time + kShutter / 2));
  AddClub(club_, pose, style_.club);

  shadow_.Clear();
  for (const Mesh* mesh : {&body_, &club_, &ball_}) shadow_.Cast(*mesh);
  picture_ = backdrop_;
  ShadeGround();
  DrawTrace(time);
  raster_.Clear();
  raster_.Draw(body_, &shadow_);
  raster_.Draw(ball_, &shadow_);
  DrawMoving(time);
  raster_.LayOver(picture_);
  if (style_.leftHanded) MirrorHorizontal(picture_, spare_);
  return picture_;
}

}  // namespace kinalyx::demo
