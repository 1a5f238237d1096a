#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "platform/graph/IGraph.h"
#include "platform/host/Post.h"

namespace kinalyx {

/// Tells the user interface what happens in the threads of one run of a graph. Any thread may tell; nothing arrives
/// any more once the user interface has muted it.
class GraphNews {
 public:
  GraphNews(IGraphEvents& events, std::shared_ptr<IPost> post)
      : post_(std::move(post)), events_(std::make_shared<IGraphEvents*>(&events)) {}

  /// On the user-interface thread.
  void Mute() { *events_ = nullptr; }

  void PictureCame(const std::string& label) const {
    Tell([label](IGraphEvents& events) { events.PictureCame(label); });
  }
  void SourceFailed(const std::string& label, const std::string& why) const {
    Tell([label, why](IGraphEvents& events) { events.SourceFailed(label, why); });
  }
  void SinkFailed(const std::string& label, const std::string& why) const {
    Tell([label, why](IGraphEvents& events) { events.SinkFailed(label, why); });
  }
  void PreviewFailed(const std::string& label) const {
    Tell([label](IGraphEvents& events) { events.PreviewFailed(label); });
  }
  void TriggerFired(const std::string& label, int shot, std::int64_t ns) const {
    Tell([label, shot, ns](IGraphEvents& events) { events.TriggerFired(label, shot, ns); });
  }
  void BlockWritten(const std::string& label) const {
    Tell([label](IGraphEvents& events) { events.BlockWritten(label); });
  }
  void EndOfStream() const {
    Tell([](IGraphEvents& events) { events.EndOfStream(); });
  }

 private:
  template <typename Telling>
  void Tell(Telling tell) const {
    post_->Post([events = events_, tell = std::move(tell)] {
      if (*events) tell(**events);
    });
  }

  std::shared_ptr<IPost> post_;
  std::shared_ptr<IGraphEvents*> events_;  ///< shared by all copies; what it points to is the user interface's alone
};

}  // namespace kinalyx
