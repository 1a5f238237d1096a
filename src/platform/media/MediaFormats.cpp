#include "platform/media/MediaFormats.h"

#include "platform/files/Tr.h"
#include "platform/media/AvHandles.h"

namespace kinalyx {
namespace {

struct Kind {
  AVCodecID id;
  const char* name;
  const char* where;
};

constexpr Kind kKinds[] = {
    {AV_CODEC_ID_H264, "H.264 (AVC)", TrLater("telephones, action cameras, camcorders")},
    {AV_CODEC_ID_HEVC, "H.265 (HEVC)", TrLater("newer telephones")},
    {AV_CODEC_ID_MJPEG, "Motion JPEG", TrLater("webcams, what is imported here")},
    {AV_CODEC_ID_DVVIDEO, "DV", TrLater("tape camcorders, imported tape")},
    {AV_CODEC_ID_MPEG2VIDEO, "MPEG-2", TrLater("HDV camcorders, discs")},
    {AV_CODEC_ID_MPEG4, "MPEG-4", TrLater("older cameras, DivX, Xvid")},
    {AV_CODEC_ID_MPEG1VIDEO, "MPEG-1", TrLater("old discs")},
    {AV_CODEC_ID_WMV3, "Windows Media 9", TrLater("Windows programs")},
    {AV_CODEC_ID_VC1, "VC-1", TrLater("Windows programs")},
    {AV_CODEC_ID_INDEO5, "Indeo 5 (IV50)", TrLater("old imports")},
    {AV_CODEC_ID_PRORES, "ProRes", TrLater("editing programs")},
    {AV_CODEC_ID_VP9, "VP9", TrLater("the web")},
    {AV_CODEC_ID_AV1, "AV1", TrLater("the web")},
    {AV_CODEC_ID_THEORA, "Theora", TrLater("OGG files")},
    {AV_CODEC_ID_FLV1, "Flash Video", TrLater("the old web")},
    {AV_CODEC_ID_H263, "H.263", TrLater("old telephones (3GP)")},
};

}  // namespace

std::vector<MediaFormat> KnownFormats() {
  std::vector<MediaFormat> formats;
  for (const Kind& kind : kKinds)
    formats.push_back({kind.name, Tr(kind.where), avcodec_find_decoder(kind.id) != nullptr,
                       avcodec_find_encoder(kind.id) != nullptr});
  return formats;
}

}  // namespace kinalyx
