#include "platform/media/Demuxer.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/media/AviFields.h"

namespace kinalyx {
namespace {

// Containers of moving pictures. The library could open much more, among it texts that name other files
// or addresses; a file out of a student's mail shall not make it do that.
constexpr char kContainers[] =
    "avi,mov,matroska,webm,mpegts,mpeg,mpegvideo,asf,flv,dv,mjpeg,mxf,ogg,nut,rm,ivf,h264,hevc,m4v,gif,wtv,"
    "yuv4mpegpipe,av1,obu,vc1,vc1test,dirac,cavsvideo,h261,h263,gxf,nsv,nuv,pva,dhav,smk,bink,roq,apng,smjpeg,mpjpeg";
constexpr std::size_t kPaletteColours = 256;
/// Nine hours of 240 pictures a second.
constexpr std::int64_t kMostPackets = 1 << 23;

/// Codecs that show nothing of the packets before the first key packet.
bool WaitsForKey(AVCodecID codec) {
  return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC || codec == AV_CODEC_ID_VP8 ||
         codec == AV_CODEC_ID_VP9 || codec == AV_CODEC_ID_AV1;
}

bool OneOf(const char* list, const char* name) { return av_match_name(name, list) != 0; }

std::string FourCC(const AVCodecParameters& codec) {
  std::string text;
  for (int shift = 0; shift < 32; shift += 8) {
    const auto c = static_cast<unsigned char>(codec.codec_tag >> shift);
    if (c < 32 || c > 126) return avcodec_get_name(codec.codec_id);
    text += static_cast<char>(c);
  }
  return text;
}

/// A film whose writer was stopped has its pictures, and no word of where they are.
bool LacksFilmIndex(const FileInput& file) {
  std::int64_t place = 0;
  bool film = false;
  for (int boxes = 0; boxes < 1000; ++boxes) {
    std::array<std::uint8_t, 16> head{};
    if (!file.ReadAt(place, std::span(head).first(8))) return film;
    const std::string_view name(reinterpret_cast<const char*>(head.data()) + 4, 4);
    if (name == "moov") return false;
    if (name == "ftyp" || name == "mdat") film = true;
    std::uint64_t size = 0;
    for (int i = 0; i < 4; ++i) size = size << 8 | head[static_cast<std::size_t>(i)];
    if (size == 1 && file.ReadAt(place, head)) {
      size = 0;
      for (int i = 8; i < 16; ++i) size = size << 8 | head[static_cast<std::size_t>(i)];
    }
    if (size < 8 || size > static_cast<std::uint64_t>(file.Bytes())) return film;
    place += static_cast<std::int64_t>(size);
  }
  return false;
}

std::string WhyRefused(const FileInput& file, int error) {
  if (LacksFilmIndex(file)) return "the recording was cut off: its index is missing";
  // Not one of the containers, or none that is whole.
  const bool strange = error == AVERROR_INVALIDDATA || error == AVERROR(EINVAL);
  return strange ? "no video of a kind that is known here, or damaged" : AvError(error);
}

/// Lets the library look into the pictures, with the same bounds as our own decoder.
int Probe(AVFormatContext& input) {
  std::vector<AVDictionary*> options(input.nb_streams);
  for (AVDictionary*& option : options) av_dict_set_int(&option, "max_pixels", kMostPixels, 0);
  const int result = avformat_find_stream_info(&input, options.data());
  for (AVDictionary*& option : options) av_dict_free(&option);
  return result;
}

}  // namespace

Result<std::unique_ptr<Demuxer>> Demuxer::Open(const std::string& path) {
  HearLibrary();
  std::unique_ptr<Demuxer> demuxer(new Demuxer);
  std::string refusal;
  auto file = FileInput::Open(path, refusal);
  if (!file) return Outcome(Fault::NotFound, refusal);
  if (const Outcome opened = demuxer->OpenStream(std::move(file)); !opened) return opened;
  const PacketHandle first = demuxer->FirstPacket();
  demuxer->preamble_ = first ? std::make_shared<Preamble>(demuxer->Codec(), *first) : std::make_shared<Preamble>();
  if (first) demuxer->FindFields(*first);
  if (!demuxer->IndexFromContainer()) {
    demuxer->chunksOfFrame_ = 1;
    demuxer->IndexByReading();
  }
  if (demuxer->index_->FrameCount() < 1) return Outcome(Fault::NoFrames, Tr("the video stream holds no picture"));
  return demuxer;
}

std::unique_ptr<Demuxer> Demuxer::Again() const {
  std::unique_ptr<Demuxer> demuxer(new Demuxer);
  auto file = file_->Again();
  if (!file || !demuxer->OpenStream(std::move(file), stream_)) return nullptr;
  demuxer->index_ = index_;
  demuxer->preamble_ = preamble_;
  demuxer->landmarks_ = landmarks_;
  demuxer->tellsShowTimes_ = tellsShowTimes_;
  demuxer->fields_ = fields_;
  if (joiner_) demuxer->joiner_ = std::make_unique<FieldJoiner>(demuxer->Codec(), firstField_);
  return demuxer->Rewind() ? std::move(demuxer) : nullptr;
}

InputHandle Demuxer::OpenOthers(std::unique_ptr<FileInput>& file) const {
  file = file_->Again();
  int error = 0;
  InputHandle input = file ? file->OpenContainer(kContainers, error) : nullptr;
  if (!input || Probe(*input) < 0) return nullptr;
  return input;
}

Outcome Demuxer::OpenStream(std::unique_ptr<FileInput> file, const AVStream* known) {
  file_ = std::move(file);
  if (file_->Bytes() == 0) return Outcome(Fault::NoFrames, Tr("the file is empty"));
  int error = 0;
  input_ = file_->OpenContainer(kContainers, error);
  if (!input_) return Outcome(Fault::NoMedia, WhyRefused(*file_, error));
  isAvi_ = OneOf("avi", input_->iformat->name);

  const auto saysEnough = [&] {
    // The headers of these two containers say all that a codec without memory needs.
    if (!isAvi_ && !OneOf("mov", input_->iformat->name)) return false;
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(stream_->codecpar->codec_id);
    return descriptor && (descriptor->props & AV_CODEC_PROP_INTRA_ONLY) && stream_->codecpar->width > 0 &&
           stream_->codecpar->height > 0;
  };
  const bool found = FindStream();
  // Before the pictures are looked into, which tell a shape of their own.
  const AVRational pixelOfContainer = found ? stream_->sample_aspect_ratio : AVRational{0, 1};
  if (found && known && stream_->index == known->index) {
    if (avcodec_parameters_copy(stream_->codecpar, known->codecpar) < 0)
      return Outcome(Fault::NoMedia, Tr("the stream cannot be read"));
  } else if (!found || !saysEnough()) {
    Probe(*input_);
    if (!FindStream()) return Outcome(Fault::NoMedia, Tr("no video stream"));
  }
  const AVCodecParameters& codec = *stream_->codecpar;
  if (!avcodec_find_decoder(codec.codec_id)) return Outcome(Fault::NoMedia, Tr("no decoder for {}", FourCC(codec)));
  if (!IsLikelySize({codec.width, codec.height}))
    return Outcome(Fault::NoMedia, Tr("absurd picture size: {} x {}", codec.width, codec.height));
  FindShape(pixelOfContainer);
  FindPalette();
  // A program stream tells few times and makes up the rest, otherwise after a seek than before it.
  tellsTimes_ = !OneOf("mpeg", input_->iformat->name);
  tellsShowTimes_ = tellsTimes_ && !isAvi_ && !(input_->iformat->flags & AVFMT_NOTIMESTAMPS);
  return Outcome();
}

/// Takes the first stream of moving pictures and passes over all others.
bool Demuxer::FindStream() {
  for (unsigned i = 0; i < input_->nb_streams; ++i) {
    AVStream* stream = input_->streams[i];
    const bool picture = stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO;
    if (picture && !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC) && !stream_) stream_ = stream;
    if (stream->codecpar->codec_type == AVMEDIA_TYPE_AUDIO) hasSound_ = true;
  }
  DiscardOthers();
  return stream_ != nullptr;
}

void Demuxer::FindShape(AVRational pixelOfContainer) {
  const AVCodecParameters& codec = *stream_->codecpar;
  // What is drawn on tape and on AVI files is stored in the pixels that they always had here. Nearly none of the
  // files tells a shape of its own, and tape tells it otherwise on every machine.
  AVRational pixel = isAvi_ ? pixelOfContainer : av_guess_sample_aspect_ratio(input_.get(), stream_, nullptr);
  if (codec.codec_id == AV_CODEC_ID_DVVIDEO) pixel = {1, 1};
  shape_.TakePixel(pixel.num, pixel.den);
  if (!IsLikelySize(shape_.SizeOf(codec.width, codec.height))) shape_.TakePixel(1, 1);
  std::size_t bytes = 0;
  const std::uint8_t* matrix = av_stream_get_side_data(stream_, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
  std::array<std::int32_t, 9> numbers{};
  if (!matrix || bytes < sizeof numbers) return;
  std::memcpy(numbers.data(), matrix, sizeof numbers);
  shape_.Obey(numbers.data());
}

void Demuxer::FindPalette() {
  const AVCodecParameters& codec = *stream_->codecpar;
  const int bits = codec.bits_per_coded_sample;
  if (!isAvi_ || bits < 1 || bits > 8) return;
  // The library marks rows that run upward by a word behind the colours.
  constexpr std::string_view kUpward("BottomUp", 9);
  std::string_view extra(reinterpret_cast<const char*>(codec.extradata),
                         static_cast<std::size_t>(codec.extradata_size));
  if (extra.ends_with(kUpward)) extra.remove_suffix(kUpward.size());
  const std::size_t colours = std::min<std::size_t>(std::size_t{1} << bits, extra.size() / 4);
  if (colours == 0) return;
  extra.remove_prefix(extra.size() - 4 * colours);
  headerPalette_.assign(kPaletteColours, 0);
  for (std::size_t i = 0; i < colours; ++i) {
    const auto byte = [&](std::size_t n) {
      return static_cast<std::uint32_t>(static_cast<unsigned char>(extra[4 * i + n]));
    };
    headerPalette_[i] = 0xFF000000 | byte(2) << 16 | byte(1) << 8 | byte(0);
  }
  palette_ = headerPalette_;
}

/// The library itself hands the palette out once, with the first packet that it ever reads, and that is
/// gone after the first seek. Which packet a decoder sees first is not known here: so each has the palette
/// of its place. A packet that changes it brings its own.
void Demuxer::AddPalette(AVPacket& packet) {
  if (palette_.empty()) return;
  const std::size_t bytes = palette_.size() * sizeof(std::uint32_t);
  std::size_t ownBytes = 0;
  if (const std::uint8_t* own = av_packet_get_side_data(&packet, AV_PKT_DATA_PALETTE, &ownBytes)) {
    std::memcpy(palette_.data(), own, std::min(bytes, ownBytes));
  } else if (std::uint8_t* place = av_packet_new_side_data(&packet, AV_PKT_DATA_PALETTE, bytes)) {
    std::memcpy(place, palette_.data(), bytes);
  }
}

void Demuxer::DiscardOthers() {
  for (unsigned i = 0; i < input_->nb_streams; ++i) {
    AVStream* stream = input_->streams[i];
    if (stream != stream_ && stream_) stream->discard = AVDISCARD_ALL;
  }
}

bool Demuxer::IndexFromContainer() {
  if (isAvi_) return IndexFromAvi();
  return OneOf("mov", input_->iformat->name) && !joiner_ && IndexFromMov();
}

bool Demuxer::IndexFromAvi() {
  const int entries = avformat_index_get_entries_count(stream_);
  if (entries == 0) return false;
  chunksOfFrame_ = CountChunksOfFrame();
  PictureIndex index;
  std::int64_t afterLast = 0;
  for (int i = 0; i < entries; ++i) {
    const AVIndexEntry* entry = avformat_index_get_entry(stream_, i);
    // A file cut short keeps an index that was written in front.
    if (entry->pos >= file_->Bytes()) continue;
    if (entry->timestamp < 0 || entry->timestamp > kMostPackets) return false;
    index.Add(entry->timestamp, entry->flags & AVINDEX_KEYFRAME, entry->flags & AVINDEX_DISCARD_FRAME);
    index.PlaceLast(static_cast<int>(entry->timestamp) / chunksOfFrame_);
    afterLast = std::max(afterLast, entry->pos + 8 + entry->size + entry->size % 2);
  }
  if (index.PacketCount() == 0 || !index.TimesGrow()) return false;
  const int trailing = CountTrailingRepeats(afterLast);
  if (trailing < 0) return false;
  const int frames = (static_cast<int>(index.Time(index.PacketCount() - 1)) + trailing) / chunksOfFrame_ + 1;
  index.Finish(frames, WaitsForKey(stream_->codecpar->codec_id));
  index_ = std::make_shared<PictureIndex>(std::move(index));
  return KnowsFirstPacket();
}

/// When a picture is shown stands nowhere but with its packet. The headers know where that is: so a reader that
/// reads nothing gives all packets with their times, at the cost of none of them.
bool Demuxer::IndexFromMov() {
  const std::unique_ptr<FileInput> file = file_->Again();
  int error = 0;
  const InputHandle walk = file ? file->OpenContainer(kContainers, error) : nullptr;
  if (!walk || walk->nb_streams != input_->nb_streams) return false;
  for (unsigned i = 0; i < walk->nb_streams; ++i)
    walk->streams[i]->discard = static_cast<int>(i) == stream_->index ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
  walk->flags |= AVFMT_FLAG_NOPARSE;
  file->BecomeHollow();
  PictureIndex index;
  ReadIndex([&](AVPacket& packet) { return ReadPacket(*walk, stream_->index, packet); }, index);
  if (index.PacketCount() == 0 || !index.TimesGrow()) return false;
  index.Finish(0, WaitsForKey(stream_->codecpar->codec_id));
  index_ = std::make_shared<PictureIndex>(std::move(index));
  return LastIndexedIsLast() && KnowsFirstPacket();
}

/// Some writers take fields for frames, and put an empty chunk behind each picture of the whole file.
/// Nobody wants to step through those: such a group counts as one frame.
int Demuxer::CountChunksOfFrame() const {
  const int entries = avformat_index_get_entries_count(stream_);
  const auto time = [&](int i) { return avformat_index_get_entry(stream_, i)->timestamp; };
  if (entries < 2 || time(0) != 0) return 1;
  const std::int64_t step = time(1);
  if (step < 2 || step > 4) return 1;
  for (int i = 2; i < entries; ++i)
    if (time(i) != i * step) return 1;
  return static_cast<int>(step);
}

/// A film in fragments has an index of the first ones only: what follows shows when it is read.
bool Demuxer::LastIndexedIsLast() {
  const std::int64_t last = index_->Time(index_->PacketCount() - 1);
  if (av_seek_frame(input_.get(), stream_->index, last, AVSEEK_FLAG_ANY) < 0) return false;
  const PacketHandle packet = NewPacket();
  bool isLast = true;
  while (isLast && av_read_frame(input_.get(), packet.get()) >= 0) {
    if (packet->stream_index == stream_->index && packet->dts > last) isLast = false;
    av_packet_unref(packet.get());
  }
  return Rewind() && isLast;
}

/// Looks at what an AVI file holds behind its last indexed packet, which the demuxer does not tell:
/// the number of empty chunks of our stream, or -1 when there are packets that the index lacks.
int Demuxer::CountTrailingRepeats(std::int64_t afterLast) const {
  int repeats = 0;
  std::int64_t at = afterLast;
  for (int chunks = 0; chunks < 100000; ++chunks) {
    std::array<unsigned char, 8> head{};
    if (!file_->ReadAt(at, head)) break;
    const std::uint32_t size = head[4] | head[5] << 8 | head[6] << 16 | static_cast<std::uint32_t>(head[7]) << 24;
    const bool numbered = std::isdigit(head[0]) && std::isdigit(head[1]);
    if (numbered && (head[0] - '0') * 10 + head[1] - '0' == stream_->index) {
      const bool palette = head[2] == 'p' && head[3] == 'c';
      if (size > 0 && !palette) return -1;
      if (size == 0) ++repeats;
    } else if (std::memcmp(head.data(), "LIST", 4) == 0) {
      at += 12;  // step into it: clusters of chunks
      continue;
    } else if (!numbered && std::memcmp(head.data(), "JUNK", 4) != 0 && std::memcmp(head.data(), "ix", 2) != 0) {
      break;  // the index, another part of the file, or the end
    }
    at += 8 + static_cast<std::int64_t>(size) + size % 2;
  }
  return repeats;
}

void Demuxer::IndexByReading() {
  Rewind();
  PictureIndex index;
  ReadIndex([this](AVPacket& packet) { return ReadNext(packet); }, index);
  index.Finish(0, WaitsForKey(stream_->codecpar->codec_id));
  // Some containers say that they tell times, and leave most packets without.
  tellsShowTimes_ = tellsShowTimes_ && index.HasShowTimes();
  index_ = std::make_shared<PictureIndex>(std::move(index));
  Rewind();
}

void Demuxer::ReadIndex(const std::function<bool(AVPacket&)>& read, PictureIndex& index) {
  const PacketHandle packet = NewPacket();
  bool timed = tellsTimes_;
  std::int64_t previous = 0;
  std::int64_t place = -1;
  std::int64_t placeBefore = -1;
  std::vector<Landmark> landmarks;
  for (; index.PacketCount() < kMostPackets && read(*packet); av_packet_unref(packet.get())) {
    std::int64_t time = packet->dts != AV_NOPTS_VALUE ? packet->dts : packet->pts;
    if (time == AV_NOPTS_VALUE || (index.PacketCount() > 0 && time <= previous)) timed = false;
    if (packet->pos > place) placeBefore = std::exchange(place, packet->pos);
    if ((packet->flags & AV_PKT_FLAG_KEY) && placeBefore >= 0 && packet->pos == place)
      landmarks.push_back({index.PacketCount(), place, packet->size, placeBefore});
    if (!timed) time = index.PacketCount() ? previous : 0;
    index.Add(time, packet->flags & AV_PKT_FLAG_KEY, packet->flags & AV_PKT_FLAG_DISCARD);
    if (tellsShowTimes_ && packet->pts != AV_NOPTS_VALUE) index.TimeLast(packet->pts, packet->duration);
    if (isAvi_ && timed && time >= 0 && time < kMostPackets) index.PlaceLast(static_cast<int>(time));
    previous = time;
  }
  if (timed || isAvi_ || (input_->iformat->flags & AVFMT_NO_BYTE_SEEK)) landmarks.clear();
  landmarks_ = std::make_shared<const std::vector<Landmark>>(std::move(landmarks));
}

bool Demuxer::ReadNext(AVPacket& packet) {
  return joiner_ ? joiner_->Read(*input_, stream_->index, packet) : ReadPacket(*input_, stream_->index, packet);
}

void Demuxer::FindFields(const AVPacket& first) {
  const AVCodecParameters& codec = *stream_->codecpar;
  FieldParser parser(codec);
  const auto structure = parser.Look(first);
  // Tape has two fields, the lower first.
  fields_ = codec.codec_id == AV_CODEC_ID_DVVIDEO ? AV_FIELD_BB : codec.field_order;
  if (fields_ == AV_FIELD_UNKNOWN) fields_ = parser.Order();
  if (fields_ == AV_FIELD_UNKNOWN && isAvi_) fields_ = FieldsToldByAvi(*file_, stream_->index);
  const bool interlaced = fields_ != AV_FIELD_UNKNOWN && fields_ != AV_FIELD_PROGRESSIVE;
  if (codec.codec_id != AV_CODEC_ID_H264 || !interlaced || isAvi_) return;
  const bool topFirst = fields_ == AV_FIELD_TT || fields_ == AV_FIELD_BT;
  firstField_ = structure == FieldParser::Structure::TopField || structure == FieldParser::Structure::BottomField
                    ? structure
                : topFirst ? FieldParser::Structure::TopField
                           : FieldParser::Structure::BottomField;
  joiner_ = std::make_unique<FieldJoiner>(codec, firstField_);
  if (!OneOf("mov", input_->iformat->name)) return;
  // Films hardly ever part the fields of a picture, and need not be read through where they do not.
  constexpr int kLooks = 64;
  const PacketHandle packet = NewPacket();
  for (int i = 0; i < kLooks && !joiner_->HasJoined() && ReadNext(*packet); ++i) av_packet_unref(packet.get());
  if (!joiner_->HasJoined()) joiner_.reset();
  Rewind();
}

PacketHandle Demuxer::FirstPacket() {
  PacketHandle packet = NewPacket();
  const bool found = ReadPacket(*input_, stream_->index, *packet);
  return Rewind() && found ? std::move(packet) : nullptr;
}

bool Demuxer::KnowsFirstPacket() {
  if (!Rewind()) return false;
  const PacketHandle first = FirstPacket();
  return first && index_->FindPacket(first->dts) == 0;
}

VideoInfo Demuxer::Describe() const {
  VideoInfo info;
  const PictureSize upright = shape_.SizeOf(stream_->codecpar->width, stream_->codecpar->height);
  info.width = upright.width;
  info.height = upright.height;
  info.frameCount = index_->FrameCount();
  if (const AVRational rate = Rate(); rate.num > 0 && rate.den > 0) {
    info.rate = rate.num;
    info.scale = rate.den;
  }
  info.rateVaries = Times().Vary(*index_);
  info.captureRate = CaptureRate();
  info.durationMs = Times().Of(index_->FrameCount(), *index_);
  info.compressor = FourCC(*stream_->codecpar);
  info.interlaced = fields_ != AV_FIELD_UNKNOWN && fields_ != AV_FIELD_PROGRESSIVE;
  info.topFieldFirst = fields_ == AV_FIELD_TT || fields_ == AV_FIELD_BT;
  info.hasSound = hasSound_;
  info.everyFrameIsKey = index_->EveryPacketIsKey();
  info.fileBytes = file_->Bytes();
  return info;
}

AVRational Demuxer::Rate() const {
  // An AVI file counts time in frames; others may show each for as long as they like.
  if (isAvi_) return av_div_q(av_inv_q(stream_->time_base), {chunksOfFrame_, 1});
  const int last = index_->PictureCount() - 1;
  if (joiner_ && last > 0 && index_->HasShowTimes() && index_->ShowTime(last) > index_->ShowTime(0)) {
    // What the container says counts fields.
    AVRational rate{0, 1};
    av_reduce(&rate.num, &rate.den, std::int64_t{last} * stream_->time_base.den,
              (index_->ShowTime(last) - index_->ShowTime(0)) * stream_->time_base.num, INT32_MAX);
    return rate;
  }
  const AVRational mean = stream_->avg_frame_rate;
  return mean.num > 0 && mean.den > 0 ? mean : stream_->r_frame_rate;
}

/// Telephones store slow motion as it is to be shown, and beside it how it was taken.
double Demuxer::CaptureRate() const {
  constexpr double kFastest = 1e6;
  for (const AVDictionary* notes : {input_->metadata, stream_->metadata}) {
    const AVDictionaryEntry* entry = av_dict_get(notes, "com.android.capture.fps", nullptr, 0);
    const double rate = entry ? std::strtod(entry->value, nullptr) : 0;
    if (rate > 0 && rate <= kFastest) return rate;
  }
  return 0;
}

FrameTimes Demuxer::Times() const {
  FrameTimes times;
  times.unitMs = av_q2d(stream_->time_base) * 1000 * chunksOfFrame_;
  times.unitIsFrame = isAvi_;
  const AVRational rate = Rate();
  if (rate.num > 0 && rate.den > 0) times.meanMs = 1000 / av_q2d(rate);
  return times;
}

double FrameTimes::Of(int frame, const PictureIndex& index) const {
  const int frames = index.FrameCount();
  frame = std::clamp(frame, 0, frames);
  if (unitIsFrame) return frame * unitMs;
  if (index.HasShowTimes()) return static_cast<double>(index.ShowTime(frame) - index.ShowTime(0)) * unitMs;
  if (!index.TimesGrow() || frame == frames) return frame * meanMs;
  // Decoding times run ahead of the times of showing by a fixed delay, and in step with them.
  const std::int64_t first = index.Time(index.PacketOfOrder(0));
  return static_cast<double>(index.Time(index.PacketOfOrder(frame)) - first) * unitMs;
}

int FrameTimes::FrameAt(double ms, const PictureIndex& index) const {
  // Times that went through other hands come back rounded.
  constexpr double kRoundingMs = 1e-6;
  int low = 0;
  int high = std::max(0, index.FrameCount() - 1);
  while (low < high) {
    const int middle = low + (high - low + 1) / 2;
    if (Of(middle, index) <= ms + kRoundingMs) low = middle;
    else high = middle - 1;
  }
  return low;
}

bool FrameTimes::Vary(const PictureIndex& index) const {
  constexpr double kLeastPart = 0.2;
  const int frames = index.FrameCount();
  if (unitIsFrame || !index.HasShowTimes() || frames < 3) return false;
  const double mean = Of(frames - 1, index) / (frames - 1);
  for (int n = 1; n < frames; ++n) {
    if (std::abs(Of(n, index) - Of(n - 1, index) - mean) > kLeastPart * mean + unitMs) return true;
  }
  return false;
}

bool Demuxer::Rewind() {
  if (joiner_) joiner_->Reset();
  next_ = 0;
  sought_ = nullptr;
  palette_ = headerPalette_;
  const bool timed = index_ && index_->TimesGrow();
  synced_ = !timed;
  const std::int64_t first = index_ && index_->PacketCount() > 0 ? index_->Time(0) : 0;
  if (av_seek_frame(input_.get(), stream_->index, first, AVSEEK_FLAG_BACKWARD) >= 0 && timed) return true;
  if (avformat_seek_file(input_.get(), -1, INT64_MIN, 0, 0, AVSEEK_FLAG_BYTE) >= 0) return true;
  return avformat_seek_file(input_.get(), stream_->index, INT64_MIN, first, first, 0) >= 0;
}

bool Demuxer::Seek(int packet) {
  if (packet == 0) return Rewind();
  // Packets without a time of their own are counted, from the start of the file where there is no landmark.
  if (!index_->TimesGrow()) return SeekLandmark(packet) || Rewind();
  for (int chunk = index_->ChunkOfPacket(packet); chunk > 0; chunk /= 2) {
    const int start = index_->ChunkStart(chunk);
    if (av_seek_frame(input_.get(), stream_->index, index_->Time(start), AVSEEK_FLAG_BACKWARD) < 0) continue;
    if (joiner_) joiner_->Reset();
    synced_ = false;
    next_ = start;
    return true;
  }
  return Rewind();
}

bool Demuxer::SeekLandmark(int packet) {
  if (!landmarks_) return false;
  auto after = std::ranges::upper_bound(*landmarks_, packet, {}, &Landmark::packet);
  if (after == landmarks_->begin()) return false;
  const Landmark& landmark = *--after;
  if (av_seek_frame(input_.get(), stream_->index, landmark.before, AVSEEK_FLAG_BYTE) < 0) return false;
  if (joiner_) joiner_->Reset();
  sought_ = &landmark;
  strangers_ = 0;
  synced_ = false;
  next_ = landmark.packet;
  return true;
}

bool Demuxer::Recognise(const AVPacket& packet) {
  if (index_->TimesGrow()) {
    const std::int64_t time = packet.dts != AV_NOPTS_VALUE ? packet.dts : packet.pts;
    if (synced_ && index_->Time(next_) == time) return true;
    const std::optional<int> found = index_->FindPacket(time);
    if (found) next_ = *found;
    synced_ = synced_ || found;
    return found.has_value();
  }
  if (synced_) return true;
  if (packet.pos == sought_->place && packet.size == sought_->size) return synced_ = true;
  // The landmark looks otherwise when it is entered here: then all is counted after all.
  constexpr int kMostStrangers = 64;
  if (packet.pos > sought_->place || ++strangers_ > kMostStrangers) Rewind();
  return false;
}

int Demuxer::Read(AVPacket& packet) {
  while (next_ < index_->PacketCount() && ReadNext(packet)) {
    AddPalette(packet);
    if (Recognise(packet)) return next_++;
    av_packet_unref(&packet);
  }
  return -1;
}

}  // namespace kinalyx
