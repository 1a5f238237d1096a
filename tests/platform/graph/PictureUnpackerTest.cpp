#include "platform/graph/PictureUnpacker.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <algorithm>
#include <cstring>

#include "platform/graph/TestPicture.h"

namespace kinalyx::test {
namespace {

/// A picture of the Test Camera as a camera with this way of compressing would give it.
std::vector<unsigned char> Jpeg(int width, int height, int number, int sampling = TJSAMP_422) {
  TestPicture painter(width, height);
  const Surface& drawn = painter.Draw(number, 0.3, 0);
  unsigned char* made = nullptr;
  unsigned long size = 0;
  void* packer = tjInitCompress();
  tjCompress2(packer, drawn.Row(0), width, drawn.Stride(), height, TJPF_BGRX, &made, &size, sampling, 90, 0);
  std::vector<unsigned char> bytes(made, made + size);
  tjFree(made);
  tjDestroy(packer);
  return bytes;
}

PackedPicture Packed(const std::vector<unsigned char>& bytes, std::int64_t ns = 7) {
  const std::shared_ptr<std::byte[]> copy(new std::byte[bytes.size()]);
  std::memcpy(copy.get(), bytes.data(), bytes.size());
  PackedPicture picture;
  picture.ns = ns;
  picture.bytes = std::shared_ptr<const std::byte>(copy, copy.get());
  picture.size = bytes.size();
  return picture;
}

/// Without the tables that all such cameras share and many do not send.
std::vector<unsigned char> WithoutTables(std::vector<unsigned char> bytes) {
  for (std::size_t at = 2; at + 4 < bytes.size() && bytes[at] == 0xFF && bytes[at + 1] != 0xDA;) {
    const std::size_t length = 2 + bytes[at + 2] * 256U + bytes[at + 3];
    const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(at);
    if (bytes[at + 1] == 0xC4) bytes.erase(from, from + static_cast<std::ptrdiff_t>(length));
    else at += length;
  }
  return bytes;
}

std::optional<int> NumberOf(const LivePicture& picture) {
  return picture.pixels ? ReadFrameNumber(picture.pixels.get(), picture.width, picture.height, picture.stride)
                        : std::nullopt;
}

TEST(PictureUnpackerTest, FitsPicturesOfAnySizeIntoItsWindow) {
  struct Case {
    int width, height, windowWidth, windowHeight, shownWidth, shownHeight;
  };
  for (const Case& c :
       {Case{1280, 720, 0, 0, 1280, 720}, Case{1280, 720, 640, 360, 640, 360}, Case{1280, 720, 700, 700, 700, 394},
        Case{1280, 720, 1920, 1080, 1280, 720}, Case{1280, 720, 1000, 200, 356, 200},
        Case{643, 479, 643, 479, 643, 479}, Case{643, 479, 500, 500, 500, 372}}) {
    for (const int sampling : {TJSAMP_420, TJSAMP_422, TJSAMP_444}) {
      PictureUnpacker unpacker;
      const auto picture = Packed(Jpeg(c.width, c.height, 4711, sampling));
      const LivePicture shown = unpacker.Unpack(picture, {c.windowWidth, c.windowHeight, false});
      EXPECT_EQ(shown.width, c.shownWidth);
      EXPECT_EQ(shown.height, c.shownHeight);
      EXPECT_EQ(shown.takenAt, 7);
      EXPECT_EQ(NumberOf(shown), 4711) << shown.width << " x " << shown.height;
    }
  }
}

TEST(PictureUnpackerTest, ChangesLeftAndRight) {
  PictureUnpacker unpacker;
  const auto picture = Packed(Jpeg(1280, 720, 99));
  const LivePicture plain = unpacker.Unpack(picture, {640, 360, false});
  for (const auto& [width, height] : {std::pair{640, 360}, std::pair{600, 300}}) {
    const LivePicture turned = unpacker.Unpack(picture, {width, height, true});
    const LivePicture straight = unpacker.Unpack(picture, {width, height, false});
    ASSERT_EQ(turned.width, straight.width);
    const auto pixel = [](const LivePicture& of, int x, int y) { return of.pixels.get() + y * of.stride + x * 4; };
    for (int x = 0; x < turned.width; ++x)
      ASSERT_EQ(std::memcmp(pixel(turned, x, 200), pixel(straight, turned.width - 1 - x, 200), 3), 0) << x;
  }
  EXPECT_EQ(NumberOf(plain), 99) << "a picture that a window holds is not painted over";
}

TEST(PictureUnpackerTest, TakesWhatCamerasLeaveOutAndPassesOverWhatIsBroken) {
  const std::vector<unsigned char> whole = Jpeg(1280, 720, 12);
  const std::vector<unsigned char> bare = WithoutTables(whole);
  ASSERT_LT(bare.size(), whole.size());
  PictureUnpacker unpacker;
  EXPECT_EQ(NumberOf(unpacker.Unpack(Packed(bare), {640, 360, false})), 12);
  for (const std::size_t left : {std::size_t{0}, std::size_t{1}, std::size_t{20}, whole.size() / 2, whole.size() - 200})
    EXPECT_FALSE(unpacker.Unpack(Packed({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(left)}), {}).pixels)
        << left;
  std::vector<unsigned char> huge = whole;
  const auto size = std::ranges::search(huge, std::vector<unsigned char>{0xFF, 0xC0}).begin();
  for (const unsigned char part : {0xFF, 0x7F}) {
    std::fill(size + 5, size + 9, part);
    EXPECT_FALSE(unpacker.Unpack(Packed(huge), {640, 360, false}).pixels) << "a damaged head asks for gigabytes";
    EXPECT_EQ(NumberOf(unpacker.Unpack(Packed(whole), {640, 360, false})), 12) << "and is forgotten with the next one";
  }
  PackedPicture other = Packed(whole);
  other.format.codec = RecordingFormat::Codec::Dv;
  EXPECT_FALSE(unpacker.Unpack(other, {}).pixels);
  EXPECT_EQ(NumberOf(unpacker.Unpack(Packed(whole), {640, 360, false})), 12) << "it goes on with the next good one";
}

TEST(PictureUnpackerTest, BelievesACameraThatNeverEndsItsPictures) {
  std::vector<unsigned char> open = Jpeg(1280, 720, 5);
  open.resize(open.size() - 2);
  open.insert(open.end(), {0x00, 0x12, 0x34});
  PictureUnpacker unpacker;
  LivePicture shown;
  for (int i = 0; i < 30 && !shown.pixels; ++i) shown = unpacker.Unpack(Packed(open), {640, 360, false});
  EXPECT_TRUE(shown.pixels);
}

}  // namespace
}  // namespace kinalyx::test
