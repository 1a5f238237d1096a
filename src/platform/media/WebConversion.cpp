#include "platform/media/WebConversion.h"

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/Demuxer.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureSource.h"
#include "platform/media/SoundReader.h"
#include "platform/media/SteadyRate.h"
#include "platform/media/WebFile.h"
#include "platform/media/WebPictures.h"

namespace kinalyx {
namespace {

/// Pictures from one look at the disk to the next: a long video shall not fill it first and fail then.
constexpr int kLookForRoom = 64;
constexpr int kChannels = SoundReader::kChannels;
static_assert(SoundReader::kRate == WebFile::kSoundRate);

}  // namespace

struct WebConversion::Engine {
  explicit Engine(const WebRequest& wish) : request(wish) {}
  Outcome Open();
  void ChooseTimes();
  State Step();
  bool TakeFrame(int frame);
  bool Begin(const AVFrame& shown);
  bool Write(AVFrame& picture, int place);
  bool WriteSoundUntil(double seconds);
  bool Finish();
  bool HasRoom() const;
  int PlaceOf(int frame) const {
    return steady.places.empty() ? frame : steady.places[static_cast<std::size_t>(frame)];
  }
  bool Fail(const std::string& message) {
    error = message;
    return false;
  }
  bool Good(int result) { return result >= 0 || Fail(AvError(result)); }

  WebRequest request;
  State state = State::Running;
  std::string error;

  std::unique_ptr<Demuxer> demuxer;
  VideoInfo info;
  std::unique_ptr<PictureSource> source;
  int next = 0;
  int before = -1;  ///< the picture that was taken last
  SteadyRate steady;
  AVRational rate{30, 1};

  std::optional<WebPictures> pictures;
  FrameHandle last;
  int lastPlace = -1;
  int written = 0;
  std::vector<std::unique_ptr<WebFile>> files;
  std::unique_ptr<SoundReader> sound;
  std::int64_t heard = 0;  ///< samples of each channel that have been written
  std::vector<std::int16_t> samples;
};

Outcome WebConversion::Engine::Open() {
  auto opened = Demuxer::Open(request.source);
  if (!opened) return opened.Failure();
  demuxer = std::move(*opened);
  info = demuxer->Describe();
  ChooseTimes();
  auto reader = demuxer->Again();
  if (!reader) return Outcome(Fault::NotFound, Tr("the file has gone"));
  auto decoder = PictureDecoder::Open(std::move(reader));
  if (!decoder) return decoder.Failure();
  source = std::make_unique<PictureSource>(std::move(*decoder));
  if (info.hasSound) sound = SoundReader::Open(request.source);
  if (sound) sound->Begin(0);
  return {};
}

void WebConversion::Engine::ChooseTimes() {
  if (!info.rateVaries && info.rate > 0 && info.scale > 0) {
    av_reduce(&rate.num, &rate.den, info.rate, info.scale, INT32_MAX);
    steady.frames = info.frameCount;
    return;
  }
  const FrameTimes times = demuxer->Times();
  std::vector<double> ms;
  ms.reserve(static_cast<std::size_t>(info.frameCount) + 1);
  for (int frame = 0; frame <= info.frameCount; ++frame) ms.push_back(times.Of(frame, demuxer->Index()));
  steady = SteadyRateFor(ms);
  rate = {steady.rate, steady.scale};
}

WebConversion::State WebConversion::Engine::Step() {
  if (state != State::Running) return state;
  if (next < info.frameCount) {
    if (!TakeFrame(next++)) state = State::Failed;
  } else {
    state = Finish() ? State::Done : State::Failed;
  }
  // Nobody needs a half written file any longer.
  if (state == State::Failed) files.clear();
  return state;
}

/// Frames that repeat the picture before leave their place empty.
bool WebConversion::Engine::TakeFrame(int frame) {
  const int picture = demuxer->Index().PictureOfFrame(frame);
  if (picture == std::exchange(before, picture)) return true;
  const FrameHandle decoded = source->Picture(picture);
  // Before the first that can be decoded there is nothing to show.
  if (!decoded) return true;
  if (!pictures && !Begin(*decoded)) return false;
  FrameHandle made = pictures->Make(*decoded);
  if (!made) return Fail(Tr("a picture cannot be converted"));
  if (++written % kLookForRoom == 0 && !HasRoom()) return Fail(Tr("there is not enough room on the disk"));
  return Write(*made, PlaceOf(frame)) && (last = std::move(made));
}

/// What is still to come will be about as large as what has been written.
bool WebConversion::Engine::HasRoom() const {
  std::int64_t bytes = 0;
  for (const auto& file : files) bytes += file->Bytes();
  const std::int64_t free = FreeBytes(request.mp4.empty() ? request.wmv : request.mp4);
  const double each = static_cast<double>(bytes) / written;
  return free < 0 || each * (info.frameCount - next) < static_cast<double>(free);
}

bool WebConversion::Engine::Begin(const AVFrame& shown) {
  WebFile::Form form;
  form.size = WebPictures::SizeFor(demuxer->Shape().SizeOf(shown.width, shown.height));
  form.rate = rate;
  form.sound = sound != nullptr;
  pictures.emplace(demuxer->Shape(), form.size, info.interlaced, info.topFieldFirst);
  form.colours = pictures->ColoursOf(shown);
  if (!request.wmv.empty()) files.push_back(std::make_unique<WebFile>(request.wmv, WebFile::Kind::Wmv));
  if (!request.mp4.empty()) files.push_back(std::make_unique<WebFile>(request.mp4, WebFile::Kind::Mp4));
  for (const auto& file : files)
    if (!Good(file->Open(form))) return false;
  return true;
}

bool WebConversion::Engine::Write(AVFrame& picture, int place) {
  // What the decoder says of the kind of its picture is not for the encoder.
  picture.pts = lastPlace = place;
  picture.pict_type = AV_PICTURE_TYPE_NONE;
  picture.key_frame = 0;
  picture.interlaced_frame = 0;
  if (!WriteSoundUntil(static_cast<double>(place + 1) * rate.den / rate.num)) return false;
  for (const auto& file : files)
    if (!Good(file->Write(picture))) return false;
  return true;
}

/// Where the sound has come to an end, silence goes on.
bool WebConversion::Engine::WriteSoundUntil(double seconds) {
  const std::int64_t until = std::llround(seconds * WebFile::kSoundRate);
  if (!sound || until <= heard) return true;
  const auto wanted = static_cast<std::size_t>(until - heard) * kChannels;
  while (samples.size() < wanted && sound->Read(samples)) {
  }
  if (samples.size() < wanted) samples.resize(wanted, 0);
  for (const auto& file : files)
    if (!Good(file->WriteSound(std::span(samples).first(wanted)))) return false;
  samples.erase(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(wanted));
  heard = until;
  return true;
}

bool WebConversion::Engine::Finish() {
  if (!pictures || !last) return Fail(Tr("no picture of the video can be decoded"));
  // Where the last places repeat a picture, it is told once more at the end.
  if (lastPlace < steady.frames - 1 && !Write(*last, steady.frames - 1)) return false;
  for (const auto& file : files)
    if (const Outcome closed = file->Close(); !closed) return Fail(closed.Why());
  return true;
}

WebConversion::WebConversion(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
WebConversion::~WebConversion() = default;

Result<std::unique_ptr<WebConversion>> WebConversion::Open(const WebRequest& request) {
  HearLibrary();
  auto engine = std::make_unique<Engine>(request);
  if (const Outcome opened = engine->Open(); !opened) return opened;
  return std::unique_ptr<WebConversion>(new WebConversion(std::move(engine)));
}

WebConversion::State WebConversion::Step() { return engine_->Step(); }

double WebConversion::Part() const {
  return engine_->state == State::Done ? 1 : static_cast<double>(engine_->next) / (engine_->info.frameCount + 1);
}

double WebConversion::FrameSeconds() const { return av_q2d(av_inv_q(engine_->rate)); }

const std::string& WebConversion::Error() const { return engine_->error; }

}  // namespace kinalyx
