#include "platform/graph/SoundOutput.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "platform/media/Films.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::string SoundingFilm() {
  const std::string path = TestPath("heard.avi");
  Film film{"heard.avi", "mpeg4", 100, 12, 0};
  film.sound = true;
  MakeFilm(film, path);
  return path;
}

/// Waits, for what another thread does, as long as a slow machine may need.
bool Comes(const std::function<bool()>& what) {
  for (int i = 0; i < 1000; ++i) {
    if (what()) return true;
    std::this_thread::sleep_for(10ms);
  }
  return false;
}

TEST(SoundOutput, WhatIsPlayedReachesTheSinkUntilItIsStopped) {
  const std::string film = SoundingFilm();
  if (HasFatalFailure() || IsSkipped()) return;
  const std::string heard = TestPath("heard.raw");
  const auto bytes = [&] {
    std::error_code error;
    const auto size = std::filesystem::file_size(heard, error);
    return error ? 0 : size;
  };
  SoundOutput output("filesink buffer-mode=unbuffered location=" + heard);
  output.Play(film, 1000, 100);
  ASSERT_TRUE(Comes([&] { return bytes() > 4000; }));
  output.SetVolume(0);
  output.Stop();
  output.Play(TestPath("no such film.avi"), 0, 100);
  output.Play(film, 2000, 100);
  EXPECT_TRUE(Comes([&] { return bytes() > 4000; })) << "one that cannot be opened is passed over";
}

TEST(SoundOutput, WithoutAnythingToSoundItNobodyWaits) {
  const std::string film = SoundingFilm();
  if (HasFatalFailure() || IsSkipped()) return;
  const auto begun = Clock::now();
  for (const char* sink : {"no-such-element", "pulsesink server=nowhere", "autoaudiosink"}) {
    SoundOutput output(sink);
    output.Play(film, 0, 80);
    output.SetVolume(10);
    output.Play(film, 500, 80);
    output.Stop();
  }
  EXPECT_LT(Clock::now() - begun, 20s) << "each end waits for a moment at most";
}

}  // namespace
}  // namespace kinalyx::test
