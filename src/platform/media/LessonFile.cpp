#include "platform/media/LessonFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/LessonCoders.h"
#include "platform/media/SoundInStep.h"

namespace kinalyx {
namespace {

constexpr double kSecond = 1e9;
constexpr std::int64_t kFlushPlaces = 2 * LessonFile::kRate;  // pictures after which what is written moves to the disk

std::int64_t PlaceOf(std::int64_t ns) { return std::llround(static_cast<double>(ns) / kSecond * LessonFile::kRate); }

struct MuxDeleter {
  void operator()(AVFormatContext* context) const {
    if (context->pb) avio_closep(&context->pb);
    avformat_free_context(context);
  }
};

}  // namespace

struct LessonFile::Engine {
  explicit Engine(const LessonFormat& asked) : format(asked), voice(kSoundRate) {}
  ~Engine() {
    if (disk >= 0) ::close(disk);
  }

  Outcome Begin(const std::string& path);
  bool AddStream(AVCodecContext& codec);
  Outcome ShowUntil(std::int64_t place);
  Outcome Say(bool all);
  Outcome Encode(AVCodecContext& codec, const AVFrame* frame);
  Outcome Keep(int result);
  void FillPicture(AVFrame& frame) const;
  void FillSound(AVFrame& frame, const std::int16_t* samples) const;

  const LessonFormat format;
  CodecHandle pictureCodec;
  CodecHandle voiceCodec;
  std::unique_ptr<AVFormatContext, MuxDeleter> output;
  FrameHandle frame = NewFrame();
  PacketHandle packet = NewPacket();
  SoundInStep voice;
  std::int64_t saidAt = 0;  ///< samples that have been encoded
  std::size_t leftOut = 0;  ///< samples at the start, whose place is taken by what the encoder begins with
  LessonPicture shown;      ///< stands from shownAt on
  std::int64_t shownAt = 0;
  std::int64_t flushedAt = 0;
  RecordingTally tally;
  int disk = -1;  ///< the file again, to have it move to the disk
};

/// Remembers the first failure.
Outcome LessonFile::Engine::Keep(int result) {
  if (result >= 0) return Outcome();
  if (tally.fault.empty()) {
    tally.fault =
        result == AVERROR(ENOSPC) ? "The disk is full." : Tr("The lesson cannot be written: {}", AvError(result));
  }
  return Outcome::Failed(tally.fault);
}

bool LessonFile::Engine::AddStream(AVCodecContext& codec) {
  AVStream* stream = avformat_new_stream(output.get(), nullptr);
  if (!stream || avcodec_parameters_from_context(stream->codecpar, &codec) < 0) return false;
  stream->time_base = codec.time_base;
  // The place of what the encoder begins with is counted here, so players have nothing to leave out.
  stream->codecpar->initial_padding = 0;
  if (codec.codec_type == AVMEDIA_TYPE_VIDEO) stream->avg_frame_rate = codec.framerate;
  return true;
}

Outcome LessonFile::Engine::Begin(const std::string& path) {
  HearLibrary();
  pictureCodec = OpenLessonPictures(format);
  if (format.voice) voiceCodec = OpenLessonVoice(format.kind);
  if (!pictureCodec || (format.voice && (!voiceCodec || !voice.Usable())))
    return Outcome::Failed(Tr("A part of the library for videos is missing on this machine."));
  AVFormatContext* made = nullptr;
  if (const int result = avformat_alloc_output_context2(&made, nullptr, "matroska", nullptr); result < 0)
    return Keep(result);
  output.reset(made);
  if (const int result = avio_open(&made->pb, ("file:" + path).c_str(), AVIO_FLAG_WRITE); result < 0)
    return Keep(result);
  disk = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  made->flags |= AVFMT_FLAG_FLUSH_PACKETS;
  made->max_interleave_delta = AV_TIME_BASE;
  if (!AddStream(*pictureCodec) || (voiceCodec && !AddStream(*voiceCodec))) return Keep(AVERROR(ENOMEM));
  if (voiceCodec) leftOut = static_cast<std::size_t>(std::max(voiceCodec->initial_padding, 0));
  // What is in the present cluster is what a killed program loses.
  AVDictionary* options = nullptr;
  av_dict_set(&options, "cluster_time_limit", "500", 0);
  const int begun = avformat_write_header(made, &options);
  av_dict_free(&options);
  return Keep(begun);
}

void LessonFile::Engine::FillPicture(AVFrame& to) const {
  const std::uint8_t* from = shown.get();
  for (int plane = 0; plane < 3; ++plane) {
    const int width = plane == 0 ? format.width : format.width / 2;
    const int height = plane == 0 ? format.height : format.height / 2;
    for (int row = 0; row < height; ++row, from += width)
      std::memcpy(to.data[plane] + std::ptrdiff_t{row} * to.linesize[plane], from, static_cast<std::size_t>(width));
  }
}

void LessonFile::Engine::FillSound(AVFrame& to, const std::int16_t* samples) const {
  const auto count = static_cast<std::size_t>(to.nb_samples);
  if (to.format == AV_SAMPLE_FMT_S16) {
    std::memcpy(to.data[0], samples, count * sizeof *samples);
    return;
  }
  constexpr float kFull = 32768;
  auto* out = reinterpret_cast<float*>(to.data[0]);
  std::transform(samples, samples + count, out, [](std::int16_t sample) { return static_cast<float>(sample) / kFull; });
}

/// @param given  null: nothing more comes
Outcome LessonFile::Engine::Encode(AVCodecContext& codec, const AVFrame* given) {
  int result = avcodec_send_frame(&codec, given);
  const int index = &codec == pictureCodec.get() ? 0 : 1;
  const AVStream& stream = *output->streams[index];
  while (result >= 0) {
    result = avcodec_receive_packet(&codec, packet.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return Outcome();
    if (result < 0) break;
    if (index == 1) {
      packet->pts += static_cast<std::int64_t>(leftOut);
      packet->dts = packet->pts;
    }
    packet->stream_index = index;
    tally.bytes += packet->size;
    av_packet_rescale_ts(packet.get(), codec.time_base, stream.time_base);
    result = av_interleaved_write_frame(output.get(), packet.get());
    if (result >= 0) result = std::min(output->pb->error, 0);
  }
  return Keep(result);
}

/// The picture that is shown stands at each place before this one.
Outcome LessonFile::Engine::ShowUntil(std::int64_t place) {
  for (; shown && shownAt < place; ++shownAt) {
    av_frame_unref(frame.get());
    frame->format = AV_PIX_FMT_YUV420P;
    frame->width = format.width;
    frame->height = format.height;
    if (const int result = av_frame_get_buffer(frame.get(), 0); result < 0) return Keep(result);
    FillPicture(*frame);
    frame->pts = shownAt;
    if (const Outcome done = Encode(*pictureCodec, frame.get()); !done) return done;
    ++tally.pictures;
    tally.lastNs = std::llround(static_cast<double>(shownAt + 1) / kRate * kSecond);
  }
  if (shownAt - flushedAt >= kFlushPlaces && disk >= 0) {
    flushedAt = shownAt;
    // Begins what would else wait half a minute for its turn, and waits for nothing.
    (void)::sync_file_range(disk, 0, 0, SYNC_FILE_RANGE_WRITE);
  }
  return Outcome();
}

/// Encodes what has been brought into step, as far as it makes whole blocks.
/// @param all  and the rest too
Outcome LessonFile::Engine::Say(bool all) {
  std::vector<std::int16_t>& ready = voice.Ready();
  const auto block = static_cast<std::size_t>(voiceCodec->frame_size);
  std::size_t said = 0;
  if (saidAt == 0) {
    if (ready.size() < leftOut + block && !all) return Outcome();
    said = std::min(leftOut, ready.size());
  }
  while (ready.size() >= said + block || (all && ready.size() > said)) {
    if (ready.size() < said + block) ready.resize(said + block);
    av_frame_unref(frame.get());
    frame->format = voiceCodec->sample_fmt;
    frame->sample_rate = kSoundRate;
    frame->nb_samples = static_cast<int>(block);
    if (const int result = av_channel_layout_copy(&frame->ch_layout, &voiceCodec->ch_layout); result < 0)
      return Keep(result);
    if (const int result = av_frame_get_buffer(frame.get(), 0); result < 0) return Keep(result);
    FillSound(*frame, ready.data() + said);
    frame->pts = saidAt;
    if (const Outcome done = Encode(*voiceCodec, frame.get()); !done) return done;
    said += block;
    saidAt += static_cast<std::int64_t>(block);
  }
  ready.erase(ready.begin(), ready.begin() + static_cast<std::ptrdiff_t>(said));
  return Outcome();
}

Result<std::unique_ptr<LessonFile>> LessonFile::Create(const std::string& path, const LessonFormat& format) {
  if (format.width < 2 || format.height < 2 || format.width % 2 != 0 || format.height % 2 != 0)
    return Outcome::Failed(Tr("no lesson has this size"));
  if (EntryExists(path)) return Outcome::Failed(Tr("{} exists already.", LastName(path)));
  auto engine = std::make_unique<Engine>(format);
  if (const Outcome begun = engine->Begin(path); !begun) {
    engine.reset();
    (void)KillFile(path);
    return begun;
  }
  engine->tally.open = true;
  engine->tally.rate = kRate;
  return std::unique_ptr<LessonFile>(new LessonFile(std::move(engine)));
}

LessonFile::LessonFile(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}

LessonFile::~LessonFile() { (void)Close(engine_->tally.lastNs); }

Outcome LessonFile::TakePicture(LessonPicture picture, std::int64_t ns) {
  Engine& engine = *engine_;
  if (!engine.tally.fault.empty()) return Outcome::Failed(engine.tally.fault);
  const std::int64_t place = std::max(PlaceOf(ns), engine.shownAt);
  const Outcome shown = engine.ShowUntil(place);
  engine.shown = std::move(picture);
  if (engine.tally.pictures == 0) engine.shownAt = 0;
  return shown;
}

Outcome LessonFile::TakeSound(std::span<const std::int16_t> samples, std::int64_t ns) {
  Engine& engine = *engine_;
  if (!engine.tally.fault.empty()) return Outcome::Failed(engine.tally.fault);
  if (!engine.voiceCodec) return Outcome();
  engine.voice.Take(samples, ns);
  return engine.Say(false);
}

const RecordingTally& LessonFile::Tally() const { return engine_->tally; }

Outcome LessonFile::Close(std::int64_t endNs) {
  Engine& engine = *engine_;
  if (!std::exchange(engine.tally.open, false)) return Outcome();
  if (engine.tally.fault.empty()) {
    (void)engine.ShowUntil(std::max<std::int64_t>(PlaceOf(endNs), engine.shownAt + (engine.tally.pictures == 0)));
    (void)engine.Encode(*engine.pictureCodec, nullptr);
  }
  if (engine.voiceCodec && engine.tally.fault.empty()) {
    engine.voice.End(engine.tally.lastNs);
    (void)engine.Say(true);
    (void)engine.Encode(*engine.voiceCodec, nullptr);
  }
  // After a fault too: what is there is kept.
  const int ended = av_write_trailer(engine.output.get());
  const int closed = avio_closep(&engine.output->pb);
  if (engine.tally.fault.empty()) (void)engine.Keep(std::min(ended, closed));
  return engine.tally.fault.empty() ? Outcome() : Outcome::Failed(engine.tally.fault);
}

}  // namespace kinalyx
