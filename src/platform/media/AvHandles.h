#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/bsf.h>
#include <libavformat/avformat.h>
#include <libavutil/avstring.h>
#include <libswscale/swscale.h>
}

#include <atomic>
#include <memory>
#include <string>

namespace kinalyx {

// The library's objects, each owned by one handle. Only for the sources of this room.

struct AvDeleter {
  void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
  void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
  void operator()(AVCodecParserContext* parser) const { av_parser_close(parser); }
  void operator()(AVBSFContext* filter) const { av_bsf_free(&filter); }
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
  void operator()(SwsContext* context) const { sws_freeContext(context); }
};

template <typename T>
using AvHandle = std::unique_ptr<T, AvDeleter>;

using InputHandle = AvHandle<AVFormatContext>;
using CodecHandle = AvHandle<AVCodecContext>;
using ParserHandle = AvHandle<AVCodecParserContext>;
using FilterHandle = AvHandle<AVBSFContext>;
using FrameHandle = AvHandle<AVFrame>;
using PacketHandle = AvHandle<AVPacket>;
using ScalerHandle = AvHandle<SwsContext>;

inline FrameHandle NewFrame() { return FrameHandle(av_frame_alloc()); }
inline PacketHandle NewPacket() { return PacketHandle(av_packet_alloc()); }

/// The library prints its remarks on the console, where nobody reads them, unless somebody else takes them.
/// Before the first use of the library; see MediaLog.h.
void HearLibrary();

/// Counts what a decoder has to complain of, whose `opaque` points here: it says more in its messages than in its
/// results. Needs HearLibrary.
using Complaints = std::atomic<int>;

/// The library's own words for an error code.
inline std::string AvError(int code) {
  char text[AV_ERROR_MAX_STRING_SIZE] = {};
  av_strerror(code, text, sizeof text);
  return text;
}

}  // namespace kinalyx
