#pragma once

#include <functional>
#include <memory>
#include <string>

#include "capture/Monitoring.h"
#include "platform/graph/IGraph.h"

namespace kinalyx {

/// Shows what the microphone hears before monitoring begins, so that the threshold can be set by a trial clap.
class MicrophoneMeter : private IGraphEvents {
 public:
  using MakeGraph = std::function<std::unique_ptr<IGraph>(IGraphEvents&)>;
  /// Host and events outlive this.
  MicrophoneMeter(IHost& host, IMeterEvents& events, const MakeGraph& makeGraph);
  ~MicrophoneMeter() override;

  /// Nothing where it is heard already.
  void Start(const std::string& microphone, double threshold, double gain);
  void Stop();
  void SetLevels(double threshold, double gain);

 private:
  IAudioTriggerFilter* Trigger();

  void PictureCame(const std::string&) override {}
  void SourceFailed(const std::string& label, const std::string& why) override;
  void SinkFailed(const std::string&, const std::string&) override {}
  void EndOfStream() override {}
  void TriggerFired(const std::string& label, int shot, std::int64_t ns) override;

  IHost& host_;
  IMeterEvents& events_;
  std::unique_ptr<IGraph> graph_;
  std::string microphone_;  ///< that is heard
  HostTimer poll_;
};

}  // namespace kinalyx
