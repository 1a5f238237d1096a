#include "core/Heading.h"

#include <sstream>

#include "core/Settings.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

/// The lines of one text, which reads as a whole: where it is parted is each language's own affair.
constexpr const char* kFirst = TrLater("Welcome to the\nKinalyx\nMotion\nAnalysis\nProgram");

HeadingLines LinesOf(const std::string& text) {
  HeadingLines lines;
  std::istringstream stream(text);
  for (std::string& line : lines) std::getline(stream, line);
  return lines;
}

}  // namespace

const char* const kNoCompany = TrLater("Company Name");

HeadingLines FirstHeading() { return LinesOf(kFirst); }

HeadingLines ShownHeading(const Settings& settings) {
  const HeadingLines first = FirstHeading();
  const HeadingLines said = LinesOf(Tr(kFirst));
  HeadingLines shown;
  for (std::size_t i = 0; i < kHeadingLines; ++i) {
    const std::string& stored = settings.Heading[i + 1];
    shown[i] = stored == first[i] ? said[i] : stored;
  }
  return shown;
}

std::string ShownCompany(const Settings& settings) {
  return settings.CompanyName == kNoCompany ? Tr(kNoCompany) : settings.CompanyName;
}

}  // namespace kinalyx
