#include "capture/import/ConversionTemplate.h"

#include <algorithm>
#include <cctype>

namespace kinalyx {
namespace {

constexpr int kTapeWidth = 720;

bool EqualLetters(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](unsigned char x, unsigned char y) { return std::toupper(x) == std::toupper(y); });
}

enum Source { kMjpegAvi, kAvi, kOther };
enum Target { kSmall, kTapeEdge, kTape };
constexpr std::string_view kNames[][3] = {
    {"MVConvertSFAMJPGtoIV50", "MVConvertSFAMJPGtoDVEdge", "MVConvertSFAMJPGtoDV"},
    {"MVConvertSFAtoIV50", "MVConvertSFAtoDVEdge", "MVConvertSFAtoDV"},
    {"MVConvertHaalitoIV50", "MVConvertHaalitoDVEdge", "MVConvertHaalitoDV"},
};

}  // namespace

ConversionTemplate ChooseTemplate(std::string_view file, std::string_view codec, int width, bool edge) {
  const bool avi = file.size() >= 3 && EqualLetters(file.substr(file.size() - 3), "AVI");
  const Source source = !avi ? kOther : EqualLetters(codec, "MJPG") ? kMjpegAvi : kAvi;
  const Target target = width < kTapeWidth ? kSmall : edge ? kTapeEdge : kTape;
  // No library here writes IV50: its rows give JPEG pictures of the same size.
  const auto made = target == kSmall ? ConversionRequest::Codec::Mjpeg : ConversionRequest::Codec::Dv;
  return {kNames[source][target], made, target == kTapeEdge};
}

}  // namespace kinalyx
