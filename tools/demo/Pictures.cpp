#include "Pictures.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "Camera.h"
#include "GolferMesh.h"
#include "Light.h"
#include "Noise.h"
#include "Raster.h"
#include "Reduced.h"
#include "Skeleton.h"
#include "platform/files/Folders.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx::demo {
namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

/// The colours of a menu picture, from the dark corner to the light one.
struct Mood {
  std::string name;
  Colour dark, middle, light;
  GolferLook look;
  SwingPhase pose;
};

Colour Mixed(Colour a, Colour b, double t) {
  const auto mix = [t](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * t)); };
  return Rgb(mix(Red(a), Red(b)), mix(Green(a), Green(b)), mix(Blue(a), Blue(b)));
}

POINTAPI Nearest(double x, double y) {
  return {static_cast<std::int32_t>(std::lround(x)), static_cast<std::int32_t>(std::lround(y))};
}

void Blend(std::uint8_t* pixel, Colour colour, double share) {
  const int channels[] = {Blue(colour), Green(colour), Red(colour)};
  for (int c = 0; c < 3; ++c) pixel[c] = static_cast<std::uint8_t>(pixel[c] + (channels[c] - pixel[c]) * share + 0.5);
}

/// A slanted gradient with a glow behind the golfer. A grain of one step keeps it free of bands.
Surface Ground(const Mood& mood, double glowX, double glowY) {
  Surface picture(kWidth, kHeight);
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth; ++x) {
      const double along = 0.72 * x / kWidth + 0.28 * y / kHeight;
      const double glow = std::exp(-(std::pow((x - glowX) / 620, 2) + std::pow((y - glowY) / 460, 2)));
      const double t = std::clamp(along + 0.16 * glow, 0.0, 1.0);
      const double grain = HashNoise(x, y, 5) - 0.5;
      const auto channel = [&](int (*part)(Colour)) {
        const double value = t < 0.5 ? part(mood.dark) + (part(mood.middle) - part(mood.dark)) * t * 2
                                     : part(mood.middle) + (part(mood.light) - part(mood.middle)) * (t * 2 - 1);
        return static_cast<std::uint8_t>(std::clamp(value + grain + 0.5, 0.0, 255.0));
      };
      std::uint8_t* pixel = picture.Row(y) + x * 4;
      pixel[0] = channel([](Colour c) { return Blue(c); });
      pixel[1] = channel([](Colour c) { return Green(c); });
      pixel[2] = channel([](Colour c) { return Red(c); });
    }
  return picture;
}

/// Where a part of the club goes from the top until it is up again, as a line that brightens and fades.
void DrawArc(Surface& picture, const Skeleton& skeleton, const Camera& camera,
             const std::function<Vec3(const Pose&)>& part, int width, double strength) {
  constexpr int kSamples = 2;
  Surface mask(picture.Width() * kSamples, picture.Height() * kSamples);
  Canvas canvas(mask);
  const Camera large = camera.Resized(kSamples);
  const double from = skeleton.PhaseTime(SwingPhase::Top), to = skeleton.PhaseTime(SwingPhase::TrailArmLevel) + 0.14;
  struct Piece {
    int level;
    POINTAPI from, to;
  };
  std::vector<Piece> pieces;
  constexpr int kPieces = 400;
  Projected last = large.Project(part(skeleton.At(from)));
  for (int i = 1; i <= kPieces; ++i) {
    const double share = static_cast<double>(i) / kPieces;
    const Projected next = large.Project(part(skeleton.At(from + (to - from) * std::pow(share, 1.3))));
    const double light = std::sin(kPi * std::clamp(0.06 + share, 0.0, 1.0));
    pieces.push_back({static_cast<int>(255 * std::pow(std::max(0.0, light), 0.7)), Nearest(last.x, last.y),
                      Nearest(next.x, next.y)});
    last = next;
  }
  // Where the line meets itself the brighter piece is seen.
  std::stable_sort(pieces.begin(), pieces.end(), [](const Piece& a, const Piece& b) { return a.level < b.level; });
  for (const Piece& piece : pieces) {
    canvas.SetPen({Rgb(piece.level, piece.level, piece.level), width * kSamples, 0});
    canvas.Line(piece.from, piece.to);
  }
  const Surface fine = Reduced(mask, kSamples);
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x)
      if (const int level = fine.Row(y)[x * 4]; level > 0)
        Blend(picture.Row(y) + x * 4, Rgb(255, 255, 255), strength * level / 255);
}

void ShadeFloor(Surface& picture, const Camera& camera, const SunShadow& shadow, Colour shade) {
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x)
      if (const std::optional<Vec3> place = camera.Ground(x + 0.5, y + 0.5); place && shadow.Holds(*place))
        if (const double dark = 1 - shadow.SunAt(shadow.InMap(*place)); dark > 0)
          Blend(picture.Row(y) + x * 4, shade, 0.45 * dark);
}

Surface MenuPicture(const Mood& mood) {
  // The heading stands on the left and the buttons below: the golfer is at the right, above the middle.
  const Camera camera({-1.45, 0.95, 6.4}, {-1.45, 0.58, 0}, 31, kWidth, kHeight);
  SwingStyle style;
  style.look = mood.look;
  const Skeleton skeleton(style);
  const Pose pose = skeleton.At(skeleton.PhaseTime(mood.pose));
  const Projected chest = camera.Project(pose.neck);
  Surface picture = Ground(mood, chest.x, chest.y + 60);

  DrawArc(
      picture, skeleton, camera, [](const Pose& p) { return p.clubHead; }, 4, 0.55);
  DrawArc(
      picture, skeleton, camera, [](const Pose& p) { return Lerp(p.gripEnd, p.clubHead, 0.62); }, 2, 0.32);
  DrawArc(
      picture, skeleton, camera, [](const Pose& p) { return p.leadArm.hand; }, 3, 0.40);

  Mesh mesh;
  AddGolfer(mesh, pose, style.look);
  AddClub(mesh, pose, style.club);
  const Vec3 ball = skeleton.BallAt(-1);
  if (mood.pose < SwingPhase::Impact) {
    AddBall(mesh, ball, ball);
    AddTee(mesh, ball);
  }
  SunShadow shadow;
  shadow.Cast(mesh);
  ShadeFloor(picture, camera, shadow, Mixed(mood.dark, 0, 0.4));
  Raster raster(camera, 3);
  raster.Draw(mesh, &shadow);
  raster.LayOver(picture);
  return picture;
}

std::vector<Mood> Moods() {
  GolferLook blue;
  blue.shirt = Rgb(66, 132, 204);
  blue.trousers = Rgb(30, 40, 58);
  GolferLook maroon = blue;
  maroon.shirt = Rgb(178, 66, 66);
  maroon.trousers = Rgb(58, 44, 40);
  maroon.ponytail = true;
  maroon.height = 1.72;
  maroon.girth = 0.93;
  maroon.hair = Rgb(96, 58, 36);
  GolferLook green = blue;
  green.shirt = Rgb(226, 214, 180);
  green.trousers = Rgb(38, 62, 44);
  green.skin = Rgb(172, 118, 84);
  GolferLook graphite = blue;
  graphite.shirt = Rgb(222, 226, 232);
  graphite.trousers = Rgb(34, 38, 46);
  return {
      {"bio-guy blue", Rgb(12, 34, 66), Rgb(28, 80, 136), Rgb(98, 150, 206), blue, SwingPhase::Top},
      {"swing maroon", Rgb(40, 8, 12), Rgb(104, 34, 36), Rgb(204, 164, 134), maroon, SwingPhase::Release},
      {"swing green", Rgb(8, 34, 20), Rgb(34, 92, 58), Rgb(172, 186, 134), green, SwingPhase::LeadArmLevel},
      {"swing graphite", Rgb(14, 18, 24), Rgb(48, 58, 70), Rgb(134, 148, 164), graphite, SwingPhase::TrailArmLevel}};
}

/// A tile with the arcs of a swing and the ball, and the name beside it.
Surface Logo() {
  constexpr int kSamples = 4, kSide = 200, kLogoWidth = 720;
  constexpr Colour kBlue = Rgb(25, 78, 135), kWhite = Rgb(255, 255, 255);
  Surface large(kLogoWidth * kSamples, kSide * kSamples);
  large.Clear(kWhite);
  Canvas canvas(large);
  const auto at = [](double x, double y) { return Nearest(x * kSamples, y * kSamples); };
  // Round corners come with the pen.
  canvas.SetPen({kBlue, 44 * kSamples, 0});
  canvas.SetBrush(kBlue);
  const POINTAPI tile[] = {at(42, 42), at(158, 42), at(158, 158), at(42, 158)};
  canvas.Polygon(tile);
  const auto arc = [&](double radius, double from, double to, Colour colour, int width) {
    std::vector<POINTAPI> line;
    for (int i = 0; i <= 60; ++i) {
      const double a = Radians(from + (to - from) * i / 60);
      line.push_back(at(94 + radius * std::cos(a), 92 - radius * std::sin(a)));
    }
    canvas.SetPen({colour, width * kSamples, 0});
    canvas.Polyline(line);
  };
  arc(54, 98, 292, kWhite, 9);
  arc(36, 104, 280, Rgb(168, 200, 232), 6);
  arc(19, 110, 270, Rgb(104, 152, 204), 5);
  canvas.SetPen({kWhite, 8 * kSamples, 0});
  canvas.Line(at(94, 92), at(144, 54));
  canvas.SetPen({kWhite, 1, 5});
  canvas.SetBrush(kWhite);
  canvas.Ellipse(at(131, 133), at(155, 157));
  Surface logo = Reduced(large, kSamples);
  QImage over(logo.Row(0), logo.Width(), logo.Height(), logo.Stride(), QImage::Format_RGB32);
  QPainter painter(&over);
  QFont font = QGuiApplication::font();
  if (QFontDatabase::families().contains("Inter")) font.setFamily("Inter");
  font.setPixelSize(104);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(QColor(Red(kBlue), Green(kBlue), Blue(kBlue)));
  painter.drawText(QRectF(232, 34, kLogoWidth - 232, kSide - 40), Qt::AlignLeft | Qt::AlignTop, "Kinalyx");
  return logo;
}

}  // namespace

std::string DrawPictures(const std::string& folder) {
  const std::string backgrounds = JoinPath(folder, "backgrounds");
  if (!MakeFolder(backgrounds)) return "The folder " + backgrounds + " cannot be made.";
  // Letters need an application, though no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  char name[] = "kinalyx-demo";
  char* words[] = {name, nullptr};
  const QGuiApplication application(count, words);
  if (const Outcome saved = SaveJpeg(RowsOf(Logo()), JoinPath(folder, "Logo.jpg"), 92); !saved) return saved.Why();
  for (const Mood& mood : Moods())
    if (const Outcome saved = SaveJpeg(RowsOf(MenuPicture(mood)), JoinPath(backgrounds, mood.name + ".jpg"), 88);
        !saved)
      return saved.Why();
  return {};
}

}  // namespace kinalyx::demo
