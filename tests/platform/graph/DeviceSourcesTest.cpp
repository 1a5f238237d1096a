#include "platform/graph/DeviceSources.h"

#include <gtest/gtest.h>

#include "platform/graph/Taken.h"
#include "platform/graph/TestCamera.h"

namespace kinalyx::test {
namespace {

TEST(DeviceSources, TheTestCameraCountsItsPicturesInEveryMode) {
  DeviceSources sources;
  sources.Replace(DeviceRoll().Call({}));
  for (const PictureMode& mode : TestCameraModes()) {
    SCOPED_TRACE(testing::Message() << mode.width << " " << mode.format);
    const Takings takings = Take(sources.MakeCameraSource("Test Camera", &mode), 12);
    ASSERT_EQ(takings.pictures.size(), 12u) << takings.fault;
    EXPECT_EQ(takings.caps.starts_with(mode.format == "MJPG" ? "image/jpeg" : "video/x-raw"), true) << takings.caps;
    for (std::size_t i = 0; i < takings.pictures.size(); ++i) {
      const Taken& taken = takings.pictures[i];
      EXPECT_EQ(std::pair(taken.width, taken.height), std::pair(mode.width, mode.height));
      EXPECT_EQ(taken.number, static_cast<int>(i));
      EXPECT_NEAR(static_cast<double>(taken.atNs - takings.pictures[0].atNs), static_cast<double>(i) * 1e9 / mode.rate,
                  1e6);
    }
  }
  EXPECT_EQ(sources.MakeCameraSource("Webcam", nullptr), nullptr);
  EXPECT_EQ(sources.MakeMicrophoneSource("Test Camera"), nullptr);
}

}  // namespace
}  // namespace kinalyx::test
