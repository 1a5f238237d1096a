#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Backdrop.h"
#include "SwingStyle.h"
#include "library/Profile.h"

namespace kinalyx::demo {

enum class DemoFormat {
  DvInterlaced,  ///< 720 x 480, 59.94 fields a second, bottom field first
  Mjpeg,         ///< 640 x 480, 60 pictures a second
  H264,          ///< 640 x 480, 30 pictures a second, one key picture in 250
  H264Large,     ///< 1280 x 720, 60 pictures a second, one key picture in 250
  Uncompressed,  ///< 320 x 240, 30 pictures a second
};

struct DemoVideo {
  std::string name;
  DemoFormat format = DemoFormat::Mjpeg;
  View view = View::FaceOn;
  SwingStyle style;
  std::uint32_t place = 1;  ///< where on the range
  std::string notes;
};

struct DemoStudent {
  FieldTexts profile;
  std::string notes;
  std::vector<DemoVideo> videos;
};

struct DemoInstructor {
  std::string name;
  std::vector<DemoStudent> students;
  std::vector<DemoVideo> videos;  ///< that lie directly in the folder
};

/// Who learns from whom, and what was filmed.
std::vector<DemoInstructor> PlanDemo();

}  // namespace kinalyx::demo
