#pragma once

#include <string>

#include "platform/files/Result.h"
#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// Quality 0 to 100. Files are written beside their name, flushed and renamed over it: they hold the
/// old or the new picture, whatever happens. Names of folders, devices and pipes are refused.
Outcome SaveJpeg(const PixelRows& rows, const std::string& path, int quality);
Outcome SavePng(const PixelRows& rows, const std::string& path);

/// A picture of a file of any usual kind, upright and no larger than `most` pixels on either side; transparent parts
/// lie over `ground`. Fails with the reason.
Result<Surface> LoadPicture(const std::string& path, int most, Colour ground);

}  // namespace kinalyx
