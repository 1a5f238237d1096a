#pragma once

#include <string>

#include "platform/files/Result.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {

/// Quality 0 to 100. Files are written beside their name, flushed and renamed over it: they hold the
/// old or the new picture, whatever happens. Names of folders, devices and pipes are refused.
Outcome SaveJpeg(const PixelRows& rows, const std::string& path, int quality);
Outcome SavePng(const PixelRows& rows, const std::string& path);

}  // namespace kinalyx
