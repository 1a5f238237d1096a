#pragma once

#include <stdexcept>
#include <string>

#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "video/AVIControl.h"

namespace kinalyx::bench {

/// The videos that several benchmarks share; each is made once.
inline test::TestVideo BenchDv() { return test::DvVideo(600); }

inline test::TestVideo BenchMjpeg() {
  test::TestVideo video = test::MjpegVideo(600);
  video.format.width = 640;
  video.format.height = 480;
  video.format.rate = 60;
  return video;
}

inline test::TestVideo BenchH264() {
  test::TestVideo video = test::H264Video(1000);
  video.format.width = 1280;
  video.format.height = 720;
  video.format.keyInterval = 250;
  return video;
}

/// A player with a surface of its own and nobody to look at it.
class BenchPlayer {
 public:
  explicit BenchPlayer(int width = 640, int height = 480) { control_.Resize(width, height); }

  void Load(const std::string& path) {
    if (!control_.Load(path, false, false)) throw std::runtime_error("cannot open " + path);
    control_.setExactPictures(true);  // what is compared with a decode is no stand-in
  }
  AVIControl* operator->() { return &control_; }

 private:
  test::TestHost host_;
  PlayScheduler scheduler_{host_};
  PlayerServices services_{host_, scheduler_};
  AVIControl control_{services_, nullptr};
};

}  // namespace kinalyx::bench
