#include "platform/graph/GraphBuilder.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <numeric>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/CapsChoices.h"
#include "platform/graph/FilterBin.h"
#include "platform/graph/GraphEnds.h"
#include "platform/graph/SourceProbe.h"

namespace kinalyx {
namespace {

class Builder {
 public:
  Builder(const GraphOrder& order, const GraphNews& news) : order_(order), news_(news) {
    strand_.pipeline.reset(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
  }

  Result<Strand> Build(const std::vector<std::size_t>& filters, std::string& culprit) {
    strand_.filters = filters;
    bins_.resize(order_.plan.filters.size());
    for (const std::size_t filter : filters) {
      const Outcome made = MakeFilter(filter);
      if (made) continue;
      culprit = order_.plan.filters[filter].label;
      return made;
    }
    for (const GraphPlan::Link& link : order_.plan.links) {
      if (!bins_[link.from] || !bins_[link.to] || !order_.plan.Flows(link)) continue;
      const Outcome made = MakeLink(link);
      if (made) continue;
      culprit = order_.plan.filters[link.from].label;
      return made;
    }
    return std::move(strand_);
  }

 private:
  Outcome MakeFilter(std::size_t index) {
    const GraphPlan::Filter& filter = order_.plan.filters[index];
    // A lesson without a voice.
    if (filter.row->role == FilterRole::Microphone && order_.settings[index].device.empty() && LessonBehind(index))
      return Outcome();
    FilterBin& bin = bins_[index].emplace(GST_BIN(strand_.pipeline.get()), filter.label);
    switch (filter.row->role) {
      case FilterRole::Camera:
      case FilterRole::Microphone:
      case FilterRole::AudioTrigger:
        if (const Outcome made = AppendDevice(bin, index); !made) return made;
        // The trigger's microphone is heard by nobody but the meter.
        if (filter.row->role == FilterRole::AudioTrigger)
          AppendHearing(bin, order_.faces.triggers[index], order_.beginNs);
        break;
      case FilterRole::FileSource:
        if (GstElement* source = bin.Append("filesrc"))
          g_object_set(source, "location", order_.settings[index].path.c_str(), nullptr);
        if (!filter.row->bin.empty()) bin.AppendDescribed(std::string(filter.row->bin));
        break;
      case FilterRole::Renderer: AppendPreview(bin, order_.faces.renderers[index], news_, order_.beginNs); break;
      case FilterRole::Writer: AppendWriter(bin, order_.faces.writers[index]->Lane()); break;
      case FilterRole::Element: AppendElement(bin, filter); break;
      case FilterRole::Motion:
        if (GstElement* seen = AppendElement(bin, filter)) {
          const GstRef<GstPad> pad(gst_element_get_static_pad(seen, "src"));
          DetectMotion(pad.get(), order_.faces.motions[index]);
        }
        break;
      case FilterRole::Gate:
        if (GstElement* gate = bin.Append("identity")) {
          const GstRef<GstPad> pad(gst_element_get_static_pad(gate, "src"));
          HoldBack(pad.get(), order_.faces.gates[index], order_.beginNs);
        }
        break;
      case FilterRole::Tee:
      case FilterRole::Block:
        if (GstElement* tee = bin.Append("tee")) g_object_set(tee, "allow-not-linked", TRUE, nullptr);
        break;
      case FilterRole::Mux: bin.Append("identity"); break;
      case FilterRole::Trigger: break;
    }
    if (!bin.Whole()) return Outcome::Failed(Tr("A part of the library for cameras is missing on this machine."));
    return Outcome();
  }

  Outcome AppendDevice(FilterBin& bin, std::size_t index) {
    const bool camera = order_.plan.filters[index].row->role == FilterRole::Camera;
    const FilterSetting& setting = order_.settings[index];
    if (setting.device.empty())
      return Outcome::Failed(camera ? Tr("No camera is chosen.") : Tr("No microphone is chosen."));
    GstElement* source = camera
                             ? order_.sources->MakeCameraSource(setting.device, setting.mode ? &*setting.mode : nullptr)
                             : order_.sources->MakeMicrophoneSource(setting.device);
    if (!source) return Outcome::Failed(Tr("{} is not connected.", setting.device));
    bin.Append(source);
    auto watch = std::make_shared<SourceWatch>();
    watch->label = order_.plan.filters[index].label;
    watch->camera = camera;
    watch->lastNs = MonotonicNow();
    const GstRef<GstPad> pad(gst_element_get_static_pad(source, "src"));
    WatchSource(pad.get(), watch, order_.beginNs);
    strand_.sources.push_back(std::move(watch));
    return Outcome();
  }

  /// Where pictures are only shown, a new one is worth more than all old ones: what is done to them must not lag behind
  /// the camera on a slow machine.
  bool OnlyShown() const {
    return std::ranges::none_of(order_.plan.filters, [](const GraphPlan::Filter& filter) {
      return filter.row->role == FilterRole::Writer || filter.row->role == FilterRole::Block ||
             filter.row->role == FilterRole::FileSource;
    });
  }

  GstElement* AppendElement(FilterBin& bin, const GraphPlan::Filter& filter) {
    if (filter.row->entry != FilterEntry::AsTheyCome) {
      GstElement* const queue = bin.Append("queue");
      bin.AppendPlugged(gst_element_factory_make("identity", nullptr), ChooseEntry(filter.row->entry));
      if (queue && OnlyShown()) {
        // Packed pictures may need each other: none is left out before it is unpacked.
        constexpr guint kPacked = 4;
        g_object_set(queue, "max-size-buffers", kPacked, nullptr);
        if (GstElement* const newest = bin.Append("queue"))
          g_object_set(newest, "leaky", 2 /* the oldest goes */, "max-size-buffers", 1U, "max-size-bytes", 0U,
                       "max-size-time", G_GUINT64_CONSTANT(0), nullptr);
      }
    }
    const auto word = [&](std::size_t at) { return at < filter.state.size() ? filter.state[at] : 0; };
    return bin.AppendDescribed(fmt::format(fmt::runtime(filter.row->bin), word(0), word(1)));
  }

  void AppendWriter(FilterBin& bin, const std::shared_ptr<IFileLane>& lane) const {
    if (auto lesson = std::dynamic_pointer_cast<LessonLane>(lane)) AppendLesson(bin, std::move(lesson), order_.beginNs);
    else AppendFile(bin, std::dynamic_pointer_cast<IPictureLane>(lane), order_.beginNs);
  }

  /// The lesson that is written behind a filter; null for none.
  std::shared_ptr<LessonLane> LessonBehind(std::size_t filter) const {
    const auto writer = order_.plan.Downstream(filter, FilterRole::Writer);
    return writer ? std::dynamic_pointer_cast<LessonLane>(order_.faces.writers[*writer]->Lane()) : nullptr;
  }

  /// Where the filter takes what comes over a link.
  GstRef<GstPad> InputOf(const GraphPlan::Link& link) {
    const auto& to = order_.plan.filters[link.to];
    // What a mux takes beside the pictures is kept of a lesson alone.
    if (to.row->role != FilterRole::Mux || link.in == to.row->inputs[0]) return bins_[link.to]->Input();
    auto lesson = LessonBehind(link.to);
    return lesson ? bins_[link.to]->SideEnd(MakeLessonVoice(std::move(lesson), order_.beginNs))
                  : bins_[link.to]->DeadEnd();
  }

  Outcome MakeLink(const GraphPlan::Link& link) {
    const auto& from = order_.plan.filters[link.from];
    const auto& to = order_.plan.filters[link.to];
    const GstRef<GstPad> out = bins_[link.from]->Output();
    const GstRef<GstPad> in = InputOf(link);
    if (!out || !in || gst_pad_link_full(out.get(), in.get(), GST_PAD_LINK_CHECK_NOTHING) != GST_PAD_LINK_OK)
      return Outcome::Failed(Tr("\"{}\" cannot be connected with \"{}\".", from.label, to.label));
    return Outcome();
  }

  const GraphOrder& order_;
  const GraphNews& news_;
  Strand strand_;
  std::vector<std::optional<FilterBin>> bins_;  ///< by the filters' place in the plan; none where another strand has it
};

bool Carries(FilterRole role) { return role != FilterRole::Trigger; }

}  // namespace

std::vector<std::vector<std::size_t>> PartsOf(const GraphPlan& plan) {
  std::vector<std::size_t> part(plan.filters.size());
  std::iota(part.begin(), part.end(), std::size_t{0});
  std::vector<bool> linked(plan.filters.size());
  for (const GraphPlan::Link& link : plan.links) {
    if (!plan.Flows(link)) continue;
    linked[link.from] = linked[link.to] = true;
    const std::size_t joined = part[link.from], gone = part[link.to];
    std::ranges::replace(part, gone, joined);
  }
  std::vector<std::vector<std::size_t>> parts;
  for (std::size_t which = 0; which < plan.filters.size(); ++which) {
    std::vector<std::size_t> filters;
    for (std::size_t i = 0; i < plan.filters.size(); ++i) {
      const FilterRole role = plan.filters[i].row->role;
      if (part[i] == which && Carries(role) && (linked[i] || role == FilterRole::AudioTrigger)) filters.push_back(i);
    }
    if (!filters.empty()) parts.push_back(std::move(filters));
  }
  return parts;
}

Result<Strand> BuildStrand(const GraphOrder& order, const std::vector<std::size_t>& filters, const GraphNews& news,
                           std::string& culprit) {
  if (!GstBegun()) return Outcome::Failed(Tr("The library for cameras cannot be used on this machine."));
  return Builder(order, news).Build(filters, culprit);
}

std::string LabelOf(GstMessage* message, const GraphPlan& plan) {
  GstRef<GstObject> object(GST_OBJECT(gst_object_ref(GST_MESSAGE_SRC(message))));
  while (object) {
    const auto found = plan.Find(GST_OBJECT_NAME(object.get()));
    if (found) return plan.filters[*found].label;
    object.reset(gst_object_get_parent(object.get()));
  }
  return {};
}

std::int64_t MonotonicNow() {
  return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
}

}  // namespace kinalyx
