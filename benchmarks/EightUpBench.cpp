// Eight videos of 60 pictures a second side by side in the real window, for ten seconds by the real clock.

#include <QApplication>
#include <QElapsedTimer>
#include <array>
#include <filesystem>
#include <stdexcept>

#include "Bench.h"
#include "BenchStage.h"

namespace kinalyx::bench {
namespace {

constexpr int kMilliseconds = 10'000;
constexpr int kFrames = 640;  // more than are due in that time: no video reaches its end

/// Counts the pictures that reach the screen, and passes everything on.
class PictureCounter final : public IFrameInterface {
 public:
  explicit PictureCounter(IFrameInterface& next) : next_(next) {}
  void PreDrawFrame(Canvas& hDC, int ID) override { next_.PreDrawFrame(hDC, ID); }
  void Signal(int Frame, int ID) override {
    auto& last = last_[static_cast<std::size_t>(ID)];
    if (Frame != last) ++shown;
    last = Frame;
    next_.Signal(Frame, ID);
  }
  void Notify(int Frame, int ID) override { next_.Notify(Frame, ID); }

  int shown = 0;

 private:
  IFrameInterface& next_;
  std::array<int, kSlots + 1> last_{};
};

Figure EightUp60() {
  const std::string made = StageVideo(kFrames, 60);
  BenchStage stage("eight-up", "8", {1920, 1080});
  AnalysisWorkspace& analysis = stage.Section();
  PictureCounter counter(analysis);
  for (int slot = 1; slot <= kSlots; ++slot) {
    const std::string path = ScratchFolder() + "/eight-up-" + std::to_string(slot) + ".avi";
    std::filesystem::copy_file(made, path, std::filesystem::copy_options::overwrite_existing);
    stage.Open(slot, path);
    analysis.Stage().MP(slot).SetFrameInterface(&counter);
  }
  QApplication::processEvents();

  counter.shown = 0;
  for (int slot = 1; slot <= kSlots; ++slot) {
    AVIControl& player = analysis.Stage().MP(slot);
    player.Play(0, player.VideoLength() - 1);
  }
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < kMilliseconds) QApplication::processEvents(QEventLoop::WaitForMoreEvents);

  int due = 0;
  for (int slot = 1; slot <= kSlots; ++slot) {
    AVIControl& player = analysis.Stage().MP(slot);
    if (!player.IsPlaying()) throw std::runtime_error("a video stopped before its time");
    due += player.Position();
    player.StopPlay();
    player.SetFrameInterface(&analysis);
  }
  stage.Form().CloseAll();
  return {due > 0 ? static_cast<double>(counter.shown) / due : 0, "share"};
}

const Register kEightUp({"eight_up_60fps", {Target::Of::AtLeast, 0.95, 1.0}, EightUp60});

}  // namespace
}  // namespace kinalyx::bench
