#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <utility>

#include "capture/templates/CaptureTemplates.h"
#include "platform/graph/BlockLane.h"
#include "platform/graph/GraphFixture.h"
#include "platform/graph/PictureRing.h"

namespace kinalyx::test {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr std::int64_t kPicture = kSecond / 50;

/// One of fifty a second.
PackedPicture Numbered(std::int64_t number, std::int64_t base = 0) {
  PackedPicture picture;
  picture.format = {RecordingFormat::Codec::RawYuy2, 16, 16, 50};
  picture.ns = base + number * kPicture;
  picture.size = 16 * 16 * 2;
  static const std::shared_ptr<const std::byte[]> grey(new std::byte[16 * 16 * 2]{});
  picture.bytes = {grey, grey.get()};
  return picture;
}

std::int64_t Now() { return Clock::now().time_since_epoch() / std::chrono::nanoseconds(1); }

TEST(PictureRings, RememberAsFarBackAsTheyAreAsked) {
  PictureRing ring;
  const auto size = static_cast<std::int64_t>(Numbered(0).size);
  ring.Reach(1);
  EXPECT_FALSE(ring.At(kSecond));
  for (int n = 0; n < 200; ++n) ring.Push(Numbered(n));
  ring.Push(Numbered(150));  // a clock that went back
  EXPECT_EQ(ring.Tally().seconds, 1);
  EXPECT_EQ(ring.Tally().bytes, 51 * size);
  EXPECT_EQ(ring.At(199 * kPicture - 1)->ns, 198 * kPicture);
  EXPECT_EQ(ring.At(500 * kPicture)->ns, 199 * kPicture);
  EXPECT_FALSE(ring.At(148 * kPicture));
  EXPECT_EQ(ring.After(170 * kPicture)->ns, 171 * kPicture);
  EXPECT_FALSE(ring.After(199 * kPicture));
  EXPECT_EQ(ring.Between(160 * kPicture, 170 * kPicture).size(), 11U) << "both ends";
  EXPECT_EQ(ring.Between(160 * kPicture + 1, 170 * kPicture - 1).size(), 9U);
  EXPECT_TRUE(ring.Between(170 * kPicture, 160 * kPicture).empty());

  ring.Pin(180 * kPicture);
  for (int n = 200; n < 400; ++n) ring.Push(Numbered(n));
  EXPECT_EQ(ring.Between(0, 180 * kPicture).size(), 1U) << "held for who writes it";
  ring.Unpin();
  ring.SetBound(10 * size);
  ring.Push(Numbered(400));
  EXPECT_EQ(ring.Tally().bytes, 10 * size) << "the bound counts before the reach";
  ring.SetBound(1);
  ring.Push(Numbered(401));
  EXPECT_EQ(ring.At(401 * kPicture)->ns, 401 * kPicture) << "one is always there";
}

class BlockLanes : public LiveGraphs {
 protected:
  BlockLanes() {
    ring->Reach(2);
    lane.Open(folder.Path("temp1.avi"));
  }
  ~BlockLanes() override { news.Mute(); }

  void Push(int from, int to) {
    for (int n = from; n < to; ++n) lane.Push(Numbered(n, base));
  }
  BlockLane::Window Around(int shot, std::int64_t picture, std::int64_t before, std::int64_t after) const {
    const std::int64_t trigger = base + picture * kPicture;
    return {shot, trigger, trigger - before * kPicture, trigger + after * kPicture};
  }
  std::vector<WrittenBlock> Closed() {
    EXPECT_TRUE(lane.WaitClosed(Clock::now() + 20s));
    return lane.TakeWritten();
  }

  const std::int64_t base = Now();
  std::shared_ptr<PictureRing> ring = std::make_shared<PictureRing>();
  GraphNews news{told, MakeQtPost()};
  BlockLane lane{"MV Block Recording", news, ring};
};

TEST_F(BlockLanes, EachWindowGetsItsPicturesAlsoWhereTwoOfThemOverlap) {
  Push(0, 80);
  lane.Write(Around(1, 70, 30, 20));
  EXPECT_TRUE(lane.Writing());
  lane.Write(Around(2, 91, 30, 20));
  Push(80, 200);
  const auto written = Closed();
  ASSERT_EQ(written.size(), 2U);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(written[i].shot, i + 1);
    EXPECT_EQ(written[i].path, folder.Path("temp1 shot " + std::to_string(i + 1) + ".avi"));
    EXPECT_EQ(written[i].tally.pictures, 51);
    EXPECT_EQ(written[i].tally.firstNs, base + (i == 0 ? 40 : 61) * kPicture);
    EXPECT_EQ(written[i].tally.lost, 0);
    EXPECT_EQ(ReadVideoInfo(written[i].path)->frameCount, 51);
  }
  EXPECT_FALSE(lane.Writing());
  EXPECT_TRUE(lane.TakeWritten().empty()) << "each is fetched once";
  Push(200, 201);
  EXPECT_LE(ring->Tally().seconds, 2.05) << "nothing is held any more";
}

TEST_F(BlockLanes, WhatCameIsKeptWhenTheCameraEndsAndOldFilesAreLeftAlone) {
  std::ofstream(folder.Path("temp1 shot 1.avi")) << "waits to be fetched";
  Push(0, 50);
  lane.Write(Around(1, 45, 30, 100));
  lane.CloseNow();
  const auto cut = Closed();
  ASSERT_EQ(cut.size(), 1U);
  EXPECT_EQ(cut[0].path, folder.Path("temp1 shot 2.avi"));
  EXPECT_EQ(cut[0].tally.pictures, 35) << "to the last that came";
  // A trigger that nothing follows makes no file.
  lane.Write(Around(2, 500, 30, 100));
  const auto none = Closed();
  ASSERT_EQ(none.size(), 1U);
  EXPECT_FALSE(std::filesystem::exists(none[0].path));
}

TEST_F(BlockLanes, PicturesThatAreGivenAreWrittenAndAFileThatCannotBeIsTold) {
  Push(0, 60);
  lane.Write(7, ring->Between(base + 10 * kPicture, base + 19 * kPicture));
  EXPECT_EQ(Closed().at(0).tally.pictures, 10);
  lane.Open("/no/such/folder/x.avi");
  lane.Write(Around(8, 55, 5, 3));
  const auto lost = Closed();
  ASSERT_EQ(lost.size(), 1U);
  EXPECT_FALSE(lost[0].tally.fault.empty());
}

/// Numbers of the Test Camera's pictures in a file, the first and the last; -1 where some are missing between.
std::pair<int, int> NumbersIn(const std::string& path) {
  if (PicturesInARow(path) < 1) return {-1, -1};
  const auto video = OpenedVideo(path);
  const auto number = [&](int n) {
    const FrameRows rows = video->Frame(n, 32);
    const std::uint8_t* top = rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1) * rows.rowBytes;
    return ReadFrameNumber(top, rows.width, rows.height, -rows.rowBytes).value_or(-1);
  };
  return {number(0), number(video->Info().frameCount - 1)};
}

class TriggeredGraphs : public LiveGraphs {
 protected:
  void Run(std::string_view graphText, bool two, const std::string& camera = "Test Camera") {
    ASSERT_TRUE(graph.GraphXmlLoad(graphText));
    for (const char* source : {"VideoSource", "VideoSource 2"}) {
      if (!two && source == std::string("VideoSource 2")) continue;
      ASSERT_TRUE(graph.GraphSetDevice(source, camera));
      ASSERT_TRUE(graph.GraphSetVideoFormat(source, 640, 480, "MJPG"));
    }
    ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path("temp1.avi")));
    if (two) {
      ASSERT_TRUE(graph.GraphSetFileSink("FileWriter 2", folder.Path("temp2.avi")));
    }
    for (const char* block : {"MV Block Recording", "MV Block Recording 2"}) {
      if (!two && block == std::string("MV Block Recording 2")) continue;
      Of<IBlockRecordingFilter>(block).BlockRecordingSetStart(-0.5);
      Of<IBlockRecordingFilter>(block).BlockRecordingSetEnd(0.3);
    }
    ASSERT_TRUE(graph.GraphRun());
    ASSERT_TRUE(Comes([&] { return Of<IBlockRecordingFilter>("MV Block Recording").Ring().seconds > 1; }));
  }
  /// The number and the time of a picture that is seen now.
  std::pair<int, std::int64_t> SeenNumber() {
    std::optional<int> number;
    LivePicture seen;
    EXPECT_TRUE(Comes([&] {
      seen = Seen();
      if (seen.pixels) number = ReadFrameNumber(seen.pixels.get(), seen.width, seen.height, seen.stride);
      return number.has_value();
    }));
    return {number.value_or(-1), seen.takenAt};
  }
  std::vector<WrittenBlock> Written(const char* label, std::size_t count) {
    std::vector<WrittenBlock> all;
    EXPECT_TRUE(Comes([&] {
      for (WrittenBlock& block : Of<IBlockRecordingFilter>(label).Blocks()->TakeWritten())
        all.push_back(std::move(block));
      return all.size() >= count;
    })) << label;
    return all;
  }
};

TEST_F(TriggeredGraphs, ABlockHoldsThePicturesAroundItsTriggerAndTheNextTriggerCountsAtOnce) {
  Run(MVOneCamClickAN, false);
  const auto [number, takenAt] = SeenNumber();
  const std::int64_t trigger = Now();
  auto& button = Of<ISwitchFilter>("MV Switch");
  EXPECT_TRUE(button.Fire(trigger));
  EXPECT_FALSE(button.Fire(trigger + kSecond * 3 / 10)) << "its window is not over";
  EXPECT_TRUE(button.Fire(trigger + kSecond * 3 / 10 + 1));
  const auto written = Written("MV Block Recording", 2);
  ASSERT_EQ(written.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(written[i].triggerNs, told.fired[static_cast<int>(i) + 1]);
    const auto frame = [&, seen = number, at = takenAt](double seconds) {
      return seen + (static_cast<double>(written[i].triggerNs - at) / 1e9 + seconds) * 30;
    };
    const auto [first, last] = NumbersIn(written[i].path);
    EXPECT_NEAR(first, std::ceil(frame(-0.5)), 1);
    EXPECT_NEAR(last, std::floor(frame(0.3)), 1);
  }
  EXPECT_TRUE(graph.GraphStop());
  EXPECT_FALSE(button.Fire(0)) << "nothing runs";
}

TEST_F(TriggeredGraphs, WhateverComesAndIsMadeOfItIsCutAtTheInstant) {
  cameras->played["telephone"] =
      "videotestsrc is-live=true ! video/x-raw,format=I420,width=640,height=480,framerate=30/1 ! openh264enc ! "
      "h264parse";
  // The encoder of DV counts its time from a thousand hours on.
  for (const auto& [text, camera] :
       {std::pair{MVOneCamClickDV, "Test Camera"}, {MVOneCamClickDV, "telephone"}, {MVOneCamClickAN, "telephone"}}) {
    SCOPED_TRACE(camera);
    Run(text, false, camera);
    EXPECT_TRUE(Of<ISwitchFilter>("MV Switch").Fire(0));
    const auto written = Written("MV Block Recording", 1);
    ASSERT_EQ(written.size(), 1U);
    EXPECT_NEAR(written[0].tally.pictures, 24, 2) << "of 0.8 s";
    EXPECT_NEAR(static_cast<double>(written[0].tally.firstNs - written[0].triggerNs) / 1e9, -0.5, 0.07);
    EXPECT_TRUE(graph.GraphStop());
  }
}

TEST_F(TriggeredGraphs, TwoCamerasAreCutByOneInstantAndWhatIsUnderWayIsKeptWhenTheyStop) {
  Run(MVTwoCamClickAN, true);
  ASSERT_TRUE(Comes([&] { return Of<IBlockRecordingFilter>("MV Block Recording 2").Ring().seconds > 1; }));
  EXPECT_TRUE(Of<ISwitchFilter>("MV Switch").Fire(0));
  ASSERT_TRUE(Comes([&] { return !told.fired.empty(); }));
  EXPECT_TRUE(graph.GraphStop()) << "before the window is over";
  const auto first = Written("MV Block Recording", 1), second = Written("MV Block Recording 2", 1);
  ASSERT_EQ(first.size() + second.size(), 2U);
  EXPECT_EQ(first[0].triggerNs, second[0].triggerNs);
  EXPECT_LE(std::abs(first[0].tally.firstNs - second[0].tally.firstNs), kSecond / 30);
  for (const WrittenBlock* block : {&first[0], &second[0]}) {
    EXPECT_GE(block->tally.pictures, 14);
    EXPECT_EQ(PicturesInARow(block->path), block->tally.pictures);
  }
}

TEST_F(TriggeredGraphs, AnImpactThatTheMicrophoneHearsCountsFromWhenItSounded) {
  cameras->microphone =
      "audiotestsrc is-live=true wave=ticks freq=4000 sine-periods-per-tick=8 volume=0.9 tick-interval=800000000";
  ASSERT_TRUE(graph.GraphXmlLoad(MVOneCamAuto));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "Test Camera"));
  ASSERT_TRUE(graph.GraphSetVideoFormat("VideoSource", 640, 480, "MJPG"));
  ASSERT_TRUE(graph.GraphSetDevice("Audio Trigger", "microphone"));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path("temp1.avi")));
  auto& block = Of<IBlockRecordingFilter>("MV Block Recording");
  block.BlockRecordingSetStart(-0.2);
  block.BlockRecordingSetEnd(0.2);
  Of<IAudioTriggerFilter>("Audio Trigger").SetThreshold(1);
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return block.Ring().seconds > 1; }));
  EXPECT_TRUE(told.fired.empty()) << "nothing is so loud";
  Of<IAudioTriggerFilter>("Audio Trigger").SetThreshold(0.5);
  ASSERT_TRUE(Comes([&] { return told.fired.size() >= 3; }));
  EXPECT_NEAR(static_cast<double>(told.fired[3] - told.fired[2]) / 1e9, 0.8, 0.005);
  EXPECT_EQ(Written("MV Block Recording", 2).at(1).tally.lost, 0);
}

}  // namespace
}  // namespace kinalyx::test
