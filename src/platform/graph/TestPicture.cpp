#include "platform/graph/TestPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

#include <fmt/format.h>

namespace kinalyx {
namespace {

constexpr Colour kWallTop = Rgb(240, 243, 246);
constexpr Colour kWallFoot = Rgb(211, 219, 227);
constexpr Colour kGrassFar = Rgb(139, 170, 117);
constexpr Colour kGrassNear = Rgb(108, 142, 90);
constexpr Colour kTick = Rgb(186, 196, 206);
constexpr Colour kShadow = Rgb(96, 128, 80);
constexpr Colour kInk = Rgb(52, 62, 74);
constexpr Colour kUnlit = Rgb(226, 231, 236);
constexpr Colour kSteel = Rgb(120, 132, 145);
constexpr Colour kBall = Rgb(252, 252, 252);
constexpr Colour kBallEdge = Rgb(150, 160, 150);

// The scene, in heights of the picture.
constexpr double kGround = 0.80;
constexpr double kPivot = 0.13;
constexpr double kClub = 0.70;
constexpr double kReach = 52 * std::numbers::pi / 180;  // to either side
constexpr double kPeriod = 2.4;                         // seconds

// The row of blocks: what is white and what is black, the number, its check, and the two again.
constexpr int kNumberBits = 24;
constexpr int kCheckBits = 4;
constexpr int kBlocks = 2 + kNumberBits + kCheckBits + 2;

struct Point {
  double x = 0;
  double y = 0;
};

Colour Mix(Colour from, Colour to, double part) {
  const auto mixed = [&](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
  return Rgb(mixed(Red(from), Red(to)), mixed(Green(from), Green(to)), mixed(Blue(from), Blue(to)));
}

void Put(std::uint8_t* pixel, Colour colour) {
  pixel[0] = static_cast<std::uint8_t>(Blue(colour));
  pixel[1] = static_cast<std::uint8_t>(Green(colour));
  pixel[2] = static_cast<std::uint8_t>(Red(colour));
}

void Fill(Surface& surface, int left, int top, int right, int bottom, Colour colour) {
  for (int y = std::max(top, 0); y < std::min(bottom, surface.Height()); ++y) {
    std::uint8_t* row = surface.Row(y);
    for (int x = std::max(left, 0); x < std::min(right, surface.Width()); ++x) Put(row + x * 4, colour);
  }
}

/// A stroke with round ends and soft edges between any two places, also between two pixels: so what moves slowly
/// does not jump.
void Stroke(Surface& surface, Point from, Point to, double radius, Colour colour) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  const double reach = radius + 1;
  const int top = std::max(0, static_cast<int>(std::floor(std::min(from.y, to.y) - reach)));
  const int bottom = std::min(surface.Height() - 1, static_cast<int>(std::ceil(std::max(from.y, to.y) + reach)));
  for (int y = top; y <= bottom; ++y) {
    // Where the stroke can be in this row.
    double first = 0;
    double last = 1;
    if (std::abs(dy) > 1e-9) {
      first = std::clamp((y - reach - from.y) / dy, 0.0, 1.0);
      last = std::clamp((y + reach - from.y) / dy, 0.0, 1.0);
    }
    const double low = from.x + std::min(first * dx, last * dx);
    const double high = from.x + std::max(first * dx, last * dx);
    const int left = std::max(0, static_cast<int>(std::floor(low - reach)));
    const int right = std::min(surface.Width() - 1, static_cast<int>(std::ceil(high + reach)));
    std::uint8_t* row = surface.Row(y);
    for (int x = left; x <= right; ++x) {
      const double px = x - from.x;
      const double py = y - from.y;
      const double along = length > 0 ? std::clamp((px * dx + py * dy) / length, 0.0, 1.0) : 0;
      const double away = std::hypot(px - along * dx, py - along * dy);
      const double cover = std::clamp(radius + 0.5 - away, 0.0, 1.0);
      if (cover <= 0) continue;
      std::uint8_t* pixel = row + x * 4;
      Put(pixel, Mix(Rgb(pixel[2], pixel[1], pixel[0]), colour, cover));
    }
  }
}

/// The lit bars of a digit: top, upper right, lower right, bottom, lower left, upper left, middle, from bit 0.
constexpr std::array<int, 10> kBars = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};

/// Digits, colons and points as on a stop watch; the bars that are not lit show faintly.
void Digits(Surface& surface, Point at, double height, std::string_view text) {
  const double width = height * 0.5;
  const double radius = height * 0.055;
  const auto place = [&](double x, double y) { return Point{at.x + x * width - y * 0.08 * height, at.y + y * height}; };
  const std::array<std::array<Point, 2>, 7> bars = {{{{{0.14, 0}, {0.86, 0}}},
                                                     {{{1, 0.07}, {1, 0.43}}},
                                                     {{{1, 0.57}, {1, 0.93}}},
                                                     {{{0.14, 1}, {0.86, 1}}},
                                                     {{{0, 0.57}, {0, 0.93}}},
                                                     {{{0, 0.07}, {0, 0.43}}},
                                                     {{{0.14, 0.5}, {0.86, 0.5}}}}};
  for (const char letter : text) {
    if (letter >= '0' && letter <= '9') {
      const int lit = kBars[static_cast<std::size_t>(letter - '0')];
      for (const bool dark : {true, false}) {
        for (std::size_t bar = 0; bar < bars.size(); ++bar) {
          if (dark == static_cast<bool>(lit >> bar & 1)) continue;
          Stroke(surface, place(bars[bar][0].x, bars[bar][0].y), place(bars[bar][1].x, bars[bar][1].y), radius,
                 dark ? kUnlit : kInk);
        }
      }
      at.x += width + height * 0.22;
    } else {
      const auto dot = [&](double y) { Stroke(surface, place(0.1, y), place(0.1, y), radius * 1.1, kInk); };
      if (letter == ':') {
        dot(0.28);
        dot(0.72);
      } else {
        dot(1);
      }
      at.x += height * 0.24;
    }
  }
}

Surface Backdrop(int width, int height) {
  Surface surface(width, height);
  const int ground = static_cast<int>(kGround * height);
  for (int y = 0; y < height; ++y) {
    const bool wall = y < ground;
    const double part = wall ? y / (kGround * height) : (y - ground) / ((1 - kGround) * height);
    Fill(surface, 0, y, width, y + 1, wall ? Mix(kWallTop, kWallFoot, part) : Mix(kGrassFar, kGrassNear, part));
  }
  // Marks for every ten degrees of the swing, for whoever wants to try what measures.
  for (int degrees = -60; degrees <= 60; degrees += 10) {
    const double angle = degrees * std::numbers::pi / 180;
    const auto at = [&](double radius) {
      return Point{width / 2.0 + std::sin(angle) * radius * height, (kPivot + std::cos(angle) * radius) * height};
    };
    const bool main = degrees % 30 == 0;
    Stroke(surface, at(main ? 0.44 : 0.46), at(0.48), height * (main ? 0.003 : 0.002), kTick);
  }
  return surface;
}

void DrawClub(Surface& surface, double seconds) {
  const double height = surface.Height();
  const double angle = kReach * std::sin(2 * std::numbers::pi * seconds / kPeriod);
  const Point pivot{surface.Width() / 2.0, kPivot * height};
  const auto along = [&](double length, double across) {
    return Point{pivot.x + (std::sin(angle) * length + std::cos(angle) * across) * height,
                 pivot.y + (std::cos(angle) * length - std::sin(angle) * across) * height};
  };
  const double grass = 0.86 * height;
  const Point head = along(kClub, 0);
  Stroke(surface, {head.x - 0.05 * height, grass}, {head.x + 0.05 * height, grass}, 0.008 * height, kShadow);
  Stroke(surface, along(0.14, 0), along(kClub, 0), 0.0065 * height, kSteel);
  Stroke(surface, along(-0.02, 0), along(0.16, 0), 0.0125 * height, kInk);
  Stroke(surface, along(kClub, -0.045), along(kClub, 0.045), 0.0165 * height, kInk);
  Stroke(surface, along(kClub - 0.004, -0.043), along(kClub - 0.004, 0.043), 0.006 * height, kSteel);
}

int Check(int number) {
  int sum = 0b1010;
  for (int bits = number; bits; bits >>= kCheckBits) sum ^= bits & 0xF;
  return sum;
}

/// Where the row of blocks stands: block `i` begins at the pixel that is `i` of 64 parts of the width.
int BlockLeft(int width, int block) { return width * block / (2 * kBlocks); }
int BlockTop(int height) { return height - height / 40; }

void DrawBlocks(Surface& surface, int number) {
  const int message = number << kCheckBits | Check(number);
  for (int block = 0; block < kBlocks; ++block) {
    const int bit = kNumberBits + kCheckBits - 1 - (block - 2);
    bool white = message >> std::max(bit, 0) & 1;
    if (block < 2) white = block == 0;
    if (bit < 0) white = bit == -2;
    Fill(surface, BlockLeft(surface.Width(), block), BlockTop(surface.Height()), BlockLeft(surface.Width(), block + 1),
         surface.Height(), white ? Rgb(255, 255, 255) : 0);
  }
}

}  // namespace

TestPicture::TestPicture(int width, int height) : backdrop_(Backdrop(width, height)) {}

const Surface& TestPicture::Draw(std::int64_t number, double seconds, double timeOfDay) {
  picture_ = backdrop_;
  if (picture_.Empty()) return picture_;
  const double height = picture_.Height();
  DrawClub(picture_, seconds);
  const Point ball{picture_.Width() / 2.0 + 0.105 * height, 0.845 * height};
  Stroke(picture_, {ball.x - 0.01 * height, 0.864 * height}, {ball.x + 0.02 * height, 0.864 * height}, 0.008 * height,
         kShadow);
  Stroke(picture_, ball, ball, 0.0215 * height, kBallEdge);
  Stroke(picture_, ball, ball, 0.019 * height, kBall);
  const int shown = static_cast<int>(number & ((1 << kNumberBits) - 1));
  const int hundredths = static_cast<int>(timeOfDay * 100);
  Digits(picture_, {0.06 * height, 0.06 * height}, 0.055 * height,
         fmt::format("{:02}:{:02}:{:02}.{:02}", hundredths / 360000 % 24, hundredths / 6000 % 60, hundredths / 100 % 60,
                     hundredths % 100));
  Digits(picture_, {0.06 * height, 0.155 * height}, 0.055 * height, fmt::format("{:06}", shown));
  DrawBlocks(picture_, shown);
  return picture_;
}

std::optional<int> ReadFrameNumber(const std::uint8_t* pixels, int width, int height, int stride) {
  if (!pixels || BlockLeft(width, 1) < 2 || height - BlockTop(height) < 2) return std::nullopt;
  const int y = (BlockTop(height) + height) / 2;
  std::int64_t message = 0;
  for (int block = 0; block < kBlocks; ++block) {
    const int x = (BlockLeft(width, block) + BlockLeft(width, block + 1)) / 2;
    const std::uint8_t* pixel = pixels + static_cast<std::ptrdiff_t>(y) * stride + x * 4;
    const int brightness = (pixel[0] + 2 * pixel[1] + pixel[2]) / 4;
    if (brightness > 90 && brightness < 165) return std::nullopt;
    message = message << 1 | (brightness >= 165);
  }
  if ((message & 3) != 1 || message >> (kBlocks - 2) != 2) return std::nullopt;
  const int number = static_cast<int>(message >> (2 + kCheckBits) & ((1 << kNumberBits) - 1));
  if (Check(number) != (message >> 2 & ((1 << kCheckBits) - 1))) return std::nullopt;
  return number;
}

}  // namespace kinalyx
