#include "platform/media/SoundCut.h"

extern "C" {
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kinalyx {
namespace {

/// Sound before the stretch that is decoded as well, so that codecs with a memory are in their stride.
constexpr double kRunUp = 0.5;
/// Times in files are rounded: within this many seconds blocks simply follow one another.
constexpr double kTolerance = 0.05;

}  // namespace

void SoundCut::ResamplerDeleter::operator()(SwrContext* context) const { swr_free(&context); }

std::unique_ptr<SoundCut> SoundCut::Open(const std::string& path, double start, double end, VideoOutput& output) {
  std::unique_ptr<SoundCut> sound(new SoundCut(output));
  if (!sound->OpenSource(path, start) || !sound->OpenConverter()) return nullptr;
  sound->end_ = std::llround((end - start) * sound->rate_);
  sound->target_ = output.AddStream();
  if (!sound->target_) return nullptr;
  AVCodecParameters& parameters = *sound->target_->codecpar;
  parameters.codec_type = AVMEDIA_TYPE_AUDIO;
  parameters.codec_id = AV_CODEC_ID_PCM_S16LE;
  parameters.sample_rate = sound->rate_;
  parameters.format = AV_SAMPLE_FMT_S16;
  parameters.bits_per_coded_sample = 16;
  parameters.block_align = sound->channels_ * 2;
  parameters.bit_rate = std::int64_t{16} * sound->channels_ * sound->rate_;
  av_channel_layout_default(&parameters.ch_layout, sound->channels_);
  sound->target_->time_base = {1, sound->rate_};
  return sound;
}

bool SoundCut::OpenSource(const std::string& path, double start) {
  AVDictionary* options = nullptr;
  av_dict_set(&options, "protocol_whitelist", "file", 0);
  AVFormatContext* context = nullptr;
  const int opened = avformat_open_input(&context, ("file:" + path).c_str(), nullptr, &options);
  av_dict_free(&options);
  if (opened < 0) return false;
  input_.reset(context);
  const auto sound = [&] { return av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0); };
  const bool isAvi = std::strcmp(context->iformat->name, "avi") == 0;
  int index = sound();
  // Only an AVI header tells all of plain samples; for anything else the library looks into the file.
  const bool plain = isAvi && index >= 0 && context->streams[index]->codecpar->codec_id == AV_CODEC_ID_PCM_S16LE;
  if (!plain) {
    avformat_find_stream_info(context, nullptr);
    index = sound();
  }
  if (index < 0) return false;
  stream_ = context->streams[index];
  const int video = av_find_best_stream(context, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
  double videoStart = 0;
  if (video >= 0 && !isAvi && context->streams[video]->start_time != AV_NOPTS_VALUE)
    videoStart = static_cast<double>(context->streams[video]->start_time) * av_q2d(context->streams[video]->time_base);
  zero_ = videoStart + start;

  const AVCodec* decoder = avcodec_find_decoder(stream_->codecpar->codec_id);
  codec_.reset(decoder ? avcodec_alloc_context3(decoder) : nullptr);
  if (!codec_ || avcodec_parameters_to_context(codec_.get(), stream_->codecpar) < 0) return false;
  codec_->pkt_timebase = stream_->time_base;
  if (avcodec_open2(codec_.get(), decoder, nullptr) < 0) return false;

  // Some tapes carry the sound inside their pictures, and then these must be read.
  const bool ownPackets = !isAvi || avformat_index_get_entries_count(stream_) > 0;
  for (unsigned i = 0; i < context->nb_streams; ++i) {
    if (context->streams[i] != stream_ && ownPackets) context->streams[i]->discard = AVDISCARD_ALL;
  }
  const double from = std::max(0.0, zero_ - kRunUp);
  if (start > 0)
    av_seek_frame(context, index, static_cast<std::int64_t>(from / av_q2d(stream_->time_base)), AVSEEK_FLAG_BACKWARD);
  return true;
}

bool SoundCut::OpenConverter() {
  rate_ = codec_->sample_rate;
  channels_ = codec_->ch_layout.nb_channels;
  if (rate_ < 1 || channels_ < 1 || channels_ > 8) return false;
  AVChannelLayout layout{};
  av_channel_layout_default(&layout, channels_);
  SwrContext* context = nullptr;
  const int made =
      swr_alloc_set_opts2(&context, &layout, AV_SAMPLE_FMT_S16, rate_, &layout, codec_->sample_fmt, rate_, 0, nullptr);
  converter_.reset(context);
  return made >= 0 && swr_init(context) >= 0;
}

bool SoundCut::Decode() {
  for (;;) {
    const int received = avcodec_receive_frame(codec_.get(), frame_.get());
    if (received >= 0) {
      Take(*frame_);
      return true;
    }
    if (received != AVERROR(EAGAIN)) return false;
    int read = 0;
    while ((read = av_read_frame(input_.get(), packet_.get())) >= 0 && packet_->stream_index != stream_->index)
      av_packet_unref(packet_.get());
    avcodec_send_packet(codec_.get(), read < 0 ? nullptr : packet_.get());
    av_packet_unref(packet_.get());
  }
}

void SoundCut::Take(const AVFrame& frame) {
  // A change of the format in mid-stream would need another file.
  if (frame.format != codec_->sample_fmt || frame.ch_layout.nb_channels != channels_ || frame.sample_rate != rate_) {
    ended_ = true;
    return;
  }
  std::vector<std::int16_t> samples(static_cast<std::size_t>(frame.nb_samples) * channels_);
  auto* out = reinterpret_cast<std::uint8_t*>(samples.data());
  const int made = swr_convert(converter_.get(), &out, frame.nb_samples,
                               const_cast<const std::uint8_t**>(frame.extended_data), frame.nb_samples);
  samples.resize(static_cast<std::size_t>(std::max(0, made)) * channels_);

  std::int64_t position = position_;
  if (frame.pts != AV_NOPTS_VALUE) {
    const double seconds = static_cast<double>(frame.pts) * av_q2d(stream_->time_base) - zero_;
    const std::int64_t told = std::llround(seconds * rate_);
    if (!begun_ || std::abs(static_cast<double>(told - position_)) > kTolerance * rate_) position = told;
  }
  begun_ = true;
  Append(position, samples);
}

void SoundCut::Append(std::int64_t position, std::vector<std::int16_t>& samples) {
  const std::int64_t taken = written_ + static_cast<std::int64_t>(pending_.size()) / channels_;
  const auto count = static_cast<std::int64_t>(samples.size()) / channels_;
  position_ = position + count;
  const std::int64_t silence = std::clamp<std::int64_t>(position - taken, 0, end_ - taken);
  pending_.insert(pending_.end(), static_cast<std::size_t>(silence * channels_), 0);
  const std::int64_t first = std::clamp<std::int64_t>(taken + silence - position, 0, count);
  const std::int64_t last = std::clamp<std::int64_t>(end_ - position, first, count);
  pending_.insert(pending_.end(), samples.begin() + first * channels_, samples.begin() + last * channels_);
  if (position_ >= end_) ended_ = true;
}

int SoundCut::WriteUntil(double seconds) {
  const std::int64_t wanted = std::min<std::int64_t>(end_, std::llround(seconds * rate_));
  if (written_ >= wanted) return 0;
  while (!ended_ && written_ + static_cast<std::int64_t>(pending_.size()) / channels_ < wanted) {
    if (!Decode()) ended_ = true;
  }
  const std::int64_t have = std::min(wanted - written_, static_cast<std::int64_t>(pending_.size()) / channels_);
  if (have <= 0) return 0;
  const auto count = static_cast<std::size_t>(have * channels_);
  PacketHandle packet = NewPacket();
  if (av_new_packet(packet.get(), static_cast<int>(count * 2)) < 0) return AVERROR(ENOMEM);
  std::memcpy(packet->data, pending_.data(), count * 2);
  pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(count));
  packet->pts = packet->dts = written_;
  packet->duration = have;
  packet->flags |= AV_PKT_FLAG_KEY;
  written_ += have;
  return output_.Write(*packet, *target_, {1, rate_});
}

}  // namespace kinalyx
