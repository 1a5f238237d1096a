#include "platform/media/Conversion.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cstdint>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/ConversionPictures.h"
#include "platform/media/Demuxer.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureSource.h"
#include "platform/media/SoundCut.h"
#include "platform/media/SteadyRate.h"
#include "platform/media/VideoOutput.h"

namespace kinalyx {
namespace {

constexpr int kTapeWidth = 720;
constexpr int kTapeHeight = 480;
constexpr int kMostThreads = 8;
/// Of the encoder's scale from 1 to 31: what was filmed is looked at closely.
constexpr int kQuality = FF_QP2LAMBDA * 2;

/// Pictures from one look at the disk to the next: a long video shall not fill it first and fail then.
constexpr int kLookForRoom = 64;

using Codec = ConversionRequest::Codec;
using Fields = PictureForm::Fields;

Fields FieldsOf(const VideoInfo& info) {
  if (!info.interlaced) return Fields::None;
  return info.topFieldFirst ? Fields::TopFirst : Fields::BottomFirst;
}

/// What keeps the colour of a picture as fine as it is. Rows of fields share no colour.
AVPixelFormat FormatFor(const AVFrame& picture, Fields fields) {
  const AVPixFmtDescriptor* source = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
  return source && source->log2_chroma_h > 0 && fields == Fields::None ? AV_PIX_FMT_YUVJ420P : AV_PIX_FMT_YUVJ422P;
}

CodecHandle OpenEncoder(Codec kind, const PictureForm& form, AVRational rate) {
  const AVCodec* encoder = avcodec_find_encoder(kind == Codec::Dv ? AV_CODEC_ID_DVVIDEO : AV_CODEC_ID_MJPEG);
  CodecHandle codec(encoder ? avcodec_alloc_context3(encoder) : nullptr);
  if (!codec) return nullptr;
  codec->width = form.width;
  codec->height = form.height;
  codec->pix_fmt = form.format;
  codec->framerate = rate;
  codec->time_base = av_inv_q(rate);
  codec->thread_count = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostThreads);
  codec->thread_type = FF_THREAD_FRAME | FF_THREAD_SLICE;
  if (kind == Codec::Dv) {
    codec->flags |= AV_CODEC_FLAG_INTERLACED_DCT;
    codec->field_order = AV_FIELD_BB;
    codec->codec_tag = MKTAG('d', 'v', 's', 'd');
  } else {
    codec->flags |= AV_CODEC_FLAG_QSCALE;
    codec->global_quality = kQuality;
    codec->color_range = AVCOL_RANGE_JPEG;
  }
  return avcodec_open2(codec.get(), encoder, nullptr) < 0 ? nullptr : std::move(codec);
}

}  // namespace

struct Conversion::Engine {
  explicit Engine(const ConversionRequest& wish) : request(wish) {}
  Outcome Open();
  void ChooseTimes();
  State Step();
  bool TakeFrame(int frame);
  bool Begin(const AVFrame& first);
  bool Encode(const AVFrame* picture);
  bool WritePacket(AVPacket& packet, std::int64_t place);
  bool Finish();
  bool HasRoom() const;
  int PlaceOf(int frame) const {
    return steady.places.empty() ? frame : steady.places[static_cast<std::size_t>(frame)];
  }
  bool Fail(const std::string& message) {
    error = message;
    return false;
  }
  bool Fail(int result) { return Fail(AvError(result)); }

  ConversionRequest request;
  State state = State::Running;
  std::string error;
  ConvertedVideo converted;

  std::unique_ptr<Demuxer> demuxer;
  VideoInfo info;
  std::unique_ptr<PictureSource> source;
  int first = 0;    ///< frame of the source
  int count = 0;    ///< frames of the source that are wanted
  int next = 0;     ///< of them
  int before = -1;  ///< the picture that was taken last
  SteadyRate steady;
  AVRational rate{30, 1};

  std::unique_ptr<VideoOutput> output;
  std::unique_ptr<SoundCut> sound;
  AVStream* stream = nullptr;
  std::int64_t lastPlace = -1;  ///< that has been written
  std::int64_t bytes = 0;       ///< of the pictures that have been written
  CodecHandle codec;
  std::optional<ConversionPictures> pictures;
  PacketHandle packet = NewPacket();
};

Outcome Conversion::Engine::Open() {
  if (EntryExists(request.destination)) return Outcome(Fault::Refused, Tr("there is already a file of that name"));
  if (request.codec == Codec::Dv) {
    request.width = kTapeWidth;
    request.height = kTapeHeight;
  }
  auto opened = Demuxer::Open(request.source);
  if (!opened) return opened.Failure();
  demuxer = std::move(*opened);
  info = demuxer->Describe();
  const PictureIndex& index = demuxer->Index();
  const FrameTimes times = demuxer->Times();
  // A time that was counted from the mean rate may fall a little short of the picture that is meant.
  const double slackMs = info.durationMs / info.frameCount / 4;
  first = times.FrameAt(request.startMs + slackMs, index);
  const int last = request.endMs > 0 ? times.FrameAt(request.endMs + slackMs, index) : info.frameCount - 1;
  if (last < first || (request.endMs > 0 && request.endMs < request.startMs))
    return Outcome::Failed(Tr("the end lies before the start"));
  count = last - first + 1;
  ChooseTimes();
  auto reader = demuxer->Again();
  if (!reader) return Outcome(Fault::NotFound, Tr("the file has gone"));
  auto decoder = PictureDecoder::Open(std::move(reader));
  if (!decoder) return decoder.Failure();
  source = std::make_unique<PictureSource>(std::move(*decoder));
  return Outcome();
}

void Conversion::Engine::ChooseTimes() {
  if (!info.rateVaries && info.rate > 0 && info.scale > 0) {
    av_reduce(&rate.num, &rate.den, info.rate, info.scale, INT32_MAX);
    steady.frames = count;
    return;
  }
  const FrameTimes times = demuxer->Times();
  std::vector<double> ms;
  ms.reserve(static_cast<std::size_t>(count) + 1);
  for (int frame = first; frame <= first + count; ++frame) ms.push_back(times.Of(frame, demuxer->Index()));
  steady = SteadyRateFor(ms);
  rate = {steady.rate, steady.scale};
}

Conversion::State Conversion::Engine::Step() {
  if (state != State::Running) return state;
  if (next < count) {
    if (!TakeFrame(next++)) state = State::Failed;
  } else {
    state = Finish() ? State::Done : State::Failed;
  }
  // Nobody needs a half written file any longer.
  if (state == State::Failed) output.reset();
  return state;
}

/// Frames that repeat the picture before leave their place empty.
bool Conversion::Engine::TakeFrame(int frame) {
  const int picture = demuxer->Index().PictureOfFrame(first + frame);
  if (picture == std::exchange(before, picture)) return true;
  const FrameHandle decoded = source->Picture(picture);
  // Before the first that can be decoded there is nothing to show.
  if (!decoded) return true;
  if (!codec && !Begin(*decoded)) return false;
  const FrameHandle made = pictures->Make(*decoded);
  if (!made) return Fail(Tr("a picture cannot be converted"));
  made->pts = PlaceOf(frame);
  if (codec->flags & AV_CODEC_FLAG_QSCALE) made->quality = codec->global_quality;
  if (++converted.pictures % kLookForRoom == 0 && !HasRoom()) return Fail(Tr("there is not enough room on the disk"));
  return Encode(made.get());
}

/// What is still to come will be about as large as what has been written.
bool Conversion::Engine::HasRoom() const {
  const std::int64_t free = FreeBytes(request.destination);
  const double each = static_cast<double>(bytes) / converted.pictures;
  return free < 0 || each * (count - next) < static_cast<double>(free);
}

bool Conversion::Engine::Begin(const AVFrame& shown) {
  PictureForm form;
  const PictureSize upright = demuxer->Shape().SizeOf(shown.width, shown.height);
  form.width = request.width > 0 ? request.width : upright.width;
  form.height = request.height > 0 ? request.height : upright.height;
  form.sharpen = request.sharpen;
  form.fields = FieldsOf(info);
  form.format = request.codec == Codec::Dv ? AV_PIX_FMT_YUV411P : FormatFor(shown, form.fields);
  pictures.emplace(demuxer->Shape(), form);
  codec = OpenEncoder(request.codec, form, rate);
  if (!codec) return Fail(Tr("no encoder takes these pictures"));

  output = std::make_unique<VideoOutput>(request.destination);
  if (const int opened = output->Open(); opened < 0) return Fail(opened);
  stream = output->AddStream();
  if (!stream || avcodec_parameters_from_context(stream->codecpar, codec.get()) < 0) return Fail(Tr("out of memory"));
  stream->codecpar->codec_tag = codec->codec_tag;
  stream->time_base = av_inv_q(rate);
  stream->avg_frame_rate = rate;
  if (info.hasSound) {
    const FrameTimes times = demuxer->Times();
    const double start = times.Of(first, demuxer->Index()) / 1000;
    sound = SoundCut::Open(request.source, start, start + steady.frames * av_q2d(av_inv_q(rate)), *output);
  }
  const int started = output->Start();
  return started >= 0 || Fail(started);
}

bool Conversion::Engine::Encode(const AVFrame* picture) {
  int result = avcodec_send_frame(codec.get(), picture);
  while (result >= 0) {
    result = avcodec_receive_packet(codec.get(), packet.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return true;
    if (result >= 0 && !WritePacket(*packet, packet->pts)) return false;
  }
  return Fail(result);
}

bool Conversion::Engine::WritePacket(AVPacket& content, std::int64_t place) {
  // The sound of a picture goes before its successor.
  int result = sound ? sound->WriteUntil(static_cast<double>(place + 1) * rate.den / rate.num) : 0;
  if (result >= 0) {
    lastPlace = content.pts = content.dts = place;
    content.duration = 1;
    bytes += content.size;
    result = output->Write(content, *stream, av_inv_q(rate));
  }
  return result >= 0 || Fail(result);
}

bool Conversion::Engine::Finish() {
  if (!codec) return Fail(Tr("no picture of the video can be decoded"));
  if (!Encode(nullptr)) return false;
  // Where the last places repeat a picture, one empty packet at the end makes the file count them all.
  if (lastPlace < steady.frames - 1) {
    av_packet_unref(packet.get());
    if (!WritePacket(*packet, steady.frames - 1)) return false;
  }
  converted.frames = steady.frames;
  return output->Finish(false, error);
}

Conversion::Conversion(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
Conversion::~Conversion() = default;

Result<std::unique_ptr<Conversion>> Conversion::Open(const ConversionRequest& request) {
  auto engine = std::make_unique<Engine>(request);
  if (const Outcome opened = engine->Open(); !opened) return opened;
  return std::unique_ptr<Conversion>(new Conversion(std::move(engine)));
}

Conversion::State Conversion::Step() { return engine_->Step(); }

double Conversion::Part() const {
  return engine_->state == State::Done ? 1 : static_cast<double>(engine_->next) / (engine_->count + 1);
}

const ConvertedVideo& Conversion::Converted() const { return engine_->converted; }
const std::string& Conversion::Error() const { return engine_->error; }

}  // namespace kinalyx
