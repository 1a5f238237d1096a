#include "platform/media/LessonCoders.h"

namespace kinalyx {
namespace {

constexpr int kKeySeconds = 4;
constexpr int kBitsPerPixel = 3;  // a second, of MPEG-4: 3 Mbit/s at 1280 x 800
constexpr int kVoiceBits = 96'000;
// 500 samples: of all sizes that the encoder has, the one with a whole number of bytes in a second. An AVI file tells
// time by that number, and with another it would be late by seconds in the end.
constexpr const char* kVoiceBlock = "256";

}  // namespace

CodecHandle OpenLessonPictures(const LessonFormat& format) {
  const bool avi = format.kind == LessonKind::Avi;
  const AVCodec* encoder = avcodec_find_encoder_by_name(avi ? "msmpeg4v2" : "libx264");
  CodecHandle codec(encoder ? avcodec_alloc_context3(encoder) : nullptr);
  if (!codec) return nullptr;
  codec->width = format.width;
  codec->height = format.height;
  codec->pix_fmt = AV_PIX_FMT_YUV420P;
  codec->color_range = AVCOL_RANGE_MPEG;
  codec->colorspace = AVCOL_SPC_SMPTE170M;
  codec->sample_aspect_ratio = {1, 1};
  codec->framerate = {LessonFile::kRate, 1};
  codec->time_base = {1, LessonFile::kRate};
  codec->gop_size = kKeySeconds * LessonFile::kRate;
  codec->max_b_frames = 0;
  codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  AVDictionary* options = nullptr;
  if (avi) {
    codec->bit_rate = std::int64_t{format.width} * format.height * kBitsPerPixel;
    codec->qmin = 2;
    codec->qmax = 12;  // letters and lines stay readable, whatever moves
  } else {
    codec->thread_type = FF_THREAD_SLICE;  // with threads for pictures the last ones are lost with a killed program
    // Every telephone since 2010 plays this.
    for (const auto& [key, value] : {std::pair{"preset", "superfast"}, {"crf", "23"}, {"profile", "high"}})
      av_dict_set(&options, key, value, 0);
  }
  const int opened = avcodec_open2(codec.get(), encoder, &options);
  av_dict_free(&options);
  return opened < 0 ? nullptr : std::move(codec);
}

CodecHandle OpenLessonVoice(LessonKind kind) {
  const bool avi = kind == LessonKind::Avi;
  const AVCodec* encoder = avcodec_find_encoder_by_name(avi ? "adpcm_ms" : "aac");
  CodecHandle codec(encoder ? avcodec_alloc_context3(encoder) : nullptr);
  if (!codec) return nullptr;
  codec->sample_fmt = avi ? AV_SAMPLE_FMT_S16 : AV_SAMPLE_FMT_FLTP;
  codec->sample_rate = LessonFile::kSoundRate;
  codec->time_base = {1, LessonFile::kSoundRate};
  av_channel_layout_default(&codec->ch_layout, 1);
  if (!avi) codec->bit_rate = kVoiceBits;
  codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  AVDictionary* options = nullptr;
  if (avi) av_dict_set(&options, "block_size", kVoiceBlock, 0);
  const int opened = avcodec_open2(codec.get(), encoder, &options);
  av_dict_free(&options);
  return opened < 0 ? nullptr : std::move(codec);
}

}  // namespace kinalyx
