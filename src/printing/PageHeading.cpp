#include "printing/PageHeading.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/Heading.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/paint/Blend.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx {
namespace {

constexpr PageBox kHeadingBox{0.5, 0.4, 7.0, 1.35};
constexpr double kSeparator = 5.48;
constexpr PageBox kLogoPlace{5.5, 0.5, 1.98, 1.2};
constexpr double kLineTops[] = {0.5, 0.75, 1.0, 1.25, 1.5};
constexpr double kCentreBesideLogo = 3.25;
constexpr double kCentre = 4;
constexpr double kLineMargin = 0.1;
constexpr double kHeadingPoints = 12;
constexpr double kLeastPoints = 6;
constexpr int kLogoSide = 1200;  // pixels; more is not seen on paper

/// With white at two sides, so that its place does not bend it.
Surface InProportions(const Surface& logo) {
  const double wanted = kLogoPlace.width / kLogoPlace.height;
  const int width = std::max(logo.Width(), static_cast<int>(std::lround(logo.Height() * wanted)));
  const int height = std::max(logo.Height(), static_cast<int>(std::lround(logo.Width() / wanted)));
  Surface fitted(width, height);
  if (fitted.Empty()) return logo;
  fitted.Clear(Rgb(255, 255, 255));
  CopyPart(logo, 0, 0, logo.Width(), logo.Height(), fitted, (width - logo.Width()) / 2, (height - logo.Height()) / 2);
  return fitted;
}

}  // namespace

PageFont PrintFont(double points, bool bold) { return {"Times New Roman", points, bold}; }

PageHeading ReadHeading(IHost& host, const Settings& settings) {
  PageHeading heading;
  heading.lines = ShownHeading(settings);
  heading.withLogo = settings.Logo;
  if (!heading.withLogo) return heading;
  const auto read = host.Drives().Ask(FolderOf(settings.LogoName), [path = settings.LogoName] {
    return LoadPicture(path, kLogoSide, Rgb(255, 255, 255));
  });
  if (read && *read) heading.logo = InProportions(**read);
  return heading;
}

void PrintHeading(IPage& page, const PageHeading& heading) {
  page.SetDrawWidth(kRuleWidth);
  page.SetInk(0);
  page.Box(kHeadingBox);
  if (heading.withLogo) {
    page.Line({kSeparator, kHeadingBox.top}, {kSeparator, kHeadingBox.Bottom()});
    if (!heading.logo.Empty()) page.PaintPicture(heading.logo, kLogoPlace);
  }
  const double centre = heading.withLogo ? kCentreBesideLogo : kCentre;
  const double right = heading.withLogo ? kSeparator : kHeadingBox.Right();
  const double room = 2 * std::min(centre - kHeadingBox.left, right - centre) - 2 * kLineMargin;
  for (std::size_t i = 0; i < heading.lines.size(); ++i) {
    const std::string& line = heading.lines[i];
    double points = kHeadingPoints;
    page.SetFont(PrintFont(points, true));
    // A line that is too long for its box would run over the logo.
    while (page.TextWidth(line) > room && points > kLeastPoints) page.SetFont(PrintFont(points -= 0.5, true));
    page.Print({centre - page.TextWidth(line) / 2, kLineTops[i]}, line);
  }
  page.SetFont(PrintFont(kHeadingPoints, true));
}

}  // namespace kinalyx
