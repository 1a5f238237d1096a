#include "capture/RecordingSaver.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

#include "capture/CaptureData.h"
#include "capture/VideoNaming.h"
#include "library/VideoTransfer.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

struct NumberedName {
  int number = 0;
  std::string_view rest;
};

/// "(007) swing.avi" in its two pieces.
NumberedName PartsOf(std::string_view name) {
  NumberedName parts{0, name};
  const std::size_t end = name.find(") ");
  if (!name.starts_with('(') || end == std::string_view::npos) return parts;
  int number = 0;
  const char* digits = name.data() + 1;
  if (std::from_chars(digits, name.data() + end, number).ptr == name.data() + end)
    parts = {number, name.substr(end + 2)};
  return parts;
}

bool IsTaken(const std::string& path) { return HasVideoNamed(FolderOf(path), LastName(path)); }

}  // namespace

RecordingSaver::RecordingSaver(SaveRequest request, IDisk& disk)
    : request_(std::move(request)), disk_(disk), sources_(request_.recorded) {}

RecordingSaver::~RecordingSaver() {
  trim_.reset();
  move_.reset();
  for (std::size_t i = 0; i < Cameras(); ++i) {
    if (sources_[i] == request_.recorded[i]) continue;
    for (const Companion& companion : CompanionsOf(sources_[i])) (void)RemoveTree(companion.path, disk_);
    (void)RemoveTree(sources_[i], disk_);
  }
}

bool RecordingSaver::Step() {
  if (!saved_.Done() || done_) return false;
  while (!trim_ && cut_ < Cameras() && !Cuts(cut_)) ++cut_;
  if (cut_ < Cameras()) return CutOn();
  return move_ ? MoveOn() : BeginMove();
}

bool RecordingSaver::CutOn() {
  if (!trim_) {
    const std::string& recorded = request_.recorded[cut_];
    const auto info = ReadVideoInfo(recorded);
    if (!info) return Fail(Tr("{} cannot be opened.", LastName(recorded)));
    TrimRequest cut{recorded, PartNameBeside(recorded), request_.firstFrame, request_.lastFrame, TrimRate(info.get())};
    // The second camera may have a picture less.
    cut.lastFrame = std::min(cut.lastFrame, info->frameCount - 1);
    if (request_.recompress[cut_]) cut.mode = TrimRequest::Mode::Recompress;
    sources_[cut_] = cut.destination;
    trim_.emplace(request_.trimProgram, std::move(cut));
  }
  if (trim_->Step()) return true;
  if (!trim_->Saved()) return Fail(trim_->Error());
  trim_.reset();
  ++cut_;
  return true;
}

/// All that belongs together goes in one step; what cannot go leaves all of it where it was.
bool RecordingSaver::BeginMove() {
  CopyUnit unit;
  while (std::any_of(request_.videos.begin(), request_.videos.begin() + Cameras(), IsTaken)) TakeNextNumber();
  for (std::size_t i = 0; i < Cameras(); ++i) {
    const std::string folder = FolderOf(request_.videos[i]);
    const std::string name = LastName(request_.videos[i]);
    // A disk that the recording has filled has no room for a sidecar: then it is written where the video goes.
    described_[i] = request_.dv || KeepCaptureData(sources_[i], request_.tallies[i], request_.flags);
    if (!SetAsideOrphans(folder, name, disk_)) return Fail(Tr("Notes of another video of this name are in the way."));
    std::ranges::move(VideoUnit(sources_[i], folder, name), std::back_inserter(unit));
  }
  move_.emplace(CopyJob::Kind::Move, std::vector<CopyUnit>{std::move(unit)}, disk_);
  return true;
}

void RecordingSaver::TakeNextNumber() {
  const int next = PartsOf(LastName(request_.videos[0])).number + 1;
  for (std::size_t i = 0; i < Cameras(); ++i) {
    const std::string name = LastName(request_.videos[i]);
    request_.videos[i] = JoinPath(FolderOf(request_.videos[i]), NumberPrefix(next) + std::string(PartsOf(name).rest));
  }
}

bool RecordingSaver::MoveOn() {
  switch (move_->Step()) {
    case CopyJob::State::Running: return true;
    case CopyJob::State::Done: Finish(); return false;
    case CopyJob::State::Cancelled: saved_.cancelled = true; return false;
    case CopyJob::State::Failed: break;
  }
  if (!move_->NameTaken()) return Fail(move_->Error());
  // Another window was quicker.
  move_.reset();
  return true;
}

void RecordingSaver::Finish() {
  done_ = true;
  saved_.videos = request_.videos;
  for (std::size_t i = 0; i < Cameras(); ++i) {
    if (described_[i]) continue;
    const Outcome kept = KeepCaptureData(saved_.videos[i], request_.tallies[i], request_.flags);
    if (!kept) saved_.note = Tr("How its fields are shown could not be noted: {}", kept.Why());
  }
}

bool RecordingSaver::Fail(std::string why) {
  const char* what = Cameras() == 1 ? TrLater("The video could not be saved: ")
                                    : TrLater("Neither of the two videos could be saved: ");
  saved_.why = Tr(what) + std::move(why);
  return false;
}

void RecordingSaver::Cancel() {
  if (!saved_.Done() || done_) return;
  if (trim_) trim_->Cancel();
  if (move_) move_->Cancel();
  saved_.cancelled = true;
}

JobProgress RecordingSaver::Progress() const {
  const std::size_t cuts = Cameras();
  double part = static_cast<double>(cut_);
  if (trim_) part += trim_->Progress().part;
  if (move_ && move_->Progress().bytesTotal > 0)
    part += static_cast<double>(move_->Progress().bytesDone) / static_cast<double>(move_->Progress().bytesTotal);
  if (done_) part = static_cast<double>(cuts) + 1;
  return {done_ ? 1 : 0, 1, part / static_cast<double>(cuts + 1), LastName(request_.videos[0])};
}

}  // namespace kinalyx
