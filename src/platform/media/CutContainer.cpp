#include "platform/media/CutContainer.h"

#include <algorithm>
#include <cctype>
#include <string_view>

extern "C" {
#include <libavutil/opt.h>
}

namespace kinalyx {
namespace {

constexpr int kDiscPacketBytes = 192;  // of a transport stream on discs and cards

bool HasEnding(const std::string& path, std::string_view ending) {
  if (path.size() < ending.size()) return false;
  return std::equal(ending.begin(), ending.end(), path.end() - static_cast<std::ptrdiff_t>(ending.size()),
                    [](char a, char b) { return a == std::tolower(static_cast<unsigned char>(b)); });
}

std::vector<const char*> FilmMuxers(const AVFormatContext& input) {
  const AVDictionaryEntry* brand = av_dict_get(input.metadata, "major_brand", nullptr, 0);
  const std::string_view name = brand ? brand->value : "qt  ";
  if (name.starts_with("3gp")) return {"3gp", "mp4", "mov"};
  if (name.starts_with("3g2")) return {"3g2", "mp4", "mov"};
  if (name == "qt  ") return {"mov"};
  return {"mp4", "mov"};
}

}  // namespace

CutContainer CutContainer::Like(const AVFormatContext& input, const std::string& path) {
  CutContainer like;
  const auto is = [&](const char* name) { return av_match_name(name, input.iformat->name) != 0; };
  if (is("mov")) {
    like.muxers = FilmMuxers(input);
    like.hidesPictures = true;
  } else if (is("matroska")) {
    if (HasEnding(path, ".webm")) like.muxers = {"webm", "matroska"};
    else like.muxers = {"matroska"};
  } else if (is("mpegts")) {
    like.muxers = {"mpegts"};
    std::int64_t bytes = 0;
    if (av_opt_get_int(input.priv_data, "ts_packetsize", 0, &bytes) >= 0) like.packetBytes = static_cast<int>(bytes);
  } else if (is("mpeg")) {
    like.muxers = {"vob"};
  } else if (is("mpegvideo")) {
    like.muxers = {"mpeg2video"};
  } else if (is("asf") || is("flv") || is("ogg") || is("nut") || is("dv") || is("gif") || is("mxf") || is("ivf")) {
    like.muxers = {input.iformat->name};
  }
  return like;
}

const AVOutputFormat* CutContainer::For(const std::vector<const AVCodecParameters*>& streams) const {
  for (const char* name : muxers) {
    const AVOutputFormat* format = av_guess_format(name, nullptr, nullptr);
    const auto holds = [format](const AVCodecParameters* stream) { return CanHold(*format, stream->codec_id); };
    if (format && std::ranges::all_of(streams, holds)) return format;
  }
  return nullptr;
}

bool CanHold(const AVOutputFormat& format, AVCodecID codec) {
  return avformat_query_codec(&format, codec, FF_COMPLIANCE_NORMAL) != 0;
}

unsigned AcceptedTag(const AVOutputFormat& format, AVCodecID codec, unsigned wish) {
  unsigned other = 0;
  const bool fits = !format.codec_tag || av_codec_get_id(format.codec_tag, wish) == codec ||
                    !av_codec_get_tag2(format.codec_tag, codec, &other);
  return fits ? wish : 0;
}

void CopyNotes(AVDictionary*& to, const AVDictionary* from) {
  static constexpr const char* kOwn[] = {"major_brand", "minor_version",    "compatible_brands", "encoder",
                                         "DURATION",    "NUMBER_OF_FRAMES", "NUMBER_OF_BYTES",   "BPS",
                                         "rotate",      "timecode",         "duration",          "WM/EncodingTime"};
  const AVDictionaryEntry* note = nullptr;
  while ((note = av_dict_get(from, "", note, AV_DICT_IGNORE_SUFFIX))) {
    const std::string_view key = note->key;
    const auto own = [key](const char* name) {
      const std::string_view text = name;
      return key == text || (key.starts_with(text) && key.substr(text.size()).starts_with("-"));
    };
    if (std::ranges::any_of(kOwn, own) || key.starts_with("_STATISTICS_")) continue;
    av_dict_set(&to, note->key, note->value, 0);
  }
}

}  // namespace kinalyx
