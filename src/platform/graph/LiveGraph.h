#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/graph/IGraph.h"
#include "platform/host/Post.h"

namespace kinalyx {

class DeviceSources;

/// The graph that really sees and records.
class LiveGraph final : public IGraph {
 public:
  /// @param events   outlives this
  /// @param sources  what opens the devices of the list
  LiveGraph(IGraphEvents& events, std::shared_ptr<const DeviceSources> sources, std::shared_ptr<IPost> post);
  ~LiveGraph() override;

  Outcome GraphXmlLoad(std::string_view text) override;
  Outcome GraphSetDevice(std::string_view label, std::string_view device) override;
  Outcome GraphSetVideoFormat(std::string_view label, int width, int height, std::string_view format) override;
  Outcome GraphSetFrameTime(std::string_view label, double seconds) override;
  Outcome GraphSetAudioPin(int index) override;
  Outcome GraphSetFileSource(std::string_view label, std::string_view path) override;
  Outcome GraphSetFileSink(std::string_view label, std::string_view path) override;
  Outcome GraphRun() override;
  Outcome GraphStop() override;
  void GraphClear() override;

 protected:
  IGraphFilter* Filter(std::string_view label) override;

 private:
  struct Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace kinalyx
