#include "core/forms/HeadingInk.h"

#include <algorithm>
#include <vector>

#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

const QColor kDark(0x10, 0x16, 0x1c);
constexpr double kContrast = 4.5;
constexpr int kSamples = 40;          // a side
constexpr double kOutliers = 0.03;    // of the pixels, at either end
constexpr double kDarkIsWorth = 0.1;  // of veil that it must save: headings are white by custom

double VeilNeeded(const QColor& letters, const QColor& veil, const QColor& ground) {
  for (int step = 0; step < 20; ++step) {
    const double part = step / 20.0;
    if (ContrastRatio(letters, Mix(ground, veil, part)) >= kContrast) return part;
  }
  return 1;
}

}  // namespace

HeadingInk InkOver(const QImage& ground) {
  if (ground.isNull()) return {};
  const QImage samples = ground.scaled(kSamples, kSamples, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  std::vector<std::pair<double, QColor>> colours;
  for (int y = 0; y < samples.height(); ++y) {
    for (int x = 0; x < samples.width(); ++x) {
      const QColor colour = samples.pixelColor(x, y);
      colours.emplace_back(ContrastRatio(colour, Qt::black), colour);
    }
  }
  std::sort(colours.begin(), colours.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  const auto few = static_cast<std::size_t>(static_cast<double>(colours.size()) * kOutliers);
  const double forWhite = VeilNeeded(Qt::white, Qt::black, colours[colours.size() - 1 - few].second);
  const double forDark = VeilNeeded(kDark, Qt::white, colours[few].second);
  if (forDark + kDarkIsWorth < forWhite) return {kDark, Qt::white, forDark};
  return {Qt::white, Qt::black, forWhite};
}

}  // namespace kinalyx
