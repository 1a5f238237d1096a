#include "platform/media/CutEncoder.h"

#include <initializer_list>
#include <utility>

#include "platform/media/CutContainer.h"

namespace kinalyx {
namespace {

using Names = std::initializer_list<const char*>;

// Each kind has a constant of its own, for a list in a return would be gone after it.
constexpr Names kH264 = {"libx264"};
constexpr Names kH265 = {"libx265"};
constexpr Names kVp8 = {"libvpx"};
constexpr Names kVp9 = {"libvpx-vp9"};
constexpr Names kAv1 = {"libsvtav1", "libaom-av1"};
constexpr Names kMpeg1 = {"mpeg1video"};
constexpr Names kMpeg2 = {"mpeg2video"};
constexpr Names kMpeg4 = {"mpeg4"};
constexpr Names kStills = {"mjpeg"};
constexpr Names kTape = {"dvvideo"};
constexpr Names kProRes = {"prores_ks"};
constexpr Names kTheora = {"libtheora"};
constexpr Names kFlash = {"flv"};
constexpr Names kOldPhone = {"h263p", "h263"};
constexpr Names kMsMpeg4V2 = {"msmpeg4v2"};
constexpr Names kMsMpeg4V3 = {"msmpeg4"};
constexpr Names kWindowsMedia7 = {"wmv1"};
constexpr Names kWindowsMedia = {"wmv2"};
constexpr Names kLossless = {"ffv1"};
constexpr Names kNone = {};

const Names& OwnEncoders(AVCodecID source) {
  switch (source) {
    case AV_CODEC_ID_H264: return kH264;
    case AV_CODEC_ID_HEVC: return kH265;
    case AV_CODEC_ID_VP8: return kVp8;
    case AV_CODEC_ID_VP9: return kVp9;
    case AV_CODEC_ID_AV1: return kAv1;
    case AV_CODEC_ID_MPEG1VIDEO: return kMpeg1;
    case AV_CODEC_ID_MPEG2VIDEO: return kMpeg2;
    case AV_CODEC_ID_MPEG4: return kMpeg4;
    case AV_CODEC_ID_MJPEG: return kStills;
    case AV_CODEC_ID_DVVIDEO: return kTape;
    case AV_CODEC_ID_PRORES: return kProRes;
    case AV_CODEC_ID_THEORA: return kTheora;
    case AV_CODEC_ID_FLV1: return kFlash;
    case AV_CODEC_ID_H263:
    case AV_CODEC_ID_H263P: return kOldPhone;
    case AV_CODEC_ID_MSMPEG4V2: return kMsMpeg4V2;
    case AV_CODEC_ID_MSMPEG4V3: return kMsMpeg4V3;
    case AV_CODEC_ID_WMV1: return kWindowsMedia7;
    case AV_CODEC_ID_WMV2:
    case AV_CODEC_ID_WMV3:
    case AV_CODEC_ID_VC1: return kWindowsMedia;
    case AV_CODEC_ID_FFV1: return kLossless;
    default: return kNone;
  }
}

/// Pictures are stepped through, and looked at closely.
void AskForQuality(AVCodecContext& codec, AVDictionary*& options) {
  codec.gop_size = 12;
  codec.max_b_frames = 0;
  const auto set = [&](std::initializer_list<std::pair<const char*, const char*>> wishes) {
    for (const auto& [key, value] : wishes) av_dict_set(&options, key, value, 0);
  };
  switch (codec.codec_id) {
    case AV_CODEC_ID_H264: set({{"crf", "16"}, {"preset", "fast"}}); break;
    case AV_CODEC_ID_HEVC: set({{"crf", "16"}, {"preset", "fast"}, {"x265-params", "log-level=error"}}); break;
    case AV_CODEC_ID_VP8:
      // Pictures that are stored and never shown would be counted.
      set({{"crf", "6"}, {"deadline", "good"}, {"cpu-used", "4"}, {"auto-alt-ref", "0"}});
      codec.bit_rate = 60'000'000;
      break;
    case AV_CODEC_ID_VP9:
      set({{"crf", "16"}, {"deadline", "good"}, {"cpu-used", "5"}, {"row-mt", "1"}, {"auto-alt-ref", "0"}});
      codec.bit_rate = 0;
      break;
    case AV_CODEC_ID_AV1: set({{"crf", "20"}, {"preset", "9"}, {"cpu-used", "6"}}); break;
    case AV_CODEC_ID_DVVIDEO:
    case AV_CODEC_ID_PRORES:
    case AV_CODEC_ID_FFV1: break;
    case AV_CODEC_ID_THEORA:
      codec.flags |= AV_CODEC_FLAG_QSCALE;
      codec.global_quality = FF_QP2LAMBDA * 10;
      break;
    default:
      codec.flags |= AV_CODEC_FLAG_QSCALE;
      codec.global_quality = FF_QP2LAMBDA * 2;
      break;
  }
}

void AskForFields(AVCodecContext& codec, const AVCodecParameters& source, const AVFrame& picture) {
  const bool interlaced = picture.interlaced_frame || codec.codec_id == AV_CODEC_ID_DVVIDEO;
  const bool able = codec.codec_id == AV_CODEC_ID_H264 || codec.codec_id == AV_CODEC_ID_MPEG2VIDEO ||
                    codec.codec_id == AV_CODEC_ID_MPEG4 || codec.codec_id == AV_CODEC_ID_DVVIDEO;
  if (!interlaced || !able) return;
  codec.flags |= AV_CODEC_FLAG_INTERLACED_DCT;
  if (codec.codec_id != AV_CODEC_ID_DVVIDEO) codec.flags |= AV_CODEC_FLAG_INTERLACED_ME;
  codec.field_order = source.field_order;
}

AVRational PossibleRate(const AVCodec& encoder, AVRational rate) {
  constexpr int kFinest = 60000;  // of the old encoders
  if (encoder.supported_framerates)
    return encoder.supported_framerates[av_find_nearest_q_idx(rate, encoder.supported_framerates)];
  av_reduce(&rate.num, &rate.den, rate.num, rate.den, kFinest);
  return rate;
}

CodecHandle OpenOne(const AVOutputFormat& format, const AVCodec& encoder, const AVCodecParameters& source,
                    const AVFrame& picture, AVRational rate) {
  CodecHandle codec(avcodec_alloc_context3(&encoder));
  if (!codec) return nullptr;
  codec->width = picture.width;
  codec->height = picture.height;
  codec->framerate = PossibleRate(encoder, rate);
  codec->time_base = av_inv_q(codec->framerate);
  codec->sample_aspect_ratio = source.sample_aspect_ratio;
  codec->color_range = picture.color_range;
  codec->colorspace = picture.colorspace;
  codec->color_primaries = picture.color_primaries;
  codec->color_trc = picture.color_trc;
  codec->chroma_sample_location = picture.chroma_location;
  const auto wanted = static_cast<AVPixelFormat>(picture.format);
  codec->pix_fmt = encoder.pix_fmts ? avcodec_find_best_pix_fmt_of_list(encoder.pix_fmts, wanted, 0, nullptr) : wanted;
  if (encoder.id == AV_CODEC_ID_MJPEG) codec->color_range = AVCOL_RANGE_JPEG;
  if (encoder.id == source.codec_id) codec->codec_tag = AcceptedTag(format, encoder.id, source.codec_tag);
  if (encoder.id == AV_CODEC_ID_PRORES) codec->profile = source.profile;
  if (format.flags & AVFMT_GLOBALHEADER) codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
  AVDictionary* options = nullptr;
  AskForQuality(*codec, options);
  AskForFields(*codec, source, picture);
  const int opened = avcodec_open2(codec.get(), &encoder, &options);
  av_dict_free(&options);
  return opened < 0 ? nullptr : std::move(codec);
}

}  // namespace

CodecHandle OpenCutEncoder(const AVOutputFormat& format, const AVCodecParameters& source, const AVFrame& picture,
                           AVRational rate) {
  for (const Names* names : {&OwnEncoders(source.codec_id), &kH264}) {
    for (const char* name : *names) {
      const AVCodec* encoder = avcodec_find_encoder_by_name(name);
      if (!encoder || !CanHold(format, encoder->id)) continue;
      if (CodecHandle codec = OpenOne(format, *encoder, source, picture, rate)) return codec;
    }
  }
  return nullptr;
}

}  // namespace kinalyx
