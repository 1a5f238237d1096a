#include "capture/CaptureData.h"

#include <cmath>

#include "core/Settings.h"
#include "library/Study.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

RecordingFacts FactsOf(const VideoInfo& info) {
  constexpr double kWide = 1.5;  // width by height
  RecordingFacts facts;
  facts.raw = info.compressor == "rawvideo" || info.compressor == "YUY2" || info.compressor == "DIB ";
  facts.fields = info.interlaced;
  facts.wide = info.height > 0 && static_cast<double>(info.width) / info.height > kWide;
  return facts;
}

SlotData CaptureFlags(const Settings& settings, bool dv, const RecordingFacts& facts) {
  const bool fields = dv || facts.fields;
  SlotData flags;
  flags.Wide = facts.wide;
  flags.ReverseFields = fields && settings.ReverseFields;
  flags.SplitFields = fields && settings.SplitFields;
  return flags;
}

Outcome KeepCaptureData(const std::string& videoPath, const RecordingTally& tally, const SlotData& flags) {
  // A rate that was measured over less than this tells no more than the camera's promise.
  constexpr std::int64_t kLeastNs = 1'000'000'000;
  constexpr double kSame = 0.002;
  if (const Outcome written = WriteVideoFlags(SidecarPath(videoPath), flags); !written) return written;
  const auto info = ReadVideoInfo(videoPath);
  if (!info || tally.rate <= 0 || tally.lastNs - tally.firstNs < kLeastNs) return Outcome();
  const double told = info->scale > 0 ? static_cast<double>(info->rate) / static_cast<double>(info->scale) : 0;
  if (std::abs(told - tally.rate) <= kSame * tally.rate) return Outcome();
  SlotData study;
  study.Study.TrueRate = tally.rate;
  return WriteStudy(StudyPath(videoPath), study);
}

}  // namespace kinalyx
