#include "platform/paint/Layer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/paint/RasterModes.h"

namespace kinalyx {
namespace {

// Four neighbouring pixels are laid at a time, whether one of them was touched or all: with no
// decision per pixel the loop costs the same few instructions for solid lines and soft edges.
constexpr std::size_t kBlockPixels = 4;
constexpr std::size_t kBlockBytes = kBlockPixels * 4;

/// Where a block lies, in pixels from the picture's start. Rows have no gap, so a block may go on from
/// the end of a row to the start of the next.
using BlockPlace = std::uint32_t;

/// What is laid over a block: `add` premultiplied, `keep` the part of the old byte that stays, of 255.
struct Block {
  std::array<std::uint8_t, kBlockBytes> add;
  std::array<std::uint8_t, kBlockBytes> keep;
};

struct Run {
  std::uint32_t place = 0;
  std::uint32_t count = 0;
  std::uint32_t pen = 0;
};

/// One layer of paint: blocks that are blended, or runs that are merged.
struct Coat {
  std::vector<BlockPlace> places;
  std::vector<Block> blocks;
  std::vector<Run> runs;
};

/// Eight 16-bit lanes in one register; the compiler would otherwise unroll the sixteen bytes one by one.
using Lanes = std::uint16_t __attribute__((vector_size(kBlockBytes)));

Lanes LoadLanes(const std::uint8_t* bytes) {
  Lanes lanes;
  std::memcpy(&lanes, bytes, sizeof lanes);
  return lanes;
}

/// target = add + target * keep / 255, rounded, for each byte; even and odd bytes of the lanes apart.
void BlendBlock(std::uint8_t* target, const Block& block) {
  const Lanes old = LoadLanes(target);
  const Lanes keep = LoadLanes(block.keep.data());
  const Lanes even = (old & 255) * (keep & 255) + 128;
  const Lanes odd = (old >> 8) * (keep >> 8) + 128;
  const Lanes kept = ((even + (even >> 8)) >> 8) | ((odd + (odd >> 8)) & 0xFF00);
  // No byte overflows: what is added never exceeds 255 less what is kept.
  const Lanes laid = LoadLanes(block.add.data()) + kept;
  std::memcpy(target, &laid, sizeof laid);
}

Block MakeBlock(const std::uint8_t* pixels, std::size_t count) {
  Block block;
  block.add.fill(0);
  block.keep.fill(255);
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint8_t alpha = pixels[i * 4 + 3];
    for (std::size_t c = 0; c < 4; ++c) {
      // A premultiplied byte above its alpha would overflow the blend.
      block.add[i * 4 + c] = std::min(pixels[i * 4 + c], alpha);
      block.keep[i * 4 + c] = static_cast<std::uint8_t>(255 - alpha);
    }
  }
  return block;
}

/// Boils a transparent surface down, coat by coat, while a canvas draws on it.
class Recorder final : public IFigureRecorder {
 public:
  explicit Recorder(Surface& surface) : surface_(surface) { Empty(0, surface.Height() - 1); }

  void Drawn(int firstRow, int lastRow) override {
    firstRow_ = std::min(firstRow_, firstRow);
    lastRow_ = std::max(lastRow_, lastRow);
  }

  void Merged(const RasterFigure& figure) override {
    TakeDrawnUnder(figure);
    Coat coat;
    for (int y = 0; y < figure.height; ++y) {
      const std::uint32_t* row = figure.pixels + static_cast<std::size_t>(y) * figure.width;
      const std::size_t start = static_cast<std::size_t>(figure.top + y) * surface_.Width() + figure.left;
      for (int x = 0; x < figure.width;) {
        int end = x + 1;
        while (end < figure.width && row[end] == row[x]) ++end;
        if (row[x] >> 31)
          coat.runs.push_back({static_cast<std::uint32_t>(start + x), static_cast<std::uint32_t>(end - x), row[x]});
        x = end;
      }
    }
    Keep(std::move(coat));
  }

  std::vector<Coat> Finish() {
    TakeDrawn();
    return std::move(coats_);
  }

 private:
  /// Turns what was drawn since the last coat into one, and makes the surface transparent again.
  void TakeDrawn() {
    if (firstRow_ > lastRow_) return;
    Coat coat;
    const std::size_t width = surface_.Width();
    const std::size_t total = width * surface_.Height();
    const std::size_t first = firstRow_ * width / kBlockPixels * kBlockPixels;
    const std::size_t end = (lastRow_ + 1) * width;
    const std::uint8_t* pixels = surface_.Row(0);
    for (std::size_t place = first; place < end; place += kBlockPixels)
      TakeBlock(coat, pixels, place, std::min(kBlockPixels, total - place));
    Empty(firstRow_, lastRow_);
    firstRow_ = surface_.Height();
    lastRow_ = -1;
    Keep(std::move(coat));
  }

  /// Of what was drawn so far, takes what the figure will be joined with. The rest lies beside it and may
  /// wait for what is drawn later: so pixels that many lines share are laid once, whatever lies between.
  void TakeDrawnUnder(const RasterFigure& figure) {
    Coat coat;
    const std::size_t width = surface_.Width();
    const std::size_t total = width * surface_.Height();
    std::uint8_t* pixels = surface_.Row(0);
    std::size_t next = 0;  // blocks before this place have been looked at
    for (int y = std::max(figure.top, firstRow_); y <= std::min(figure.top + figure.height - 1, lastRow_); ++y) {
      const std::uint32_t* row = figure.pixels + static_cast<std::size_t>(y - figure.top) * figure.width;
      const std::size_t start = static_cast<std::size_t>(y) * width + figure.left;
      for (int x = 0; x < figure.width; ++x) {
        const std::size_t place = (start + x) / kBlockPixels * kBlockPixels;
        if (!(row[x] >> 31) || place < next) continue;
        next = place + kBlockPixels;
        TakeBlock(coat, pixels, place, std::min(kBlockPixels, total - place));
        std::memset(pixels + place * 4, 0, std::min(kBlockPixels, total - place) * 4);
      }
    }
    Keep(std::move(coat));
  }

  static void TakeBlock(Coat& coat, const std::uint8_t* pixels, std::size_t place, std::size_t count) {
    static constexpr std::uint8_t kNothing[kBlockBytes] = {};
    if (std::memcmp(pixels + place * 4, kNothing, count * 4) == 0) return;
    coat.places.push_back(static_cast<BlockPlace>(place));
    coat.blocks.push_back(MakeBlock(pixels + place * 4, count));
  }

  void Keep(Coat coat) {
    if (coat.places.empty() && coat.runs.empty()) return;
    coat.places.shrink_to_fit();
    coat.blocks.shrink_to_fit();
    coat.runs.shrink_to_fit();
    coats_.push_back(std::move(coat));
  }

  void Empty(int firstRow, int lastRow) {
    if (lastRow < firstRow) return;
    std::memset(surface_.Row(firstRow), 0, static_cast<std::size_t>(lastRow - firstRow + 1) * surface_.Stride());
  }

  Surface& surface_;
  int firstRow_ = surface_.Height();
  int lastRow_ = -1;
  std::vector<Coat> coats_;
};

}  // namespace

struct Layer::Content {
  int width = 0;
  int height = 0;
  std::vector<Coat> coats;
};

Layer::Layer() = default;
Layer::Layer(Layer&&) noexcept = default;
Layer& Layer::operator=(Layer&&) noexcept = default;
Layer::~Layer() = default;

Layer Layer::Record(int width, int height, const std::function<void(Canvas&)>& paint) {
  Surface surface(width, height);
  Layer layer;
  if (surface.Empty()) return layer;
  Recorder recorder(surface);
  {
    Canvas canvas(surface, recorder);
    paint(canvas);
  }
  std::vector<Coat> coats = recorder.Finish();
  if (coats.empty()) return layer;
  layer.content_ = std::make_unique<Content>(Content{width, height, std::move(coats)});
  return layer;
}

void Layer::LayOver(Surface& target) const {
  if (!content_ || target.Width() != content_->width || target.Height() != content_->height) return;
  std::uint8_t* pixels = target.Row(0);
  const std::size_t total = static_cast<std::size_t>(content_->width) * content_->height;
  for (const Coat& coat : content_->coats) {
    std::size_t whole = coat.places.size();
    if (whole > 0 && coat.places.back() + kBlockPixels > total) --whole;
    for (std::size_t i = 0; i < whole; ++i) BlendBlock(pixels + std::size_t{coat.places[i]} * 4, coat.blocks[i]);
    if (whole < coat.places.size()) {
      // The picture ends inside its last block.
      std::uint8_t* last = pixels + std::size_t{coat.places[whole]} * 4;
      const std::size_t bytes = (total - coat.places[whole]) * 4;
      std::uint8_t rest[kBlockBytes] = {};
      std::memcpy(rest, last, bytes);
      BlendBlock(rest, coat.blocks[whole]);
      std::memcpy(last, rest, bytes);
    }
    for (const Run& run : coat.runs) MergeRun(pixels + std::size_t{run.place} * 4, run.pen, run.count);
  }
}

void Layer::LayOver(Surface& target, int opacity) const {
  constexpr int kFull = 255;
  if (opacity >= kFull) return LayOver(target);
  if (opacity <= 0 || !content_ || target.Width() != content_->width || target.Height() != content_->height) return;
  std::uint8_t* pixels = target.Row(0);
  const std::size_t total = static_cast<std::size_t>(content_->width) * content_->height;
  std::vector<std::uint8_t> laid;
  // A drawing that comes or goes is seen for moments, so its pixels may be taken one by one.
  const auto through = [&](std::size_t place, std::size_t bytes, auto lay) {
    std::uint8_t* there = pixels + place * 4;
    laid.assign(std::max<std::size_t>(bytes, kBlockBytes), 0);
    std::memcpy(laid.data(), there, bytes);
    lay(laid.data());
    for (std::size_t i = 0; i < bytes; ++i)
      there[i] = static_cast<std::uint8_t>((laid[i] * opacity + there[i] * (kFull - opacity) + kFull / 2) / kFull);
  };
  for (const Coat& coat : content_->coats) {
    for (std::size_t i = 0; i < coat.places.size(); ++i)
      through(coat.places[i], std::min<std::size_t>(kBlockBytes, (total - coat.places[i]) * 4),
              [&](std::uint8_t* at) { BlendBlock(at, coat.blocks[i]); });
    for (const Run& run : coat.runs)
      through(run.place, run.count * 4, [&](std::uint8_t* at) { MergeRun(at, run.pen, run.count); });
  }
}

bool Layer::Empty() const { return !content_; }

std::size_t Layer::Bytes() const {
  if (!content_) return 0;
  std::size_t bytes = sizeof(Content);
  for (const Coat& coat : content_->coats)
    bytes += sizeof(Coat) + coat.places.capacity() * sizeof(BlockPlace) + coat.blocks.capacity() * sizeof(Block) +
             coat.runs.capacity() * sizeof(Run);
  return bytes;
}

}  // namespace kinalyx
