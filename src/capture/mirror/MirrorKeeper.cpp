#include "capture/mirror/MirrorKeeper.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "capture/CaptureData.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr double kWide = 1.5;  // width by height
constexpr int kPollMs = 100;   // between two looks for what has been written

/// What a video is called where the name is to be typed.
constexpr std::string_view kUnnamed = "Mirror";

}  // namespace

class MirrorKeeper::SaveEvents final : public IJobEvents {
 public:
  explicit SaveEvents(MirrorKeeper& keeper) : keeper_(keeper) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override {
    const auto* saver = dynamic_cast<RecordingSaver*>(job);
    SavedRecording none;
    none.why = Tr("The disk does not answer.");
    keeper_.Saved(saver ? saver->Saved() : none);
  }

 private:
  MirrorKeeper& keeper_;
};

/// Works out the name of the next video; empty where there is no folder for it.
std::string MirrorKeeper::NextPath(bool second) {
  VideoNaming& naming = parts_.naming;
  const auto path = [&] { return second ? naming.CapturedVideoPath2() : naming.CapturedVideoPath(); };
  naming.GetVideoName();
  if (path().empty() && !naming.Folder().empty() && naming.TakeChangedName(kUnnamed)) naming.GetVideoName();
  return path();
}

bool MirrorKeeper::Keep(IBlockRecordingFilter& recorder, bool second, std::vector<PackedPicture> pictures) {
  SaveRequest request;
  request.videos[0] = NextPath(second);
  if (request.videos[0].empty()) {
    parts_.events.KeepTold(Tr("Not kept. Choose on the capture page whose video it is."), false);
    return false;
  }
  const RecordingFormat& format = pictures.front().format;
  RecordingFacts facts;
  facts.wide = format.width > kWide * format.height;
  facts.fields = format.fields != RecordingFormat::Fields::None;
  request.flags = CaptureFlags(parts_.settings, false, facts);
  recorder.WritePictures(std::move(pictures));
  const std::shared_ptr<IBlockWriter> writer = recorder.Blocks();
  if (!writer) {
    parts_.events.KeepTold(Tr("Not kept. The camera has only just begun."), false);
    return false;
  }
  auto run = std::ranges::find(runs_, writer, &Run::writer);
  if (run == runs_.end()) run = runs_.insert(runs_.end(), {writer, {}});
  run->awaited.push_back(std::move(request));
  Poll();
  return true;
}

void MirrorKeeper::TakeWritten() {
  for (auto run = runs_.begin(); run != runs_.end();) {
    Take(*run);
    run = run->awaited.empty() ? runs_.erase(run) : std::next(run);
  }
  Poll();
  SaveNext();
}

void MirrorKeeper::Poll() {
  if (runs_.empty()) poll_.Stop();
  else if (!poll_.Running()) poll_ = HostTimer(parts_.host, kPollMs, true, [this] { TakeWritten(); });
}

void MirrorKeeper::Take(Run& run) {
  // Asked before the blocks are taken: one that is closed between the two is not given up.
  const bool writing = run.writer->Writing();
  for (WrittenBlock& block : run.writer->TakeWritten()) {
    if (run.awaited.empty()) return;
    SaveRequest request = std::move(run.awaited.front());
    run.awaited.pop_front();
    request.recorded[0] = std::move(block.path);
    request.tallies[0] = block.tally;
    if (block.tally.pictures > 0 && FileExists(request.recorded[0])) waiting_.push_back(std::move(request));
    else Lose(request, block.tally.fault.empty() ? Tr("Nothing of it could be written.") : block.tally.fault);
  }
  if (writing || run.awaited.empty()) return;
  run.awaited.clear();
  parts_.events.KeepTold(Tr("Not kept. The disk does not answer."), false);
}

bool MirrorKeeper::Busy() const { return saving_ || !waiting_.empty() || !runs_.empty(); }

void MirrorKeeper::Lose(const SaveRequest& request, const std::string& why) {
  parts_.files.Park(request.recorded[0], {});
  parts_.events.KeepTold(Tr("Not kept. {}", why), false);
}

void MirrorKeeper::SaveNext() {
  while (!saving_ && !waiting_.empty() && !parts_.jobs.Busy()) {
    // A student who has been moved, renamed or deleted is not made anew.
    if (!dirExists(FolderOf(waiting_.front().videos[0]))) {
      Lose(waiting_.front(), Tr("The folder for the video is not there any more."));
      waiting_.pop_front();
      continue;
    }
    saving_ =
        parts_.jobs.Start(std::make_unique<RecordingSaver>(waiting_.front()), std::make_unique<SaveEvents>(*this));
    if (!saving_) return;
  }
}

void MirrorKeeper::Saved(const SavedRecording& saved) {
  saving_ = false;
  const SaveRequest request = std::move(waiting_.front());
  waiting_.pop_front();
  if (saved.Done()) {
    parts_.naming.NameUsed();
    const std::string& fault = request.tallies[0].fault;
    const std::string note = fault.empty() ? saved.note : Tr("{} What was written is kept.", fault);
    parts_.events.KeepTold(Tr("Kept: {}", VideoName(saved.videos[0])), true);
    if (!note.empty()) parts_.events.KeepTold(note, false);
  } else {
    Lose(request, saved.why);
  }
  SaveNext();
}

}  // namespace kinalyx
