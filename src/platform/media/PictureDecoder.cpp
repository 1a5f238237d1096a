#include "platform/media/PictureDecoder.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/media/Colours.h"

namespace kinalyx {
namespace {

constexpr int kMostThreads = 4;
constexpr std::int64_t kManyPixels = 4096 * 2304;
/// Packets between a picture's own and the one that pushes it out, at the utmost: it may be stored and
/// shown sixteen places apart, and the decoder holds sixteen back.
constexpr int kReorderLag = 32;

/// As many pixels are decoded in a few seconds: no reason to show a damaged picture other than from the start.
constexpr std::int64_t kShortWay = std::int64_t{300} * 1920 * 1080;

bool Has(const AVCodecDescriptor* descriptor, int property) { return descriptor && (descriptor->props & property); }

}  // namespace

int PictureDecoder::UsualThreads() {
  return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostThreads);
}

Result<std::unique_ptr<PictureDecoder>> PictureDecoder::Open(std::unique_ptr<Demuxer> demuxer, int threads) {
  std::unique_ptr<PictureDecoder> decoder(new PictureDecoder);
  decoder->threads_ = std::clamp(threads, 1, kMostThreads);
  decoder->demuxer_ = std::move(demuxer);
  const Demuxer& source = *decoder->demuxer_;
  decoder->order_ = std::make_unique<ShowOrder>(source.Index(), source.Codec(), source.TellsShowTimes());
  decoder->readableEnd_ = source.Index().PictureCount();
  if (const Outcome opened = decoder->OpenCodec(); !opened) return opened;
  return decoder;
}

Result<CodecHandle> PictureDecoder::NewCodec(int threads, int threadType, Complaints& complaints) const {
  const AVCodecParameters& parameters = demuxer_->Codec();
  const AVCodec* codec = avcodec_find_decoder(parameters.codec_id);
  CodecHandle context(codec ? avcodec_alloc_context3(codec) : nullptr);
  if (!context || avcodec_parameters_to_context(context.get(), &parameters) < 0)
    return Outcome(Fault::NoMedia, Tr("no decoder"));
  context->thread_count = threads;
  context->thread_type = threadType;
  // Without a word in the stream about its order the decoder must expect the worst, or it drops pictures.
  context->strict_std_compliance = FF_COMPLIANCE_STRICT;
  context->opaque = &complaints;
  context->max_pixels = kMostPixels;
  if (const int result = avcodec_open2(context.get(), codec, nullptr); result < 0)
    return Outcome(Fault::NoMedia, AvError(result));
  return context;
}

Outcome PictureDecoder::OpenCodec() {
  const AVCodecParameters& parameters = demuxer_->Codec();
  const AVCodecDescriptor* descriptor = avcodec_descriptor_get(parameters.codec_id);
  standsAlone_ = Has(descriptor, AV_CODEC_PROP_INTRA_ONLY);
  // Each thread has a picture of its own in hand.
  const int threads = std::int64_t{parameters.width} * parameters.height > kManyPixels ? 1 : threads_;
  // Pictures that stand for themselves come fast enough, and a thread would only delay them.
  auto opened = NewCodec(standsAlone_ || careful_ ? 1 : threads, FF_THREAD_FRAME | FF_THREAD_SLICE, complaints_);
  if (!opened) return opened.Failure();
  CodecHandle context = std::move(*opened);
  lag_ = Has(descriptor, AV_CODEC_PROP_REORDER) ? kReorderLag : 0;
  if (context->active_thread_type & FF_THREAD_FRAME && context->thread_count > 1) lag_ += context->thread_count;
  if (lag_ == 0 && context->codec->capabilities & AV_CODEC_CAP_DELAY) lag_ = 1;
  codec_ = std::move(context);

  if (parameters.codec_id == AV_CODEC_ID_MPEG4 && !demuxer_->TellsShowTimes()) {
    AVBSFContext* filter = nullptr;
    const AVBitStreamFilter* unpack = av_bsf_get_by_name("mpeg4_unpack_bframes");
    if (unpack && av_bsf_alloc(unpack, &filter) >= 0) {
      filter_.reset(filter);
      if (avcodec_parameters_copy(filter->par_in, &parameters) < 0 || av_bsf_init(filter) < 0) filter_.reset();
    }
  }
  return Outcome();
}

bool PictureDecoder::Start(int chunk) {
  running_ = false;
  // What is concealed looks like what was decoded last, before a flush too, or left out, or is in the hands of
  // another thread: a careful run shows what any decoder would that goes through the stream alone and in order.
  careful_ = carefulStarts_.contains(chunk);
  if (careful_ || wasCareful_) Stop();
  wasCareful_ = careful_;
  if (!codec_ && !OpenCodec()) return false;
  if (!Enter(*codec_, chunk)) return false;
  next_ = Index().ChunkStart(chunk);
  firstPicture_ = settled_ = Index().ChunkFirstPicture(chunk);
  wholeFrom_ = 0;
  fates_.assign(static_cast<std::size_t>(Index().PictureCount()), Fate::Open);
  strange_.clear();
  heardComplaints_ = complaints_;
  drained_ = false;
  running_ = true;
  return true;
}

/// Sets the reader and a decoder to the start of a chunk.
bool PictureDecoder::Enter(AVCodecContext& codec, int chunk) {
  if (!demuxer_->Seek(Index().ChunkStart(chunk))) return false;
  avcodec_flush_buffers(&codec);
  if (filter_) av_bsf_flush(filter_.get());
  order_->Reset();
  pictureOfPacket_.clear();
  // Entered in the middle, a stream need not say that it is whole again: the index knows.
  codec.flags2 = chunk > 0 ? codec.flags2 | AV_CODEC_FLAG2_SHOW_ALL : codec.flags2 & ~AV_CODEC_FLAG2_SHOW_ALL;
  chunk_ = chunk;
  return true;
}

void PictureDecoder::Stop() {
  running_ = false;
  order_->Reset();
  codec_.reset();
  keyCodec_.reset();
}

bool PictureDecoder::Filter(AVPacket& packet) {
  return !filter_ ||
         (av_bsf_send_packet(filter_.get(), &packet) >= 0 && av_bsf_receive_packet(filter_.get(), &packet) >= 0);
}

std::optional<PlacedPacket> PictureDecoder::NextPlaced() {
  for (;;) {
    if (auto placed = order_->Pop()) return placed;
    PacketHandle packet = NewPacket();
    const int number = demuxer_->Read(*packet);
    if (number < 0) {
      order_->Finish();
      return order_->Pop();
    }
    if (number >= Index().ChunkStart(chunk_) && Filter(*packet)) order_->Push(number, std::move(packet));
  }
}

void PictureDecoder::Step(int wholeFrom, const Sink& sink) {
  if (!running_ || drained_) return;
  wholeFrom_ = std::max(wholeFrom_, wholeFrom);
  auto placed = NextPlaced();
  if (!placed) {
    avcodec_send_packet(codec_.get(), nullptr);
    Receive(sink);
    drained_ = true;
    if (next_ < Index().PacketCount()) readableEnd_ = std::min(readableEnd_, Index().PicturesBefore(next_));
    Settle(Index().PictureCount());
    return;
  }
  const bool first = placed->number == Index().ChunkStart(chunk_);
  if (chunk_ > 0 && first) {
    if (placed->picture > firstPicture_) keyPictureOfChunk_[chunk_] = firstPicture_ = placed->picture;
    demuxer_->FirstWords().PutBefore(*placed->packet);
  }
  next_ = placed->number + 1;
  const bool unwanted = placed->picture >= 0 && placed->picture < wholeFrom;
  if (!unwanted || !IsImmediate()) {
    codec_->skip_frame = unwanted && !careful_ ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
    // The number travels through the decoder as the time.
    placed->packet->pts = placed->packet->dts = placed->number;
    pictureOfPacket_[placed->number] = placed->picture;
    avcodec_send_packet(codec_.get(), placed->packet.get());
    Receive(sink);
    while (!pictureOfPacket_.empty() && pictureOfPacket_.begin()->first < next_ - 2 * (lag_ + 1))
      pictureOfPacket_.erase(pictureOfPacket_.begin());
  }
  Settle(Index().PicturesBefore(std::max(0, next_ - lag_)));
}

FrameHandle PictureDecoder::KeyPicture(int chunk, int& picture, KeyLook look) {
  running_ = false;
  if (!keyCodec_) {
    auto opened = NewCodec(UsualThreads(), FF_THREAD_SLICE, keyComplaints_);
    if (!opened) return nullptr;
    keyCodec_ = std::move(*opened);
  }
  keyCodec_->skip_loop_filter = look == KeyLook::Rough ? AVDISCARD_ALL : AVDISCARD_DEFAULT;
  if (!Enter(*keyCodec_, chunk)) return nullptr;
  const auto placed = NextPlaced();
  if (!placed || placed->picture < 0) return nullptr;
  picture = placed->picture;
  FrameHandle frame = NewFrame();
  if (chunk > 0) demuxer_->FirstWords().PutBefore(*placed->packet);
  const int complaints = keyComplaints_;
  if (avcodec_send_packet(keyCodec_.get(), placed->packet.get()) < 0) return nullptr;
  // The end of the stream makes it come out; the next one begins with a flush.
  avcodec_send_packet(keyCodec_.get(), nullptr);
  const bool came = avcodec_receive_frame(keyCodec_.get(), frame.get()) >= 0;
  // What a run would not believe is not taken from here either; the run that follows finds it out.
  if (!came || keyComplaints_ != complaints || (frame->flags & AV_FRAME_FLAG_CORRUPT) || frame->decode_error_flags)
    return nullptr;
  SettleColours(*frame);
  return frame;
}

void PictureDecoder::Receive(const Sink& sink) {
  for (;;) {
    FrameHandle frame = NewFrame();
    const bool came = avcodec_receive_frame(codec_.get(), frame.get()) >= 0;
    HearComplaints();
    if (!came) return;
    const auto number = static_cast<int>(frame->pts != AV_NOPTS_VALUE ? frame->pts : next_ - 1);
    const auto found = pictureOfPacket_.find(number);
    if (found == pictureOfPacket_.end()) continue;
    const int picture = found->second;
    // A packet makes one picture; what a decoder gives twice or conceals before the run began is none.
    pictureOfPacket_.erase(found);
    if (picture < firstPicture_) continue;
    const bool strange = (frame->flags & AV_FRAME_FLAG_CORRUPT) || frame->decode_error_flags ||
                         strange_.contains(Index().ChunkOfPicture(picture));
    if (strange && !IsOwnFault(picture)) continue;
    fates_[picture] = Fate::CameOut;
    SettleColours(*frame);
    sink(picture, std::move(frame));
  }
}

/// A message comes without a packet: any that the threads have in hand may be meant.
void PictureDecoder::HearComplaints() {
  const int complaints = complaints_;
  if (complaints == heardComplaints_) return;
  heardComplaints_ = complaints;
  const int last = std::max(0, next_ - 1);
  const int first = std::max(Index().ChunkStart(chunk_), last - kMostThreads);
  strange_.insert(Index().ChunkOfPacket(std::min(first, last)));
  strange_.insert(Index().ChunkOfPacket(last));
}

bool PictureDecoder::IsOwnFault(int picture) {
  const int chunk = Index().ChunkOfPicture(picture);
  strange_.insert(chunk);
  if (standsAlone_) return true;
  const auto isKnown = [&](int n) { return n > chunk_ && ownFaults_.contains(n); };
  const bool wellBefore = chunk > chunk_ && (!strange_.contains(chunk - 1) || isKnown(chunk - 1));
  // To the last pixel a picture is concealed alike only when all before it is the same.
  const std::int64_t pixels = std::int64_t{codec_->width} * codec_->height * Index().ChunkStart(chunk);
  const bool own = chunk_ == 0 || ((wellBefore || isKnown(chunk)) && pixels > kShortWay);
  if (!own) {
    // The way back doubles: however far it has to go, it costs no more than twice the last run.
    Doubt(picture, std::max(0, chunk - std::max(1, 2 * (chunk - chunk_))));
    return false;
  }
  ownFaults_.insert(chunk);
  if (!careful_) {
    carefulStarts_.insert(chunk_);
    Doubt(picture, chunk_);
  }
  return careful_;
}

void PictureDecoder::Doubt(int picture, int entry) {
  fates_[picture] = Fate::Doubtful;
  const int chunk = Index().ChunkOfPicture(picture);
  const auto known = entries_.find(chunk);
  if (known == entries_.end() || known->second > entry) entries_[chunk] = entry;
}

/// Pictures below have come out, or never will in this run.
void PictureDecoder::Settle(int settled) {
  for (int picture = std::max({settled_, firstPicture_, wholeFrom_}); picture < settled; ++picture) {
    if (fates_[picture] == Fate::Open && picture < readableEnd_) IsOwnFault(picture);
  }
  settled_ = std::max(settled_, settled);
}

bool PictureDecoder::Reaches(int picture) const {
  return running_ && !drained_ && picture >= firstPicture_ && picture >= wholeFrom_ && picture >= settled_ &&
         fates_[picture] == Fate::Open;
}

bool PictureDecoder::Lost(int picture) const {
  return running_ && picture >= firstPicture_ && picture >= wholeFrom_ && picture < settled_ &&
         fates_[picture] == Fate::Open;
}

int PictureDecoder::StartChunkFor(int picture) const {
  int chunk = Index().ChunkOfPicture(picture);
  if (const auto entry = entries_.find(chunk); entry != entries_.end()) return entry->second;
  const auto key = keyPictureOfChunk_.find(chunk);
  return key != keyPictureOfChunk_.end() && picture < key->second ? chunk - 1 : chunk;
}

int PictureDecoder::FirstOfRun(int chunk) const {
  const auto key = keyPictureOfChunk_.find(chunk);
  return key != keyPictureOfChunk_.end() ? key->second : Index().ChunkFirstPicture(chunk);
}

}  // namespace kinalyx
