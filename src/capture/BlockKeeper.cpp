#include "capture/BlockKeeper.h"

#include <fmt/format.h>

#include <algorithm>

#include "capture/CaptureData.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
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
    none.why = Tr("The disk does not answer.");
    (*keeper_)->Over(saver ? saver->Saved() : none);
  }

 private:
  std::shared_ptr<BlockKeeper*> keeper_;
};

BlockKeeper::~BlockKeeper() { *self_ = nullptr; }

int BlockKeeper::Begin(int cameras, bool second, const VideoNaming& naming) {
  auto own = std::make_shared<VideoNaming>(naming);
  own->SetEvents(nullptr);
  runs_[++lastRun_] = {cameras, second, std::move(own)};
  return lastRun_;
}

void BlockKeeper::Take(int run, int camera, std::vector<WrittenBlock> blocks) {
  const auto known = runs_.find(run);
  if (known == runs_.end()) return;
  for (WrittenBlock& block : blocks) {
    const auto at = static_cast<std::size_t>(camera);
    const std::pair key(run, block.shot);
    Shot& shot = shots_[key];
    shot.run = known->second;
    shot.blocks[at] = std::move(block);
    shot.come[at] = true;
    if (std::ranges::count(shot.come, true) < known->second.cameras) continue;
    Shot complete = std::move(shot);
    shots_.erase(key);
    Ready(std::move(complete));
  }
}

void BlockKeeper::End(int run) {
  for (auto at = shots_.lower_bound({run, 0}); at != shots_.end() && at->first.first == run;
       at = shots_.lower_bound({run, 0})) {
    Shot left = std::move(at->second);
    shots_.erase(at);
    Ready(std::move(left));
  }
  runs_.erase(run);
}

/// A camera that gave nothing leaves the other one alone.
void BlockKeeper::Ready(Shot shot) {
  std::array<bool, 2> there{};
  for (std::size_t i = 0; i < 2; ++i) {
    const RecordingTally& tally = shot.blocks[i].tally;
    there[i] = shot.come[i] && tally.pictures > 0;
    if (shot.run.cameras == 2 && !there[i])
      shot.fault += Tr("{}Camera {} recorded nothing.", shot.fault.empty() ? "" : " ", i + 1);
    if (!tally.fault.empty()) shot.fault += (shot.fault.empty() ? "" : " ") + tally.fault;
  }
  if (!there[0] && !there[1]) return Lose(shot, shot.fault.empty() ? Tr("The camera gave no picture.") : shot.fault);
  if (!there[0]) {
    shot.blocks[0] = std::move(shot.blocks[1]);
    shot.run.second = true;
    there = {true, false};
  }
  shot.come = there;
  waiting_.push_back(std::move(shot));
  KeepNext();
}

void BlockKeeper::KeepNext() {
  while (!keeping_ && !waiting_.empty()) {
    const Shot& shot = waiting_.front();
    VideoNaming& naming = *shot.run.naming;
    naming.GetVideoName();
    SaveRequest request;
    request.videos = {naming.CapturedVideoPath(), naming.CapturedVideoPath2()};
    if (shot.run.second) request.videos[0] = request.videos[1];
    // A student who has been moved, renamed or deleted is not made anew.
    if (request.videos[0].empty() || !dirExists(naming.Folder())) {
      const Shot lost = std::move(waiting_.front());
      waiting_.pop_front();
      Lose(lost, Tr("The folder for the video is not there any more."));
      continue;
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
    if (!keeping_) return;
  }
}

void BlockKeeper::Lose(const Shot& shot, const std::string& why) {
  parts_.files.Park(shot.blocks[0].path, shot.blocks[1].path);
  parts_.events.BlockLost(why);
}

void BlockKeeper::Over(const SavedRecording& saved) {
  keeping_ = false;
  const Shot shot = std::move(waiting_.front());
  waiting_.pop_front();
  if (!saved.Done()) {
    Lose(shot, saved.why);
  } else {
    SavedRecording told = saved;
    if (!shot.fault.empty()) told.note = Tr("{} What was recorded is kept.", shot.fault);
    parts_.events.BlockKept(told, videos_);
  }
  KeepNext();
}

}  // namespace kinalyx
