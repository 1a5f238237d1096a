#include "distribution/clips/ClipJob.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "distribution/clips/CardPainter.h"
#include "platform/files/Tr.h"
#include "platform/paint/Blend.h"
#include "workspace/compare/PictureExport.h"

namespace kinalyx {
namespace {

constexpr double kCardMs = 3000;
/// A picture that stands longer is told again: a hand that drags through the clip then finds it at once.
constexpr double kRepeatMs = 250;
constexpr int kLoopWidth = 480;
constexpr int kRowWidth = 3840;
constexpr int kRowHeight = 720;
constexpr int kMostUnread = 30;  // pictures in which something was missing
constexpr int kMostSide = 4096;
constexpr int kChannels = SoundReader::kChannels;
static_assert(SoundReader::kRate == ClipWriter::kSoundRate);

std::int64_t SamplesOf(double ms) { return std::llround(ms * ClipWriter::kSoundRate / 1000); }

int Even(double pixels) { return std::max(2, 2 * static_cast<int>(std::lround(pixels / 2))); }

/// In the scene's proportions, inside a box.
POINTAPI Inside(const ClipScene& scene, double width, double height) {
  const double proportion = scene.Proportion();
  const double high = std::min(height, width / proportion);
  return {Even(high * proportion), Even(high)};
}

}  // namespace

POINTAPI PixelsOf(const ClipScene& scene, ClipSize size) {
  constexpr double kWide = 16.0 / 9;
  const auto lines = [&](double side) {
    return scene.Proportion() >= 1 ? Inside(scene, side * kWide, side) : Inside(scene, side, side * kWide);
  };
  switch (size) {
    case ClipSize::AsSeen: {
      const double high = std::clamp(scene.PixelsHigh, 2, kMostSide);
      return Inside(scene, kMostSide, high);
    }
    case ClipSize::Lines720: return lines(720);
    case ClipSize::Lines1080: return lines(1080);
    case ClipSize::Portrait: return {1080, 1920};
  }
  return {2, 2};
}

POINTAPI PixelsOfLoop(const ClipScene& scene) { return Inside(scene, kLoopWidth, kLoopWidth); }

POINTAPI PixelsOfRow(const ClipScene& scene, int pictures) {
  return Inside(scene, static_cast<double>(kRowWidth) / std::max(1, pictures), kRowHeight);
}

Result<Surface> PictureOf(const ClipScene& scene, int width, int height) {
  auto painter = ScenePainter::Open(scene, {});
  if (!painter) return painter.Failure();
  Surface picture(width, height);
  if (picture.Empty()) return Outcome::Failed(Tr("The picture is too large."));
  std::vector<int> positions;
  for (const SceneVideo& video : scene.Videos) positions.push_back(video.Position);
  if (!(*painter)->Paint(positions, picture))
    return Outcome::Failed(Tr("The picture could not be read from its file."));
  return picture;
}

ClipJob::ClipJob(ClipOrder order) : order_(std::move(order)) {}

ClipJob::~ClipJob() = default;

bool ClipJob::Finish(kinalyx::Outcome outcome) {
  over_ = true;
  outcome_ = std::move(outcome);
  writer_.reset();  // without its end the file goes
  painter_.reset();
  reader_.reset();
  return false;
}

void ClipJob::Cancel() {
  if (!over_) Finish(kinalyx::Outcome(Fault::Cancelled, Tr("It was cancelled.")));
}

JobProgress ClipJob::Progress() const {
  JobProgress progress;
  progress.total = static_cast<int>(plan_.Frames.size());
  progress.done = static_cast<int>(next_);
  progress.part = progress.total > 0 ? static_cast<double>(next_) / progress.total : 0;
  return progress;
}

bool ClipJob::Step() {
  if (over_) return false;
  if (!painter_) {
    kinalyx::Outcome begun = Begin();
    return begun ? true : Finish(std::move(begun));
  }
  if (next_ < plan_.Frames.size()) {
    kinalyx::Outcome written = WriteNext();
    return written ? true : Finish(std::move(written));
  }
  if (order_.Makes == ClipOrder::Kind::Row) return Finish(SaveRow());
  kinalyx::Outcome ended = WriteCard();
  if (ended) ended = writer_->Close(plan_.EndMs + (order_.Card.Empty() ? 0 : kCardMs));
  return Finish(std::move(ended));
}

kinalyx::Outcome ClipJob::Begin() {
  auto painter = ScenePainter::Open(order_.Scene, order_.Words);
  if (!painter) return painter.Failure();
  plan_ = PlanClip(order_.Scene, (*painter)->Times(), order_.Stretch);
  if (plan_.Frames.empty()) return kinalyx::Outcome::Failed(Tr("There is no picture to show."));
  // Its colours are chosen when all of its pictures are known, and until then they wait in memory.
  if (order_.Makes == ClipOrder::Kind::Gif && plan_.EndMs > kLongestLoopMs)
    return kinalyx::Outcome::Failed(
        Tr("A loop lasts half a minute at the most. Choose a shorter stretch, or an MP4 video."));
  picture_ = Surface(order_.Width, order_.Height);
  if (picture_.Empty()) return kinalyx::Outcome::Failed(Tr("The pictures would be too large."));
  painter_ = std::move(*painter);
  if (order_.Makes == ClipOrder::Kind::Row) {
    // As many as are wanted, evenly.
    const auto count = static_cast<std::size_t>(std::max(1, order_.RowPictures));
    std::vector<ClipFrame> chosen;
    for (std::size_t i = 0; i < count && i < plan_.Frames.size(); ++i) {
      const std::size_t steps = std::max<std::size_t>(1, std::min(count, plan_.Frames.size()) - 1);
      chosen.push_back(plan_.Frames[i * (plan_.Frames.size() - 1) / steps]);
    }
    plan_.Frames = std::move(chosen);
    row_ = Surface(order_.Width * static_cast<int>(plan_.Frames.size()), order_.Height);
    return row_.Empty() ? kinalyx::Outcome::Failed(Tr("The pictures would be too large.")) : kinalyx::Outcome();
  }
  ClipFormat format;
  format.kind = order_.Makes == ClipOrder::Kind::Gif ? ClipFormat::Kind::Gif : ClipFormat::Kind::Mp4;
  format.width = order_.Width;
  format.height = order_.Height;
  format.profile = order_.Profile;
  if (format.kind == ClipFormat::Kind::Mp4 && order_.Voice.empty() && order_.Sound && !plan_.Sounds.empty())
    reader_ = SoundReader::Open(order_.Scene.LeadVideo().Path);
  format.sound = format.kind == ClipFormat::Kind::Mp4 && (!order_.Voice.empty() || reader_);
  auto writer = ClipWriter::Create(order_.Path, format);
  if (!writer) return writer.Failure();
  writer_ = std::move(*writer);
  return {};
}

kinalyx::Outcome ClipJob::WriteNext() {
  const ClipFrame& frame = plan_.Frames[next_];
  // A damaged picture leaves the one before standing.
  if (!painter_->Paint(frame.Positions, picture_) && ++unread_ > kMostUnread)
    return kinalyx::Outcome::Failed(Tr("The pictures cannot be read: the video has gone, or it is damaged."));
  if (order_.Makes == ClipOrder::Kind::Row) {
    CopyPart(picture_, 0, 0, picture_.Width(), picture_.Height(), row_, static_cast<int>(next_) * picture_.Width(), 0);
    ++next_;
    return {};
  }
  const double end = next_ + 1 < plan_.Frames.size() ? plan_.Frames[next_ + 1].Ms : plan_.EndMs;
  if (kinalyx::Outcome heard = WriteSoundUntil(end); !heard) return heard;
  ++next_;
  return Show(frame.Ms, end);
}

kinalyx::Outcome ClipJob::Show(double ms, double end) {
  do {
    if (kinalyx::Outcome written = writer_->Write(RowsOf(picture_), ms); !written) return written;
    ms += kRepeatMs;
  } while (order_.Makes == ClipOrder::Kind::Mp4 && ms < end - kRepeatMs / 2);
  return {};
}

/// What is heard up to a time of the clip: the voice, or the stretches of the lead's sound with silence between.
kinalyx::Outcome ClipJob::WriteSoundUntil(double ms) {
  if (!order_.Voice.empty()) {
    const auto until = static_cast<std::size_t>(SamplesOf(ms));
    const auto from = static_cast<std::size_t>(heard_);
    if (until <= from) return {};
    std::vector<std::int16_t> block((until - from) * kChannels, 0);
    const std::size_t there = std::min(order_.Voice.size() / kChannels, until);
    if (there > from)
      std::copy_n(order_.Voice.begin() + static_cast<std::ptrdiff_t>(from * kChannels), (there - from) * kChannels,
                  block.begin());
    heard_ = static_cast<std::int64_t>(until);
    return writer_->WriteSound(block);
  }
  if (!reader_) return {};
  while (heard_ < SamplesOf(ms)) {
    // Behind a stretch there is silence up to the next one, or to the end.
    const bool inside =
        sound_ > 0 && heard_ < SamplesOf(plan_.Sounds[sound_ - 1].Ms + plan_.Sounds[sound_ - 1].LengthMs);
    std::int64_t until = SamplesOf(ms);
    if (inside) {
      until = std::min(until, SamplesOf(plan_.Sounds[sound_ - 1].Ms + plan_.Sounds[sound_ - 1].LengthMs));
    } else if (sound_ < plan_.Sounds.size()) {
      if (heard_ >= SamplesOf(plan_.Sounds[sound_].Ms)) {
        reader_->Begin(plan_.Sounds[sound_].FromMs);
        read_.clear();
        ++sound_;
        continue;
      }
      until = std::min(until, SamplesOf(plan_.Sounds[sound_].Ms));
    }
    const auto wanted = static_cast<std::size_t>(until - heard_) * kChannels;
    if (inside) {
      while (read_.size() < wanted && reader_->Read(read_)) {
      }
    } else {
      read_.clear();
    }
    std::vector<std::int16_t> block(read_.begin(),
                                    read_.begin() + static_cast<std::ptrdiff_t>(std::min(wanted, read_.size())));
    read_.erase(read_.begin(), read_.begin() + static_cast<std::ptrdiff_t>(block.size()));
    block.resize(wanted, 0);
    heard_ = until;
    if (kinalyx::Outcome written = writer_->WriteSound(block); !written) return written;
  }
  return {};
}

kinalyx::Outcome ClipJob::WriteCard() {
  if (order_.Card.Empty()) return {};
  PaintCard(order_.Card.Lines, order_.Card.LogoPath, picture_);
  if (kinalyx::Outcome heard = WriteSoundUntil(plan_.EndMs + kCardMs); !heard) return heard;
  return Show(plan_.EndMs, plan_.EndMs + kCardMs);
}

kinalyx::Outcome ClipJob::SaveRow() { return ExportPicture(row_, order_.Path); }

}  // namespace kinalyx
