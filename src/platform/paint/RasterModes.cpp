#include "platform/paint/RasterModes.h"

#include <cstring>

namespace kinalyx {
namespace {

constexpr std::uint32_t kOpaque = 0xFF000000u;

template <Rop2 Mode>
constexpr std::uint32_t Join(std::uint32_t d, std::uint32_t p) {
  switch (Mode) {
    case Rop2::Black: return 0;
    case Rop2::NotMergePen: return ~(d | p);
    case Rop2::MaskNotPen: return d & ~p;
    case Rop2::NotCopyPen: return ~p;
    case Rop2::MaskPenNot: return p & ~d;
    case Rop2::Not: return ~d;
    case Rop2::XorPen: return d ^ p;
    case Rop2::NotMaskPen: return ~(d & p);
    case Rop2::MaskPen: return d & p;
    case Rop2::NotXorPen: return ~(d ^ p);
    case Rop2::Nop: return d;
    case Rop2::MergeNotPen: return d | ~p;
    case Rop2::CopyPen: return p;
    case Rop2::MergePenNot: return p | ~d;
    case Rop2::MergePen: return d | p;
    case Rop2::White: return 0xFFFFFFFFu;
  }
  return d;
}

// The surface is bytes; moving a word at a time through memcpy keeps the aliasing rules and still
// becomes plain vector loads and stores.
std::uint32_t Load(const std::uint8_t* at) {
  std::uint32_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

void Store(std::uint8_t* at, std::uint32_t word) { std::memcpy(at, &word, sizeof word); }

template <Rop2 Mode>
void JoinPixelsAs(std::uint8_t* target, const std::uint32_t* pen, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t p = pen[i];
    const std::uint32_t touched = 0u - (p >> 31);
    const std::uint32_t d = Load(target + i * 4);
    Store(target + i * 4, (d & ~touched) | ((Join<Mode>(d, p) | kOpaque) & touched));
  }
}

template <Rop2 Mode>
void JoinRunAs(std::uint8_t* target, std::uint32_t pen, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i)
    Store(target + i * 4, Join<Mode>(Load(target + i * 4), pen) | kOpaque);
}

/// Calls `work` with the mode as a compile-time value, so that each mode has a loop of its own.
template <typename Work>
void WithMode(Rop2 mode, Work work) {
  switch (mode) {
    case Rop2::Black: work.template operator()<Rop2::Black>(); break;
    case Rop2::NotMergePen: work.template operator()<Rop2::NotMergePen>(); break;
    case Rop2::MaskNotPen: work.template operator()<Rop2::MaskNotPen>(); break;
    case Rop2::NotCopyPen: work.template operator()<Rop2::NotCopyPen>(); break;
    case Rop2::MaskPenNot: work.template operator()<Rop2::MaskPenNot>(); break;
    case Rop2::Not: work.template operator()<Rop2::Not>(); break;
    case Rop2::XorPen: work.template operator()<Rop2::XorPen>(); break;
    case Rop2::NotMaskPen: work.template operator()<Rop2::NotMaskPen>(); break;
    case Rop2::MaskPen: work.template operator()<Rop2::MaskPen>(); break;
    case Rop2::NotXorPen: work.template operator()<Rop2::NotXorPen>(); break;
    case Rop2::Nop: break;
    case Rop2::MergeNotPen: work.template operator()<Rop2::MergeNotPen>(); break;
    case Rop2::CopyPen: work.template operator()<Rop2::CopyPen>(); break;
    case Rop2::MergePenNot: work.template operator()<Rop2::MergePenNot>(); break;
    case Rop2::MergePen: work.template operator()<Rop2::MergePen>(); break;
    case Rop2::White: work.template operator()<Rop2::White>(); break;
  }
}

}  // namespace

void JoinPixels(Rop2 mode, std::uint8_t* target, const std::uint32_t* pen, std::size_t count) {
  WithMode(mode, [&]<Rop2 Mode>() { JoinPixelsAs<Mode>(target, pen, count); });
}

void JoinRun(Rop2 mode, std::uint8_t* target, std::uint32_t pen, std::size_t count) {
  WithMode(mode, [&]<Rop2 Mode>() { JoinRunAs<Mode>(target, pen, count); });
}

}  // namespace kinalyx
