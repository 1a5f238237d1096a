#include "BareDecoder.h"

#include <algorithm>
#include <stdexcept>

#include "Bench.h"

namespace kinalyx::bench {

BareDecoder::BareDecoder(const std::string& path, int threads) {
  HearLibrary();
  AVFormatContext* context = nullptr;
  if (avformat_open_input(&context, path.c_str(), nullptr, nullptr) < 0)
    throw std::runtime_error("cannot open " + path);
  input_.reset(context);
  const AVCodec* decoder = nullptr;
  if (avformat_find_stream_info(context, nullptr) < 0) throw std::runtime_error("no stream info");
  stream_ = av_find_best_stream(context, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
  if (stream_ < 0) throw std::runtime_error("no video stream");
  codec_.reset(avcodec_alloc_context3(decoder));
  avcodec_parameters_to_context(codec_.get(), context->streams[stream_]->codecpar);
  codec_->thread_count = threads;
  if (avcodec_open2(codec_.get(), decoder, nullptr) < 0) throw std::runtime_error("no decoder");
}

bool BareDecoder::Next() {
  while (avcodec_receive_frame(codec_.get(), frame_.get()) < 0) {
    if (drained_) return false;
    if (av_read_frame(input_.get(), packet_.get()) < 0) {
      drained_ = true;
      avcodec_send_packet(codec_.get(), nullptr);
      continue;
    }
    if (packet_->stream_index == stream_) avcodec_send_packet(codec_.get(), packet_.get());
    av_packet_unref(packet_.get());
  }
  return true;
}

void BareDecoder::Convert() {
  scaler_.reset(sws_getCachedContext(scaler_.release(), frame_->width, frame_->height,
                                     static_cast<AVPixelFormat>(frame_->format), frame_->width, frame_->height,
                                     AV_PIX_FMT_BGR24, SWS_BILINEAR, nullptr, nullptr, nullptr));
  const int stride = (frame_->width * 3 + 3) & ~3;
  rows_.resize(static_cast<std::size_t>(stride) * frame_->height);
  std::uint8_t* const planes[] = {rows_.data()};
  const int strides[] = {stride};
  sws_scale(scaler_.get(), frame_->data, frame_->linesize, 0, frame_->height, planes, strides);
  Keep(rows_.data());
}

void BareDecoder::SeekTo(int picture) {
  AVStream* stream = input_->streams[stream_];
  if (av_seek_frame(input_.get(), stream_, picture, AVSEEK_FLAG_BACKWARD) < 0) throw std::runtime_error("cannot seek");
  avcodec_flush_buffers(codec_.get());
  drained_ = false;
  const int entry = av_index_search_timestamp(stream, picture, AVSEEK_FLAG_BACKWARD);
  const int key = entry < 0 ? 0 : static_cast<int>(avformat_index_get_entry(stream, entry)->timestamp);
  for (int n = key; n <= picture; ++n)
    if (!Next()) throw std::runtime_error("the video ends early");
}

void BareDecoder::SeekToTime(double seconds) {
  const AVStream* stream = input_->streams[stream_];
  // Half a picture early, for times are rounded.
  const double unit = av_q2d(stream->time_base);
  const auto time = static_cast<std::int64_t>((seconds - 0.5 / av_q2d(stream->avg_frame_rate)) / unit);
  if (av_seek_frame(input_.get(), stream_, std::max<std::int64_t>(0, time), AVSEEK_FLAG_BACKWARD) < 0)
    throw std::runtime_error("cannot seek");
  avcodec_flush_buffers(codec_.get());
  drained_ = false;
  do {
    if (!Next()) throw std::runtime_error("the video ends early");
  } while (frame_->pts < time);
}

}  // namespace kinalyx::bench
