#include "platform/media/SoundCopy.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/media/CutContainer.h"

namespace kinalyx {
namespace {

/// Sound before the stretch that codecs with a memory need to be in their stride.
constexpr double kRunUp = 0.1;

/// Bytes of one sample of all channels where sound is plain samples, which can be cut anywhere; else 0.
int PlainBytes(const AVCodecParameters& codec) {
  const int bits = av_get_exact_bits_per_sample(codec.codec_id);
  const bool planar = std::string_view(avcodec_get_name(codec.codec_id)).ends_with("_planar");
  const bool plain = std::string_view(avcodec_get_name(codec.codec_id)).starts_with("pcm_") && !planar && bits >= 8;
  return plain ? bits / 8 * codec.ch_layout.nb_channels : 0;
}

}  // namespace

std::unique_ptr<SoundCopy> SoundCopy::Open(const Demuxer& demuxer) {
  std::unique_ptr<SoundCopy> sound(new SoundCopy);
  sound->input_ = demuxer.OpenOthers(sound->file_);
  if (!sound->input_) return nullptr;
  for (unsigned i = 0; i < sound->input_->nb_streams; ++i) {
    AVStream* stream = sound->input_->streams[i];
    const AVCodecParameters& codec = *stream->codecpar;
    const bool known = codec.codec_type == AVMEDIA_TYPE_AUDIO && codec.codec_id != AV_CODEC_ID_NONE;
    if (known && codec.sample_rate > 0) sound->tracks_.push_back({stream});
    else stream->discard = AVDISCARD_ALL;
  }
  return sound->tracks_.empty() ? nullptr : std::move(sound);
}

std::vector<const AVCodecParameters*> SoundCopy::Codecs() const {
  std::vector<const AVCodecParameters*> codecs;
  for (const Track& track : tracks_) codecs.push_back(track.source->codecpar);
  return codecs;
}

bool SoundCopy::Begin(VideoOutput& output, double start, double end, bool hidesStart) {
  output_ = &output;
  start_ = start;
  end_ = end;
  hidesStart_ = hidesStart;
  av_packet_unref(packet_.get());
  waiting_ = nullptr;
  for (Track& track : tracks_) {
    track = {track.source, output.AddStream()};
    const AVCodecParameters& codec = *track.source->codecpar;
    if (!track.target || avcodec_parameters_copy(track.target->codecpar, &codec) < 0) return false;
    track.target->codecpar->codec_tag = AcceptedTag(*output.Container().oformat, codec.codec_id, codec.codec_tag);
    track.target->time_base = track.source->time_base;
    track.target->disposition = track.source->disposition;
    CopyNotes(track.target->metadata, track.source->metadata);
  }
  const AVStream& leader = *tracks_.front().source;
  const auto from = static_cast<std::int64_t>(std::floor((start - 2 * kRunUp) / av_q2d(leader.time_base)));
  const std::int64_t begin = leader.start_time == AV_NOPTS_VALUE ? 0 : leader.start_time;
  if (av_seek_frame(input_.get(), leader.index, std::max(from, begin), AVSEEK_FLAG_BACKWARD) >= 0) return true;
  return avformat_seek_file(input_.get(), -1, INT64_MIN, 0, 0, AVSEEK_FLAG_BYTE) >= 0 ||
         avformat_seek_file(input_.get(), leader.index, INT64_MIN, begin, INT64_MAX, 0) >= 0;
}

SoundCopy::Track* SoundCopy::TrackOf(int stream) {
  const auto found =
      std::ranges::find_if(tracks_, [stream](const Track& track) { return track.source->index == stream; });
  return found == tracks_.end() ? nullptr : &*found;
}

bool SoundCopy::ReadNext() {
  while (!std::ranges::all_of(tracks_, &Track::ended) && av_read_frame(input_.get(), packet_.get()) >= 0) {
    waiting_ = TrackOf(packet_->stream_index);
    if (waiting_ && Take(*waiting_)) return true;
    av_packet_unref(packet_.get());
  }
  waiting_ = nullptr;
  for (Track& track : tracks_) track.ended = true;
  return false;
}

bool SoundCopy::Take(Track& track) {
  const double unit = av_q2d(track.source->time_base);
  std::int64_t time = packet_->pts != AV_NOPTS_VALUE ? packet_->pts : packet_->dts;
  if (time == AV_NOPTS_VALUE) time = track.next;
  if (time == AV_NOPTS_VALUE) return false;
  track.next = time + packet_->duration;
  const double begin = static_cast<double>(time) * unit - start_;
  const double length = static_cast<double>(packet_->duration) * unit;
  if (begin >= end_ - start_) {
    // Sound is stored in order, so no more of this stream is wanted.
    track.ended = true;
    return false;
  }
  const int plain = PlainBytes(*track.source->codecpar);
  if (plain > 0) return TakePlain(track, time, plain);
  // Where nothing can be hidden the packet comes along that lies for the most part in the stretch.
  if (hidesStart_ ? begin + length <= -kRunUp : begin + length / 2 < 0) return false;
  const std::int64_t moved = time - std::llround(start_ / unit);
  if (moved <= track.last) return false;
  track.last = packet_->pts = packet_->dts = moved;
  return true;
}

bool SoundCopy::TakePlain(Track& track, std::int64_t time, int sampleBytes) {
  const int rate = track.source->codecpar->sample_rate;
  const AVRational unit = track.source->time_base;
  const std::int64_t count = packet_->size / sampleBytes;
  const std::int64_t begin = std::llround((static_cast<double>(time) * av_q2d(unit) - start_) * rate);
  const std::int64_t from = std::clamp<std::int64_t>(-begin, 0, count);
  const std::int64_t to = std::clamp<std::int64_t>(std::llround((end_ - start_) * rate) - begin, from, count);
  if (from == to) return false;
  packet_->data += from * sampleBytes;
  packet_->size = static_cast<int>((to - from) * sampleBytes);
  packet_->pts = packet_->dts = av_rescale_q(begin + from, {1, rate}, unit);
  packet_->duration = av_rescale_q(to - from, {1, rate}, unit);
  if (packet_->pts <= track.last) return false;
  track.last = packet_->pts;
  return true;
}

int SoundCopy::WriteUntil(double seconds) {
  while (waiting_ || ReadNext()) {
    if (static_cast<double>(packet_->pts) * av_q2d(waiting_->source->time_base) >= seconds) return 0;
    const int result = output_->Write(*packet_, *waiting_->target, waiting_->source->time_base);
    av_packet_unref(packet_.get());
    waiting_ = nullptr;
    if (result < 0) return result;
  }
  return 0;
}

}  // namespace kinalyx
