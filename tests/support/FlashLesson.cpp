#include "support/FlashLesson.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "platform/media/LessonCopy.h"
#include "platform/media/SoundReader.h"
#include "platform/media/VideoFile.h"

namespace kinalyx::test {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr double kFirst = 5, kEvery = 10;

std::int64_t Ns(double seconds) { return std::llround(seconds * kSecond); }

class Microphone {
 public:
  explicit Microphone(double tooFast) : rate_(LessonFile::kSoundRate * (1 + tooFast)) {}

  double Now() const { return static_cast<double>(heard_) / rate_; }
  /// The next hundredth of a second.
  std::vector<std::int16_t> Hear() {
    std::vector<std::int16_t> samples(LessonFile::kSoundRate / 100);
    for (std::int16_t& sample : samples) {
      const double at = static_cast<double>(heard_++) / rate_;
      if (at >= kFirst && std::fmod(at - kFirst, kEvery) < 0.02) sample = heard_ / 20 % 2 == 0 ? 20'000 : -20'000;
    }
    return samples;
  }

 private:
  double rate_;
  std::int64_t heard_ = 0;
};

}  // namespace

LessonPicture PlainPicture(std::uint8_t brightness) {
  constexpr std::size_t kPixels = std::size_t{FlashLesson::kWidth} * FlashLesson::kHeight;
  const std::shared_ptr<std::uint8_t[]> bytes(new std::uint8_t[kPixels * 3 / 2]);
  std::memset(bytes.get(), brightness, kPixels);
  std::memset(bytes.get() + kPixels, 128, kPixels / 2);
  return {bytes, bytes.get()};
}

Outcome FlashLesson::Record(const std::string& path) const {
  auto file = LessonFile::Create(path, {kind, kWidth, kHeight, true});
  if (!file) return file.Failure();
  Microphone microphone(tooFast);
  const LessonPicture dark = PlainPicture(16), bright = PlainPicture(235);
  for (int place = 0; place < static_cast<int>(seconds * LessonFile::kRate); ++place) {
    const double now = static_cast<double>(place) / LessonFile::kRate;
    const bool flash = now >= kFirst && std::fmod(now - kFirst, kEvery) < 0.1;
    if (const Outcome seen = (*file)->TakePicture(flash ? bright : dark, Ns(now)); !seen) return seen;
    while (microphone.Now() < now) {
      const double at = microphone.Now();
      const std::vector<std::int16_t> samples = microphone.Hear();
      if (hole > 0 && at > hole && at < hole + 1) continue;
      const double tremble = (place % 5 - 2) * 0.001;
      if (const Outcome heard = (*file)->TakeSound(samples, Ns(at + tremble)); !heard) return heard;
    }
  }
  return (*file)->Close(Ns(seconds));
}

Outcome KeepLesson(const std::string& from, const std::string& to) {
  LessonCopy copy(from, to);
  while (copy.Step()) {
  }
  return copy.How();
}

std::vector<double> ClicksIn(const std::string& path) {
  const auto reader = SoundReader::Open(path);
  std::vector<double> found;
  if (!reader) return found;
  reader->Begin(0);
  std::vector<std::int16_t> samples;
  while (reader->Read(samples)) {
  }
  for (std::size_t i = 0; i < samples.size(); i += SoundReader::kChannels) {
    const double at = static_cast<double>(i) / SoundReader::kChannels / SoundReader::kRate;
    if (std::abs(samples[i]) > 6000 && (found.empty() || at - found.back() > 1)) found.push_back(at);
  }
  return found;
}

std::vector<double> FlashesIn(const std::string& path) {
  const auto video = VideoFile::Open(path);
  std::vector<double> found;
  if (!video) return found;
  bool before = false;
  for (int frame = 0; frame < (*video)->Info().frameCount; ++frame) {
    const FrameRows rows = (*video)->Frame(frame, 24);
    const bool bright = rows && rows.bits[rows.height / 2 * rows.rowBytes + rows.width / 2 * 3] > 128;
    if (bright && !before) found.push_back((*video)->SampleToTime(frame) / 1000);
    before = bright;
  }
  return found;
}

}  // namespace kinalyx::test
