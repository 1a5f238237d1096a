#include "platform/media/ContainerCut.h"

#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/files/Tr.h"
#include "platform/media/CutContainer.h"
#include "platform/media/CutEncoder.h"
#include "platform/media/CutPlan.h"
#include "platform/media/EditList.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureFitter.h"
#include "platform/media/PictureSource.h"
#include "platform/media/SoundCopy.h"
#include "platform/media/VideoOutput.h"

extern "C" {
#include <libavutil/imgutils.h>
}

namespace kinalyx {
namespace {

/// A time in the new file may differ from the old one by the rounding of the coarsest container.
constexpr double kRoundingMs = 1.5;

/// True when both have the same samples.
bool IsSame(const AVFrame& one, const AVFrame& other) {
  if (one.format != other.format || one.width != other.width || one.height != other.height) return false;
  const auto format = static_cast<AVPixelFormat>(one.format);
  const auto samples = [format](const AVFrame& frame) {
    const int size = av_image_get_buffer_size(format, frame.width, frame.height, 1);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(std::max(0, size)));
    av_image_copy_to_buffer(bytes.data(), size, frame.data, frame.linesize, format, frame.width, frame.height, 1);
    return bytes;
  };
  return samples(one) == samples(other);
}

Result<std::unique_ptr<PictureSource>> PicturesOf(std::unique_ptr<Demuxer> demuxer) {
  if (!demuxer) return Outcome::Failed(Tr("the file has gone"));
  auto decoder = PictureDecoder::Open(std::move(demuxer));
  if (!decoder) return decoder.Failure();
  return std::make_unique<PictureSource>(std::move(*decoder));
}

class ContainerCut {
 public:
  ContainerCut(std::unique_ptr<Demuxer> demuxer, const CutOrder& order, const std::function<bool(double)>& progress)
      : demuxer_(std::move(demuxer)), index_(demuxer_->Index()), order_(order), progress_(progress) {}

  Result<TrimmedVideo> Run() {
    if (Cut()) return TrimmedVideo{copied_, order_.count};
    return Outcome(cancelled_ ? Fault::Cancelled : Fault::Failed, message_);
  }

 private:
  bool Cut();
  bool CutByCopying();
  bool CopyPackets();
  bool CutByCoding();
  bool CodePictures(PictureSource& source, AVCodecContext& codec);
  bool Encode(AVCodecContext& codec, const AVFrame* picture);
  bool OpenOutput(const AVOutputFormat& format, const AVCodecParameters& codec, bool anew);
  void AddStreamNotes(const AVStream& from, bool anew);
  AVDictionary* MuxingOptions() const;
  bool StartSound();
  bool WritePicture(AVPacket& packet, int picture);
  bool Complete();
  bool ShowsTheCut();
  bool ShowsThePictures(std::unique_ptr<Demuxer> made);
  bool Commit();
  const AVOutputFormat* FormatFor(const AVCodecParameters& codec) const;
  /// Seconds of the file's clock at which picture n of the cut is shown.
  double ClockOf(int n) const;

  bool Fail(const std::string& message) {
    message_ = message;
    return false;
  }
  bool Fail(int error) { return Fail(AvError(error)); }
  bool GoOn(int picturesDone) {
    // A copy that is not good enough begins anew: the part that is done does not shrink.
    done_ = std::max(done_, static_cast<double>(picturesDone) / order_.count);
    if (!progress_ || progress_(done_)) return true;
    cancelled_ = true;
    return false;
  }

  std::unique_ptr<Demuxer> demuxer_;
  const PictureIndex& index_;
  const CutOrder& order_;
  const std::function<bool(double)>& progress_;
  CutContainer container_;
  CutPlan plan_;
  bool planned_ = false;
  bool copied_ = false;
  bool cancelled_ = false;
  double done_ = 0;
  std::string message_;
  std::unique_ptr<SoundCopy> sound_;
  std::unique_ptr<VideoOutput> output_;
  AVStream* pictures_ = nullptr;
};

bool ContainerCut::Cut() {
  container_ = CutContainer::Like(demuxer_->Container(), order_.target);
  if (container_.muxers.empty()) return Fail(Tr("videos in this kind of file cannot be cut"));
  sound_ = demuxer_->Describe().hasSound ? SoundCopy::Open(*demuxer_) : nullptr;
  planned_ = plan_.Make(*demuxer_, order_.first, order_.count, av_inv_q(order_.rate), [this] { return GoOn(0); });
  if (cancelled_) return false;
  if (plan_.FileEndsEarly()) return Fail(Tr("the file cannot be read to the end of the cut"));
  copied_ = order_.copy;
  if (copied_ && CutByCopying()) return Commit();
  if (cancelled_) return false;
  copied_ = false;
  output_.reset();
  return CutByCoding() && Commit();
}

const AVOutputFormat* ContainerCut::FormatFor(const AVCodecParameters& codec) const {
  std::vector<const AVCodecParameters*> streams;
  if (sound_) streams = sound_->Codecs();
  streams.push_back(&codec);
  return container_.For(streams);
}

double ContainerCut::ClockOf(int n) const {
  const AVStream& stream = demuxer_->Stream();
  const double unit = av_q2d(stream.time_base);
  if (demuxer_->TellsShowTimes() && index_.HasShowTimes())
    return static_cast<double>(index_.ShowTime(order_.first + n)) * unit;
  const double start = stream.start_time == AV_NOPTS_VALUE ? 0 : static_cast<double>(stream.start_time) * unit;
  return start + demuxer_->Times().Of(order_.first + n, index_) / 1000;
}

// ---------------------------------------------------------------- Copying

bool ContainerCut::CutByCopying() {
  if (!planned_) return false;
  if (!container_.hidesPictures) plan_.DropLeading();
  if (!plan_.IsExact() && !(container_.hidesPictures && plan_.CanHideOthers())) return false;
  const AVOutputFormat* format = FormatFor(demuxer_->Codec());
  return format && OpenOutput(*format, demuxer_->Codec(), false) && CopyPackets() && Complete() && ShowsTheCut();
}

bool ContainerCut::CopyPackets() {
  const std::vector<PlannedPacket>& packets = plan_.Packets();
  if (!demuxer_->Seek(packets.front().number)) return Fail(Tr("the file cannot be read there"));
  const PacketHandle packet = NewPacket();
  int done = 0;
  for (auto planned = packets.begin(); planned != packets.end();) {
    av_packet_unref(packet.get());
    const int number = demuxer_->Read(*packet);
    if (number < 0 || number > planned->number) return Fail(Tr("the file cannot be read to the end of the cut"));
    if (number < planned->number) continue;
    // Another way to store the pictures, in mid-stream: not every container can tell that.
    std::size_t bytes = 0;
    if (const auto* extra = av_packet_get_side_data(packet.get(), AV_PKT_DATA_NEW_EXTRADATA, &bytes)) {
      const AVCodecParameters& codec = demuxer_->Codec();
      const bool same =
          static_cast<int>(bytes) == codec.extradata_size && std::memcmp(extra, codec.extradata, bytes) == 0;
      if (!same) return Fail(Tr("the pictures are not all stored in the same way"));
    }
    packet->pts = planned->shown;
    packet->dts = planned->decoded;
    packet->flags &= ~AV_PKT_FLAG_DISCARD;
    if (!WritePicture(*packet, done) || !GoOn(done)) return false;
    if (planned->picture >= order_.first) ++done;
    ++planned;
  }
  return true;
}

// ---------------------------------------------------------------- Coding anew

bool ContainerCut::CutByCoding() {
  message_.clear();
  const auto pictures = PicturesOf(demuxer_->Again());
  if (!pictures) return Fail(pictures.Why());
  const auto& source = *pictures;
  const FrameHandle first = source->Picture(order_.first);
  if (!first) return Fail(Tr("a picture cannot be decoded"));
  // The sound decides which of the containers it is; for the pictures there may be another codec.
  std::vector<const AVCodecParameters*> sounds;
  if (sound_) sounds = sound_->Codecs();
  const AVOutputFormat* format = container_.For(sounds);
  if (!format) return Fail(Tr("the sound of this video cannot be cut"));
  const CodecHandle codec = OpenCutEncoder(*format, demuxer_->Codec(), *first, order_.rate);
  AVCodecParameters* made = avcodec_parameters_alloc();
  const bool opened =
      codec && made && avcodec_parameters_from_context(made, codec.get()) >= 0 && OpenOutput(*format, *made, true);
  avcodec_parameters_free(&made);
  if (!codec) return Fail(Tr("videos of this kind can be cut at some pictures only, and not at these"));
  if (!opened) return message_.empty() ? Fail(Tr("out of memory")) : false;
  if (!CodePictures(*source, *codec) || !Complete()) return false;
  if (ShowsTheCut()) return true;
  return Fail(order_.count == 1
                  ? Tr("a video of this kind cannot be a single picture; keep two or more. It is unchanged")
                  : "the cut did not come out as it should; the video is unchanged");
}

bool ContainerCut::CodePictures(PictureSource& source, AVCodecContext& codec) {
  PictureFitter fitter(codec.pix_fmt, codec.width, codec.height);
  for (int n = 0; n < order_.count; ++n) {
    const FrameHandle picture = source.Picture(order_.first + n);
    if (!picture) return Fail(Tr("a picture cannot be decoded"));
    const AVFrame* fitted = fitter.Fit(*picture);
    const FrameHandle coded(fitted ? av_frame_clone(fitted) : nullptr);
    if (!coded) return Fail(Tr("out of memory"));
    coded->pts = n;
    coded->pkt_dts = AV_NOPTS_VALUE;
    coded->pict_type = AV_PICTURE_TYPE_NONE;
    coded->sample_aspect_ratio = codec.sample_aspect_ratio;
    if (codec.flags & AV_CODEC_FLAG_QSCALE) coded->quality = codec.global_quality;
    if (!Encode(codec, coded.get()) || !GoOn(n)) return false;
  }
  return Encode(codec, nullptr);
}

bool ContainerCut::Encode(AVCodecContext& codec, const AVFrame* picture) {
  int result = avcodec_send_frame(&codec, picture);
  const PacketHandle packet = NewPacket();
  while (result >= 0) {
    result = avcodec_receive_packet(&codec, packet.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return true;
    if (result < 0) break;
    // Times of the encoder count pictures.
    const auto n = static_cast<int>(std::clamp<std::int64_t>(packet->pts, 0, order_.count - 1));
    packet->pts = packet->dts = plan_.TimeOf(n);
    packet->duration = plan_.TimeOf(n + 1) - plan_.TimeOf(n);
    if (!WritePicture(*packet, n)) return false;
  }
  return Fail(result);
}

// ---------------------------------------------------------------- The new file

bool ContainerCut::OpenOutput(const AVOutputFormat& format, const AVCodecParameters& codec, bool anew) {
  output_ = std::make_unique<VideoOutput>(order_.target);
  if (const int opened = output_->Open(format.name); opened < 0) return Fail(opened);
  AVFormatContext& file = output_->Container();
  CopyNotes(file.metadata, demuxer_->Container().metadata);
  pictures_ = output_->AddStream();
  if (!pictures_ || avcodec_parameters_copy(pictures_->codecpar, &codec) < 0) return Fail(Tr("out of memory"));
  pictures_->codecpar->codec_tag = AcceptedTag(*file.oformat, codec.codec_id, codec.codec_tag);
  AddStreamNotes(demuxer_->Stream(), anew);
  if (sound_ && !sound_->Begin(*output_, ClockOf(0), ClockOf(order_.count), container_.hidesPictures))
    return Fail(Tr("the sound cannot be read"));
  AVDictionary* options = MuxingOptions();
  const int started = output_->Start(&options);
  av_dict_free(&options);
  return started >= 0 || Fail(started);
}

void ContainerCut::AddStreamNotes(const AVStream& from, bool anew) {
  AVStream& to = *pictures_;
  to.time_base = plan_.Unit();
  to.avg_frame_rate = order_.rate;
  to.r_frame_rate = from.r_frame_rate;
  to.sample_aspect_ratio = from.sample_aspect_ratio.num ? from.sample_aspect_ratio : from.codecpar->sample_aspect_ratio;
  to.codecpar->sample_aspect_ratio = to.sample_aspect_ratio;
  to.disposition = from.disposition;
  CopyNotes(to.metadata, from.metadata);
  static const std::set<AVPacketSideDataType> kOfAnyCodec = {
      AV_PKT_DATA_DISPLAYMATRIX, AV_PKT_DATA_MASTERING_DISPLAY_METADATA, AV_PKT_DATA_CONTENT_LIGHT_LEVEL,
      AV_PKT_DATA_SPHERICAL, AV_PKT_DATA_STEREO3D};
  for (int i = 0; i < from.nb_side_data; ++i) {
    const AVPacketSideData& data = from.side_data[i];
    if (anew && !kOfAnyCodec.contains(data.type)) continue;
    if (std::uint8_t* place = av_stream_new_side_data(&to, data.type, data.size))
      std::memcpy(place, data.data, data.size);
  }
}

/// Options that a container does not know do no harm.
AVDictionary* ContainerCut::MuxingOptions() const {
  AVDictionary* options = nullptr;
  if (container_.packetBytes > 0)
    av_dict_set(&options, "mpegts_m2ts_mode", container_.packetBytes == 192 ? "1" : "0", 0);
  if (!container_.hidesPictures) return options;
  // The edit list counts in the units of the file, which are coarse unless they are told.
  av_dict_set_int(&options, "video_track_timescale", plan_.Unit().den, 0);
  av_dict_set_int(&options, "movie_timescale", plan_.Unit().den, 0);
  const AVDictionary* notes = demuxer_->Container().metadata;
  const AVDictionaryEntry* brand = av_dict_get(notes, "major_brand", nullptr, 0);
  if (brand && std::strlen(brand->value) == 4) av_dict_set(&options, "brand", brand->value, 0);
  // Notes with names of their makers' are kept in another place of the file.
  const AVDictionaryEntry* note = nullptr;
  while ((note = av_dict_get(notes, "com.", note, AV_DICT_IGNORE_SUFFIX)))
    av_dict_set(&options, "movflags", "use_metadata_tags", 0);
  return options;
}

bool ContainerCut::WritePicture(AVPacket& packet, int picture) {
  // The sound of a picture goes before its successor.
  const int next = std::min(picture + 1, order_.count);
  int result = sound_ ? sound_->WriteUntil(static_cast<double>(plan_.TimeOf(next)) * av_q2d(plan_.Unit())) : 0;
  if (result >= 0) result = output_->Write(packet, *pictures_, plan_.Unit());
  return result >= 0 || Fail(result);
}

bool ContainerCut::Complete() {
  if (!output_->Close(message_)) return false;
  if (!container_.hidesPictures) return true;
  const AVRational unit = plan_.Unit();
  const double length = static_cast<double>(plan_.TimeOf(order_.count)) * av_q2d(unit);
  return EndEditAt(output_->HiddenPath(), length) || Fail(Tr("the new file cannot be completed"));
}

/// What was made is opened as any video is.
bool ContainerCut::ShowsTheCut() {
  auto opened = Demuxer::Open(output_->HiddenPath());
  if (!opened) return false;
  auto made = std::move(*opened);
  if (made->Index().FrameCount() != order_.count) return false;
  const FrameTimes times = made->Times();
  const FrameTimes old = demuxer_->Times();
  const double start = old.Of(order_.first, index_);
  for (int n = 0; n < order_.count; ++n) {
    if (std::abs(times.Of(n, made->Index()) - (old.Of(order_.first + n, index_) - start)) > kRoundingMs) return false;
  }
  return ShowsThePictures(std::move(made));
}

bool ContainerCut::ShowsThePictures(std::unique_ptr<Demuxer> made) {
  // At the seams, and where the first run of pictures ends: between them packets follow one another as before.
  std::set<int> looks = {0, order_.count - 1};
  const int chunk = index_.ChunkOfPicture(order_.first) + 1;
  if (chunk <= index_.ChunkOfPicture(order_.first + order_.count - 1)) {
    looks.insert(index_.ChunkFirstPicture(chunk) - 1 - order_.first);
    looks.insert(index_.ChunkFirstPicture(chunk) - order_.first);
  }
  const auto before = PicturesOf(demuxer_->Again());
  const auto after = PicturesOf(std::move(made));
  if (!before || !after) return false;
  return std::ranges::all_of(looks, [&](int n) {
    if (n < 0) return true;
    const FrameHandle now = (*after)->Picture(n);
    if (!now || !copied_) return now != nullptr;
    const FrameHandle old = (*before)->Picture(order_.first + n);
    return old && IsSame(*old, *now);
  });
}

bool ContainerCut::Commit() {
  struct stat old {};
  const bool keepRights = order_.replaces && ::stat(order_.target.c_str(), &old) == 0;
  if (!output_->Finish(order_.replaces, message_)) return false;
  if (keepRights) ::chmod(order_.target.c_str(), old.st_mode & 0777);
  return true;
}

}  // namespace

Result<TrimmedVideo> CutInOwnContainer(std::unique_ptr<Demuxer> demuxer, const CutOrder& order,
                                       const std::function<bool(double)>& progress) {
  return ContainerCut(std::move(demuxer), order, progress).Run();
}

}  // namespace kinalyx
