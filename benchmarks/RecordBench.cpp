// Recordings: how far the rate of the file is from that of the camera, and what ten minutes of them keep in memory.

#include <cmath>
#include <filesystem>
#include <memory>
#include <random>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "platform/media/RecordingFile.h"
#include "platform/media/VideoFile.h"

namespace kinalyx::bench {
namespace {

/// A file of its own, gone with the object.
class Recorder {
 public:
  Recorder(int width, int height, double promised)
      : path_(ScratchFolder() + "/recording.avi"), picture_(std::size_t{60} << 10, std::byte{77}) {
    auto file = RecordingFile::Create(path_, {RecordingFormat::Codec::Mjpeg, width, height, promised});
    if (!file) throw std::runtime_error(file.Why());
    file_ = std::move(*file);
  }
  ~Recorder() {
    file_.reset();
    std::filesystem::remove(path_);
  }

  void Take(double seconds) {
    const Outcome taken = file_->Write(picture_, std::llround(seconds * 1e9) + 1);
    if (!taken) throw std::runtime_error(taken.Why());
  }
  void Close() {
    if (const Outcome closed = file_->Close(); !closed) throw std::runtime_error(closed.Why());
  }
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
  std::vector<std::byte> picture_;
  std::unique_ptr<RecordingFile> file_;
};

/// Ten seconds of a camera whose stamps tremble by a fifth of a picture time and which loses some pictures.
Figure RateError() {
  constexpr double kReal = 29.5;
  std::mt19937 dice(3);
  std::uniform_real_distribution<> tremble(-0.2, 0.2);
  Recorder recorder(640, 480, 30);
  for (int n = 0; n < 295; ++n)
    if (n % 60 != 40) recorder.Take((n + 1 + tremble(dice)) / kReal);
  recorder.Close();
  const auto info = ReadVideoInfo(recorder.Path());
  if (!info || info->frameCount != 295) throw std::runtime_error("the recording is not whole");
  const double rate = static_cast<double>(info->rate) / static_cast<double>(info->scale);
  return {100 * std::abs(rate - kReal) / kReal, "%"};
}

Figure RecordMemory() {
  constexpr int kRate = 60;
  Recorder recorder(1920, 1080, kRate);
  double before = 0;
  for (int n = 0; n < 600 * kRate; ++n) {
    recorder.Take(n / double{kRate});
    if (n != kRate) continue;
    ResetPeakMemory();
    before = PeakMemoryMiB();
  }
  recorder.Close();
  return {PeakMemoryMiB() - before, "MiB"};
}

const Register kRateError({"rate_error", {Target::Of::AtMost, 0.1, 0.02}, RateError});
const Register kRecordMemory({"record_memory", {Target::Of::AtMost, 20, 5}, RecordMemory});

}  // namespace
}  // namespace kinalyx::bench
