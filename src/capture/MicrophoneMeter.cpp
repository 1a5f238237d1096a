#include "capture/MicrophoneMeter.h"

#include "capture/templates/CaptureTemplates.h"

namespace kinalyx {
namespace {

constexpr int kPollMs = 50;
constexpr std::string_view kTrigger = "Audio Trigger";

}  // namespace

MicrophoneMeter::MicrophoneMeter(IHost& host, IMeterEvents& events, const MakeGraph& makeGraph)
    : host_(host), events_(events), graph_(makeGraph(*this)) {}

MicrophoneMeter::~MicrophoneMeter() = default;

IAudioTriggerFilter* MicrophoneMeter::Trigger() { return graph_->GraphFilterByLabel<IAudioTriggerFilter>(kTrigger); }

void MicrophoneMeter::Start(const std::string& microphone, double threshold, double gain) {
  if (microphone == microphone_ || microphone.empty()) return;
  Stop();
  if (!graph_->GraphXmlLoad(MVSetupGraph) || !graph_->GraphSetDevice(kTrigger, microphone)) return;
  SetLevels(threshold, gain);
  if (!graph_->GraphRun()) return;
  microphone_ = microphone;
  poll_ = HostTimer(host_, kPollMs, true, [this] {
    if (IAudioTriggerFilter* trigger = Trigger()) events_.SoundCame(trigger->Level(), false);
  });
}

void MicrophoneMeter::Stop() {
  poll_.Stop();
  if (microphone_.empty()) return;
  microphone_.clear();
  (void)graph_->GraphStop();
  graph_->GraphClear();
  events_.SoundCame(0, false);
}

void MicrophoneMeter::SetLevels(double threshold, double gain) {
  IAudioTriggerFilter* trigger = Trigger();
  if (!trigger) return;
  trigger->SetThreshold(threshold);
  trigger->SetGain(gain);
}

/// One that is gone is looked for when devices change.
void MicrophoneMeter::SourceFailed(const std::string& /*label*/, const std::string& /*why*/) { Stop(); }

void MicrophoneMeter::TriggerFired(const std::string& /*label*/, int /*shot*/, std::int64_t /*ns*/) {
  events_.SoundCame(1, true);
}

}  // namespace kinalyx
