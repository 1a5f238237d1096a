#include "platform/media/SoundReader.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/media/Films.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

constexpr int kFilmRate = 8000;
constexpr double kOnBothSides = 0.7071;  // of one channel that comes from two loudspeakers
constexpr int kFrames = 50;              // of 40 ms

/// Two seconds of sound, of which sample n says where it belongs.
std::string SoundingFilm(const char* name) {
  const std::string path = TestPath(name);
  Film film{name, "mpeg4", kFrames, 12, 0};
  film.sound = true;
  MakeFilm(film, path);
  return path;
}

/// All that comes from a time on.
std::vector<std::int16_t> From(SoundReader& reader, double ms) {
  std::vector<std::int16_t> samples;
  reader.Begin(ms);
  while (reader.Read(samples)) {
  }
  return samples;
}

TEST(SoundReader, EverySampleStandsAtItsTimeHoweverItIsReached) {
  for (const char* name : {"sound.avi", "sound.mov", "sound.mkv"}) {
    SCOPED_TRACE(name);
    const std::string path = SoundingFilm(name);
    if (HasFatalFailure() || IsSkipped()) return;
    const auto reader = SoundReader::Open(path);
    ASSERT_TRUE(reader);
    for (const double ms : {0.0, 1000.0, 333.0, 1990.0, 40.0}) {
      SCOPED_TRACE(ms);
      const auto samples = From(*reader, ms);
      const double seconds = kFrames * 0.04 - ms / 1000;
      const auto count = static_cast<int>(samples.size()) / SoundReader::kChannels;
      ASSERT_NEAR(count, seconds * SoundReader::kRate, SoundReader::kRate / 20);
      // Away from the ends, and from where the numbers begin anew, the samples grow evenly.
      for (int at = 480; at < count - 1000; at += 997) {
        const double n = (ms / 1000 + static_cast<double>(at) / SoundReader::kRate) * kFilmRate;
        const int expected = FilmSample(static_cast<int>(n));
        if (expected < 600 || expected > 29400) continue;
        for (int channel = 0; channel < SoundReader::kChannels; ++channel)
          ASSERT_NEAR(samples[static_cast<std::size_t>(at * SoundReader::kChannels + channel)], expected * kOnBothSides,
                      100)
              << at;
      }
    }
    EXPECT_TRUE(From(*reader, 5000).empty()) << "behind the end";
    const auto before = From(*reader, -500);
    EXPECT_EQ(before[100], 0) << "before the beginning there is silence";
  }
}

TEST(SoundReader, WhatHasNoSoundHasNone) {
  EXPECT_FALSE(SoundReader::Open(MakeTestVideo(MjpegVideo(5))));
  EXPECT_FALSE(SoundReader::Open(TestPath("no such file.avi")));
  const std::string text = TestPath("text.avi");
  std::ofstream(text) << "no video";
  EXPECT_FALSE(SoundReader::Open(text));
}

}  // namespace
}  // namespace kinalyx::test
