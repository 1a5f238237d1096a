#include "platform/media/WebFile.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace kinalyx {
namespace {

constexpr int kChannels = 2;
constexpr int kSoundBits = 128'000;
constexpr int kKeySeconds = 2;  // a hand that drags finds a key picture soon
constexpr const char* kQuality = "23";
constexpr int kWmvBitsPerPixel = 3;  // a second: 2.8 Mbit/s at 1280 x 720
constexpr float kFullScale = 32768.0F;

}  // namespace

int WebFile::OpenPictures(const Form& form) {
  const bool mp4 = kind_ == Kind::Mp4;
  const AVCodec* encoder = avcodec_find_encoder_by_name(mp4 ? "libx264" : "wmv2");
  if (!encoder) return AVERROR_ENCODER_NOT_FOUND;
  pictures_.reset(avcodec_alloc_context3(encoder));
  if (!pictures_) return AVERROR(ENOMEM);
  AVCodecContext& codec = *pictures_;
  codec.width = form.size.width;
  codec.height = form.size.height;
  codec.pix_fmt = AV_PIX_FMT_YUV420P;
  codec.sample_aspect_ratio = {1, 1};
  codec.framerate = form.rate;
  codec.time_base = av_inv_q(form.rate);
  codec.gop_size = std::max(1, static_cast<int>(std::lround(av_q2d(form.rate) * kKeySeconds)));
  // The same video gives the same bytes again: a page that was half sent is taken up where it was left.
  codec.flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_BITEXACT;
  codec.colorspace = form.colours;
  codec.color_primaries = AVCOL_PRI_BT709;
  codec.color_trc = AVCOL_TRC_BT709;
  codec.color_range = AVCOL_RANGE_MPEG;
  AVDictionary* options = nullptr;
  if (mp4) {
    // Every telephone of the last ten years plays this.
    for (const auto& [key, value] : {std::pair{"preset", "veryfast"}, {"crf", kQuality}, {"profile", "main"}})
      av_dict_set(&options, key, value, 0);
  } else {
    codec.bit_rate = std::int64_t{form.size.width} * form.size.height * kWmvBitsPerPixel;
    codec.qmin = 2;
    codec.qmax = 16;
  }
  const int opened = avcodec_open2(&codec, encoder, &options);
  av_dict_free(&options);
  if (opened < 0) return opened;
  pictureStream_ = output_.AddStream();
  if (!pictureStream_) return AVERROR(ENOMEM);
  pictureStream_->time_base = codec.time_base;
  pictureStream_->avg_frame_rate = form.rate;
  return avcodec_parameters_from_context(pictureStream_->codecpar, &codec);
}

int WebFile::OpenSound() {
  const AVCodec* encoder = avcodec_find_encoder_by_name(kind_ == Kind::Mp4 ? "aac" : "wmav2");
  if (!encoder) return AVERROR_ENCODER_NOT_FOUND;
  sound_.reset(avcodec_alloc_context3(encoder));
  block_ = NewFrame();
  if (!sound_ || !block_) return AVERROR(ENOMEM);
  AVCodecContext& codec = *sound_;
  codec.sample_rate = kSoundRate;
  codec.sample_fmt = AV_SAMPLE_FMT_FLTP;
  codec.bit_rate = kSoundBits;
  codec.time_base = {1, kSoundRate};
  codec.flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_BITEXACT;
  av_channel_layout_default(&codec.ch_layout, kChannels);
  int result = avcodec_open2(&codec, encoder, nullptr);
  if (result < 0) return result;
  soundStream_ = output_.AddStream();
  if (!soundStream_) return AVERROR(ENOMEM);
  soundStream_->time_base = codec.time_base;
  block_->format = codec.sample_fmt;
  block_->sample_rate = kSoundRate;
  block_->nb_samples = codec.frame_size;
  result = avcodec_parameters_from_context(soundStream_->codecpar, &codec);
  if (result >= 0) result = av_channel_layout_copy(&block_->ch_layout, &codec.ch_layout);
  return result < 0 ? result : av_frame_get_buffer(block_.get(), 0);
}

int WebFile::Open(const Form& form) {
  int result = output_.Open(kind_ == Kind::Mp4 ? "mp4" : "asf");
  if (result >= 0) result = OpenPictures(form);
  if (result >= 0 && form.sound) result = OpenSound();
  if (result < 0) return result;
  output_.Container().flags |= AVFMT_FLAG_BITEXACT;
  AVDictionary* options = nullptr;
  if (kind_ == Kind::Mp4) av_dict_set(&options, "movflags", "+faststart", 0);
  result = output_.Start(&options);
  av_dict_free(&options);
  return result;
}

int WebFile::Encode(AVCodecContext& codec, const AVFrame* frame, AVStream& stream) {
  int result = avcodec_send_frame(&codec, frame);
  while (result >= 0) {
    result = avcodec_receive_packet(&codec, packet_.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return 0;
    if (result < 0) return result;
    bytes_ += packet_->size;
    if (&stream == pictureStream_ && packet_->duration <= 0) packet_->duration = 1;
    result = output_.Write(*packet_, stream, codec.time_base);
  }
  return result;
}

int WebFile::Write(const AVFrame& picture) { return Encode(*pictures_, &picture, *pictureStream_); }

/// Sends whole blocks, and at the end the part of one.
int WebFile::SendSound(bool last) {
  const auto size = static_cast<std::size_t>(sound_->frame_size);
  std::size_t taken = 0;
  int result = 0;
  while (result >= 0) {
    const std::size_t waiting = samples_.size() / kChannels - taken;
    if (waiting < size && !(last && waiting > 0)) break;
    const std::size_t count = std::min(size, waiting);
    if (result = av_frame_make_writable(block_.get()); result < 0) break;
    block_->nb_samples = static_cast<int>(count);
    block_->pts = soundTime_;
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
      auto* to = reinterpret_cast<float*>(block_->data[channel]);
      for (std::size_t i = 0; i < count; ++i)
        to[i] = static_cast<float>(samples_[(taken + i) * kChannels + channel]) / kFullScale;
    }
    taken += count;
    soundTime_ += static_cast<std::int64_t>(count);
    result = Encode(*sound_, block_.get(), *soundStream_);
  }
  samples_.erase(samples_.begin(), samples_.begin() + static_cast<std::ptrdiff_t>(taken * kChannels));
  return result;
}

int WebFile::WriteSound(std::span<const std::int16_t> samples) {
  if (!sound_) return 0;
  samples_.insert(samples_.end(), samples.begin(), samples.end());
  return SendSound(false);
}

Outcome WebFile::Close() {
  int result = Encode(*pictures_, nullptr, *pictureStream_);
  if (sound_ && result >= 0) {
    result = SendSound(true);
    if (result >= 0) result = Encode(*sound_, nullptr, *soundStream_);
  }
  if (result < 0) return Outcome::Failed(AvError(result));
  std::string message;
  return output_.Finish(true, message) ? Outcome() : Outcome::Failed(message);
}

}  // namespace kinalyx
