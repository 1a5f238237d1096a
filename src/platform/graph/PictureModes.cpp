#include "platform/graph/PictureModes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace kinalyx {
namespace {

constexpr int kRawWidth = 640;  // up to which raw pictures are kept as they are
constexpr int kRawHeight = 480;
constexpr int kUnaskedWidth = 1280;
constexpr int kUnaskedHeight = 720;
constexpr double kUnaskedRate = 30;
constexpr double kFastest = 1000;  // pictures a second; who promises more promises anything
constexpr std::size_t kMostSizes = 64;

constexpr std::array<std::pair<int, int>, 13> kKnownSizes = {{{320, 240},
                                                              {640, 360},
                                                              {640, 480},
                                                              {720, 480},
                                                              {720, 576},
                                                              {800, 600},
                                                              {960, 540},
                                                              {1280, 720},
                                                              {1280, 960},
                                                              {1600, 1200},
                                                              {1920, 1080},
                                                              {2560, 1440},
                                                              {3840, 2160}}};

struct KnownCode {
  const char* media;
  const char* format;  ///< of raw pictures, as the library calls it
  const char* code;    ///< as people do
};
constexpr std::array<KnownCode, 9> kCodes = {{{"image/jpeg", "", "MJPG"},
                                              {"video/x-h264", "", "H264"},
                                              {"video/x-dv", "", "dvsd"},
                                              {"video/x-raw", "RGB", "RGB3"},
                                              {"video/x-raw", "BGR", "BGR3"},
                                              {"video/x-raw", "GRAY8", "GREY"},
                                              {"video/x-raw", "I420", "YU12"},
                                              {"video/x-raw", "BGRx", "BGR4"},
                                              {"video/x-raw", "", ""}}};

std::string CodeOf(const std::string& media, const std::string& format) {
  for (const KnownCode& known : kCodes) {
    if (media == known.media && (media != "video/x-raw" || format == known.format)) return known.code;
  }
  return format;
}

/// The value itself, or each of a list.
template <typename Take>
void ForEach(const GValue* value, Take take) {
  if (!value) return;
  if (!GST_VALUE_HOLDS_LIST(value)) {
    take(value);
    return;
  }
  for (guint i = 0; i < gst_value_list_get_size(value); ++i) take(gst_value_list_get_value(value, i));
}

struct Extent {
  int low = 0;
  int high = 0;
  int step = 1;
  bool Has(int value) const { return value >= low && value <= high && (value - low) % step == 0; }
};

std::vector<Extent> Extents(const GValue* value) {
  std::vector<Extent> extents;
  ForEach(value, [&](const GValue* one) {
    if (G_VALUE_HOLDS_INT(one)) {
      extents.push_back({g_value_get_int(one), g_value_get_int(one), 1});
    } else if (GST_VALUE_HOLDS_INT_RANGE(one)) {
      extents.push_back({gst_value_get_int_range_min(one), gst_value_get_int_range_max(one),
                         std::max(1, gst_value_get_int_range_step(one))});
    }
  });
  return extents;
}

/// Single sizes as they are; of ranges the known sizes, and the largest where that is a size that a camera has.
std::set<std::pair<int, int>> Sizes(const GstStructure* structure) {
  std::set<std::pair<int, int>> sizes;
  const auto heights = Extents(gst_structure_get_value(structure, "height"));
  for (const Extent& width : Extents(gst_structure_get_value(structure, "width"))) {
    for (const Extent& height : heights) {
      if (sizes.size() >= kMostSizes) return sizes;
      if (width.low == width.high && height.low == height.high) {
        sizes.emplace(width.low, height.low);
        continue;
      }
      for (const auto& [w, h] : kKnownSizes) {
        if (width.Has(w) && height.Has(h)) sizes.emplace(w, h);
      }
      if (width.high <= 8192 && height.high <= 8192) sizes.emplace(width.high, height.high);
    }
  }
  return sizes;
}

double Number(const GValue* fraction) {
  return static_cast<double>(gst_value_get_fraction_numerator(fraction)) /
         std::max(1, gst_value_get_fraction_denominator(fraction));
}

/// The highest; 0 when there is none, or any.
double HighestRate(const GValue* value) {
  double highest = 0;
  ForEach(value, [&](const GValue* one) {
    double rate = 0;
    if (GST_VALUE_HOLDS_FRACTION(one)) rate = Number(one);
    if (GST_VALUE_HOLDS_FRACTION_RANGE(one)) rate = Number(gst_value_get_fraction_range_max(one));
    if (rate <= kFastest) highest = std::max(highest, rate);
  });
  return highest;
}

std::set<std::string> Codes(const GstStructure* structure) {
  std::set<std::string> codes;
  const std::string media = gst_structure_get_name(structure);
  if (media != "video/x-raw") {
    const std::string code = CodeOf(media, "");
    if (!code.empty()) codes.insert(code);
    return codes;
  }
  const GValue* formats = gst_structure_get_value(structure, "format");
  if (!formats) codes.insert("");
  ForEach(formats, [&](const GValue* one) {
    if (G_VALUE_HOLDS_STRING(one)) codes.insert(CodeOf(media, g_value_get_string(one)));
  });
  return codes;
}

/// Pictures that lie where only a graphics card finds them are not for us.
bool InMemory(const GstCaps& caps, guint index) {
  const GstCapsFeatures* features = gst_caps_get_features(&caps, index);
  return gst_caps_features_is_any(features) ||
         gst_caps_features_contains(features, GST_CAPS_FEATURE_MEMORY_SYSTEM_MEMORY);
}

/// How far a mode is from what is wanted; the smaller, the better.
auto Distance(const PictureMode& mode, const PictureMode& wanted) {
  const int size = std::abs(mode.width - wanted.width) + std::abs(mode.height - wanted.height);
  const bool other = !wanted.format.empty() && mode.format != wanted.format;
  // The rate that a mode tells is the highest, so a mode that is faster than wanted serves as well as any.
  const double slow = wanted.rate > 0 ? std::max(0.0, wanted.rate - mode.rate) : -mode.rate;
  const bool raw = mode.format != "MJPG" && mode.format != "H264";
  const bool large = mode.width > kRawWidth || mode.height > kRawHeight;
  return std::tuple(size, other, slow, mode.format == "H264", raw == large);
}

}  // namespace

std::vector<PictureMode> ModesOf(const GstCaps& caps) {
  std::map<std::tuple<int, int, std::string>, double> rates;
  for (guint i = 0; i < gst_caps_get_size(&caps); ++i) {
    if (!InMemory(caps, i)) continue;
    const GstStructure* structure = gst_caps_get_structure(&caps, i);
    const double rate = HighestRate(gst_structure_get_value(structure, "framerate"));
    for (const auto& [width, height] : Sizes(structure)) {
      for (const std::string& code : Codes(structure)) {
        double& highest = rates[{width, height, code}];
        highest = std::max(highest, rate);
      }
    }
  }
  std::vector<PictureMode> modes;
  for (const auto& [mode, rate] : rates) {
    modes.push_back({std::get<0>(mode), std::get<1>(mode), rate, std::get<2>(mode)});
  }
  return modes;
}

std::optional<PictureMode> NearestMode(const std::vector<PictureMode>& modes, const PictureMode* wanted) {
  const PictureMode any{kUnaskedWidth, kUnaskedHeight, 0, ""};
  const PictureMode& aim = wanted ? *wanted : any;
  const auto nearest = std::min_element(modes.begin(), modes.end(), [&](const PictureMode& a, const PictureMode& b) {
    return Distance(a, aim) < Distance(b, aim);
  });
  return nearest == modes.end() ? std::nullopt : std::optional(*nearest);
}

GstCapsRef CapsFor(const GstCaps& caps, const PictureMode& mode, double rate) {
  GstCapsRef fitting(gst_caps_new_empty());
  for (guint i = 0; i < gst_caps_get_size(&caps); ++i) {
    const GstStructure* offered = gst_caps_get_structure(&caps, i);
    if (!InMemory(caps, i) || !Codes(offered).contains(mode.format)) continue;
    GstStructure* wished = gst_structure_new(gst_structure_get_name(offered), "width", G_TYPE_INT, mode.width, "height",
                                             G_TYPE_INT, mode.height, nullptr);
    ForEach(gst_structure_get_value(offered, "format"), [&](const GValue* one) {
      const bool named = G_VALUE_HOLDS_STRING(one) && CodeOf("video/x-raw", g_value_get_string(one)) == mode.format;
      if (named) gst_structure_set_value(wished, "format", one);
    });
    GstStructure* both = gst_structure_intersect(offered, wished);
    gst_structure_free(wished);
    if (!both) continue;
    const double highest = HighestRate(gst_structure_get_value(both, "framerate"));
    const double aim = rate > 0 ? rate : highest > 0 ? highest : kUnaskedRate;
    if (gst_structure_has_field(both, "framerate")) {
      int numerator = 0;
      int denominator = 1;
      gst_util_double_to_fraction(aim, &numerator, &denominator);
      gst_structure_fixate_field_nearest_fraction(both, "framerate", numerator, denominator);
    }
    gst_caps_append_structure(fitting.get(), both);
  }
  if (gst_caps_is_empty(fitting.get())) return nullptr;
  return fitting;
}

}  // namespace kinalyx
