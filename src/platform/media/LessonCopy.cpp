#include "platform/media/LessonCopy.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/files/FileCopy.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {
namespace {

constexpr int kPacketsPerStep = 200;

InputHandle OpenLesson(const std::string& path) {
  HearLibrary();
  AVFormatContext* opened = nullptr;
  const AVInputFormat* matroska = av_find_input_format("matroska");
  if (avformat_open_input(&opened, ("file:" + path).c_str(), matroska, nullptr) < 0) return nullptr;
  InputHandle input(opened);
  if (input->nb_streams == 0 || input->streams[0]->codecpar->codec_type != AVMEDIA_TYPE_VIDEO) return nullptr;
  return input;
}

LessonKind KindOf(const AVFormatContext& input) {
  return input.streams[0]->codecpar->codec_id == AV_CODEC_ID_H264 ? LessonKind::Mp4 : LessonKind::Avi;
}

/// Of a block of the voice.
std::int64_t SamplesIn(const AVCodecParameters& voice) {
  if (voice.codec_id != AV_CODEC_ID_ADPCM_MS) return 1024;
  constexpr int kHead = 7;  // bytes, which hold two samples
  return (voice.block_align - kHead) * 2 + 2;
}

}  // namespace

std::optional<LessonFacts> ReadLesson(const std::string& path) {
  const InputHandle input = OpenLesson(path);
  if (!input) return std::nullopt;
  LessonFacts facts{KindOf(*input), 0, input->nb_streams > 1};
  std::int64_t pictures = 0;
  for (const PacketHandle packet = NewPacket(); av_read_frame(input.get(), packet.get()) >= 0;
       av_packet_unref(packet.get()))
    pictures += packet->stream_index == 0;
  facts.seconds = static_cast<double>(pictures) / LessonFile::kRate;
  return pictures > 0 ? std::optional(facts) : std::nullopt;
}

struct LessonCopy::Engine {
  Engine(std::string from, std::string to) : source(std::move(from)), output(std::move(to)) {}

  bool Begin();
  bool Fail(std::string why) {
    how = Outcome::Failed(std::move(why));
    return false;
  }
  bool FailBy(int code) { return Fail(code == AVERROR(ENOSPC) ? Tr("The disk is full.") : AvError(code)); }
  int Write(AVPacket& packet);
  bool Finish();

  const std::string source;
  InputHandle input;
  VideoOutput output;
  std::vector<AVStream*> streams;
  PacketHandle packet = NewPacket();
  std::int64_t pictures = 0;
  std::int64_t blocks = 0;
  std::int64_t bytes = 0;
  double part = 0;
  Outcome how;
};

LessonCopy::LessonCopy(std::string source, std::string target)
    : engine_(std::make_unique<Engine>(std::move(source), std::move(target))) {}
LessonCopy::~LessonCopy() = default;

bool LessonCopy::Engine::Begin() {
  input = OpenLesson(source);
  if (!input) return Fail(Tr("The recording cannot be read."));
  const bool avi = KindOf(*input) == LessonKind::Avi;
  if (const int opened = output.Open(avi ? "avi" : "mp4"); opened < 0) return FailBy(opened);
  bytes = std::max<std::int64_t>(avio_size(input->pb), 1);
  for (unsigned i = 0; i < input->nb_streams; ++i) {
    const AVStream& from = *input->streams[i];
    AVStream* to = output.AddStream();
    if (!to || avcodec_parameters_copy(to->codecpar, from.codecpar) < 0) return FailBy(AVERROR(ENOMEM));
    to->codecpar->codec_tag = 0;
    to->time_base = i == 0 ? AVRational{1, LessonFile::kRate} : AVRational{1, LessonFile::kSoundRate};
    if (i == 0) to->avg_frame_rate = {LessonFile::kRate, 1};
    // By this AVI tells how fast its sound is.
    else if (avi)
      to->codecpar->bit_rate = to->codecpar->block_align * LessonFile::kSoundRate * 8 / SamplesIn(*to->codecpar);
    streams.push_back(to);
  }
  AVDictionary* options = nullptr;
  // A telephone shows it before it has loaded all of it; for that the library opens the file once more.
  output.Container().url = av_strdup(("file:" + output.HiddenPath()).c_str());
  if (!avi) av_dict_set(&options, "movflags", "faststart", 0);
  const int begun = output.Start(&options);
  av_dict_free(&options);
  return begun >= 0 || FailBy(begun);
}

/// There is neither a picture nor a sample missing, so times are counted and not read: those of the recording are whole
/// milliseconds.
int LessonCopy::Engine::Write(AVPacket& taken) {
  const bool picture = taken.stream_index == 0;
  std::int64_t& count = picture ? pictures : blocks;
  taken.duration = picture ? 1 : SamplesIn(*streams[1]->codecpar);
  taken.pts = taken.dts = count++ * taken.duration;
  return output.Write(taken, *streams[picture ? 0 : 1], {1, picture ? LessonFile::kRate : LessonFile::kSoundRate});
}

bool LessonCopy::Engine::Finish() {
  if (pictures == 0) return Fail(Tr("The recording holds no picture."));
  std::string why;
  if (!output.Close(why)) return Fail(why);
  // The recording goes next: first this must be safe.
  const int file = ::open(output.HiddenPath().c_str(), O_RDONLY | O_CLOEXEC);
  const bool safe = file >= 0 && ::fsync(file) == 0;
  if (file >= 0) ::close(file);
  if (!safe) return Fail(Tr("The disk does not keep it."));
  if (!output.Finish(false, why)) return Fail(why);
  part = 1;
  return false;
}

bool LessonCopy::Step() {
  Engine& engine = *engine_;
  if (!engine.how || engine.part >= 1) return false;
  if (!engine.input) return engine.Begin();
  for (int i = 0; i < kPacketsPerStep; ++i) {
    if (av_read_frame(engine.input.get(), engine.packet.get()) < 0) return engine.Finish();
    const int written = engine.Write(*engine.packet);
    av_packet_unref(engine.packet.get());
    if (written < 0) return engine.FailBy(written);
  }
  engine.part = std::min(0.99, static_cast<double>(avio_tell(engine.input->pb)) / static_cast<double>(engine.bytes));
  return true;
}

double LessonCopy::Part() const { return engine_->part; }
const Outcome& LessonCopy::How() const { return engine_->how; }

}  // namespace kinalyx
