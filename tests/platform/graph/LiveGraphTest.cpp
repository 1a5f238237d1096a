#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cmath>
#include <functional>
#include <map>
#include <thread>
#include <utility>

#include "capture/templates/CaptureTemplates.h"
#include "platform/graph/GraphFixture.h"
#include "platform/graph/ImpactDetector.h"
#include "platform/media/LessonCopy.h"

namespace kinalyx::test {
namespace {

TEST_F(LiveGraphs, OneCameraIsSeenAndWrittenFromClickToClick) {
  ASSERT_TRUE(graph.GraphXmlLoad(MVOneCamSSAN));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "Test Camera"));
  ASSERT_TRUE(graph.GraphSetVideoFormat("VideoSource", 640, 480, "MJPG"));
  Of<IRendererFilter>("Video Renderer").WantSize(320, 320);
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return told.pictures["Video Renderer"] > 0; }));
  const LivePicture seen = Seen();
  ASSERT_TRUE(seen.pixels);
  EXPECT_EQ(std::pair(seen.width, seen.height), std::pair(320, 240));
  EXPECT_EQ(told.pictures["Video Renderer"], 1) << "told once until it is asked for";

  for (const char* name : {"first.avi", "second.avi"}) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path(name)));
    Gate().Arm(true);
    EXPECT_TRUE(Comes([&] { return Tally().pictures >= 20; }));
    Gate().Arm(false);
    EXPECT_TRUE(Comes([&] { return !Tally().open; }));
    EXPECT_EQ(Tally().lost, 0);
    EXPECT_NEAR(Tally().rate, 30, 0.05);
    EXPECT_EQ(PicturesInARow(folder.Path(name)), Tally().pictures);
  }
  EXPECT_TRUE(graph.GraphStop());
  EXPECT_TRUE(told.failed.empty());
  EXPECT_TRUE(told.sinks.empty());
}

TEST_F(LiveGraphs, TwoCamerasBeginTogether) {
  cameras->played["slow"] =
      "videotestsrc is-live=true ! capsfilter caps=video/x-raw,format=NV12,width=800,height=600,"
      "framerate=20/1 ! identity sleep-time=30000";
  ASSERT_TRUE(graph.GraphXmlLoad(MVTwoCamSS));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "Test Camera"));
  ASSERT_TRUE(graph.GraphSetVideoFormat("VideoSource", 640, 480, "YUY2"));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource 2", "slow"));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path("1.avi")));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter 2", folder.Path("2.avi")));
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return told.pictures["Video Renderer"] > 0 && told.pictures["Video Renderer 2"] > 0; }));
  Gate().Arm(true);
  Gate("MV Trigger Source 2").Arm(true);
  EXPECT_TRUE(Comes([&] { return Tally().pictures >= 20 && Tally("FileWriter 2").pictures >= 10; }));
  EXPECT_TRUE(graph.GraphStop());
  const RecordingTally first = Tally(), second = Tally("FileWriter 2");
  EXPECT_LT(std::abs(first.firstNs - second.firstNs), 50'000'000);
  EXPECT_EQ(PicturesInARow(folder.Path("1.avi")), first.pictures) << "kept as it came";
  const auto packed = ReadVideoInfo(folder.Path("2.avi"));
  ASSERT_TRUE(packed);
  EXPECT_EQ(packed->frameCount, second.pictures) << "too large to be kept raw, and written all the same";
}

TEST_F(LiveGraphs, TheMirrorTurnsThePictureAndTheOtherGraphDoesNot) {
  for (const bool mirror : {true, false}) {
    ASSERT_TRUE(graph.GraphXmlLoad(mirror ? MVMotionDraw : MVMotionDraw2));
    ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "Test Camera"));
    ASSERT_TRUE(graph.GraphSetVideoFormat("VideoSource", 640, 480, "YUY2"));
    ASSERT_TRUE(graph.GraphRun());
    told.pictures.clear();
    ASSERT_TRUE(Comes([&] { return told.pictures["Video Renderer"] > 0; }));
    const LivePicture seen = Seen();
    EXPECT_EQ(ReadFrameNumber(seen.pixels.get(), seen.width, seen.height, seen.stride).has_value(), !mirror);
  }
}

TEST_F(LiveGraphs, ACameraThatNeverAnswersHoldsUpNobody) {
  ASSERT_TRUE(graph.GraphXmlLoad(MVTwoCamSS));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "hangs"));
  const auto begun = Clock::now();
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(graph.GraphStop());
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource 2", "Test Camera"));
  ASSERT_TRUE(graph.GraphRun());
  EXPECT_LT(Clock::now() - begun, 1s);
  EXPECT_TRUE(Comes([&] { return told.pictures["Video Renderer 2"] > 0; })) << "the other one is seen";
  EXPECT_TRUE(Comes([&] { return told.failed.contains("VideoSource"); }));
  EXPECT_EQ(told.failed["VideoSource"], "The camera does not answer.");
  EXPECT_EQ(cameras->hanging, 1) << "each further try would leave a thread hanging";
  cameras->freed = true;
  EXPECT_TRUE(graph.GraphStop());
}

TEST_F(LiveGraphs, WhatACameraGaveBeforeItEndedIsKeptAndOneThatHangsIsTold) {
  // Nobody writes into the pipe, so it cannot even be opened.
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  cameras->played["starts never"] = "filesrc location=" + folder.Path("pipe");
  cameras->played["pulled"] =
      "videotestsrc is-live=true num-buffers=25 ! capsfilter caps=video/x-raw,width=320,height=240,framerate=50/1";
  ASSERT_TRUE(graph.GraphXmlLoad(MVTwoCamSS));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "pulled"));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource 2", "starts never"));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path("x.avi")));
  Gate().Arm(true);
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return told.failed.contains("VideoSource") && !Tally().open; }));
  EXPECT_EQ(told.failed["VideoSource"], "The camera has ended.");
  EXPECT_FALSE(IsUnfinishedRecording(folder.Path("x.avi")));
  EXPECT_EQ(ReadVideoInfo(folder.Path("x.avi"))->frameCount, 25);
  EXPECT_TRUE(Comes([&] { return told.failed.contains("VideoSource 2"); }));
  EXPECT_EQ(told.failed["VideoSource 2"], "The camera gives no picture.");
  EXPECT_TRUE(graph.GraphStop());
  std::ofstream(folder.Path("pipe"));  // lets the thread go
}

TEST_F(LiveGraphs, DamagedPicturesAreWrittenAsTheyComeAndStopNobody) {
  cameras->played["bad cable"] =
      "videotestsrc is-live=true ! capsfilter caps=video/x-raw,width=320,height=240,framerate=50/1 ! jpegenc ! "
      "breakmydata probability=0.002";
  ASSERT_TRUE(graph.GraphXmlLoad(MVOneCamSSAN));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "bad cable"));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path("x.avi")));
  Gate().Arm(true);
  ASSERT_TRUE(graph.GraphRun());
  int seen = 0;
  EXPECT_TRUE(Comes([&] {
    if (std::exchange(told.pictures["Video Renderer"], 0) > 0 && Seen().pixels) ++seen;
    return seen >= 20 && Tally().pictures >= 60;
  }));
  EXPECT_TRUE(graph.GraphStop());
  EXPECT_EQ(Tally().lost, 0);
  EXPECT_TRUE(told.failed.empty()) << told.failed.begin()->second;
}

TEST_F(LiveGraphs, APictureThatCannotBeShownIsToldAndRecordedAllTheSame) {
  cameras->played["rubble"] =
      "videotestsrc is-live=true ! capsfilter caps=video/x-raw,width=320,height=240,framerate=20/1 ! jpegenc ! "
      "breakmydata probability=1";
  ASSERT_TRUE(graph.GraphXmlLoad(MVOneCamSSAN));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "rubble"));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", folder.Path("x.avi")));
  Gate().Arm(true);
  ASSERT_TRUE(graph.GraphRun());
  EXPECT_TRUE(Comes([&] { return told.dark["Video Renderer"] > 0 && Tally().pictures >= 80; }));
  EXPECT_TRUE(graph.GraphStop());
  EXPECT_EQ(told.dark["Video Renderer"], 1) << "once";
  EXPECT_TRUE(told.failed.empty());
}

TEST_F(LiveGraphs, ALessonIsWrittenWithItsVoiceAndWithoutItsPauses) {
  cameras->played["screen"] = "videotestsrc is-live=true ! video/x-raw,format=BGRx,width=321,height=241,framerate=15/1";
  for (const bool telephone : {false, true}) {
    const std::string path = folder.Path(telephone ? "m.mkv" : "a.mkv");
    ASSERT_TRUE(graph.GraphXmlLoad(telephone ? MVScreenRecorderMp4 : MVScreenRecorder));
    ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "screen"));
    ASSERT_TRUE(graph.GraphSetDevice("AudioSource", "microphone"));
    ASSERT_TRUE(graph.GraphSetDevice("Audio Trigger", "microphone"));
    ASSERT_TRUE(graph.GraphSetFileSink("File writer", path));
    ASSERT_TRUE(graph.GraphRun());
    auto& trigger = Of<IAudioTriggerFilter>("Audio Trigger");
    ASSERT_TRUE(Comes([&] {
      return std::abs(trigger.Level() - ImpactDetector::LevelOf(0.5)) < 0.02 && Tally("File writer").pictures >= 10;
    }));
    Of<IWriterFilter>("File writer").Pause(true);
    std::this_thread::sleep_for(200ms);
    const std::int64_t before = Tally("File writer").pictures;
    std::this_thread::sleep_for(1s);
    EXPECT_EQ(Tally("File writer").pictures, before);
    Of<IWriterFilter>("File writer").Pause(false);
    ASSERT_TRUE(Comes([&] { return Tally("File writer").pictures >= before + 10; }));
    EXPECT_TRUE(graph.GraphStop());
    const auto lesson = ReadLesson(path);
    ASSERT_TRUE(lesson);
    EXPECT_EQ(lesson->kind, telephone ? LessonKind::Mp4 : LessonKind::Avi);
    EXPECT_TRUE(lesson->voice);
    const std::int64_t pictures = Tally("File writer").pictures;
    EXPECT_EQ(std::llround(lesson->seconds * LessonFile::kRate), pictures);
    EXPECT_LT(pictures, before + 10 + 12) << "the pause is not in it";
    EXPECT_TRUE(told.failed.empty() && told.sinks.empty());
  }
}

TEST_F(LiveGraphs, ALessonWithoutAMicrophoneIsSilentAndAFullDiskIsTold) {
  cameras->played["screen"] = "videotestsrc is-live=true ! video/x-raw,format=BGRx,width=320,height=240,framerate=15/1";
  ASSERT_TRUE(graph.GraphXmlLoad(MVScreenRecorder));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "screen"));
  ASSERT_TRUE(graph.GraphSetFileSink("File writer", folder.Path("x.mkv")));
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return Tally("File writer").pictures >= 5; }));
  EXPECT_TRUE(graph.GraphStop());
  const auto lesson = ReadLesson(folder.Path("x.mkv"));
  ASSERT_TRUE(lesson);
  EXPECT_FALSE(lesson->voice);
  EXPECT_FALSE(told.failed.contains("VideoSource"));
  ASSERT_TRUE(graph.GraphSetFileSink("File writer", "/no/such/folder/x.mkv"));
  ASSERT_TRUE(graph.GraphRun());
  EXPECT_TRUE(Comes([&] { return told.sinks.contains("File writer"); }));
  EXPECT_TRUE(graph.GraphStop());
}

TEST_F(LiveGraphs, NothingIsToldOfAGraphThatHasGone) {
  cameras->played["broken"] = "videotestsrc is-live=true ! identity error-after=2";
  ASSERT_TRUE(graph.GraphXmlLoad(MVOneCamSSAN));
  ASSERT_TRUE(graph.GraphSetDevice("VideoSource", "broken"));
  ASSERT_TRUE(graph.GraphSetFileSink("FileWriter", "/no/such/folder/x.avi"));
  Gate().Arm(true);
  ASSERT_TRUE(graph.GraphRun());
  ASSERT_TRUE(Comes([&] { return told.failed.contains("VideoSource") && told.sinks.contains("FileWriter"); }));
  ASSERT_TRUE(graph.GraphRun());
  std::this_thread::sleep_for(300ms);
  told = {};
  graph.GraphClear();
  QCoreApplication::processEvents();
  EXPECT_TRUE(told.failed.empty() && told.pictures.empty());
  EXPECT_EQ(graph.GraphFilterByLabel<IWriterFilter>("FileWriter"), nullptr);
  EXPECT_FALSE(graph.GraphSetDevice("VideoSource", "broken"));
  EXPECT_FALSE(graph.GraphRun());
}

}  // namespace
}  // namespace kinalyx::test
