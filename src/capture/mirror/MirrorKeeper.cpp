#include "capture/mirror/MirrorKeeper.h"

#include <fmt/format.h>

#include <memory>
#include <utility>

#include "capture/CaptureData.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

constexpr double kWide = 1.5;  // width by height

}  // namespace

class MirrorKeeper::SaveEvents final : public IJobEvents {
 public:
  explicit SaveEvents(MirrorKeeper& keeper) : keeper_(keeper) {}
  void Progress(const JobProgress&) override {}
  void Over(IJob* job) override {
    const auto* saver = dynamic_cast<RecordingSaver*>(job);
    SavedRecording none;
    none.why = "The disk does not answer.";
    keeper_.Saved(saver ? saver->Saved() : none);
  }

 private:
  MirrorKeeper& keeper_;
};

bool MirrorKeeper::RefuseUnlessNamed(bool second) {
  parts_.naming.GetVideoName();
  const std::string& path = second ? parts_.naming.CapturedVideoPath2() : parts_.naming.CapturedVideoPath();
  if (!path.empty()) return true;
  parts_.host.Message(MessageKind::Information, "", "You must name the video before saving!");
  parts_.naming.ChangeName();
  return false;
}

bool MirrorKeeper::Keep(IBlockRecordingFilter& recorder, int camera, bool second, std::vector<PackedPicture> pictures) {
  if (!RefuseUnlessNamed(second)) return false;
  const RecordingFormat& format = pictures.front().format;
  SaveRequest request;
  request.videos[0] = second ? parts_.naming.CapturedVideoPath2() : parts_.naming.CapturedVideoPath();
  RecordingFacts facts;
  facts.wide = format.width > kWide * format.height;
  facts.fields = format.fields != RecordingFormat::Fields::None;
  request.flags = CaptureFlags(parts_.settings, false, facts);
  awaited_[static_cast<std::size_t>(camera)].push_back(std::move(request));
  recorder.WritePictures(std::move(pictures));
  return true;
}

void MirrorKeeper::TakeWritten(IBlockRecordingFilter& recorder, int camera) {
  auto& awaited = awaited_[static_cast<std::size_t>(camera)];
  const std::shared_ptr<IBlockWriter> writer = recorder.Blocks();
  if (!writer) return;
  for (WrittenBlock& block : writer->TakeWritten()) {
    if (awaited.empty()) continue;
    SaveRequest request = std::move(awaited.front());
    awaited.pop_front();
    request.recorded[0] = std::move(block.path);
    request.tallies[0] = block.tally;
    if (!FileExists(request.recorded[0])) {
      parts_.events.KeepTold("Not kept. " + block.tally.fault, false);
      continue;
    }
    waiting_.push_back(std::move(request));
  }
  SaveNext();
}

void MirrorKeeper::GiveUp(int camera) {
  auto& awaited = awaited_[static_cast<std::size_t>(camera)];
  if (awaited.empty()) return;
  awaited.clear();
  parts_.events.KeepTold("Not kept. The disk does not answer.", false);
}

bool MirrorKeeper::Busy() const { return saving_ || !waiting_.empty() || !awaited_[0].empty() || !awaited_[1].empty(); }

void MirrorKeeper::SaveNext() {
  if (saving_ || waiting_.empty() || parts_.jobs.Busy()) return;
  SaveRequest request = std::move(waiting_.front());
  waiting_.pop_front();
  saving_ = true;
  parts_.jobs.Start(std::make_unique<RecordingSaver>(std::move(request)), std::make_unique<SaveEvents>(*this));
}

void MirrorKeeper::Saved(const SavedRecording& saved) {
  saving_ = false;
  if (saved.Done()) {
    parts_.naming.NameUsed();
    parts_.events.KeepTold(fmt::format("Kept: {}", VideoName(saved.videos[0])), true);
    if (!saved.note.empty()) parts_.events.KeepTold(saved.note, false);
  } else if (!saved.cancelled) {
    parts_.events.KeepTold(saved.why, false);
  }
  SaveNext();
}

}  // namespace kinalyx
