#include "platform/graph/ShortSounds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kRate = 48000;

/// A WAV file that is one value throughout: what is heard of several is then their sum.
std::string Plain(const std::string& name, int value, double seconds) {
  const std::string path = TestPath(name);
  const auto samples = static_cast<std::uint32_t>(seconds * kRate);
  std::ofstream file(path, std::ios::binary);
  const auto number = [&](std::uint32_t x, int bytes) {
    for (int i = 0; i < bytes; ++i) file.put(static_cast<char>(x >> (8 * i)));
  };
  file << "RIFF";
  number(36 + 2 * samples, 4);
  file << "WAVEfmt ";
  number(16, 4);
  number(1, 2);
  number(1, 2);
  number(kRate, 4);
  number(2 * kRate, 4);
  number(2, 2);
  number(16, 2);
  file << "data";
  number(2 * samples, 4);
  for (std::uint32_t i = 0; i < samples; ++i) number(static_cast<std::uint16_t>(value), 2);
  return path;
}

/// Plays, and waits for what is to be heard; once more where a busy machine was too late for it.
bool Comes(const std::function<void()>& play, const std::function<bool()>& what) {
  for (int i = 0; i < 2000 && !what(); ++i) {
    if (i % 400 == 0) play();
    std::this_thread::sleep_for(10ms);
  }
  return what();
}

/// How many samples of a channel have been heard at each value so far.
std::int64_t HeardAt(const std::string& path, int value) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::int16_t> samples(std::filesystem::exists(path) ? std::filesystem::file_size(path) / 2 : 0);
  file.read(reinterpret_cast<char*>(samples.data()), static_cast<std::streamsize>(samples.size() * 2));
  // The converter may round.
  return std::ranges::count_if(samples, [&](int heard) { return std::abs(heard - value) <= 2; }) / 2;
}

TEST(ShortSounds, AreHeardOneOverTheOtherAndWhole) {
  const std::string heard = TestPath("short sounds.raw");
  std::filesystem::remove(heard);
  const std::string low = Plain("tick \u03b1\u015b\u65e5.wav", 1000, 0.5);
  const std::string high = Plain("beep.wav", 30000, 0.5);
  const auto sounds = MakeShortSounds(
      "audio/x-raw,format=S16LE,channels=2 ! filesink buffer-mode=unbuffered location=\"" + heard + "\"");
  const std::string broken = TestPath("broken.wav");
  std::ofstream(broken) << "RIFF\x10\x27";
  const auto play = [&](const std::string& path) { return [&sounds, path] { sounds->Play(path); }; };
  const auto twice = [&](const std::string& path) {
    return [&sounds, path] {
      sounds->Play(path);
      sounds->Play(path);
    };
  };
  sounds->Play(broken);
  EXPECT_TRUE(Comes(play(TestPath("no such file.wav")), [&] { return HeardAt(heard, 0) > 0; })) << "silence";
  ASSERT_TRUE(Comes(play(low), [&] { return HeardAt(heard, 1000) >= kRate / 2; }));
  EXPECT_EQ(HeardAt(heard, 1000), kRate / 2);
  ASSERT_TRUE(Comes(twice(low), [&] { return HeardAt(heard, 2000) > 0; })) << "their sum";
  // Two that are too loud together are as loud as it goes.
  ASSERT_TRUE(Comes(twice(high), [&] { return HeardAt(heard, 32767) > 0; }));
  EXPECT_EQ(HeardAt(heard, 60000 - 65536), 0);
}

TEST(ShortSounds, NobodyWaitsForThem) {
  const std::string tick = Plain("tick.wav", 1000, 0.05);
  const std::string broken = TestPath("broken.wav");
  std::ofstream(broken) << "RIFF\x10\x27";
  const std::string longer = Plain("cut off.wav", 1000, 1);
  std::filesystem::resize_file(longer, 1001);
  const auto begun = Clock::now();
  for (const char* sink : {"no-such-element", "pulsesink server=nowhere", "fakesink", "autoaudiosink"}) {
    const auto sounds = MakeShortSounds(sink);
    for (int i = 0; i < 10000; ++i) sounds->Play(i % 5 == 0 ? broken : i % 7 == 0 ? longer : tick);
    MakeShortSounds(sink);
  }
  EXPECT_LT(Clock::now() - begun, 60s) << "each end waits for a moment at most";
}

}  // namespace
}  // namespace kinalyx::test
