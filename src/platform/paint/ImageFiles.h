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
Outcome SaveBmp(const PixelRows& rows, const std::string& path);

/// The picture of a file of any usual kind, upright; one of which a side is longer than `longest` pixels is scaled down
/// to it. Transparent parts lie over `ground`. Fails with the reason. May be called on any thread.
Result<Surface> LoadPicture(const std::string& path, int longest = 4096, Colour ground = Rgb(255, 255, 255));

}  // namespace kinalyx
