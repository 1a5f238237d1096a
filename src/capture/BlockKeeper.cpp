#include "capture/BlockKeeper.h"

#include <algorithm>
#include <utility>

#include "capture/CaptureData.h"
#include "platform/files/Folders.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
/// What becomes of a save; the keeper may have gone.
class BlockKeeper::Events final : public IJobEvents {
 public:
  explicit Events(std::shared_ptr<BlockKeeper*> keeper) : keeper_(std::move(keeper)) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override {
    if (!*keeper_) return;
    const auto* saver = dynamic_cast<RecordingSaver*>(job);
    SavedRecording none;
    none.why = "The disk does not answer.";
    (*keeper_)->Over(saver ? saver->Saved() : none);
  }

 private:
  std::shared_ptr<BlockKeeper*> keeper_;
};

BlockKeeper::~BlockKeeper() { *self_ = nullptr; }

void BlockKeeper::Begin(int cameras, bool second) {
  End();
  cameras_ = cameras;
  second_ = second;
}

void BlockKeeper::Take(int camera, std::vector<WrittenBlock> blocks) {
  for (WrittenBlock& block : blocks) {
    const auto at = static_cast<std::size_t>(camera);
    const int number = block.shot;
    Shot& shot = shots_[number];
    shot.second = second_;
    shot.blocks[at] = std::move(block);
    shot.come[at] = true;
    if (std::ranges::count(shot.come, true) < cameras_) continue;
    const Shot complete = std::move(shot);
    shots_.erase(number);
    Ready(complete);
  }
}

void BlockKeeper::End() {
  for (const auto& [number, shot] : std::exchange(shots_, {})) Ready(shot);
}

void BlockKeeper::Ready(const Shot& shot) {
  Shot there = shot;
  // A camera that gave nothing leaves the other one alone.
  for (std::size_t i = 0; i < 2; ++i) there.come[i] = shot.come[i] && shot.blocks[i].tally.pictures > 0;
  if (!there.come[0] && !there.come[1]) {
    const std::string& fault = shot.blocks[0].tally.fault;
    return parts_.events.BlockLost(fault.empty() ? "The camera gave no picture." : fault);
  }
  if (!there.come[0]) {
    there.blocks[0] = std::move(there.blocks[1]);
    there.come = {true, false};
    there.second = true;
  }
  waiting_.push_back(std::move(there));
  KeepNext();
}

void BlockKeeper::KeepNext() {
  if (keeping_ || waiting_.empty()) return;
  const Shot& shot = waiting_.front();
  parts_.naming.GetVideoName();
  SaveRequest request;
  request.videos = {parts_.naming.CapturedVideoPath(), parts_.naming.CapturedVideoPath2()};
  if (shot.second) request.videos[0] = request.videos[1];
  if (request.videos[0].empty()) {
    waiting_.pop_front();
    parts_.events.BlockLost("There is no folder or no name for the video.");
    return KeepNext();
  }
  videos_ = 0;
  for (std::size_t i = 0; i < 2; ++i) {
    if (!shot.come[i]) continue;
    request.recorded[i] = shot.blocks[i].path;
    request.tallies[i] = shot.blocks[i].tally;
    ++videos_;
  }
  request.dv = parts_.setup.DVMode();
  const auto info = ReadVideoInfo(request.recorded[0]);
  request.flags = CaptureFlags(parts_.settings, request.dv, info ? FactsOf(*info) : RecordingFacts());
  request.trimProgram = parts_.trimProgram;
  keeping_ = parts_.jobs.Start(std::make_unique<RecordingSaver>(std::move(request)), std::make_unique<Events>(self_));
}

void BlockKeeper::Over(const SavedRecording& saved) {
  keeping_ = false;
  const std::string fault = waiting_.front().blocks[0].tally.fault;
  waiting_.pop_front();
  if (!saved.Done()) {
    parts_.events.BlockLost(saved.why);
  } else {
    // The next of the series is called alike.
    parts_.naming.GetVideoName();
    SavedRecording told = saved;
    if (!fault.empty()) told.note = fault + " What was recorded is kept.";
    parts_.events.BlockKept(told, videos_);
  }
  KeepNext();
}

}  // namespace kinalyx
