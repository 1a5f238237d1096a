#include "platform/media/SoundReader.h"

extern "C" {
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/media/Demuxer.h"

namespace kinalyx {
namespace {

/// Decoded before the time that is wanted, for codecs with a memory.
constexpr double kRunUpSeconds = 0.2;
/// Times in files are rounded: blocks that are no farther apart follow one another.
constexpr std::int64_t kTolerance = SoundReader::kRate / 20;
/// A file that tells nonsense of its times must not ask for hours of silence.
constexpr std::int64_t kLongestSilence = std::int64_t{SoundReader::kRate} * 60;

struct ResamplerDeleter {
  void operator()(SwrContext* context) const { swr_free(&context); }
};

/// Seconds of the file's clock at which the first picture is shown.
double StartOfPictures(const Demuxer& demuxer) {
  const AVStream& stream = demuxer.Stream();
  const double unit = av_q2d(stream.time_base);
  if (demuxer.TellsShowTimes() && demuxer.Index().HasShowTimes())
    return static_cast<double>(demuxer.Index().ShowTime(0)) * unit;
  return stream.start_time == AV_NOPTS_VALUE ? 0 : static_cast<double>(stream.start_time) * unit;
}

}  // namespace

struct SoundReader::Engine {
  bool Open(const Demuxer& demuxer);
  bool Decode();
  bool Convert(std::vector<std::int16_t>& samples);
  bool FitConverter();
  void Place(std::vector<std::int16_t>& block, std::vector<std::int16_t>& samples);

  std::unique_ptr<FileInput> file;
  InputHandle input;
  AVStream* stream = nullptr;
  CodecHandle codec;
  std::unique_ptr<SwrContext, ResamplerDeleter> converter;
  AVSampleFormat format = AV_SAMPLE_FMT_NONE;  ///< of what the converter takes
  int rate = 0;
  int channels = 0;
  PacketHandle packet = NewPacket();
  FrameHandle frame = NewFrame();
  double zero = 0;            ///< seconds of the file's clock at the first picture
  double from = 0;            ///< and where Begin has gone, seconds from there
  std::int64_t given = 0;     ///< samples since Begin
  std::int64_t position = 0;  ///< of the next block, if it follows the one before
  bool begun = false;
};

SoundReader::SoundReader(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
SoundReader::~SoundReader() = default;

std::unique_ptr<SoundReader> SoundReader::Open(const std::string& path) {
  const auto demuxer = Demuxer::Open(path);
  if (!demuxer || !(*demuxer)->Describe().hasSound) return nullptr;
  auto engine = std::make_unique<Engine>();
  if (!engine->Open(**demuxer)) return nullptr;
  return std::unique_ptr<SoundReader>(new SoundReader(std::move(engine)));
}

bool SoundReader::Engine::Open(const Demuxer& demuxer) {
  input = demuxer.OpenOthers(file);
  const int best = input ? av_find_best_stream(input.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0) : -1;
  if (best < 0) return false;
  stream = input->streams[best];
  zero = StartOfPictures(demuxer);
  const AVCodec* decoder = avcodec_find_decoder(stream->codecpar->codec_id);
  codec.reset(decoder ? avcodec_alloc_context3(decoder) : nullptr);
  if (!codec || avcodec_parameters_to_context(codec.get(), stream->codecpar) < 0) return false;
  codec->pkt_timebase = stream->time_base;
  if (avcodec_open2(codec.get(), decoder, nullptr) < 0) return false;
  // Tapes that carry the sound inside their pictures give it only with these.
  const bool ownPackets = avformat_index_get_entries_count(stream) > 0 || !av_match_name("avi", input->iformat->name);
  for (unsigned i = 0; ownPackets && i < input->nb_streams; ++i)
    if (input->streams[i] != stream) input->streams[i]->discard = AVDISCARD_ALL;
  return true;
}

void SoundReader::Begin(double ms) {
  Engine& engine = *engine_;
  engine.from = ms / 1000;
  engine.given = engine.position = 0;
  engine.begun = false;
  const double seconds = std::max(0.0, engine.zero + engine.from - kRunUpSeconds);
  const double unit = av_q2d(engine.stream->time_base);
  avcodec_flush_buffers(engine.codec.get());
  if (av_seek_frame(engine.input.get(), engine.stream->index, std::llround(seconds / unit), AVSEEK_FLAG_BACKWARD) < 0)
    avformat_seek_file(engine.input.get(), -1, INT64_MIN, 0, 0, AVSEEK_FLAG_BYTE);
}

bool SoundReader::Read(std::vector<std::int16_t>& samples) {
  const std::size_t before = samples.size();
  std::vector<std::int16_t> block;
  while (samples.size() == before) {
    if (!engine_->Decode()) return false;
    if (engine_->Convert(block)) engine_->Place(block, samples);
  }
  return true;
}

/// Brings the next block into `frame`; false at the end.
bool SoundReader::Engine::Decode() {
  for (;;) {
    const int received = avcodec_receive_frame(codec.get(), frame.get());
    if (received >= 0) return true;
    if (received != AVERROR(EAGAIN)) return false;
    int read = av_read_frame(input.get(), packet.get());
    while (read >= 0 && packet->stream_index != stream->index) {
      av_packet_unref(packet.get());
      read = av_read_frame(input.get(), packet.get());
    }
    // A damaged packet is passed over; nothing more ends the stream.
    avcodec_send_packet(codec.get(), read < 0 ? nullptr : packet.get());
    av_packet_unref(packet.get());
  }
}

/// The format may change in mid-stream.
bool SoundReader::Engine::FitConverter() {
  const auto sampleFormat = static_cast<AVSampleFormat>(frame->format);
  const int count = frame->ch_layout.nb_channels;
  if (converter && format == sampleFormat && rate == frame->sample_rate && channels == count) return true;
  if (frame->sample_rate < 1 || count < 1) return false;
  AVChannelLayout target{};
  av_channel_layout_default(&target, kChannels);
  AVChannelLayout source{};
  if (av_channel_layout_check(&frame->ch_layout) && frame->ch_layout.order != AV_CHANNEL_ORDER_UNSPEC)
    av_channel_layout_copy(&source, &frame->ch_layout);
  else av_channel_layout_default(&source, count);
  SwrContext* context = nullptr;
  const int made = swr_alloc_set_opts2(&context, &target, AV_SAMPLE_FMT_S16, kRate, &source, sampleFormat,
                                       frame->sample_rate, 0, nullptr);
  av_channel_layout_uninit(&source);
  converter.reset(context);
  if (made < 0 || swr_init(context) < 0) {
    converter.reset();
    return false;
  }
  format = sampleFormat;
  rate = frame->sample_rate;
  channels = count;
  return true;
}

bool SoundReader::Engine::Convert(std::vector<std::int16_t>& samples) {
  if (!FitConverter()) return false;
  const int room = swr_get_out_samples(converter.get(), frame->nb_samples);
  if (room <= 0) return false;
  samples.resize(static_cast<std::size_t>(room) * kChannels);
  auto* out = reinterpret_cast<std::uint8_t*>(samples.data());
  const int made = swr_convert(converter.get(), &out, room, const_cast<const std::uint8_t**>(frame->extended_data),
                               frame->nb_samples);
  samples.resize(static_cast<std::size_t>(std::max(0, made)) * kChannels);
  return made > 0;
}

/// Puts a block where its time says, with silence before it or without what lies before the beginning.
void SoundReader::Engine::Place(std::vector<std::int16_t>& block, std::vector<std::int16_t>& samples) {
  const auto count = static_cast<std::int64_t>(block.size()) / kChannels;
  if (frame->pts != AV_NOPTS_VALUE) {
    const double seconds = static_cast<double>(frame->pts) * av_q2d(stream->time_base) - zero - from;
    const std::int64_t told = std::llround(seconds * kRate);
    if (!begun || std::abs(told - position) > kTolerance) position = told;
  }
  begun = true;
  const std::int64_t silence = std::clamp<std::int64_t>(position - given, 0, kLongestSilence);
  const std::int64_t skip = std::clamp<std::int64_t>(given - position, 0, count);
  samples.insert(samples.end(), static_cast<std::size_t>(silence * kChannels), 0);
  samples.insert(samples.end(), block.begin() + skip * kChannels, block.end());
  given += silence + count - skip;
  position += count;
}

}  // namespace kinalyx
