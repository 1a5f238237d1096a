#include "platform/graph/VoiceRecorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <thread>

#include "platform/graph/DeviceSources.h"
#include "platform/graph/GstHandles.h"

namespace kinalyx {
namespace {

/// One microphone with a tone, and one that is there and never gives anything.
struct PlayedMicrophones final : DeviceSources {
  GstElement* MakeMicrophoneSource(const std::string& name) const override {
    if (name != "Tone") return DeviceSources::MakeMicrophoneSource(name);
    return gst_parse_bin_from_description("audiotestsrc is-live=true samplesperbuffer=441", TRUE, nullptr);
  }
};

bool Until(const std::function<bool()>& met) {
  constexpr auto kPatience = std::chrono::seconds(20);
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!met() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  return met();
}

TEST(VoiceRecorder, TakesWhatIsSpokenAndSaysWhatIsMissing) {
  const auto recorder = MakeVoiceRecorder(std::make_shared<PlayedMicrophones>());
  EXPECT_TRUE(recorder->Take().empty());
  recorder->Start("Tone");
  ASSERT_TRUE(Until([&] { return recorder->Level() > 0.5; })) << recorder->Why();
  recorder->Stop();
  const auto samples = recorder->Take();
  EXPECT_GT(std::ranges::max(samples), 10000);
  EXPECT_EQ(samples.size() % 2, 0u);
  EXPECT_EQ(recorder->Why(), "");

  recorder->Start("Away");
  EXPECT_TRUE(Until([&] { return recorder->Why() == "The microphone cannot be found."; }));
  EXPECT_TRUE(recorder->Take().empty());
}

}  // namespace
}  // namespace kinalyx
