#pragma once

#include <string>

#include "platform/paint/PixelOps.h"

namespace kinalyx {

enum class ImageFault {
  None,
  BadArgument,  ///< an empty picture, or a number outside its range
  NoAccess,     ///< the place may not be written
  DiskRefused,  ///< a write, flush or rename failed
};

struct ImageResult {
  ImageFault fault = ImageFault::None;
  std::string message;  ///< for the user; empty when all went well

  explicit operator bool() const { return fault == ImageFault::None; }
};

/// Quality 0 to 100. Files are written beside their name, flushed and renamed over it: they hold the
/// old or the new picture, whatever happens. Names of folders, devices and pipes are refused.
ImageResult SaveJpeg(const PixelRows& rows, const std::string& path, int quality);
ImageResult SavePng(const PixelRows& rows, const std::string& path);

}  // namespace kinalyx
