#include "platform/graph/PictureModes.h"

#include <gtest/gtest.h>

namespace kinalyx::test {
namespace {

GstCapsRef Caps(const char* text) {
  EXPECT_TRUE(GstBegun());
  return GstCapsRef(gst_caps_from_string(text));
}

/// What a camera gives for a wish, as the library writes it.
std::string Given(const GstCaps& caps, PictureMode wanted) {
  const auto mode = NearestMode(ModesOf(caps), &wanted);
  if (!mode) return "nothing";
  const GstCapsRef given = CapsFor(caps, *mode, wanted.rate);
  gchar* text = gst_caps_to_string(given.get());
  const std::string written = text;
  g_free(text);
  return written;
}

TEST(PictureModes, AWebcamTellsEachSizeOnceWithItsHighestRate) {
  const GstCapsRef webcam = Caps(
      "image/jpeg, width=1280, height=720, framerate={ 60/1, 30/1 };"
      "video/x-raw, format=YUY2, width=1280, height=720, framerate=10/1;"
      "video/x-raw, format=YUY2, width=640, height=480, framerate={ 15/1, 30/1 };"
      "video/x-raw(memory:DMABuf), format=NV12, width=1920, height=1080, framerate=30/1;"
      "video/x-bayer, format=grbg, width=640, height=480, framerate=30/1");
  EXPECT_EQ(ModesOf(*webcam),
            (std::vector<PictureMode>{{640, 480, 30, "YUY2"}, {1280, 720, 60, "MJPG"}, {1280, 720, 10, "YUY2"}}));
  EXPECT_EQ(NearestMode(ModesOf(*webcam), nullptr), (PictureMode{1280, 720, 60, "MJPG"}));
  EXPECT_EQ(Given(*webcam, {1900, 1000, 30, ""}),
            "image/jpeg, width=(int)1280, height=(int)720, framerate=(fraction)30/1")
      << "the nearest size, at the rate that was wanted";
  EXPECT_EQ(Given(*webcam, {1280, 720, 0, "YUY2"}),
            "video/x-raw, format=(string)YUY2, width=(int)1280, height=(int)720, framerate=(fraction)10/1");
  EXPECT_EQ(Given(*webcam, {640, 480, 25, "NV12"}),
            "video/x-raw, format=(string)YUY2, width=(int)640, height=(int)480, framerate=(fraction)30/1");
}

TEST(PictureModes, OfLimitsTheSizesAreThoseThatPeopleKnow) {
  const GstCapsRef grabber =
      Caps("video/x-raw, format={ BGR, I420 }, width=[ 48, 720, 16 ], height=[ 32, 578 ], framerate=[ 0/1, 25/1 ]");
  const std::vector<PictureMode> modes = ModesOf(*grabber);
  EXPECT_EQ(modes.front(), (PictureMode{320, 240, 25, "BGR3"}));
  EXPECT_EQ(modes.back(), (PictureMode{720, 578, 25, "YU12"})) << "and the largest";
  EXPECT_EQ(std::count(modes.begin(), modes.end(), PictureMode{720, 576, 25, "YU12"}), 1);
  const GstCapsRef anything = Caps(
      "video/x-raw, format=RGB, width=[ 1, 2147483647 ], height=[ 1, 2147483647 ], framerate=[ 0/1, 2147483647/1 ]");
  EXPECT_EQ(ModesOf(*anything).back(), (PictureMode{3840, 2160, 0, "RGB3"}));
  EXPECT_EQ(Given(*anything, {640, 480, 0, ""}),
            "video/x-raw, format=(string)RGB, width=(int)640, height=(int)480, framerate=(fraction)30/1");
  const GstCapsRef silent = Caps("video/x-dv, systemstream=true");
  EXPECT_EQ(ModesOf(*silent), std::vector<PictureMode>());
}

}  // namespace
}  // namespace kinalyx::test
