#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/paint/Picture.h"
#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

enum class ImageFault {
  None,
  BadArgument,    ///< an empty picture, or a number outside its range
  NotFound,
  NoAccess,       ///< the file may not be read, or the place not be written
  UnknownFormat,  ///< none of BMP, GIF, ICO, JPEG and PNG
  Damaged,
  TooLarge,       ///< would need more than 256 MiB
  DiskRefused,    ///< a write, flush or rename failed
};

struct ImageResult {
  ImageFault fault = ImageFault::None;
  std::string message;  ///< for the user; empty when all went well

  explicit operator bool() const { return fault == ImageFault::None; }
};

/// All that an image file holds: one picture, the pictures of an animation, or the sizes of an icon.
struct ImageFrames {
  std::vector<Picture> frames;
  std::vector<int> delays;  ///< milliseconds of each; empty for what does not move
  int loopCount = 0;        ///< how often an animation is repeated; -1 for ever
};

/// The type of a file is told from its bytes, whatever its name. Photographs are turned upright.
/// On failure the target keeps what it held.
ImageResult LoadImageFile(const std::string& path, ImageFrames& target);
ImageResult DecodeImage(std::span<const std::uint8_t> bytes, ImageFrames& target);
/// The first picture of a file, or the largest size of an icon, on a ground of one colour.
ImageResult LoadImageFile(const std::string& path, Surface& target, Colour ground = 0);

/// Quality 0 to 100. Files are written beside their name, flushed and renamed over it: they hold the
/// old or the new picture, whatever happens. Names of folders, devices and pipes are refused.
ImageResult SaveJpeg(const PixelRows& rows, const std::string& path, int quality);
ImageResult SavePng(const PixelRows& rows, const std::string& path);

/// The file name patterns of each format that can be written, such as "*.jpg;*.jpeg".
std::vector<std::string> EncoderExtensions();

}  // namespace kinalyx
