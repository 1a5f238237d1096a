#include "platform/media/StandInCoder.h"

#include <libyuv.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace kinalyx {
namespace {

constexpr std::array kLongSides = {480, 640, 960, 1280};
/// Of the scale of the encoder, where 2 is best: some 44 dB, and a tenth of a byte per pixel.
constexpr int kQuality = 3;

bool IsPlain420(const AVFrame& frame) {
  return frame.format == AV_PIX_FMT_YUV420P || frame.format == AV_PIX_FMT_YUVJ420P;
}

bool IsFullRange(const AVFrame& frame) {
  return frame.color_range == AVCOL_RANGE_JPEG || frame.format == AV_PIX_FMT_YUVJ420P ||
         frame.format == AV_PIX_FMT_YUVJ422P || frame.format == AV_PIX_FMT_YUVJ444P;
}

FrameHandle FrameLike(const AVFrame& frame, int width, int height) {
  FrameHandle made = NewFrame();
  if (!made || av_frame_copy_props(made.get(), &frame) < 0) return nullptr;
  made->width = width;
  made->height = height;
  made->format = frame.format;
  // Where the stream says nothing its colours are told by its size, and that is another now.
  if (frame.colorspace == AVCOL_SPC_UNSPECIFIED && !IsFullRange(frame))
    made->colorspace = frame.height >= 720 ? AVCOL_SPC_BT709 : AVCOL_SPC_BT470BG;
  return av_frame_get_buffer(made.get(), 0) < 0 ? nullptr : std::move(made);
}

}  // namespace

int StandInCoder::LongSideFor(int shownWidth, int shownHeight) {
  const auto enough = std::ranges::lower_bound(kLongSides, std::max(shownWidth, shownHeight));
  return enough == kLongSides.end() ? kLongSides.back() : *enough;
}

FrameHandle StandInCoder::Scale(const AVFrame& frame, int width, int height) {
  FrameHandle scaled = FrameLike(frame, width, height);
  if (!scaled) return nullptr;
  std::uint8_t* const* to = scaled->data;
  const int* pitch = scaled->linesize;
  if (IsPlain420(frame)) {
    return libyuv::I420Scale(frame.data[0], frame.linesize[0], frame.data[1], frame.linesize[1], frame.data[2],
                             frame.linesize[2], frame.width, frame.height, to[0], pitch[0], to[1], pitch[1], to[2],
                             pitch[2], width, height, libyuv::kFilterBox) == 0
               ? std::move(scaled)
               : nullptr;
  }
  const auto format = static_cast<AVPixelFormat>(frame.format);
  scaler_.reset(sws_getCachedContext(scaler_.release(), frame.width, frame.height, format, width, height, format,
                                     SWS_AREA, nullptr, nullptr, nullptr));
  if (!scaler_) return nullptr;
  const int rows = sws_scale(scaler_.get(), frame.data, frame.linesize, 0, frame.height, to, pitch);
  return rows == height ? std::move(scaled) : nullptr;
}

bool StandInCoder::OpenEncoder(int width, int height) {
  if (encoder_ && encoder_->width == width && encoder_->height == height) return true;
  const AVCodec* codec = avcodec_find_encoder(AV_CODEC_ID_MJPEG);
  encoder_.reset(codec ? avcodec_alloc_context3(codec) : nullptr);
  if (!encoder_) return false;
  encoder_->width = width;
  encoder_->height = height;
  encoder_->pix_fmt = AV_PIX_FMT_YUVJ420P;
  encoder_->time_base = {1, 25};
  encoder_->flags |= AV_CODEC_FLAG_QSCALE;
  encoder_->global_quality = kQuality * FF_QP2LAMBDA;
  encoder_->thread_count = 1;
  AVDictionary* options = nullptr;
  av_dict_set(&options, "huffman", "default", 0);  // one pass over the picture instead of two
  const int opened = avcodec_open2(encoder_.get(), codec, &options);
  av_dict_free(&options);
  small_ = NewFrame();
  small_->width = width;
  small_->height = height;
  small_->format = AV_PIX_FMT_YUVJ420P;
  if (opened < 0 || av_frame_get_buffer(small_.get(), 0) < 0) encoder_.reset();
  return encoder_ != nullptr;
}

FrameHandle StandInCoder::Smaller(const AVFrame& frame, int longSide) {
  const int longer = std::max(frame.width, frame.height);
  if (longer <= longSide) return nullptr;
  const auto part = [&](int side) { return std::max(2, side * longSide / longer & ~1); };
  return Scale(frame, part(frame.width), part(frame.height));
}

std::vector<std::uint8_t> StandInCoder::Pack(const AVFrame& frame, int longSide) {
  const FrameHandle scaled = Smaller(frame, longSide);
  if (!scaled && std::max(frame.width, frame.height) > longSide) return {};
  const AVFrame& source = scaled ? *scaled : frame;
  if (!converter_.Convert(source, 32, rows_) || !OpenEncoder(source.width, source.height)) return {};
  if (av_frame_make_writable(small_.get()) < 0) return {};
  libyuv::ARGBToJ420(rows_.data(), RowConverter::RowBytes(source.width, 32), small_->data[0], small_->linesize[0],
                     small_->data[1], small_->linesize[1], small_->data[2], small_->linesize[2], source.width,
                     -source.height);
  small_->quality = encoder_->global_quality;
  const PacketHandle packet = NewPacket();
  if (avcodec_send_frame(encoder_.get(), small_.get()) < 0) return {};
  if (avcodec_receive_packet(encoder_.get(), packet.get()) < 0) return {};
  return {packet->data, packet->data + packet->size};
}

FrameHandle StandInCoder::Unpack(std::span<const std::uint8_t> packed) {
  if (!decoder_) {
    const AVCodec* codec = avcodec_find_decoder(AV_CODEC_ID_MJPEG);
    decoder_.reset(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!decoder_) return nullptr;
    decoder_->thread_count = 1;
    if (avcodec_open2(decoder_.get(), codec, nullptr) < 0) decoder_.reset();
  }
  const PacketHandle packet = NewPacket();
  if (!decoder_ || av_new_packet(packet.get(), static_cast<int>(packed.size())) < 0) return nullptr;
  std::memcpy(packet->data, packed.data(), packed.size());
  FrameHandle frame = NewFrame();
  if (avcodec_send_packet(decoder_.get(), packet.get()) < 0) return nullptr;
  return avcodec_receive_frame(decoder_.get(), frame.get()) < 0 ? nullptr : std::move(frame);
}

}  // namespace kinalyx
