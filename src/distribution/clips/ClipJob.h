#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "distribution/clips/ClipPlan.h"
#include "distribution/clips/ClipScene.h"
#include "distribution/clips/ScenePainter.h"
#include "library/JobRunner.h"
#include "platform/media/ClipWriter.h"
#include "platform/media/SoundReader.h"

namespace kinalyx {

/// Milliseconds that a loop may last.
inline constexpr double kLongestLoopMs = 30'000;

/// The card at the end of a clip; without any words and without a logo there is none.
struct ClosingCard {
  std::vector<std::string> Lines;
  std::string LogoPath;  ///< may be empty; one that cannot be read is left out

  bool Empty() const { return Lines.empty() && LogoPath.empty(); }
};

/// What is to be made.
struct ClipOrder {
  enum class Kind {
    Mp4,
    Gif,
    Row,  ///< pictures of the stretch, side by side in one picture file
  };

  ClipScene Scene;
  SceneWords Words;
  ClipStretch Stretch;
  Kind Makes = Kind::Mp4;
  ClipFormat::Profile Profile = ClipFormat::Profile::High;
  std::string Path;  ///< an existing file gives way to a finished one
  int Width = 0;     ///< pixels; of each picture of a row
  int Height = 0;
  int RowPictures = 5;
  bool Sound = false;  ///< the lead's own, where it goes at full speed
  std::vector<std::int16_t>
      Voice;  ///< spoken over the clip: 48000 a second of each of two channels; silences the other
  ClosingCard Card;
};

/// Sizes of a clip.
enum class ClipSize { AsSeen, Lines720, Lines1080, Portrait };

/// The pixels of a clip of a scene: even sides, in the scene's proportions but for the upright one of 1080 x 1920.
POINTAPI PixelsOf(const ClipScene& scene, ClipSize size);
/// Pixels of a loop, which is a small thing.
POINTAPI PixelsOfLoop(const ClipScene& scene);
/// Pixels of one picture of a row.
POINTAPI PixelsOfRow(const ClipScene& scene, int pictures);

/// Writes a clip, picture by picture. The file stands under its name when it is whole, or not at all.
class ClipJob final : public IJob {
 public:
  explicit ClipJob(ClipOrder order);
  ~ClipJob() override;

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;

  /// How it went, once it is over; cancelled counts as a fault of its own kind.
  const kinalyx::Outcome& Outcome() const { return outcome_; }
  const ClipOrder& Order() const { return order_; }

 private:
  kinalyx::Outcome Begin();
  kinalyx::Outcome WriteNext();
  kinalyx::Outcome Show(double ms, double end);
  kinalyx::Outcome WriteSoundUntil(double ms);
  kinalyx::Outcome WriteCard();
  kinalyx::Outcome SaveRow();
  bool Finish(kinalyx::Outcome outcome);

  ClipOrder order_;
  std::unique_ptr<ScenePainter> painter_;
  ClipPlan plan_;
  std::unique_ptr<ClipWriter> writer_;
  std::unique_ptr<SoundReader> reader_;
  std::size_t sound_ = 0;           ///< of the plan, the next to be heard
  std::int64_t heard_ = 0;          ///< samples of each channel that have been written
  std::vector<std::int16_t> read_;  ///< of the reader, not written yet
  std::size_t next_ = 0;            ///< frame of the plan
  int unread_ = 0;                  ///< pictures in which something was missing
  Surface picture_;
  Surface row_;
  bool over_ = false;
  kinalyx::Outcome outcome_;
};

/// The picture of a scene as it stands now, with its drawings. Fails when a video has gone.
Result<Surface> PictureOf(const ClipScene& scene, int width, int height);

}  // namespace kinalyx
