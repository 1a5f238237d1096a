#include "platform/graph/GraphEnds.h"

#include <gst/app/gstappsink.h>

#include <cstring>
#include <utility>
#include <vector>

#include "platform/graph/CapsChoices.h"
#include "platform/graph/GstHandles.h"
#include "platform/graph/PictureBytes.h"
#include "platform/graph/PreviewPainter.h"
#include "platform/graph/ScreenPainter.h"

namespace kinalyx {
namespace {

/// Takes pictures, or sound, out of a graph, in a streaming thread.
class PictureTaker {
 public:
  virtual ~PictureTaker() = default;
  /// @param ns  nanoseconds of CLOCK_MONOTONIC at which it was taken
  virtual void Take(GstSample* sample, std::int64_t ns) = 0;
};

struct Taking {
  Taking(std::unique_ptr<PictureTaker> who, std::int64_t begin) : taker(std::move(who)), beginNs(begin) {}

  static GstFlowReturn Sample(GstAppSink* sink, gpointer self) {
    const auto& taking = *static_cast<Taking*>(self);
    const GstSampleRef sample(gst_app_sink_pull_sample(sink));
    if (!sample) return GST_FLOW_EOS;
    const GstClockTime at =
        RunningTime(gst_sample_get_segment(sample.get()), GST_BUFFER_PTS(gst_sample_get_buffer(sample.get())));
    if (GST_CLOCK_TIME_IS_VALID(at)) taking.taker->Take(sample.get(), taking.beginNs + static_cast<std::int64_t>(at));
    return GST_FLOW_OK;
  }

  std::unique_ptr<PictureTaker> taker;
  std::int64_t beginNs;
};

/// An end of the graph that waits for no clock.
GstElement* MakeEnd(std::unique_ptr<PictureTaker> taker, std::int64_t beginNs) {
  GstElement* sink = gst_element_factory_make("appsink", nullptr);
  if (!sink) return nullptr;
  g_object_set(sink, "sync", FALSE, "async", FALSE, "enable-last-sample", FALSE, "wait-on-eos", FALSE, nullptr);
  GstAppSinkCallbacks callbacks{};
  callbacks.new_sample = Taking::Sample;
  auto taking = std::make_unique<Taking>(std::move(taker), beginNs);
  gst_app_sink_set_callbacks(GST_APP_SINK(sink), &callbacks, taking.release(),
                             [](gpointer self) { std::unique_ptr<Taking>(static_cast<Taking*>(self)); });
  return sink;
}

class Shower final : public PictureTaker {
 public:
  Shower(std::shared_ptr<RendererFace> face, GraphNews news) : face_(std::move(face)), news_(std::move(news)) {}

  void Take(GstSample* sample, std::int64_t ns) override {
    LivePicture picture = painter_.Paint(sample, face_->Wanted());
    if (!picture.pixels) return;
    picture.takenAt = ns;
    face_->Show(std::move(picture), news_);
  }

 private:
  std::shared_ptr<RendererFace> face_;
  GraphNews news_;
  PreviewPainter painter_;
};

class Filer final : public PictureTaker {
 public:
  explicit Filer(std::shared_ptr<IPictureLane> lane) : lane_(std::move(lane)) {}

  void Take(GstSample* sample, std::int64_t ns) override {
    auto picture = PackPicture(sample);
    if (!picture) return;
    picture->ns = ns;
    lane_->Push(std::move(*picture));
  }

 private:
  std::shared_ptr<IPictureLane> lane_;
};

class LessonPictures final : public PictureTaker {
 public:
  explicit LessonPictures(std::shared_ptr<LessonLane> lane) : lane_(std::move(lane)) {}

  void Take(GstSample* sample, std::int64_t ns) override {
    ScreenPicture picture = painter_.Paint(sample);
    if (picture.pixels) lane_->PushPicture(std::move(picture), ns);
  }

 private:
  std::shared_ptr<LessonLane> lane_;
  ScreenPainter painter_;
};

class Hearer final : public PictureTaker {
 public:
  explicit Hearer(std::shared_ptr<AudioTriggerFace> face) : face_(std::move(face)) {}

  void Take(GstSample* sample, std::int64_t ns) override {
    int rate = 0;
    gst_structure_get_int(gst_caps_get_structure(gst_sample_get_caps(sample), 0), "rate", &rate);
    GstMapInfo map;
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    if (!gst_buffer_map(buffer, &map, GST_MAP_READ)) return;
    samples_.resize(map.size / sizeof(float));
    std::memcpy(samples_.data(), map.data, samples_.size() * sizeof(float));
    gst_buffer_unmap(buffer, &map);
    face_->Hear(samples_, rate, ns);
  }

 private:
  std::shared_ptr<AudioTriggerFace> face_;
  std::vector<float> samples_;
};

class LessonVoice final : public PictureTaker {
 public:
  explicit LessonVoice(std::shared_ptr<LessonLane> lane) : lane_(std::move(lane)) {}

  void Take(GstSample* sample, std::int64_t ns) override {
    GstMapInfo map;
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    if (!gst_buffer_map(buffer, &map, GST_MAP_READ)) return;
    std::vector<std::int16_t> samples(map.size / sizeof(std::int16_t));
    std::memcpy(samples.data(), map.data, samples.size() * sizeof(std::int16_t));
    gst_buffer_unmap(buffer, &map);
    lane_->PushSound(std::move(samples), ns);
  }

 private:
  std::shared_ptr<LessonLane> lane_;
};

/// A queue of so much, from which those leave whom the other end cannot take: the oldest or the newest.
enum class Leaves { Newest = 1, Oldest = 2 };
GstElement* AppendQueue(FilterBin& bin, guint pictures, GstClockTime time, Leaves leaves) {
  if (GstElement* guard = bin.Append("errorignore")) g_object_set(guard, "ignore-notlinked", TRUE, nullptr);
  GstElement* queue = bin.Append("queue");
  if (queue)
    g_object_set(queue, "max-size-buffers", pictures, "max-size-bytes", 0U, "max-size-time", time, "leaky",
                 static_cast<int>(leaves), "silent", TRUE, nullptr);
  return queue;
}

/// Drops what the face would only pass over before it is decoded.
void DropWhileFull(GstElement* queue, std::shared_ptr<RendererFace> face) {
  using Held = std::shared_ptr<RendererFace>;
  const GstRef<GstPad> pad(gst_element_get_static_pad(queue, "sink"));
  gst_pad_add_probe(
      pad.get(), GST_PAD_PROBE_TYPE_BUFFER,
      [](GstPad*, GstPadProbeInfo*, gpointer held) {
        return (*static_cast<Held*>(held))->Full() ? GST_PAD_PROBE_DROP : GST_PAD_PROBE_OK;
      },
      std::make_unique<Held>(std::move(face)).release(),
      [](gpointer held) { std::unique_ptr<Held>(static_cast<Held*>(held)); });
}

}  // namespace

void AppendPreview(FilterBin& bin, std::shared_ptr<RendererFace> face, const GraphNews& news, std::int64_t beginNs) {
  GstElement* queue = AppendQueue(bin, 1, 0, Leaves::Oldest);
  if (queue) DropWhileFull(queue, face);
  bin.AppendPlugged(MakeEnd(std::make_unique<Shower>(face, news), beginNs), ChooseForPreview());
}

void AppendFile(FilterBin& bin, std::shared_ptr<IPictureLane> lane, std::int64_t beginNs) {
  AppendQueue(bin, 0, 2 * GST_SECOND, Leaves::Newest);
  bin.AppendPlugged(MakeEnd(std::make_unique<Filer>(std::move(lane)), beginNs), ChooseForFile());
}

void AppendHearing(FilterBin& bin, std::shared_ptr<AudioTriggerFace> face, std::int64_t beginNs) {
  bin.AppendDescribed("audioconvert ! capsfilter caps=audio/x-raw,format=F32LE,channels=1,layout=interleaved");
  bin.Append(MakeEnd(std::make_unique<Hearer>(std::move(face)), beginNs));
}

void AppendLesson(FilterBin& bin, std::shared_ptr<LessonLane> lane, std::int64_t beginNs) {
  constexpr guint kPictures = 4;  // they are large here
  AppendQueue(bin, kPictures, 0, Leaves::Newest);
  bin.AppendDescribed("videoconvert ! capsfilter caps=video/x-raw,format=BGRx");
  bin.Append(MakeEnd(std::make_unique<LessonPictures>(std::move(lane)), beginNs));
}

GstElement* MakeLessonVoice(std::shared_ptr<LessonLane> lane, std::int64_t beginNs) {
  return MakeEnd(std::make_unique<LessonVoice>(std::move(lane)), beginNs);
}

}  // namespace kinalyx
