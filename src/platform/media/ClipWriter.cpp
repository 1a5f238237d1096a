#include "platform/media/ClipWriter.h"

#include <libyuv.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <thread>
#include <vector>

#include "platform/files/Tr.h"
#include "platform/media/AvHandles.h"
#include "platform/media/GifClip.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {
namespace {

constexpr AVRational kClock{1, 90000};  // of which all usual rates are whole parts
constexpr int kChannels = 2;
constexpr int kSoundBitRate = 128000;
constexpr int kUsualRate = 60;         // pictures per second, as a hint for the encoder
constexpr int kKeyInterval = 60;       // pictures: a hand that drags through the clip finds a key picture soon
constexpr float kFullScale = 32768.0;  // of 16-bit samples

std::int64_t TicksOf(double ms) { return std::llround(ms * kClock.den / 1000.0); }

class Mp4Clip final : public ClipWriter {
 public:
  Mp4Clip(const std::string& path, const ClipFormat& format) : output_(path), format_(format) {}

  Outcome Open();
  Outcome Write(const PixelRows& picture, double ms) override;
  Outcome WriteSound(std::span<const std::int16_t> samples) override;
  Outcome Close(double ms) override;

 private:
  int OpenPictures();
  int OpenSound();
  int Convert(const PixelRows& picture);
  int SendPending(std::int64_t until);
  int SendSound(bool last);
  int Encode(AVCodecContext& codec, const AVFrame* frame, AVStream& stream);
  static Outcome Told(int result) { return result < 0 ? Outcome::Failed(AvError(result)) : Outcome(); }

  VideoOutput output_;
  ClipFormat format_;
  CodecHandle pictures_;
  CodecHandle sound_;
  AVStream* pictureStream_ = nullptr;
  AVStream* soundStream_ = nullptr;
  FrameHandle picture_ = NewFrame();  ///< waits until it is known how long it stays
  FrameHandle block_ = NewFrame();
  PacketHandle packet_ = NewPacket();
  bool pending_ = false;
  std::map<std::int64_t, std::int64_t> durations_;  ///< of pictures that the encoder holds, by their times
  std::vector<std::int16_t> samples_;               ///< that do not fill a block yet
  std::int64_t soundTime_ = 0;                      ///< samples that have been sent
};

int Mp4Clip::OpenPictures() {
  const AVCodec* encoder = avcodec_find_encoder_by_name("libx264");
  if (!encoder) return AVERROR_ENCODER_NOT_FOUND;
  pictures_.reset(avcodec_alloc_context3(encoder));
  AVCodecContext& codec = *pictures_;
  codec.width = format_.width;
  codec.height = format_.height;
  codec.pix_fmt = AV_PIX_FMT_YUV420P;
  codec.time_base = kClock;
  codec.framerate = {kUsualRate, 1};
  codec.gop_size = kKeyInterval;
  codec.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  // What libyuv makes of pixels; a player that goes by the size alone would be wrong.
  codec.colorspace = AVCOL_SPC_SMPTE170M;
  codec.color_primaries = AVCOL_PRI_BT709;
  codec.color_trc = AVCOL_TRC_BT709;
  codec.color_range = AVCOL_RANGE_MPEG;
  AVDictionary* options = nullptr;
  av_dict_set(&options, "preset", "veryfast", 0);
  av_dict_set_int(&options, "crf", format_.quality, 0);
  av_dict_set(&options, "profile", format_.profile == ClipFormat::Profile::Baseline ? "baseline" : "high", 0);
  int result = avcodec_open2(&codec, encoder, &options);
  av_dict_free(&options);
  if (result < 0) return result;
  pictureStream_ = output_.AddStream();
  if (!pictureStream_) return AVERROR(ENOMEM);
  pictureStream_->time_base = kClock;
  picture_->width = format_.width;
  picture_->height = format_.height;
  picture_->format = codec.pix_fmt;
  result = avcodec_parameters_from_context(pictureStream_->codecpar, &codec);
  return result < 0 ? result : av_frame_get_buffer(picture_.get(), 0);
}

int Mp4Clip::OpenSound() {
  const AVCodec* encoder = avcodec_find_encoder(AV_CODEC_ID_AAC);
  if (!encoder) return AVERROR_ENCODER_NOT_FOUND;
  sound_.reset(avcodec_alloc_context3(encoder));
  AVCodecContext& codec = *sound_;
  codec.sample_rate = kSoundRate;
  codec.sample_fmt = AV_SAMPLE_FMT_FLTP;
  codec.bit_rate = kSoundBitRate;
  codec.time_base = {1, kSoundRate};
  codec.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
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

Outcome Mp4Clip::Open() {
  if (format_.width < 2 || format_.height < 2 || format_.width % 2 != 0 || format_.height % 2 != 0)
    return Outcome::Failed(Tr("the sides of the picture must be even"));
  int result = output_.Open("mp4");
  if (result >= 0) result = OpenPictures();
  if (result >= 0 && format_.sound) result = OpenSound();
  if (result < 0) return Told(result);
  AVDictionary* options = nullptr;
  av_dict_set(&options, "movflags", "+faststart", 0);
  result = output_.Start(&options);
  av_dict_free(&options);
  return Told(result);
}

int Mp4Clip::Convert(const PixelRows& picture) {
  if (const int result = av_frame_make_writable(picture_.get()); result < 0) return result;
  const std::uint8_t* bits = picture.bits;
  int stride = picture.rowBytes;
  if (picture.bottomUp) {
    bits += static_cast<std::ptrdiff_t>(picture.height - 1) * stride;
    stride = -stride;
  }
  std::uint8_t** to = picture_->data;
  const int* pitch = picture_->linesize;
  return libyuv::ARGBToI420(bits, stride, to[0], pitch[0], to[1], pitch[1], to[2], pitch[2], picture.width,
                            picture.height);
}

int Mp4Clip::Encode(AVCodecContext& codec, const AVFrame* frame, AVStream& stream) {
  int result = avcodec_send_frame(&codec, frame);
  while (result >= 0) {
    result = avcodec_receive_packet(&codec, packet_.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return 0;
    if (result < 0) return result;
    if (const auto known = durations_.find(packet_->pts); &stream == pictureStream_ && known != durations_.end()) {
      packet_->duration = known->second;
      durations_.erase(known);
    }
    result = output_.Write(*packet_, stream, codec.time_base);
  }
  return result;
}

int Mp4Clip::SendPending(std::int64_t until) {
  if (!std::exchange(pending_, false)) return 0;
  durations_[picture_->pts] = std::max<std::int64_t>(1, until - picture_->pts);
  return Encode(*pictures_, picture_.get(), *pictureStream_);
}

Outcome Mp4Clip::Write(const PixelRows& picture, double ms) {
  if (picture.width != format_.width || picture.height != format_.height || picture.bitCount != 32)
    return Outcome::Failed(Tr("a picture of another size"));
  const std::int64_t time = TicksOf(ms);
  int result = SendPending(time);
  if (result >= 0) result = Convert(picture);
  if (result < 0) return Told(result);
  picture_->pts = time;
  pending_ = true;
  return {};
}

/// Sends whole blocks, and at the end the part of one.
int Mp4Clip::SendSound(bool last) {
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

Outcome Mp4Clip::WriteSound(std::span<const std::int16_t> samples) {
  if (!sound_) return Outcome::Failed(Tr("the clip has no sound"));
  samples_.insert(samples_.end(), samples.begin(), samples.end());
  return Told(SendSound(false));
}

Outcome Mp4Clip::Close(double ms) {
  int result = SendPending(TicksOf(ms));
  if (result >= 0) result = Encode(*pictures_, nullptr, *pictureStream_);
  if (sound_ && result >= 0) {
    result = SendSound(true);
    if (result >= 0) result = Encode(*sound_, nullptr, *soundStream_);
  }
  if (result < 0) return Told(result);
  std::string message;
  return output_.Finish(true, message) ? Outcome() : Outcome::Failed(message);
}

}  // namespace

Result<std::unique_ptr<ClipWriter>> ClipWriter::Create(const std::string& path, const ClipFormat& format) {
  HearLibrary();
  if (format.kind == ClipFormat::Kind::Gif) return MakeGifClip(path, format);
  auto clip = std::make_unique<Mp4Clip>(path, format);
  if (const Outcome opened = clip->Open(); !opened) return opened;
  return std::unique_ptr<ClipWriter>(std::move(clip));
}

}  // namespace kinalyx
