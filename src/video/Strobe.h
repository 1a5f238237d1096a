#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "video/AVIControl.h"
#include "video/StrobeLayers.h"

namespace kinalyx {

/// A strobe from its reference pictures to its last layer. One object serves all strobes of its control.
class AVIControl::Strobe final : public IPlayRun {
 public:
  enum class Kind {
    Scene,      ///< against the scene of the present frame, with a pause between the layers
    Background  ///< against what four frames of the video have in common, as fast as it goes
  };

  explicit Strobe(AVIControl& control) : control_(control) {}

  bool Running() const { return running_; }
  /// Frames as Strobeframes has them. Ends at once where the pictures do not allow it.
  void Begin(Kind kind, int start, int end, int step);
  void End();
  std::int64_t Tick(std::int64_t now) override;

 private:
  bool Prepare();
  std::int64_t Wait() const;
  RowShape Shape() const;
  bool AddLayer();

  AVIControl& control_;
  bool running_ = false;
  Kind kind_ = Kind::Scene;
  int frame_ = 0;
  int end_ = 0;
  int step_ = 1;
  std::optional<StrobeLayers> layers_;
  std::vector<std::vector<std::uint8_t>> references_;
  std::vector<std::uint8_t> picture_;
};

}  // namespace kinalyx
