#include "video/cGDIP.h"

#include <algorithm>
#include <array>

namespace kinalyx {
namespace {

constexpr std::array<const char*, 20> kTexts = {"Generic Error",
                                                "Invalid Parameter",
                                                "Out Of Memory",
                                                "Object Busy",
                                                "Insufficient Buffer",
                                                "Not Implemented",
                                                "Win32 Error",
                                                "Wrong State",
                                                "Aborted",
                                                "File Not Found",
                                                "Value Overflow",
                                                "Access Denied",
                                                "Unknown Image Format",
                                                "FontFamily Not Found",
                                                "FontStyle Not Found",
                                                "Not TrueType Font",
                                                "Unsupported Gdiplus Version",
                                                "Gdiplus Not Initialized",
                                                "Property Not Found",
                                                "Property Not Supported"};

/// "jpg" of "*.JPG".
std::string Bare(std::string_view pattern) {
  if (pattern.starts_with('*')) pattern.remove_prefix(1);
  if (pattern.starts_with('.')) pattern.remove_prefix(1);
  std::string result(pattern);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return result;
}

}  // namespace

GdipStatus StatusOf(ImageFault fault) {
  switch (fault) {
    case ImageFault::None: return GdipStatus::Ok;
    case ImageFault::BadArgument: return GdipStatus::InvalidParameter;
    case ImageFault::NotFound: return GdipStatus::FileNotFound;
    case ImageFault::NoAccess: return GdipStatus::AccessDenied;
    case ImageFault::UnknownFormat: return GdipStatus::UnknownImageFormat;
    case ImageFault::TooLarge: return GdipStatus::OutOfMemory;
    case ImageFault::Damaged: return GdipStatus::GenericError;
    case ImageFault::DiskRefused: return GdipStatus::Win32Error;
  }
  return GdipStatus::GenericError;
}

cGDIP::cGDIP() : encoders_(EncoderExtensions()) {}

std::string cGDIP::Error(GdipStatus Status) {
  const int number = static_cast<int>(Status);
  if (number == 0) return {};
  if (number < 1 || number > static_cast<int>(kTexts.size())) return "Unknown GDI+ Error";
  return kTexts[static_cast<std::size_t>(number - 1)];
}

bool cGDIP::ExtensionExists(std::string_view Extension) const {
  const std::string wanted = Bare(Extension);
  if (wanted.empty()) return false;
  for (const std::string& list : encoders_) {
    for (std::string_view rest = list; !rest.empty();) {
      const std::size_t end = std::min(rest.find(';'), rest.size());
      if (Bare(rest.substr(0, end)) == wanted) return true;
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }
  return false;
}

}  // namespace kinalyx
