#include "video/IntelJPEGLibrary.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/paint/ImageFiles.h"
#include "video/cGDIP.h"

namespace kinalyx {

bool WriteJpegFile(const cDIBSection& Dib, const std::string& FileName, long Quality, std::string* error) {
  const ImageResult result = SaveJpeg(Dib.hDC(), FileName, static_cast<int>(std::clamp(Quality, -1L, 101L)));
  if (!result && error) *error = fmt::format("Failed to save to JPG {}", static_cast<int>(StatusOf(result.fault)));
  return static_cast<bool>(result);
}

}  // namespace kinalyx
