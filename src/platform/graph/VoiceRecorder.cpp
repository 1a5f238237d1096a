#include "platform/graph/VoiceRecorder.h"

#include <gst/app/gstappsink.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/GstHandles.h"

namespace kinalyx {
namespace {

constexpr std::size_t kChannels = 2;
/// An hour and a half: nobody speaks longer over a clip, and memory has an end.
constexpr std::size_t kMostSamples = std::size_t{IVoiceRecorder::kRate} * kChannels * 5400;
/// Stamps tremble; a block that is off by less simply follows.
constexpr std::int64_t kTolerance = IVoiceRecorder::kRate / 25;
constexpr double kQuietest = 60;  // decibels below full that count as silence
constexpr int kWatchMs = 50;
/// A server that gives nothing for so long is told of.
constexpr int kPatienceMs = 3000;

/// What one recording has in common with its threads, which may outlive it.
struct Voice {
  std::mutex mutex;
  std::vector<std::int16_t> samples;
  std::string why;
  std::atomic<double> level{0};
  std::atomic<bool> ended{false};
  std::atomic<bool> heard{false};

  void Fail(const std::string& words) {
    const std::lock_guard lock(mutex);
    if (why.empty() && !ended) why = words;
  }
  /// @param at  samples of a channel from the start of the recording
  void Put(const std::int16_t* from, std::size_t count, std::int64_t at) {
    int loudest = 0;
    for (std::size_t i = 0; i < count; ++i) loudest = std::max(loudest, std::abs(int{from[i]}));
    level = loudest == 0 ? 0 : std::clamp(1 + 20 * std::log10(loudest / 32768.0) / kQuietest, 0.0, 1.0);
    heard = true;
    const std::lock_guard lock(mutex);
    if (ended || samples.size() + count > kMostSamples) return;
    const auto there = static_cast<std::int64_t>(samples.size() / kChannels);
    if (at > there + (samples.empty() ? 0 : kTolerance)) {
      const auto wanted = std::min(static_cast<std::size_t>(at) * kChannels, kMostSamples);
      samples.resize(wanted, 0);
    }
    samples.insert(samples.end(), from, from + count);
  }
};

GstFlowReturn TakeSample(GstAppSink* sink, gpointer data) {
  const GstSampleRef sample(gst_app_sink_pull_sample(sink));
  GstBuffer* buffer = sample ? gst_sample_get_buffer(sample.get()) : nullptr;
  GstMapInfo map;
  if (!buffer || !gst_buffer_map(buffer, &map, GST_MAP_READ)) return GST_FLOW_OK;
  const std::int64_t at =
      GST_BUFFER_PTS_IS_VALID(buffer)
          ? static_cast<std::int64_t>(gst_util_uint64_scale(GST_BUFFER_PTS(buffer), IVoiceRecorder::kRate, GST_SECOND))
          : 0;
  static_cast<Voice*>(data)->Put(reinterpret_cast<const std::int16_t*>(map.data), map.size / sizeof(std::int16_t), at);
  gst_buffer_unmap(buffer, &map);
  return GST_FLOW_OK;
}

/// The graph from the microphone to `voice`, whose times count from `zero` of the system's clock; null where the
/// microphone has gone.
GstRef<GstElement> MakeGraph(const DeviceSources& sources, const std::string& microphone, Voice& voice,
                             GstClockTime zero) {
  GstElement* source = sources.MakeMicrophoneSource(microphone);
  if (!source) return nullptr;
  GstRef<GstElement> pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr))));
  GstElement* convert = gst_element_factory_make("audioconvert", nullptr);
  GstElement* resample = gst_element_factory_make("audioresample", nullptr);
  GstElement* sink = gst_element_factory_make("appsink", nullptr);
  if (!convert || !resample || !sink) return nullptr;
  const GstCapsRef caps(gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, "S16LE", "layout", G_TYPE_STRING,
                                            "interleaved", "rate", G_TYPE_INT, IVoiceRecorder::kRate, "channels",
                                            G_TYPE_INT, static_cast<int>(kChannels), nullptr));
  g_object_set(sink, "caps", caps.get(), "sync", FALSE, nullptr);
  GstAppSinkCallbacks callbacks{};
  callbacks.new_sample = TakeSample;
  gst_app_sink_set_callbacks(GST_APP_SINK(sink), &callbacks, &voice, nullptr);
  gst_bin_add_many(GST_BIN(pipeline.get()), source, convert, resample, sink, nullptr);
  if (!gst_element_link_many(source, convert, resample, sink, nullptr)) return nullptr;
  const GstRef<GstClock> clock(gst_system_clock_obtain());
  gst_pipeline_use_clock(GST_PIPELINE(pipeline.get()), clock.get());
  gst_element_set_start_time(pipeline.get(), GST_CLOCK_TIME_NONE);
  gst_element_set_base_time(pipeline.get(), zero);
  return pipeline;
}

void Listen(const std::shared_ptr<Voice>& voice, const std::shared_ptr<const DeviceSources>& sources,
            const std::string& microphone, std::chrono::steady_clock::time_point zero) {
  if (!GstBegun()) return voice->Fail(Tr("This machine cannot record sound."));
  const GstRef<GstClock> clock(gst_system_clock_obtain());
  const auto ago =
      std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now() - zero).count();
  const GstClockTime began = gst_clock_get_time(clock.get()) - static_cast<GstClockTime>(ago);
  const GstRef<GstElement> pipeline = MakeGraph(*sources, microphone, *voice, began);
  if (!pipeline) return voice->Fail(Tr("The microphone cannot be found."));
  const GstRef<GstBus> bus(gst_element_get_bus(pipeline.get()));
  gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
  int waited = 0;
  while (!voice->ended) {
    const GstMessageRef message(gst_bus_timed_pop_filtered(
        bus.get(), kWatchMs * GST_MSECOND, static_cast<GstMessageType>(GST_MESSAGE_ERROR | GST_MESSAGE_EOS)));
    if (message) {
      voice->Fail(Tr("The microphone gives no sound any more."));
      break;
    }
    waited += kWatchMs;
    if (waited > kPatienceMs && !voice->heard) voice->Fail(Tr("The microphone does not answer."));
  }
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
}

class VoiceRecorder final : public IVoiceRecorder {
 public:
  explicit VoiceRecorder(std::shared_ptr<const DeviceSources> sources) : sources_(std::move(sources)) {}
  ~VoiceRecorder() override { VoiceRecorder::Stop(); }

  void Start(const std::string& microphone) override {
    Stop();
    voice_ = std::make_shared<Voice>();
    std::thread(Listen, voice_, sources_, microphone, std::chrono::steady_clock::now()).detach();
  }
  void Stop() override {
    if (voice_) voice_->ended = true;
  }
  double Level() const override { return voice_ ? voice_->level.load() : 0; }
  std::string Why() const override {
    if (!voice_) return {};
    const std::lock_guard lock(voice_->mutex);
    return voice_->why;
  }
  std::vector<std::int16_t> Take() override {
    if (!voice_) return {};
    const std::lock_guard lock(voice_->mutex);
    return std::exchange(voice_->samples, {});
  }

 private:
  std::shared_ptr<const DeviceSources> sources_;
  std::shared_ptr<Voice> voice_;
};

}  // namespace

std::unique_ptr<IVoiceRecorder> MakeVoiceRecorder(std::shared_ptr<const DeviceSources> sources) {
  return std::make_unique<VoiceRecorder>(std::move(sources));
}

}  // namespace kinalyx
