#include "platform/graph/PictureUnpacker.h"

#include <libyuv/planar_functions.h>
#include <libyuv/scale_argb.h>
#include <turbojpeg.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kinalyx {
namespace {

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
  std::size_t Bytes() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4; }
};

/// No camera gives more; a damaged head may say so.
constexpr int kLongestSide = 16384;
/// After so many damaged pictures in a row nothing better is expected.
constexpr int kPatience = 10;
/// The parts in which pictures are decoded, as dividers. The format knows more of them, but those take longer than the
/// whole picture.
constexpr std::array kParts{8, 4, 2};

Size FitInto(Size picture, const PictureUnpacker::Wish& wish) {
  if (wish.width <= 0 || wish.height <= 0) return picture;
  const double part = std::min(
      {1.0, static_cast<double>(wish.width) / picture.width, static_cast<double>(wish.height) / picture.height});
  const auto scaled = [&](int length) { return std::max(1, static_cast<int>(std::lround(length * part))); };
  return {scaled(picture.width), scaled(picture.height)};
}

/// The size in which it is decoded: the smallest one that is not smaller.
Size DecodedFor(Size picture, Size shown) {
  for (const int part : kParts) {
    const tjscalingfactor factor{1, part};
    const Size size{TJSCALED(picture.width, factor), TJSCALED(picture.height, factor)};
    if (size.width >= shown.width && size.height >= shown.height) return size;
  }
  return picture;
}

}  // namespace

void PictureUnpacker::TurboDeleter::operator()(void* handle) const { tjDestroy(handle); }

LivePicture PictureUnpacker::Unpack(const PackedPicture& picture, const Wish& wish) {
  if (picture.format.codec != RecordingFormat::Codec::Mjpeg || !picture.bytes || picture.size == 0) return {};
  if (!turbo_) turbo_.reset(tjInitDecompress());
  const auto* bytes = static_cast<const unsigned char*>(static_cast<const void*>(picture.bytes.get()));
  const auto count = static_cast<unsigned long>(picture.size);
  Size whole;
  int sampling = 0, colours = 0;
  const bool read =
      turbo_ && tjDecompressHeader3(turbo_.get(), bytes, count, &whole.width, &whole.height, &sampling, &colours) == 0;
  // After some damages the library's object takes nothing more, however good.
  if (!read) turbo_.reset();
  if (!read || whole.width <= 0 || whole.height <= 0 || std::max(whole.width, whole.height) > kLongestSide) return {};
  const Size shown = FitInto(whole, wish);
  const Size decoded = DecodedFor(whole, shown);
  const bool scales = decoded != shown;
  const auto surface = FreeSurface(shown.Bytes());
  Bytes& first = scales || wish.mirrored ? decoded_ : *surface;
  if (first.size() < decoded.Bytes()) first.resize(decoded.Bytes());
  const int decodedStride = decoded.width * 4;
  const int shownStride = shown.width * 4;
  const int result = tjDecompress2(turbo_.get(), bytes, count, first.data(), decoded.width, decodedStride,
                                   decoded.height, TJPF_BGRX, TJFLAG_FASTDCT);
  damaged_ = result == 0 ? 0 : std::min(damaged_ + 1, kPatience);
  if (result != 0) {
    const bool lost = tjGetErrorCode(turbo_.get()) != TJERR_WARNING;
    if (lost) turbo_.reset();
    if (lost || damaged_ < kPatience) return {};
  }
  if (scales) {
    Bytes& second = wish.mirrored ? scaled_ : *surface;
    if (second.size() < shown.Bytes()) second.resize(shown.Bytes());
    libyuv::ARGBScale(first.data(), decodedStride, decoded.width, decoded.height, second.data(), shownStride,
                      shown.width, shown.height, libyuv::kFilterBilinear);
  }
  if (wish.mirrored)
    libyuv::ARGBMirror(scales ? scaled_.data() : first.data(), shownStride, surface->data(), shownStride, shown.width,
                       shown.height);
  LivePicture made;
  made.width = shown.width;
  made.height = shown.height;
  made.stride = shownStride;
  made.aspect = static_cast<double>(whole.width) / whole.height;
  made.takenAt = picture.ns;
  made.pixels = std::shared_ptr<const std::uint8_t>(surface, surface->data());
  return made;
}

/// One that no window holds any more, or a new one.
std::shared_ptr<PictureUnpacker::Bytes> PictureUnpacker::FreeSurface(std::size_t size) {
  const auto free = [](const std::shared_ptr<Bytes>& surface) { return surface.use_count() == 1; };
  std::erase_if(surfaces_, [&](const auto& surface) { return free(surface) && surface->size() != size; });
  const auto found = std::ranges::find_if(surfaces_, free);
  if (found != surfaces_.end()) return *found;
  return surfaces_.emplace_back(std::make_shared<Bytes>(size));
}

}  // namespace kinalyx
