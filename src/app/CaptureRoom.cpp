#include "app/CaptureRoom.h"

#include "capture/forms/CaptureSection.h"
#include "library/TodayText.h"
#include "platform/graph/DeviceList.h"
#include "platform/graph/LiveGraph.h"
#include "platform/graph/ShortSounds.h"
#include "platform/graph/VoiceRecorder.h"
#include "platform/host/Post.h"

namespace kinalyx {

CaptureRoom::CaptureRoom(Parts parts)
    : parts_(parts),
      post_(MakeQtPost()),
      devices_(std::make_unique<DeviceList>(parts.services.host, post_)),
      setup_(parts.settings, *devices_),
      sounds_(MakeShortSounds()),
      naming_(parts.settings, ChangeDateFormat) {}

CaptureRoom::~CaptureRoom() = default;

CapturePage* CaptureRoom::MakePage() {
  return new CapturePage({.services = parts_.services,
                          .settings = parts_.settings,
                          .fields = parts_.fields,
                          .remembered = parts_.remembered,
                          .setup = setup_,
                          .naming = naming_,
                          .ways = parts_.ways,
                          .sounds = *sounds_,
                          .makeGraph = [this](IGraphEvents& events) { return MakeGraph(events); }});
}

std::unique_ptr<IGraph> CaptureRoom::MakeGraph(IGraphEvents& events) const {
  return std::make_unique<LiveGraph>(events, devices_->Sources(), post_);
}

CaptureSection* CaptureRoom::MakeSection() {
  return new CaptureSection(parts_.services.host, parts_.settings, setup_, naming_);
}

std::unique_ptr<IVoiceRecorder> CaptureRoom::MakeVoiceRecorder() {
  return kinalyx::MakeVoiceRecorder(devices_->Sources());
}

}  // namespace kinalyx
