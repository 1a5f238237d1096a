#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/paint/ImageFiles.h"
#include "platform/paint/Picture.h"
#include "platform/paint/Surface.h"
#include "video/cGDIP.h"

namespace kinalyx {

class cDIBSection;

/// Pixel formats by the numbers that callers know.
enum class PixelFormatId : int {
  Undefined = 0,
  Indexed8 = 198659,
  Rgb24 = 137224,
  Rgb32 = 139273,
  Argb32 = 2498570,
};

/// Numbers of the properties that image files carry.
constexpr int kPropertyFrameDelay = 0x5100;  ///< of each frame, 32 bits, hundredths of a second
constexpr int kPropertyLoopCount = 0x5101;   ///< 16 bits, 0 for ever

/// One image, with all its frames if it moves. Every operation leaves its status in CurErr; one that
/// fails to make an image leaves none.
class cBitmap {
 public:
  /// Copies rows of pixels; `Bits` is the top row, `Stride` the bytes to the next, which may be
  /// negative. Without bits the image is black, or clear.
  bool CreateFromScan0(int Width, int Height, int Stride, PixelFormatId PixelFormat, const std::uint8_t* Bits);
  /// The bytes of an image file.
  bool CreateFromStream(std::span<const std::uint8_t> bytes);
  bool CreateFromHBitmap(const cDIBSection& section);
  /// A clear image to draw on.
  bool CreateFromGraphics(int Width, int Height);
  bool CreateFromClone(const cBitmap& source);
  /// An image built into the program, by its name there.
  bool CreateFromResource(const std::string& name);
  /// The current frame of `Image` in another size; 0 by 0 means 120 by 120.
  bool CreateThumbFromImage(int Width, int Height, const cBitmap& Image);
  bool LoadFromFile(const std::string& FileName);
  void Dispose();
  GdipStatus CurErr() const { return status_; }

  int Width() const { return Handle().Width(); }
  int Height() const { return Handle().Height(); }
  PixelFormatId PixelFormat() const;
  /// 0 without an image.
  int FrameCount() const { return static_cast<int>(image_.frames.size()); }
  bool SelectActiveFrame(int frame);
  /// Milliseconds for which a frame is shown; 0 in an image that does not move.
  int GetDelay(int frame) const;
  /// How often the frames are shown; 0 for ever.
  int GetLoopCount() const;
  /// The bytes of a property, lowest first; nothing when the image has it not.
  std::optional<std::vector<std::uint8_t>> GetPropertyItem(int id);

  /// 0xAARRGGBB; 0 outside the image.
  std::uint32_t GetPixelLong(int x, int y);
  /// Makes all pixels of a colour clear, in every frame.
  bool MakeTransparent(Colour colour);
  /// Makes one entry of the palette clear.
  bool SetTransColor(int entry);
  bool SetPalette(std::span<const std::uint32_t> palette);
  /// 0 to 7: quarter turns clockwise in the two low bits, then 4 mirrors left to right.
  bool RotateFlip(int type);
  /// The current frame as a surface, on a ground of one colour.
  Surface Picture(Colour ground = 0) const { return Handle().On(ground); }

  /// The current frame.
  const kinalyx::Picture& Handle() const;
  kinalyx::Picture& Handle();
  void setHandle(kinalyx::Picture picture);

 private:
  bool Take(const ImageResult& result);
  bool Done(GdipStatus status);

  ImageFrames image_;
  std::size_t current_ = 0;
  kinalyx::Picture none_;
  GdipStatus status_ = GdipStatus::Ok;
};

}  // namespace kinalyx
