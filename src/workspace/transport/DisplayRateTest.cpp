#include "workspace/transport/DisplayRateTest.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {

void DisplayRateTest::StartRateTest() {
  const int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) return;
  Stop();
  AVIControl& player = stage_.MP(slot);
  player.StopPlay();
  slot_ = slot;
  DisplayRateCounter_ = 0;
  player.Play(0, player.VideoLength() - 1);
}

void DisplayRateTest::Stop() {
  if (const int slot = std::exchange(slot_, 0)) stage_.MP(slot).StopPlay();
}

void DisplayRateTest::Signal(int slot) {
  if (slot == slot_) DisplayRateCounter_ += 2;
}

void DisplayRateTest::Notify(int slot) {
  if (slot != slot_) return;
  slot_ = 0;
  const AVIControl& player = stage_.MP(slot);
  const int length = player.VideoLength();
  if (player.Position() < length - 1) return;  // a click stopped it: the count says nothing
  // The percentage takes two figures after the point and says little by itself: the plain count follows it.
  // Told from the event loop: a message box must not hold up the player that is ending its play.
  tell_ = HostTimer(host_, 0, false, [this, length, counter = DisplayRateCounter_] {
    host_.Message(
        MessageKind::Information, "",
        Tr("{}\n\n{} of {} pictures were shown.", Result(counter, length - 1), std::min(counter / 2, length), length));
  });
}

std::string DisplayRateTest::Result(int counter, int lastPosition) {
  const double ratio = lastPosition > 0 ? static_cast<double>(counter) / lastPosition : 0;
  const std::string text = fmt::format("{:.7f}", ratio);
  return Tr("Video Display Rate is {}%", text.substr(text.find('.') + 1, 2));
}

}  // namespace kinalyx
