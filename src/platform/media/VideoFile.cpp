#include "platform/media/VideoFile.h"

#include <chrono>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "platform/files/Folders.h"
#include "platform/media/Demuxer.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureSource.h"
#include "platform/media/RowConverter.h"
#include "platform/media/StandInCoder.h"
#include "platform/media/StandInPass.h"

namespace kinalyx {

namespace {

/// A move by no more than this is a step.
constexpr int kStep = 16;
/// Larger pictures take longer to be turned into rows than a stand-in to be unpacked.
constexpr int kLargePixels = 2'500'000;
/// Until it is told.
constexpr int kShownWidth = 960;
constexpr int kShownHeight = 540;

/// Whom to tell that a better picture has come. Held during the call, so that nobody is called who has gone.
class News {
 public:
  void Set(std::function<void()> tell) {
    const std::lock_guard lock(mutex_);
    tell_ = std::move(tell);
  }
  void Tell() {
    const std::lock_guard lock(mutex_);
    if (tell_) tell_();
  }

 private:
  std::mutex mutex_;
  std::function<void()> tell_;
};

}  // namespace

struct VideoFile::Engine {
  Engine(std::unique_ptr<PictureDecoder> decoder, const std::string& path, const std::optional<FileStamp>& stamp);

  ~Engine();
  PictureListener ListenerFor(bool withPass);

  bool Takes(int n, int bitCount) const { return n >= 0 && n < info.frameCount && (bitCount == 24 || bitCount == 32); }
  bool Shows(int picture, int bitCount, bool exact) const {
    return rows && rowsPicture == picture && rows.bitCount == bitCount && rowsExact == exact;
  }
  const FrameRows& RowsOf(int picture, const FrameHandle& frame, int bitCount, bool exact);
  const FrameRows& StandInOf(int picture, int bitCount);
  FrameAtHand At(int picture, bool exact) const { return {rows, index.FrameOfPicture(picture), exact}; }
  FrameAtHand PictureNow(int picture, int bitCount);
  FrameAtHand NearestNow(int picture, int bitCount);
  FrameHandle GlimpseOf(int& picture);

  VideoInfo info;
  FrameTimes times;
  const PictureIndex& index;
  News news;
  RowConverter converter;
  StandInCoder coder;
  int longSide = StandInCoder::LongSideFor(kShownWidth, kShownHeight);  ///< of stand-ins, as large as they are shown
  std::unique_ptr<Demuxer> forPass;
  PictureSource pictures;
  std::unique_ptr<StandInPass> pass;  ///< null where every picture comes fast

  std::vector<std::uint8_t> wholeBits;  ///< of the rows handed out last, or
  std::vector<std::uint8_t> smallBits;
  std::vector<std::uint8_t> glimpseBits;
  FrameRows rows;
  int rowsPicture = -1;
  bool rowsExact = false;
  int asked = 0;     ///< the picture that FrameNow was asked for last
  int lastMove = 0;  ///< to it, from the one before
};

VideoFile::Engine::Engine(std::unique_ptr<PictureDecoder> decoder, const std::string& path,
                          const std::optional<FileStamp>& stamp)
    : info(decoder->Source().Describe()),
      times(decoder->Source().Times()),
      index(decoder->Index()),
      converter(decoder->Source().Shape()),
      forPass(StandInPass::IsWorthIt(decoder->Source()) ? decoder->Source().Again() : nullptr),
      pictures(std::move(decoder), ListenerFor(forPass != nullptr)) {
  if (!forPass) return;
  auto video = stamp ? std::make_unique<const FileStamp>(*stamp) : nullptr;
  pass = std::make_unique<StandInPass>(std::move(forPass), std::move(video), path);
}

VideoFile::Engine::~Engine() {
  // They call one another.
  pictures.Stop();
}

PictureListener VideoFile::Engine::ListenerFor(bool withPass) {
  PictureListener listener;
  listener.news = [this] { news.Tell(); };
  if (!withPass) return listener;
  listener.keepSmall = [this](int picture, const AVFrame& frame) { pass->Keep(picture, frame); };
  listener.hasSmall = [this](int picture) { return pass->Has(picture); };
  return listener;
}

VideoFile::VideoFile(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
VideoFile::~VideoFile() = default;

Result<std::unique_ptr<VideoFile>> VideoFile::Open(const std::string& path) {
  // The first picture is waited for.
  PassTurn::GiveWay();
  const std::optional<FileStamp> stamp = StampOf(path);
  auto demuxer = Demuxer::Open(path);
  if (!demuxer) return demuxer.Failure();
  auto decoder = PictureDecoder::Open(std::move(*demuxer));
  if (!decoder) return decoder.Failure();
  // A file that changes while it is opened is no file to remember anything of.
  const bool still = stamp && StampOf(path) == stamp;
  PassTurn::GiveWay();
  return std::unique_ptr<VideoFile>(
      new VideoFile(std::make_unique<Engine>(std::move(*decoder), path, still ? stamp : std::nullopt)));
}

const VideoInfo& VideoFile::Info() const { return engine_->info; }

double VideoFile::SampleToTime(int n) const { return engine_->times.Of(n, engine_->index); }

int VideoFile::FrameAtTime(double ms) const { return engine_->times.FrameAt(ms, engine_->index); }

const FrameRows& VideoFile::Engine::RowsOf(int picture, const FrameHandle& frame, int bitCount, bool exact) {
  if (Shows(picture, bitCount, exact)) return rows;
  // What is only to be seen for a moment need not be larger than it is seen.
  const FrameHandle smaller = frame && !exact && pass ? coder.Smaller(*frame, longSide) : nullptr;
  // Each size has a buffer of its own: growing one costs as much as the picture itself.
  rows = frame ? converter.Convert(smaller ? *smaller : *frame, bitCount, exact ? wholeBits : smallBits) : FrameRows();
  rowsPicture = picture;
  rowsExact = exact;
  return rows;
}

const FrameRows& VideoFile::Engine::StandInOf(int picture, int bitCount) {
  if (Shows(picture, bitCount, false)) return rows;
  const StandInShelf::Bytes packed = pass->Get(picture);
  return RowsOf(picture, packed ? coder.Unpack(*packed) : nullptr, bitCount, false);
}

FrameRows VideoFile::Frame(int n, int bitCount) {
  Engine& engine = *engine_;
  if (!engine.Takes(n, bitCount)) return {};
  const int picture = engine.index.PictureOfFrame(n);
  PassTurn::GiveWay();
  if (engine.pass) engine.pass->MoveTo(picture);
  if (engine.Shows(picture, bitCount, true)) return engine.rows;
  return engine.RowsOf(picture, engine.pictures.Picture(picture), bitCount, true);
}

bool VideoFile::Field(int n, bool lowest, std::vector<std::uint8_t>& bits) {
  Engine& engine = *engine_;
  if (!engine.Takes(n, 24)) return false;
  const int picture = engine.index.PictureOfFrame(n);
  if (engine.pass || engine.Shows(picture, 24, true)) return false;
  PassTurn::GiveWay();
  const FrameHandle frame = engine.pictures.Picture(picture);
  const bool usual = frame && frame->width == engine.info.width && frame->height == engine.info.height;
  return usual && engine.converter.ConvertField(*frame, lowest ? 0 : 1, bits);
}

FrameAtHand VideoFile::FrameNow(int n, int bitCount) {
  Engine& engine = *engine_;
  if (!engine.Takes(n, bitCount)) return {};
  PassTurn::GiveWay();
  const int picture = engine.index.PictureOfFrame(n);
  FrameAtHand found = engine.PictureNow(picture, bitCount);
  // Some frames repeat the picture of the one before.
  if (found.rows && engine.rowsPicture == picture) found.frame = n;
  return found;
}

FrameAtHand VideoFile::Engine::PictureNow(int picture, int bitCount) {
  if (pass) pass->MoveTo(picture);
  const int move = picture - std::exchange(asked, picture);
  if (move != 0) lastMove = move;
  if (Shows(picture, bitCount, true)) return At(picture, true);
  // While the hand moves over large pictures the small ones will do.
  const bool small = pass && pass->Has(picture) && (move != 0 && info.width * info.height > kLargePixels);
  if (!small) {
    if (const FrameHandle frame = pictures.PictureNow(picture)) {
      if (RowsOf(picture, frame, bitCount, true)) {
        pictures.MoveTo(picture);
        return At(picture, true);
      }
    }
  }
  if (pass && pass->Has(picture) && StandInOf(picture, bitCount)) {
    pictures.Want(picture, PictureSource::Way::AfterRest);
    return At(picture, false);
  }
  return NearestNow(picture, bitCount);
}

FrameAtHand VideoFile::Engine::NearestNow(int picture, int bitCount) {
  const auto away = [&](int other) { return other < 0 ? INT_MAX : std::abs(other - picture); };
  const int decoded = pictures.Nearest(picture);
  const int standIn = pass ? pass->Nearest(picture) : -1;
  const bool goingBack = lastMove < 0 && lastMove >= -kStep;
  const int gap = std::min(away(decoded), away(standIn));
  using Way = PictureSource::Way;
  const int key = index.ChunkFirstPicture(index.ChunkOfPicture(picture));
  const bool stepsForward = lastMove > 0 && lastMove <= kStep;
  const bool keyHelps = away(key) < gap;
  if (!pass || stepsForward) pictures.Want(picture, Way::Now);
  else if (goingBack) pictures.Want(picture, Way::WithThoseBelow);
  else pictures.Want(picture, keyHelps ? Way::KeyFirst : Way::AfterRest);
  if (gap == INT_MAX) return {};
  // A stand-in may be damaged, and a decoded picture may have been given up in between.
  if (away(standIn) < away(decoded) && StandInOf(standIn, bitCount)) return At(standIn, false);
  if (decoded < 0 || !RowsOf(decoded, pictures.PictureNow(decoded), bitCount, false)) return {};
  return At(decoded, false);
}

/// The frame of the picture that is nearest, whose number is then in `picture`.
FrameHandle VideoFile::Engine::GlimpseOf(int& picture) {
  if (FrameHandle frame = pictures.PictureNow(picture)) return frame;
  if (!pass) return pictures.Picture(picture);
  const auto away = [&](int other) { return other < 0 ? INT_MAX : std::abs(other - picture); };
  const int standIn = pass->Nearest(picture);
  const int decoded = pictures.Nearest(picture);
  if (standIn >= 0 && away(standIn) <= away(decoded)) {
    const StandInShelf::Bytes packed = pass->Get(standIn);
    if (FrameHandle frame = packed ? coder.Unpack(*packed) : nullptr) {
      picture = standIn;
      return frame;
    }
  }
  picture = decoded;
  return decoded < 0 ? nullptr : pictures.PictureNow(decoded);
}

FrameAtHand VideoFile::Glimpse(int n) {
  Engine& engine = *engine_;
  if (!engine.Takes(n, 32)) return {};
  const int wanted = engine.index.PictureOfFrame(n);
  int picture = wanted;
  const FrameHandle frame = engine.GlimpseOf(picture);
  if (!frame) return {};
  FrameAtHand found;
  found.rows = engine.converter.Convert(*frame, 32, engine.glimpseBits);
  found.frame = picture == wanted ? n : engine.index.FrameOfPicture(picture);
  return found;
}

void VideoFile::OnBetterPicture(std::function<void()> news) { engine_->news.Set(std::move(news)); }

bool VideoFile::HasStandIns() const { return engine_->pass != nullptr; }

bool VideoFile::EveryFrameIsAtHand() const { return !engine_->pass || engine_->pass->Done(); }

void VideoFile::SetShownSize(int width, int height) {
  engine_->longSide = StandInCoder::LongSideFor(width, height);
  if (engine_->pass) engine_->pass->SetShownSize(width, height);
}

std::unique_ptr<VideoInfo> ReadVideoInfo(const std::string& path) {
  const auto demuxer = Demuxer::Open(path);
  return demuxer ? std::make_unique<VideoInfo>((*demuxer)->Describe()) : nullptr;
}

}  // namespace kinalyx
