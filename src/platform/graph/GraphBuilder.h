#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/graph/DeviceSources.h"
#include "platform/graph/GraphFaces.h"
#include "platform/graph/GraphNews.h"
#include "platform/graph/GstHandles.h"
#include "platform/graph/MotionFace.h"
#include "platform/graph/TemplateReader.h"
#include "platform/graph/TriggerFaces.h"

namespace kinalyx {

/// What the user interface has said of one filter.
struct FilterSetting {
  std::string device;
  std::optional<PictureMode> mode;
  std::string path;  ///< of a source file
};

/// The faces of the filters, by their place in the plan; null where a filter has none, or another.
struct FilterFaces {
  std::vector<std::shared_ptr<RendererFace>> renderers;
  std::vector<std::shared_ptr<WriterFace>> writers;
  std::vector<std::shared_ptr<GateFace>> gates;
  std::vector<std::shared_ptr<AudioTriggerFace>> triggers;
  std::vector<std::shared_ptr<SwitchFace>> switches;
  std::vector<std::shared_ptr<BlockFace>> blocks;
  std::vector<std::shared_ptr<TriggerLine>> lines;  ///< of triggers of either kind
  std::vector<std::shared_ptr<MotionFace>> motions;
};

/// All that a run needs. Shared by its threads, and not changed any more.
struct GraphOrder {
  GraphPlan plan;
  std::vector<FilterSetting> settings;  ///< by their place in the plan
  FilterFaces faces;
  std::shared_ptr<const DeviceSources> sources;
  std::int64_t beginNs = 0;  ///< nanoseconds of CLOCK_MONOTONIC at which the time of all strands is 0
};

/// Watches one source of a strand.
struct SourceWatch {
  std::string label;
  bool camera = false;
  std::atomic<std::int64_t> lastNs = 0;  ///< when it gave something last, or began
  std::atomic<bool> given = false;       ///< it has given something
  std::atomic<bool> ended = false;
};

/// A part of a graph that hangs together.
struct Strand {
  GstRef<GstElement> pipeline;
  std::vector<std::shared_ptr<SourceWatch>> sources;
  std::vector<std::size_t> filters;  ///< by their place in the plan
};

/// The parts of a plan that are connected by pictures or sound, each with its filters; those that nothing flows
/// through are left out.
std::vector<std::vector<std::size_t>> PartsOf(const GraphPlan& plan);

/// Builds one part. It may take time, since devices are looked up.
/// @return  fails, with the words for SourceFailed, where a device is missing; `culprit` is the filter's label then
Result<Strand> BuildStrand(const GraphOrder& order, const std::vector<std::size_t>& filters, const GraphNews& news,
                           std::string& culprit);

/// The label of the filter that has sent a message; empty where it was none.
std::string LabelOf(GstMessage* message, const GraphPlan& plan);

std::int64_t MonotonicNow();

}  // namespace kinalyx
