#include "platform/graph/MotionFace.h"

#include <gst/video/video.h>

#include <algorithm>
#include <utility>

namespace kinalyx {
namespace {

constexpr std::int64_t kQuietNs = 300'000'000;    // after which motion begins anew
constexpr std::int64_t kAgainNs = 1'000'000'000;  // after which one that goes on is told again

/// The detector of one run.
struct Tap {
  explicit Tap(std::shared_ptr<MotionFace> whose) : face(std::move(whose)) {}

  void Look(GstPad* pad, GstBuffer* buffer) {
    GstCaps* caps = gst_pad_get_current_caps(pad);
    GstVideoInfo info;
    const bool known = caps && gst_video_info_from_caps(&info, caps);
    if (caps) gst_caps_unref(caps);
    GstVideoFrame frame;
    if (!known || !GST_BUFFER_PTS_IS_VALID(buffer) || !gst_video_frame_map(&frame, &info, buffer, GST_MAP_READ)) return;
    face->Brief(detector, told);
    const auto ns = static_cast<std::int64_t>(GST_BUFFER_PTS(buffer));
    face->Tell(detector.Look({static_cast<const std::uint8_t*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, 0)), info.width,
                              info.height, GST_VIDEO_FRAME_PLANE_STRIDE(&frame, 0), ns}),
               ns);
    gst_video_frame_unmap(&frame);
  }

  std::shared_ptr<MotionFace> face;
  MotionDetector detector;
  int told = 0;
};

}  // namespace

int MotionFace::AddRegion(const MotionRect& place) {
  const std::lock_guard lock(mutex_);
  regions_.push_back({++lastNumber_, place});
  Changed();
  return lastNumber_;
}

void MotionFace::MoveRegion(int region, const MotionRect& place) {
  const std::lock_guard lock(mutex_);
  const auto found = std::ranges::find(regions_, region, &MotionRegion::number);
  if (found == regions_.end()) return;
  found->place = place;
  Changed();
}

void MotionFace::DeleteRegion(int region) {
  const std::lock_guard lock(mutex_);
  std::erase_if(regions_, [region](const MotionRegion& each) { return each.number == region; });
  std::erase(fired_, region);
  std::erase(moving_, region);
  motions_.erase(region);
  Changed();
}

void MotionFace::KillRegions() {
  const std::lock_guard lock(mutex_);
  regions_.clear();
  fired_.clear();
  moving_.clear();
  motions_.clear();
  Changed();
}

void MotionFace::SetSensitivity(int sensitivity) {
  const std::lock_guard lock(mutex_);
  sensitivity_ = std::clamp(sensitivity, 0, 100);
  Changed();
}

std::vector<int> MotionFace::TakeFired() {
  const std::lock_guard lock(mutex_);
  return std::exchange(fired_, {});
}

std::vector<int> MotionFace::Moving() const {
  const std::lock_guard lock(mutex_);
  return moving_;
}

void MotionFace::Brief(MotionDetector& detector, int& told) const {
  const std::lock_guard lock(mutex_);
  if (std::exchange(told, version_) == version_) return;
  detector.SetRegions(regions_);
  detector.SetSensitivity(sensitivity_);
}

void MotionFace::Tell(const std::vector<int>& moving, std::int64_t ns) {
  const std::lock_guard lock(mutex_);
  moving_.clear();
  for (const int region : moving) {
    // It may have gone while the picture was looked at.
    if (std::ranges::find(regions_, region, &MotionRegion::number) == regions_.end()) continue;
    moving_.push_back(region);
    auto [motion, first] = motions_.try_emplace(region);
    const bool begins =
        first || ns - std::exchange(motion->second.seenNs, ns) > kQuietNs || ns < motion->second.firedNs;
    motion->second.seenNs = ns;
    if (!begins && ns - motion->second.firedNs < kAgainNs) continue;
    motion->second.firedNs = ns;
    if (std::ranges::find(fired_, region) == fired_.end()) fired_.push_back(region);
  }
}

void DetectMotion(GstPad* pad, std::shared_ptr<MotionFace> face) {
  gst_pad_add_probe(
      pad, GST_PAD_PROBE_TYPE_BUFFER,
      [](GstPad* passed, GstPadProbeInfo* info, gpointer tap) {
        static_cast<Tap*>(tap)->Look(passed, GST_PAD_PROBE_INFO_BUFFER(info));
        return GST_PAD_PROBE_OK;
      },
      std::make_unique<Tap>(std::move(face)).release(),
      [](gpointer tap) { std::unique_ptr<Tap>(static_cast<Tap*>(tap)); });
}

}  // namespace kinalyx
