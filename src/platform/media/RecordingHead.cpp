#include "platform/media/RecordingHead.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace kinalyx {
namespace {

// Where the contents of the chunks stand; the name and the size of each stand in the eight bytes before, the kind of a
// list in four more behind those.
constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kListHead = 12;
constexpr std::size_t kMainHeader = 2 * kListHead + kChunkHead;
constexpr std::size_t kMainHeaderBytes = 56;
constexpr std::size_t kStreamHeader = kMainHeader + kMainHeaderBytes + kListHead + kChunkHead;
constexpr std::size_t kStreamHeaderBytes = 56;
constexpr std::size_t kFormat = kStreamHeader + kStreamHeaderBytes + kChunkHead;
constexpr std::size_t kFormatBytes = 40;
constexpr std::size_t kParts = kFormat + kFormatBytes + kChunkHead;
constexpr std::size_t kPartsHead = 24;
constexpr std::size_t kPartBytes = 16;
constexpr std::size_t kPartsBytes = kPartsHead + kPartBytes * RecordingHead::kMostParts;
constexpr std::size_t kProperties = kParts + kPartsBytes + kChunkHead;
constexpr std::size_t kPropertiesBytes = 36 + 2 * 32;
constexpr std::size_t kLongHeader = kProperties + kPropertiesBytes + kListHead + kChunkHead;
constexpr std::size_t kLongHeaderBytes = 248;
constexpr std::size_t kMaker = kLongHeader + kLongHeaderBytes + kListHead + kChunkHead;
constexpr std::string_view kMakerName("Kinalyx\0", 8);
constexpr std::size_t kPadding = kMaker + kMakerName.size() + kChunkHead;

constexpr std::size_t kFlags = kMainHeader + 12;
constexpr std::uint32_t kHasIndex = 0x10;
constexpr std::uint32_t kIsInterleaved = 0x100;
constexpr std::size_t kScale = kStreamHeader + 20;
constexpr std::size_t kRate = kStreamHeader + 24;
constexpr double kUnknownRate = 30;
constexpr double kFastest = 20000;

struct Packing {
  std::uint32_t name;  ///< 0 for rows of blue, green and red
  unsigned bits;
};

Packing PackingOf(RecordingFormat::Codec codec) {
  switch (codec) {
    case RecordingFormat::Codec::RawBgr24: return {0, 24};
    case RecordingFormat::Codec::RawYuy2: return {ChunkName("YUY2"), 16};
    case RecordingFormat::Codec::Dv: return {ChunkName("dvsd"), 24};
    case RecordingFormat::Codec::Mjpeg: break;
  }
  return {ChunkName("MJPG"), 24};
}

}  // namespace

void PutNumber(std::span<std::uint8_t> bytes, std::size_t at, std::uint64_t number, int count) {
  for (int i = 0; i < count; ++i, number >>= 8) bytes[at + static_cast<std::size_t>(i)] = number & 0xFF;
}

std::uint64_t TakeNumber(std::span<const std::uint8_t> bytes, std::size_t at, int count) {
  std::uint64_t number = 0;
  for (int i = count - 1; i >= 0; --i) number = number << 8 | bytes[at + static_cast<std::size_t>(i)];
  return number;
}

RecordingHead::RecordingHead(const RecordingFormat& format) : bytes_(kBytes, 0) {
  const auto width = static_cast<unsigned>(format.width);
  const auto height = static_cast<unsigned>(format.height);
  const Packing packing = PackingOf(format.codec);
  const bool raw = format.codec == RecordingFormat::Codec::RawBgr24 || format.codec == RecordingFormat::Codec::RawYuy2;
  const unsigned rowBytes = (width * packing.bits / 8 + 3) / 4 * 4;

  PutList(kListHead, kFileChunk, ChunkName("AVI "), kBytes);
  PutList(2 * kListHead, kListChunk, ChunkName("hdrl"), kLongHeader + kLongHeaderBytes);
  PutChunk(kMainHeader, ChunkName("avih"), kMainHeaderBytes);
  Put(kFlags, kIsInterleaved);
  Put(kMainHeader + 24, 1);  // stream
  Put(kMainHeader + 32, width);
  Put(kMainHeader + 36, height);

  PutList(kStreamHeader - kChunkHead, kListChunk, ChunkName("strl"), kProperties + kPropertiesBytes);
  PutChunk(kStreamHeader, ChunkName("strh"), kStreamHeaderBytes);
  Put(kStreamHeader, ChunkName("vids"));
  Put(kStreamHeader + 4, packing.name);
  Put(kStreamHeader + 40, 0xFFFFFFFF);  // quality: not told
  Put(kStreamHeader + 52, width, 2);
  Put(kStreamHeader + 54, height, 2);

  PutChunk(kFormat, ChunkName("strf"), kFormatBytes);
  Put(kFormat, kFormatBytes);
  Put(kFormat + 4, width);
  Put(kFormat + 8, height);
  Put(kFormat + 12, 1, 2);  // plane
  Put(kFormat + 14, packing.bits, 2);
  Put(kFormat + 16, packing.name);
  Put(kFormat + 20, raw ? rowBytes * height : width * height * packing.bits / 8);

  PutChunk(kParts, ChunkName("indx"), kPartsBytes);
  Put(kParts, 4, 2);  // numbers of 32 bits in each entry
  Put(kParts + 8, kPictureChunk);

  // The fields of a picture: how many, and with which row of the picture each begins.
  const unsigned fields = format.fields == RecordingFormat::Fields::None ? 1 : 2;
  PutChunk(kProperties, ChunkName("vprp"), kPropertiesBytes);
  Put(kProperties + 12, width);
  Put(kProperties + 16, height);
  Put(kProperties + 24, width);
  Put(kProperties + 28, height);
  Put(kProperties + 32, fields);
  for (unsigned field = 0; field < fields; ++field) {
    const std::size_t at = kProperties + 36 + std::size_t{32} * field;
    const bool bottom = fields == 2 && (field == 0) == (format.fields == RecordingFormat::Fields::BottomFirst);
    for (const std::size_t box : {at, at + 8}) {
      Put(box, height / fields);
      Put(box + 4, width);
    }
    Put(at + 28, bottom ? 1 : 0);
  }

  PutList(kLongHeader - kChunkHead, kListChunk, ChunkName("odml"), kLongHeader + kLongHeaderBytes);
  PutChunk(kLongHeader, ChunkName("dmlh"), kLongHeaderBytes);
  PutList(kMaker - kChunkHead, kListChunk, ChunkName("INFO"), kMaker + kMakerName.size());
  PutChunk(kMaker, ChunkName("ISFT"), kMakerName.size());
  std::ranges::copy(kMakerName, bytes_.begin() + kMaker);
  PutChunk(kPadding, kJunkChunk, kPictureList - kPadding);
  PutList(kBytes, kListChunk, ChunkName("movi"), kBytes);
  SetRate(format.promisedRate > 0 ? format.promisedRate : kUnknownRate);
}

std::optional<RecordingHead> RecordingHead::Read(std::vector<std::uint8_t> bytes) {
  const auto holds = [&](std::size_t at, std::uint32_t name) { return TakeNumber(bytes, at) == name; };
  if (bytes.size() != kBytes || !holds(0, kFileChunk) || !holds(kListHead - 4, ChunkName("AVI ")) ||
      !holds(kParts - kChunkHead, ChunkName("indx")) || !holds(kBytes - 4, ChunkName("movi")) ||
      !std::equal(kMakerName.begin(), kMakerName.end(), bytes.begin() + kMaker))
    return std::nullopt;
  RecordingHead head;
  head.bytes_ = std::move(bytes);
  return head;
}

void RecordingHead::PutChunk(std::size_t content, std::uint32_t name, std::size_t bytes) {
  Put(content - kChunkHead, name);
  Put(content - kChunkHead + 4, bytes);
}

void RecordingHead::PutList(std::size_t content, std::uint32_t name, std::uint32_t kind, std::size_t end) {
  Put(content - kListHead, name);
  Put(content - kListHead + 4, end - (content - 4));
  Put(content - 4, kind);
}

bool RecordingHead::Finished() const { return TakeNumber(bytes_, kFlags) & kHasIndex; }

double RecordingHead::Rate() const {
  const auto scale = static_cast<double>(TakeNumber(bytes_, kScale));
  const double rate = scale > 0 ? static_cast<double>(TakeNumber(bytes_, kRate)) / scale : 0;
  return rate > 0 && rate <= kFastest ? rate : kUnknownRate;
}

std::size_t RecordingHead::Parts() const {
  return std::min(kMostParts, static_cast<std::size_t>(TakeNumber(bytes_, kParts + 4)));
}

std::pair<std::int64_t, std::uint32_t> RecordingHead::Part(std::size_t part) const {
  const std::size_t at = kParts + kPartsHead + kPartBytes * part;
  return {static_cast<std::int64_t>(TakeNumber(bytes_, at, 8)), static_cast<std::uint32_t>(TakeNumber(bytes_, at + 8))};
}

void RecordingHead::SetFinished() { Put(kFlags, TakeNumber(bytes_, kFlags) | kHasIndex); }

void RecordingHead::SetRate(double rate) {
  // The rates of television and of most cameras have fractions of their own.
  constexpr std::pair<unsigned, unsigned> kUsual[] = {{30000, 1001}, {60000, 1001}, {25, 1},  {30, 1},
                                                      {50, 1},       {60, 1},       {120, 1}, {240, 1}};
  constexpr double kNear = 0.0002;
  constexpr unsigned kUnits = 100000;
  rate = std::clamp(rate, 1.0 / kUnits, kFastest);
  unsigned scale = kUnits;
  auto number = static_cast<unsigned>(std::llround(rate * kUnits));
  for (const auto& [over, under] : kUsual) {
    const double usual = static_cast<double>(over) / under;
    if (std::abs(rate - usual) > kNear * usual) continue;
    number = over;
    scale = under;
  }
  const unsigned common = std::gcd(number, scale);
  Put(kRate, number / common);
  Put(kScale, scale / common);
  Put(kMainHeader, static_cast<std::uint64_t>(std::llround(1e6 * scale / number)));
}

void RecordingHead::SetPlaces(std::int64_t places, std::int64_t inFirstPart) {
  Put(kMainHeader + 16, static_cast<std::uint64_t>(inFirstPart));
  Put(kStreamHeader + 32, static_cast<std::uint64_t>(places));
  Put(kLongHeader, static_cast<std::uint64_t>(places));
}

void RecordingHead::SetLargestPicture(std::uint32_t bytes) {
  Put(kMainHeader + 28, bytes);
  Put(kStreamHeader + 36, bytes);
}

void RecordingHead::SetFirstPart(std::int64_t listEnd, std::int64_t partEnd) {
  Put(4, static_cast<std::uint64_t>(partEnd) - kChunkHead);
  Put(kPictureList + 4, static_cast<std::uint64_t>(listEnd) - kPictureList - kChunkHead);
}

void RecordingHead::SetPart(std::size_t part, std::int64_t indexAt, std::uint32_t indexBytes, std::uint32_t places) {
  Put(kParts + 4, part + 1);
  const std::size_t at = kParts + kPartsHead + kPartBytes * part;
  Put(at, static_cast<std::uint64_t>(indexAt), 8);
  Put(at + 8, indexBytes);
  Put(at + 12, places);
}

}  // namespace kinalyx
