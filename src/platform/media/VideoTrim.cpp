#include "platform/media/VideoTrim.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/ContainerCut.h"
#include "platform/media/Demuxer.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureFitter.h"
#include "platform/media/PictureSource.h"
#include "platform/media/SoundCut.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

struct ParametersDeleter {
  void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
};
using ParametersHandle = std::unique_ptr<AVCodecParameters, ParametersDeleter>;

/// The encoders to try for a source, the one nearest to it first.
std::initializer_list<const char*> EncodersFor(AVCodecID source) {
  static constexpr std::initializer_list<const char*> kDv = {"dvvideo", "mjpeg"};
  static constexpr std::initializer_list<const char*> kFilm = {"libx264", "mjpeg"};
  static constexpr std::initializer_list<const char*> kStills = {"mjpeg"};
  switch (source) {
    case AV_CODEC_ID_DVVIDEO: return kDv;
    case AV_CODEC_ID_H264:
    case AV_CODEC_ID_HEVC:
    case AV_CODEC_ID_MPEG1VIDEO:
    case AV_CODEC_ID_MPEG2VIDEO:
    case AV_CODEC_ID_MPEG4:
    case AV_CODEC_ID_VP8:
    case AV_CODEC_ID_VP9:
    case AV_CODEC_ID_AV1: return kFilm;
    default: return kStills;
  }
}

CodecHandle OpenEncoder(const char* name, const AVFrame& picture, AVRational rate, AVRational pixelShape) {
  const AVCodec* encoder = avcodec_find_encoder_by_name(name);
  if (!encoder) return nullptr;
  CodecHandle codec(avcodec_alloc_context3(encoder));
  codec->width = picture.width;
  codec->height = picture.height;
  codec->time_base = av_inv_q(rate);
  codec->framerate = rate;
  codec->sample_aspect_ratio = pixelShape;
  codec->color_range = picture.color_range;
  codec->colorspace = picture.colorspace;
  const auto wanted = static_cast<AVPixelFormat>(picture.format);
  codec->pix_fmt =
      encoder->pix_fmts ? avcodec_find_best_pix_fmt_of_list(encoder->pix_fmts, wanted, 0, nullptr) : wanted;
  AVDictionary* options = nullptr;
  switch (encoder->id) {
    case AV_CODEC_ID_DVVIDEO:
      codec->flags |= AV_CODEC_FLAG_INTERLACED_DCT;
      codec->codec_tag = MKTAG('d', 'v', 's', 'd');
      break;
    case AV_CODEC_ID_MJPEG:
      codec->flags |= AV_CODEC_FLAG_QSCALE;
      codec->global_quality = FF_QP2LAMBDA * 2;
      codec->color_range = AVCOL_RANGE_JPEG;
      break;
    default:
      // Made to be stepped through, and to be looked at closely.
      codec->gop_size = 12;
      codec->max_b_frames = 0;
      av_dict_set(&options, "crf", "16", 0);
      av_dict_set(&options, "preset", "fast", 0);
      break;
  }
  const int opened = avcodec_open2(codec.get(), encoder, &options);
  av_dict_free(&options);
  return opened < 0 ? nullptr : std::move(codec);
}

bool IsAviFile(const std::string& path) {
  AVFormatContext* context = nullptr;
  if (avformat_open_input(&context, ("file:" + path).c_str(), av_find_input_format("avi"), nullptr) < 0) return false;
  avformat_close_input(&context);
  return true;
}

bool IsAviName(const std::string& path) { return av_match_ext(path.c_str(), "avi") != 0; }

/// One cut under way.
class Trimmer {
 public:
  Trimmer(const TrimRequest& request, const std::function<bool(double)>& progress)
      : request_(request), progress_(progress) {}

  Result<TrimmedVideo> Run();

 private:
  bool Cut();
  bool ChooseFrames();
  bool ChooseTarget();
  bool CopyWholeFile();
  bool CutInside(bool copy);
  bool CanCopyPictures() const { return index_->EveryPacketIsKey() && index_->TimesGrow(); }
  bool CopyPictures();
  bool CodePictures();
  bool OpenStreams(const AVCodecParameters& parameters);
  bool WritePicture(AVPacket& packet, std::int64_t frame);
  bool Encode(AVCodecContext& codec, const AVFrame* picture);
  bool Fail(const std::string& message) {
    message_ = message;
    return false;
  }
  bool Fail(int error) { return Fail(AvError(error)); }
  bool GoOn(int framesDone) {
    if (!progress_ || progress_(static_cast<double>(framesDone) / count_)) return true;
    cancelled_ = true;
    return false;
  }

  const TrimRequest& request_;
  const std::function<bool(double)>& progress_;
  TrimmedVideo video_;
  bool cancelled_ = false;
  std::string message_;  ///< why it failed
  std::unique_ptr<Demuxer> demuxer_;
  const PictureIndex* index_ = nullptr;
  VideoInfo info_;
  AVRational rate_{30, 1};  ///< pictures per second
  int first_ = 0;
  int count_ = 0;
  bool whole_ = false;
  bool replaces_ = false;
  std::string target_;
  std::unique_ptr<VideoOutput> output_;
  std::unique_ptr<SoundCut> sound_;
  AVStream* pictures_ = nullptr;
};

Result<TrimmedVideo> Trimmer::Run() {
  if (Cut()) return video_;
  return Outcome(cancelled_ ? Fault::Cancelled : Fault::Failed, message_);
}

bool Trimmer::Cut() {
  auto opened = Demuxer::Open(request_.source);
  if (!opened) return Fail(opened.Why());
  demuxer_ = std::move(*opened);
  index_ = &demuxer_->Index();
  info_ = demuxer_->Describe();
  if (!ChooseFrames() || !ChooseTarget()) return false;
  video_.frames = count_;

  const bool copy = request_.mode == TrimRequest::Mode::Copy;
  const bool isAvi = IsAviFile(request_.source);
  const bool ownContainer = !isAvi && (replaces_ || !IsAviName(target_));
  // Only an AVI file may stand under the name of one.
  if (copy && whole_ && (isAvi || ownContainer)) return CopyWholeFile();
  if (ownContainer) return CutInside(copy);
  output_ = std::make_unique<VideoOutput>(target_);
  if (const int opened = output_->Open(); opened < 0) return Fail(opened);
  video_.copied = copy && CanCopyPictures();
  if (!(video_.copied ? CopyPictures() : CodePictures())) return false;
  struct stat old {};
  const bool keepRights = replaces_ && ::stat(target_.c_str(), &old) == 0;
  if (!output_->Finish(replaces_, message_)) return false;
  if (keepRights) ::chmod(target_.c_str(), old.st_mode & 0777);
  return true;
}

bool Trimmer::CutInside(bool copy) {
  const CutOrder order{target_, replaces_, first_, count_, rate_, copy};
  const auto cut = CutInOwnContainer(std::move(demuxer_), order, progress_);
  cancelled_ = cut.Kind() == Fault::Cancelled;
  if (!cut) return Fail(cut.Why());
  video_ = *cut;
  return true;
}

bool Trimmer::ChooseFrames() {
  const int last = request_.lastFrame == 0 ? info_.frameCount - 1 : std::min(request_.lastFrame, info_.frameCount - 1);
  first_ = request_.firstFrame;
  if (first_ < 0 || first_ > last) return Fail(Tr("the last frame lies before the first"));
  count_ = last - first_ + 1;
  whole_ = count_ == info_.frameCount;
  if (info_.rate > 0) rate_ = {static_cast<int>(info_.rate), static_cast<int>(info_.scale)};
  else if (request_.rate > 0) rate_ = {request_.rate, 1};
  return true;
}

bool Trimmer::ChooseTarget() {
  std::error_code failed;
  replaces_ = fs::equivalent(request_.source, request_.destination, failed);
  // In place of a link the file behind it is replaced.
  target_ = replaces_ ? fs::canonical(request_.source, failed).string() : request_.destination;
  if (!replaces_ && EntryExists(target_)) return Fail(Tr("there is already a file of that name"));
  // A rename needs no right to the file itself, so read-only must be asked for.
  constexpr auto kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if (replaces_ && (fs::status(target_, failed).permissions() & kAnyWrite) == fs::perms::none)
    return Fail(Tr("the video is read-only"));
  const std::int64_t free = FreeBytes(target_);
  const double expected = static_cast<double>(info_.fileBytes) * count_ / info_.frameCount;
  if (free >= 0 && expected > static_cast<double>(free)) return Fail(Tr("there is not enough room on the disk"));
  return true;
}

bool Trimmer::CopyWholeFile() {
  video_.copied = true;
  if (replaces_) return true;
  CopyJob job(CopyJob::Kind::Copy, {{{request_.source, target_}}});
  while (job.Step() == CopyJob::State::Running) {
    const CopyProgress& done = job.Progress();
    const double part =
        done.bytesTotal > 0 ? static_cast<double>(done.bytesDone) / static_cast<double>(done.bytesTotal) : 0;
    if (!progress_ || progress_(part)) continue;
    job.Cancel();
    cancelled_ = true;
  }
  return job.Status() == CopyJob::State::Done || Fail(job.Error());
}

bool Trimmer::OpenStreams(const AVCodecParameters& parameters) {
  pictures_ = output_->AddStream();
  if (!pictures_ || avcodec_parameters_copy(pictures_->codecpar, &parameters) < 0) return Fail(Tr("out of memory"));
  pictures_->time_base = av_inv_q(rate_);
  pictures_->avg_frame_rate = rate_;
  pictures_->sample_aspect_ratio = parameters.sample_aspect_ratio;
  if (info_.hasSound) {
    const FrameTimes times = demuxer_->Times();
    const double start = times.Of(first_, *index_) / 1000;
    const double end = times.Of(first_ + count_, *index_) / 1000;
    sound_ = SoundCut::Open(request_.source, start, end, *output_);
  }
  const int started = output_->Start();
  return started >= 0 || Fail(started);
}

bool Trimmer::WritePicture(AVPacket& packet, std::int64_t frame) {
  // The sound of a frame goes before its successor.
  int result = sound_ ? sound_->WriteUntil(static_cast<double>(frame + 1) * rate_.den / rate_.num) : 0;
  if (result >= 0) {
    packet.pts = packet.dts = frame;
    packet.duration = 1;
    result = output_->Write(packet, *pictures_, av_inv_q(rate_));
  }
  return result >= 0 || Fail(result);
}

bool Trimmer::CopyPictures() {
  if (!OpenStreams(demuxer_->Codec())) return false;
  const int firstPacket = index_->PacketOfOrder(index_->PictureOfFrame(first_));
  const int lastPacket = index_->PacketOfOrder(index_->PictureOfFrame(first_ + count_ - 1));
  if (!demuxer_->Seek(firstPacket)) return Fail(Tr("the file cannot be read there"));
  const PacketHandle packet = NewPacket();
  std::int64_t frame = -1;
  for (int number = -1; number < lastPacket;) {
    number = demuxer_->Read(*packet);
    if (number < 0 || number > lastPacket) return Fail(Tr("the file cannot be read to the end of the cut"));
    if (number < firstPacket || index_->IsHidden(number)) {
      av_packet_unref(packet.get());
      continue;
    }
    frame = std::max(0, index_->FrameOfPicture(index_->PicturesBefore(number)) - first_);
    if (!WritePicture(*packet, frame) || !GoOn(static_cast<int>(frame))) return false;
  }
  // Frames that repeat the last picture: one empty packet at the end makes the file count them all.
  if (frame < count_ - 1) {
    av_packet_unref(packet.get());
    if (!WritePicture(*packet, count_ - 1)) return false;
  }
  return true;
}

bool Trimmer::CodePictures() {
  const AVCodecID id = demuxer_->Codec().codec_id;
  const AVRational pixelShape = demuxer_->Codec().sample_aspect_ratio;
  auto reader = demuxer_->Again();
  if (!reader) return Fail(Tr("the file has gone"));
  auto decoder = PictureDecoder::Open(std::move(reader));
  if (!decoder) return Fail(decoder.Why());
  PictureSource source(std::move(*decoder));
  CodecHandle codec;
  std::optional<PictureFitter> fitter;
  for (int frame = 0; frame < count_; ++frame) {
    const FrameHandle picture = source.Picture(index_->PictureOfFrame(first_ + frame));
    if (!picture) return Fail(Tr("a picture cannot be decoded"));
    if (!codec) {
      for (const char* name : EncodersFor(id)) {
        if (!codec) codec = OpenEncoder(name, *picture, rate_, pixelShape);
      }
      const ParametersHandle parameters(avcodec_parameters_alloc());
      if (!codec || avcodec_parameters_from_context(parameters.get(), codec.get()) < 0)
        return Fail(Tr("no encoder takes these pictures"));
      parameters->codec_tag = codec->codec_tag;
      if (!OpenStreams(*parameters)) return false;
      fitter.emplace(codec->pix_fmt, codec->width, codec->height);
    }
    const AVFrame* fitted = fitter->Fit(*picture);
    const FrameHandle coded(fitted ? av_frame_clone(fitted) : nullptr);
    if (!coded) return Fail(Tr("out of memory"));
    coded->pts = frame;
    coded->pict_type = AV_PICTURE_TYPE_NONE;
    if (codec->flags & AV_CODEC_FLAG_QSCALE) coded->quality = codec->global_quality;
    if (!Encode(*codec, coded.get()) || !GoOn(frame)) return false;
  }
  return Encode(*codec, nullptr);
}

bool Trimmer::Encode(AVCodecContext& codec, const AVFrame* picture) {
  int result = avcodec_send_frame(&codec, picture);
  const PacketHandle packet = NewPacket();
  while (result >= 0) {
    result = avcodec_receive_packet(&codec, packet.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return true;
    if (result >= 0 && !WritePicture(*packet, packet->pts)) return false;
  }
  return Fail(result);
}

}  // namespace

Result<TrimmedVideo> TrimVideo(const TrimRequest& request, const std::function<bool(double)>& progress) {
  return Trimmer(request, progress).Run();
}

}  // namespace kinalyx
