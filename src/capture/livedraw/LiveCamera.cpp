#include "capture/livedraw/LiveCamera.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "capture/templates/CaptureTemplates.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kRetryMs = 3000;    ///< after a camera has failed
constexpr int kHandOverMs = 500;  ///< after somebody else has let it go
constexpr const char* kStarting = TrLater("Starting the camera...");
constexpr std::string_view kSource = "VideoSource";

}  // namespace

LiveCamera::LiveCamera(IHost& host, CaptureSetup& setup, MakeGraph makeGraph, ILiveCameraEvents& events)
    : host_(host), setup_(setup), makeGraph_(std::move(makeGraph)), events_(events) {
  setup_.Listen(*this);
}

LiveCamera::~LiveCamera() { setup_.StopListening(*this); }

void LiveCamera::Open() {
  open_ = true;
  frozen_ = false;
  Rebuild();
}

void LiveCamera::Close() {
  open_ = false;
  frozen_ = false;
  StopGraph();
  DropPicture();
}

void LiveCamera::GiveAway(bool away) {
  if (std::exchange(away_, away) == away || !open_) return;
  frozen_ = false;
  if (away) {
    Rebuild();
    graph_.reset();  // which waits for the camera
    return;
  }
  // Who had the camera may still be letting it go.
  words_ = Tr(kStarting);
  retry_ = HostTimer(host_, kHandOverMs, false, [this] { Rebuild(); });
  events_.CameraChanged();
}

void LiveCamera::Freeze() {
  if (!running_ || !picture_.pixels) return;
  (void)graph_->GraphStop();
  running_ = false;
  frozen_ = true;
  events_.CameraChanged();
}

/// The picture stays until the next one comes.
void LiveCamera::GoLive() {
  if (std::exchange(frozen_, false)) Rebuild();
}

void LiveCamera::SetMirror(bool on) {
  if (std::exchange(mirror_, on) == on) return;
  // A frozen picture is turned by who shows it; its graph is built as it goes on.
  if (open_ && !away_ && !frozen_) Rebuild();
}

/// What was seen stays until there is something new, as long as it is the same camera.
void LiveCamera::Rebuild() {
  StopGraph();
  if (!open_) return;
  if (away_) {
    DropPicture();
    words_ = Tr("The camera is on the page Capture Videos. Leave that page, and it shows here again.");
  } else if (BuildGraph()) {
    if (const Outcome run = graph_->GraphRun(); run) {
      running_ = true;
    } else {
      words_ = run.Why();
    }
  }
  if (!running_) DropPicture();
  events_.CameraChanged();
}

/// False where there is nothing that could run; the words say why.
bool LiveCamera::BuildGraph() {
  words_.clear();
  if (!graph_) graph_ = makeGraph_(*this);
  if (const Outcome loaded = graph_->GraphXmlLoad(mirror_ ? MVMotionDraw : MVMotionDraw2); !loaded) {
    words_ = loaded.Why();
    return false;
  }
  if (!BindCamera()) return false;
  if (IRendererFilter* renderer = Renderer()) renderer->WantSize(wanted_.width, wanted_.height);
  if (IMotionDetectionFilter* detector = Detector()) {
    detector->SetSensitivity(sensitivity_);
    for (Watched& watched : zones_) watched.region = detector->AddRegion(watched.zone.place);
  }
  return true;
}

bool LiveCamera::BindCamera() {
  const CameraChoice& choice = setup_.Shown(Camera());
  const bool known = setup_.Devices().Known();
  if (choice.name.empty() || (known && !setup_.ShownDevice(Camera()))) {
    words_ = !known                ? Tr("Looking for cameras...")
             : choice.name.empty() ? Tr("No camera is connected. Plug one in, and it shows here.")
                                   : Tr("{} is not connected. Plug it in, and it shows here.", choice.name);
    return false;
  }
  if (const Outcome bound = graph_->GraphSetDevice(kSource, choice.name); !bound) {
    words_ = bound.Why();
    return false;
  }
  bound_ = choice;
  if (!picture_.pixels) words_ = Tr(kStarting);
  const std::optional<PictureSize> size = SizeOf(choice.size);
  if (!size) return true;
  // A camera that has no such form gives its nearest one.
  (void)graph_->GraphSetVideoFormat(kSource, size->width, size->height, FormatCode(choice.format));
  if (const double rate = FormatRate(choice.format); rate > 0) (void)graph_->GraphSetFrameTime(kSource, 1 / rate);
  return true;
}

void LiveCamera::StopGraph() {
  retry_.Stop();
  for (Watched& watched : zones_) watched.region = 0;
  if (!graph_) return;
  if (std::exchange(running_, false)) (void)graph_->GraphStop();
  graph_->GraphClear();
}

void LiveCamera::DropPicture() { picture_ = {}; }

void LiveCamera::WantSize(int width, int height) {
  wanted_ = {width, height};
  if (!graph_) return;
  if (IRendererFilter* renderer = Renderer()) renderer->WantSize(width, height);
}

// ---------------------------------------------------------------- zones

IMotionDetectionFilter* LiveCamera::Detector() const {
  return graph_ ? graph_->GraphFilterByLabel<IMotionDetectionFilter>("MV Motion Detection") : nullptr;
}

/// A zone that has only moved stays the region that it is.
void LiveCamera::SetZones(const std::vector<HotZone>& zones) {
  IMotionDetectionFilter* detector = Detector();
  std::vector<Watched> watched;
  for (const HotZone& zone : zones) {
    const auto before =
        std::ranges::find_if(zones_, [&](const Watched& each) { return each.zone.id == zone.id && each.region > 0; });
    int region = 0;
    if (before != zones_.end()) {
      region = std::exchange(before->region, 0);
      if (detector && before->zone.place != zone.place) detector->MoveRegion(region, zone.place);
    } else if (detector) {
      region = detector->AddRegion(zone.place);
    }
    watched.push_back({zone, region});
  }
  for (const Watched& gone : zones_)
    if (detector && gone.region > 0) detector->DeleteRegion(gone.region);
  zones_ = std::move(watched);
}

void LiveCamera::SetSensitivity(int sensitivity) {
  sensitivity_ = sensitivity;
  if (IMotionDetectionFilter* detector = Detector()) detector->SetSensitivity(sensitivity);
}

std::vector<int> LiveCamera::ZonesOf(const std::vector<int>& regions) const {
  std::vector<int> zones;
  for (const Watched& watched : zones_)
    if (watched.region > 0 && std::ranges::find(regions, watched.region) != regions.end())
      zones.push_back(watched.zone.id);
  return zones;
}

std::vector<int> LiveCamera::TakeFired() {
  IMotionDetectionFilter* detector = Detector();
  return detector && running_ ? ZonesOf(detector->TakeFired()) : std::vector<int>();
}

std::vector<int> LiveCamera::Moving() const {
  const IMotionDetectionFilter* detector = Detector();
  return detector && running_ ? ZonesOf(detector->Moving()) : std::vector<int>();
}

// ---------------------------------------------------------------- what is told

void LiveCamera::PictureCame(const std::string&) {
  IRendererFilter* renderer = Renderer();
  if (!renderer || !running_) return;
  LivePicture picture = renderer->Latest();
  if (!picture.pixels) return;
  const bool first = !picture_.pixels || !words_.empty();
  picture_ = std::move(picture);
  pictureMirrored_ = mirror_;
  words_.clear();
  if (first) events_.CameraChanged();
  events_.LivePictureCame();
}

/// A camera that another program has, or that is being plugged in anew, is asked again.
void LiveCamera::SourceFailed(const std::string&, const std::string& why) {
  StopGraph();
  DropPicture();
  words_ = why;
  if (open_) retry_ = HostTimer(host_, kRetryMs, false, [this] { Rebuild(); });
  events_.CameraChanged();
}

void LiveCamera::PreviewFailed(const std::string&) {
  DropPicture();
  words_ = Tr("The picture of this camera cannot be shown.");
  events_.CameraChanged();
}

void LiveCamera::CaptureChoiceChanged() {
  events_.CamerasChanged();
  const CameraChoice& choice = setup_.Shown(Camera());
  const bool same = choice.name == bound_.name && choice.size == bound_.size && choice.format == bound_.format;
  if (!open_ || away_ || (same && (frozen_ || running_))) return;
  frozen_ = false;
  DropPicture();
  Rebuild();
}

/// One that was missed may be there now; one that is seen goes on.
void LiveCamera::CaptureDevicesChanged() {
  events_.CamerasChanged();
  if (open_ && !away_ && !frozen_ && !picture_.pixels) Rebuild();
}

}  // namespace kinalyx
