#pragma once

#include <array>

#include "workspace/compare/Transparency.h"
#include "workspace/forms/SeekBar.h"
#include "workspace/forms/StageParts.h"
#include "workspace/forms/StagePanel.h"

class QHBoxLayout;
class QPushButton;
class QSlider;

namespace kinalyx {

/// `TransFrame`: the controls of transparency mode. Presets and the slider of the mix above; below, for each
/// of the two videos, its own buttons and bar.
class TransFrame : public StagePanel {
  Q_OBJECT

 public:
  TransFrame(Transparency& transparency, Stage& theStage, QWidget* parent);

  void SetTransScroll(int value, bool enabled);
  void SelectOption(ShowOption option);
  void SetVideoScroll(int window, int lowest, int highest, int value);
  void SetVideoButtons(int window, bool playing, bool looping, bool slow);
  /// The window that zoom and pan act on.
  void SetCurrent(int window);

 private:
  /// The controls of one video.
  struct Video {
    QToolButton* select = nullptr;
    std::array<QToolButton*, 6> buttons{};
    SeekBar* scroll = nullptr;
  };

  void MakeVideo(int window, QHBoxLayout* row);
  void Dress() override;
  Video& Of(int window) { return videos_[static_cast<std::size_t>(window - 1)]; }

  Transparency& transparency_;
  Stage& theStage_;
  std::array<QPushButton*, 4> options_{};
  QSlider* mix_ = nullptr;
  std::array<Video, 2> videos_;
};

}  // namespace kinalyx
