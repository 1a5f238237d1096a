#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "platform/media/Films.h"
#include "platform/media/RowConverter.h"
#include "platform/media/VideoFile.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

/// Whichever way a frame is reached, it is what the bare library shows in its place, decoding from the start.
void ExpectAsStraight(const std::string& path) {
  const auto opened = VideoFile::Open(path);
  ASSERT_TRUE(opened.file) << opened.message;
  VideoFile& file = *opened.file;
  const auto straight = DecodeStraight(path);
  const int frames = file.Info().frameCount;
  ASSERT_EQ(static_cast<std::size_t>(frames), straight.size());
  std::vector<std::vector<std::uint8_t>> expected(straight.size());
  RowConverter converter;
  for (std::size_t n = 0; n < straight.size(); ++n) converter.Convert(*straight[n], 24, expected[n]);
  const auto expect = [&](int n) {
    const FrameRows rows = file.Frame(n, 24);
    ASSERT_TRUE(rows) << n;
    ASSERT_EQ(std::memcmp(rows.bits, expected[static_cast<std::size_t>(n)].data(), expected[static_cast<std::size_t>(n)].size()), 0)
        << "frame " << n << " shows " << ReadNumber(rows).value_or(-1);
  };
  std::mt19937 random(9);
  for (int i = 0; i < 40; ++i)
    ASSERT_NO_FATAL_FAILURE(expect(static_cast<int>(random() % static_cast<unsigned>(frames)))) << "jump";
  for (int n = frames - 1; n >= 0; --n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "backward";
  for (int n = 0; n < frames; ++n) ASSERT_NO_FATAL_FAILURE(expect(n)) << "forward";
}

TEST(Straight, WhatAnEditOfTheFilmHidesIsNoFrame) {
  // Cut by a telephone: the packets before the cut are there, for the pictures behind it need them.
  Film film{"cut.mp4", "libx264", 90, 40, 3, "preset=veryfast"};
  film.time = [](int n) { return (n - 13) * 40; };
  film.muxing = "avoid_negative_ts=disabled";
  MakeFilm(film, TestPath(film.name));
  const auto file = VideoFile::Open(TestPath(film.name)).file;
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Info().frameCount, 90 - 13);
  EXPECT_EQ(ReadNumber(file->Frame(0, 24)), 13);
  EXPECT_NEAR(file->SampleToTime(10), 400, 0.01);
  ExpectAsStraight(TestPath(film.name));
}

}  // namespace
}  // namespace kinalyx::test
