#include "workspace/keeping/Keeping.h"

#include <fmt/format.h>

#include <tuple>
#include <utility>

#include "library/SidecarMerge.h"
#include "library/Study.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

constexpr int kRest = 1000;    // milliseconds without a change before anything is written
constexpr int kAgain = 10000;  // after the disk has refused

}  // namespace

Keeping::Keeping(IHost& host, const Settings& settings, Stage& stage, DrawingTools& tools)
    : host_(host), settings_(settings), stage_(stage), drawings_(stage, tools) {}

Keeping::Stamps Keeping::Stamps::Of(const std::string& videoPath) {
  return {StampOf(SidecarPath(videoPath)), StampOf(StudyPath(videoPath))};
}

SlotData Keeping::ReadBoth(const std::string& videoPath, const VideoInfo& info) const {
  SlotData data = ReadVideoData(SidecarPath(videoPath), info, settings_.NewColors);
  ReadStudy(StudyPath(videoPath), data);
  return data;
}

void Keeping::Read(int slot, const std::string& path, const VideoInfo& info) {
  for (int other = 1; other <= kSlots; ++other)
    if (stage_.At(other).path == path) std::ignore = SaveData(other);  // what it refuses is told when that closes
  Kept& kept = At(slot);
  kept = {};
  kept.base = ReadBoth(path, info);
  kept.stamps = Stamps::Of(path);
  stage_.At(slot).data = kept.base;
  stage_.At(slot).data.Shapes = {};
}

void Keeping::VideoClosed(int slot) {
  drawings_.VideoClosed(slot);
  At(slot) = {};
}

// ---------------------------------------------------------------- changes

void Keeping::DrawingsChanged() {
  rest_ = HostTimer(host_, kRest, false, [this] { SaveAll(); });
}

void Keeping::FieldsChanged(int slot) {
  At(slot).changed = true;
  DrawingsChanged();
}

void Keeping::SetNotes(int slot, const std::string& notes) {
  std::string& kept = stage_.At(slot).data.Notes;
  if (!stage_.HasVideo(slot) || kept == notes) return;
  kept = notes;
  FieldsChanged(slot);
}

/// Nobody is disturbed at work; closing the video asks.
bool Keeping::SaveAll() {
  bool all = true;
  for (int slot = 1; slot <= kSlots; ++slot) all = SaveAtRest(slot) && all;
  if (!all) rest_ = HostTimer(host_, kAgain, false, [this] { SaveAll(); });
  return all;
}

bool Keeping::SaveAtRest(int slot) {
  if (!stage_.HasVideo(slot)) return true;
  const auto answers = [&] { return host_.Drives().AnswersAtOnce(settings_.LibraryPath, stage_.At(slot).path); };
  if (!HasUnsaved(slot)) {
    ShowRefused(slot, false);
    return true;
  }
  const Result<std::string> saved = answers() ? SaveData(slot) : Outcome::Failed("");
  ShowRefused(slot, !saved);
  if (saved && !saved->empty()) host_.Message(MessageKind::Warning, "", *saved);
  return static_cast<bool>(saved);
}

void Keeping::ShowRefused(int slot, bool refused) {
  if (std::exchange(stage_.At(slot).refused, refused) != refused) stage_.ShowTitle(slot);
}

// ---------------------------------------------------------------- saving

Result<std::string> Keeping::SaveData(int slot) {
  const Slot& at = stage_.At(slot);
  Kept& kept = At(slot);
  const bool changed = HasUnsaved(slot);
  // With nothing of its own to say a slot leaves alone what another one wrote for the same video, and what
  // could not be read.
  const std::string nothingLeftOut;
  if (!changed && (kept.savedElsewhere || at.data.Unread || at.data.Study.Unread)) return nothingLeftOut;
  if (!host_.Drives().Answers(settings_.LibraryPath, at.path)) return Outcome::Failed(Tr("the drive is not answering"));
  if (Stamps::Of(at.path) != kept.stamps) kept.savedElsewhere = true;
  if (!changed && kept.savedElsewhere) return nothingLeftOut;
  // A video that somebody else has taken away needs no sidecar; new work on it is kept all the same.
  if (!changed && !FileExists(at.path)) return nothingLeftOut;
  SlotData mine = at.data;
  drawings_.Collect(slot, kept.base, mine);
  return Write(slot, std::move(mine));
}

/// Writes what a slot has to say, and takes what is in the file then for its base.
Result<std::string> Keeping::Write(int slot, SlotData mine) {
  Slot& at = stage_.At(slot);
  Kept& kept = At(slot);
  const std::string sidecar = SidecarPath(at.path);
  const std::string study = StudyPath(at.path);
  // Both have something to say: whoever saves brings it together. What was drawn there does not stand in this
  // window, which therefore has a base of its own.
  MergedData merged{mine, mine.Shapes};
  const bool anything = FileSize(sidecar).value_or(0) > 0 || FileExists(study);
  if (kept.savedElsewhere && at.MP->Info() && anything) {
    const SlotData theirs = ReadBoth(at.path, *at.MP->Info());
    if (theirs.Unread) merged.whole.Unread = true;  // and what is missing in it was not deleted: it is kept beside
    else merged = MergeVideoData(mine, theirs, kept.base);
  }
  SlotData& whole = merged.whole;
  const std::string_view fitting = FittingNotes(whole.Notes);
  if (fitting.size() < whole.Notes.size()) whole.Unread = true;  // what is about to be cut stands in the file before
  // First the study: it knows drawings by their records, so that those which stand already keep what is theirs
  // should the sidecar be refused.
  const Outcome studied = WriteStudy(study, whole);
  const Result<std::string> written = studied ? WriteVideoData(sidecar, whole) : studied;
  if (!written) {
    host_.Note(MessageKind::Warning, fmt::format("a sidecar could not be saved: {}", written.Why()));
    return written;
  }

  whole.Study.Unread = false;
  const bool somethingCame = at.data.Notes != fitting || at.data.Study != whole.Study;
  at.data.Notes = fitting;
  at.data.Unread = false;
  at.data.Study = whole.Study;
  kept.stamps = Stamps::Of(at.path);
  kept.changed = false;
  kept.base = at.data;
  kept.base.Shapes = std::move(merged.own);
  kept.base.PictureWidth = whole.PictureWidth;
  kept.base.PictureHeight = whole.PictureHeight;
  drawings_.Saved(slot, kept.base);
  for (int other = 1; other <= kSlots; ++other)
    if (other != slot && stage_.At(other).path == at.path) At(other).savedElsewhere = true;
  if (somethingCame) stage_.News().Note(kVideoChanged);
  return written;
}

bool Keeping::SaveOrAsk(int slot) {
  const std::string path = stage_.At(slot).path;
  const std::string name = NameOfVideo(path);
  Result<std::string> saved = SaveData(slot);
  for (; !saved; saved = SaveData(slot)) {
    // A library that cannot be written to is no reason to ask as long as nothing gets lost.
    if (!HasUnsaved(slot)) return true;
    if (host_.Question(Tr("Drawings not saved"),
                       Tr("The drawings and notes of \"{}\" could not be saved: {}. Would you like to try again?", name,
                          saved.Why())))
      continue;
    return host_.Question(Tr("Drawings not saved"),
                          Tr("Close \"{}\" all the same? Its new drawings and notes will be lost. Answer No to "
                             "keep it open.",
                             name));
  }
  const auto sidecarAlone = [path] { return !FileExists(path) && FileExists(SidecarPath(path)); };
  if (saved->empty() && host_.Drives().Ask(settings_.LibraryPath, sidecarAlone).value_or(false))
    *saved = Tr("Somebody else has renamed, moved or deleted the video \"{}\". Its drawings and notes are kept in {}.",
                name, SidecarPath(path));
  if (!saved->empty()) host_.Message(MessageKind::Warning, "", *saved);
  return true;
}

}  // namespace kinalyx
