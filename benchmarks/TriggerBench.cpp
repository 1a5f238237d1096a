#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <stdexcept>

#include "Bench.h"
#include "ReelCameras.h"
#include "capture/templates/CaptureTemplates.h"
#include "platform/graph/TestPicture.h"
#include "platform/media/VideoFile.h"

namespace kinalyx::bench {
namespace {

constexpr double kSecond = 1e9;
constexpr double kBefore = 0.2;
constexpr double kAfter = 0.1;

std::int64_t Now() { return Clock::now().time_since_epoch() / 1ns; }

/// A graph of one or two cameras that waits for a click.
class Range {
 public:
  Range(const std::vector<std::string>& cameras, double before, double after)
      : window_(cameras.size() > 1 ? MVTwoCamClickAN : MVOneCamClickAN) {
    const char* const kSources[] = {"VideoSource", "VideoSource 2"};
    const char* const kRenderers[] = {"Video Renderer", "Video Renderer 2"};
    const char* const kBlocks[] = {"MV Block Recording", "MV Block Recording 2"};
    const char* const kWriters[] = {"FileWriter", "FileWriter 2"};
    for (std::size_t i = 0; i < cameras.size(); ++i) {
      window_.Open(kSources[i], cameras[i], kRenderers[i]);
      (void)window_.Graph().GraphSetVideoFormat(kSources[i], 1280, 720, "MJPG");
      (void)window_.Graph().GraphSetFileSink(kWriters[i], ScratchFolder() + "/block" + std::to_string(i) + ".avi");
      blocks_.push_back(window_.Graph().GraphFilterByLabel<IBlockRecordingFilter>(kBlocks[i]));
      blocks_.back()->BlockRecordingSetStart(-before);
      blocks_.back()->BlockRecordingSetEnd(after);
    }
    button_ = window_.Graph().GraphFilterByLabel<ISwitchFilter>("MV Switch");
    if (const Outcome run = window_.Graph().GraphRun(); !run) throw std::runtime_error(run.Why());
    window_.Await();
    for (const IBlockRecordingFilter* block : blocks_)
      while (block->Ring().seconds < before) window_.Show(10ms);
  }

  CameraWindow& Window() { return window_; }
  IBlockRecordingFilter& Block(std::size_t camera) { return *blocks_[camera]; }
  bool Fire(std::int64_t ns) { return button_->Fire(ns); }
  /// Of each camera the block of a trigger that has just fired.
  std::vector<WrittenBlock> Written() {
    std::vector<WrittenBlock> all;
    for (IBlockRecordingFilter* block : blocks_) {
      std::vector<WrittenBlock> one;
      for (int i = 0; i < 500 && one.empty(); ++i) {
        window_.Show(10ms);
        one = block->Blocks()->TakeWritten();
      }
      if (one.empty()) throw std::runtime_error("a block was not written");
      all.push_back(std::move(one.front()));
    }
    return all;
  }

 private:
  CameraWindow window_;
  std::vector<IBlockRecordingFilter*> blocks_;
  ISwitchFilter* button_ = nullptr;
};

int NumberOf(VideoFile& video, int frame) {
  const FrameRows rows = video.Frame(frame, 32);
  const std::uint8_t* top = rows.bits + static_cast<std::ptrdiff_t>(rows.height - 1) * rows.rowBytes;
  const auto number = ReadFrameNumber(top, rows.width, rows.height, -rows.rowBytes);
  if (!number) throw std::runtime_error("a picture has no number");
  return *number;
}

/// How many pictures a block's ends are off, the larger of the two. What is right is worked out from a picture that was
/// seen live: its number and its time.
double WindowError(Range& range, std::int64_t trigger) {
  const WrittenBlock block = range.Written().at(0);
  const LivePicture seen = range.Window().Latest();
  const auto number = ReadFrameNumber(seen.pixels.get(), seen.width, seen.height, seen.stride);
  if (!number) throw std::runtime_error("what is seen has no number");
  const auto frame = [&](double seconds) {
    return *number + (static_cast<double>(trigger - seen.takenAt) / kSecond + seconds) * 60;
  };
  auto video = VideoFile::Open(block.path);
  if (!video) throw std::runtime_error(video.Why());
  const int count = (*video)->Info().frameCount;
  const double first = std::abs(NumberOf(**video, 0) - std::ceil(frame(-kBefore)));
  const double last = std::abs(NumberOf(**video, count - 1) - std::floor(frame(kAfter)));
  std::filesystem::remove(block.path);
  return std::max(first, last);
}

double LargestWindowError() {
  Range range({"Test Camera"}, kBefore, kAfter);
  std::mt19937 chance(7);
  double largest = 0;
  for (int shot = 0; shot < 100; ++shot) {
    range.Window().Show(std::chrono::milliseconds(chance() % 100));
    const std::int64_t trigger = Now();
    if (!range.Fire(trigger)) throw std::runtime_error("a trigger was not honoured");
    largest = std::max(largest, WindowError(range, trigger));
  }
  return largest;
}

/// From the end of a block to the first trigger that counts again, of somebody who triggers all the time.
double LargestRearmGap() {
  Range range({"1920x1080"}, 2, kAfter);
  double largest = 0;
  std::optional<std::int64_t> last;
  for (int shots = 0; shots < 20;) {
    const std::int64_t now = Now();
    if (!range.Fire(now)) continue;
    if (last) largest = std::max(largest, (static_cast<double>(now - *last) / kSecond - kAfter) * 1000);
    last = now;
    ++shots;
  }
  for (int shots = 0; shots < 20;) {
    range.Window().Show(5ms);
    for (const WrittenBlock& block : range.Block(0).Blocks()->TakeWritten()) {
      if (block.tally.lost > 0) throw std::runtime_error("a block has holes");
      std::filesystem::remove(block.path);
      ++shots;
    }
  }
  return largest;
}

double LargestSkew() {
  Range range({"1920x1080 left", "1280x720 right"}, kBefore, kAfter);
  double largest = 0;
  for (int shot = 0; shot < 20; ++shot) {
    if (!range.Fire(0)) throw std::runtime_error("a trigger was not honoured");
    const auto pair = range.Written();
    largest = std::max(largest, std::abs(static_cast<double>(pair[0].tally.firstNs - pair[1].tally.firstNs)) / 1e6);
    for (const WrittenBlock& block : pair) std::filesystem::remove(block.path);
  }
  return largest;
}

double ResidentMiB() {
  malloc_trim(0);
  std::ifstream file("/proc/self/statm");
  double pages = 0;
  file >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

/// What ten seconds of two cameras take, after the ring has gone round twice, beside what they sent.
Figure RingMemory() {
  Range range({"1920x1080 left", "1920x1080 right"}, 0, kAfter);
  for (std::size_t i = 0; i < 2; ++i) range.Block(i).Remember(0);
  range.Window().Show(3s);
  const double before = ResidentMiB();
  double had = 0, sent = 0;
  for (std::size_t i = 0; i < 2; ++i) {
    had += static_cast<double>(range.Block(i).Ring().bytes) / (1 << 20);
    range.Block(i).Remember(10);
  }
  range.Window().Show(25s);
  const double taken = ResidentMiB() - before;
  for (std::size_t i = 0; i < 2; ++i) sent += static_cast<double>(range.Block(i).Ring().bytes) / (1 << 20);
  return Figure{taken + had, "MiB", sent};
}

const Register kWindow({"trigger_window_error", {Target::Of::AtMost, 1, 0}, [] {
                          return Figure{LargestWindowError(), "pictures"};
                        }});
const Register kRearm({"rearm_gap", {Target::Of::AtMost, 100, 0}, [] { return Figure{LargestRearmGap(), "ms"}; }});
const Register kSkew({"two_camera_skew", {Target::Of::AtMost, 17, 17}, [] { return Figure{LargestSkew(), "ms"}; }});
const Register kRing({"ring_memory", {Target::Of::Ratio, 1.2, 1.0}, RingMemory});

}  // namespace
}  // namespace kinalyx::bench
