#pragma once

#include <cstdint>
#include <string_view>

#include "capture/templates/CaptureTemplate.h"

namespace kinalyx {

/// Where videos come from: index of `DVorAnOpt`, value of the key `VideoInSource`.
enum class SourceKind : std::int32_t {
  Firewire = 0,
  Webcam = 1,
  HighDefImport = 2,
  AutoImport = 8,
  ManualImport = 25,
};

/// How videos are named: index of `AutoNameOpt`, value of the key `NameMode`.
enum class NameMode : std::int32_t { General = 1, Detailed = 2, Manual = 3, Automatic = 4 };

/// True for the kinds whose videos come as files.
constexpr bool IsImport(SourceKind kind) {
  return kind == SourceKind::HighDefImport || kind == SourceKind::AutoImport || kind == SourceKind::ManualImport;
}

/// One of the five kinds as lists and the wizard show it.
struct SourceWords {
  SourceKind kind;
  std::string_view caption;
  std::string_view title;    ///< of the wizard
  std::string_view picture;  ///< its picture, a name below pictures/cameras
  std::string_view text;     ///< "Get More Information"
};

}  // namespace kinalyx
