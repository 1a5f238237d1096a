#include "printing/sheets/ShortGameSheets.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/paint/Blend.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx {
namespace {

constexpr const char* kFolder = "School Pics";
constexpr const char* kLessons = "/Lessons";
constexpr const char* kNothingOpen = TrLater("You must have a video open to continue.");
constexpr const char* kNoVideo = TrLater("You must have a video open in window 1 to continue.");

/// What is fixed of a sheet.
struct SheetKind {
  ShortGame kind;
  const char* title;
  const char* firstFile;
  const char* secondFile;  ///< empty: one day alone
  const char* firstLabel;
  const char* secondLabel;
  const char* model;  ///< empty: none
};

constexpr SheetKind kKinds[] = {
    {ShortGame::Putting, TrLater("PUTTING"), "PuttingFaceOn.bmp", "PuttingDownTheLine.bmp", TrLater("Face On"),
     TrLater("Down the Line"), ""},
    {ShortGame::DistanceWedge, TrLater("DISTANCE WEDGE"), "DistanceWedgeDay1.bmp", "DistanceWedgeDay3.bmp",
     TrLater("1st DAY"), TrLater("3rd DAY"), "wedgemodel.bmp"},
    {ShortGame::BunkerShot, TrLater("BUNKER SHOT"), "BunkerShotDay1.bmp", "BunkerShotDay3.bmp", TrLater("1st DAY"),
     TrLater("3rd DAY"), "bunkermodel.bmp"},
    {ShortGame::ChipShot, TrLater("CHIP SHOT"), "ChipShotDay1.bmp", "", TrLater("1st DAY"), "", "chipmodel.bmp"},
};

const SheetKind& KindOf(ShortGame kind) { return *std::ranges::find(kKinds, kind, &SheetKind::kind); }

Surface PartOf(const Surface& all, const StagePictures::Part& part) {
  Surface cut(part.width, part.height);
  if (cut.Empty()) return cut;
  cut.Clear(StagePictures::kPaperWhite);
  CopyPart(all, part.left, part.top, part.width, part.height, cut, 0, 0);
  return StagePictures::WithoutWhite(cut);
}

Result<Surface> ReadPicture(const std::string& path) {
  constexpr int kMost = 4096;  // pixels of a side
  return LoadPicture(path, kMost, StagePictures::kPaperWhite);
}

}  // namespace

ShortGameSheets::Rows ShortGameSheets::TakeRows() {
  const Surface all = pictures_.All();
  const std::vector<int> shown = pictures_.Shown();
  const ScreenMode* layout = FindScreenMode(stage_.ScreenLayout);
  if (stage_.Home().Away() || !layout) return {StagePictures::WithoutWhite(all), {}};
  const int middle = stage_.PanelHeight() / 2;
  const auto lower = std::ranges::count_if(
      shown, [&](int slot) { return stage_.At(slot).cell.Top + stage_.At(slot).cell.Height / 2 > middle; });
  if (layout->Rows > 1 && lower > 0 && lower < std::ssize(shown)) {
    const int half = all.Height() / 2;
    return {PartOf(all, {0, 0, all.Width(), half}), PartOf(all, {0, half, all.Width(), all.Height() - half})};
  }
  std::vector<int> first, second;
  for (const int slot : shown) {
    const std::string& path = stage_.At(slot).path;
    if (path == FirstVideo()) first.push_back(slot);
    else if (second.empty() || path == stage_.At(second.front()).path) second.push_back(slot);
  }
  if (second.empty()) return {StagePictures::WithoutWhite(all), {}};
  return {PartOf(all, pictures_.PartOf(first)), PartOf(all, pictures_.PartOf(second))};
}

/// Of window 1 or, where that has none, of the first window with one.
const std::string& ShortGameSheets::FirstVideo() const {
  int slot = 1;
  while (slot < kSlots && !stage_.HasVideo(slot)) ++slot;
  return stage_.At(slot).path;
}

std::string ShortGameSheets::SchoolPics() const {
  std::string student = FolderOf(FirstVideo());
  if (student.ends_with(kLessons)) student = FolderOf(student);
  return JoinPath(student, kFolder);
}

std::string ShortGameSheets::ModelPath(ShortGame Kind, bool LeftyPrint) const {
  return JoinPath(settings_.AppPath,
                  std::string("pictures/BriskoModel/") + (LeftyPrint ? "L" : "") + KindOf(Kind).model);
}

Outcome ShortGameSheets::SaveRow(const Surface& row, const std::string& name) {
  return SaveBmp(RowsOf(row), JoinPath(SchoolPics(), name));
}

void ShortGameSheets::BriskoSaveScreen(ShortGame Kind) {
  if (!stage_.HasVideo(1)) return host_.Message(MessageKind::Information, "", Tr(kNoVideo));
  const SheetKind& kind = KindOf(Kind);
  const Rows rows = TakeRows();
  Outcome saved;
  if (!host_.Drives().Answers(FolderOf(stage_.At(1).path))) {
    saved = Outcome::Failed(Tr("The drive of the student's folder does not answer."));
  } else {
    saved = MakeFolder(SchoolPics()) ? SaveRow(rows.first, kind.firstFile)
                                     : Outcome::Failed(Tr("The folder \"School Pics\" cannot be made."));
    if (saved && *kind.secondFile && !rows.second.Empty()) saved = SaveRow(rows.second, kind.secondFile);
  }
  if (saved) host_.Message(MessageKind::Information, "", Tr("Pictures saved Successfully!"));
  else host_.Message(MessageKind::Warning, "", Tr("The pictures could not be saved. {}", saved.Why()));
}

Result<SheetPrintout> ShortGameSheets::MakeSheet(ShortGame Kind, bool LeftyPrint) {
  if (!stage_.AnyVideo()) return Outcome{Fault::Refused, Tr(kNothingOpen)};
  const SheetKind& kind = KindOf(Kind);
  Rows taken = TakeRows();
  SheetPrintout::Rows rows;
  rows[0] = {std::move(taken.first), Tr(kind.firstLabel)};
  if (*kind.secondLabel) {
    if (taken.second.Empty()) {
      const std::string path = JoinPath(SchoolPics(), kind.secondFile);
      const auto kept = host_.Drives().Ask(SchoolPics(), [path] { return ReadPicture(path); });
      if (kept && *kept) taken.second = **kept;
    }
    rows[1] = {std::move(taken.second), Tr(kind.secondLabel)};
  }
  if (*kind.model) {
    const std::string path = ModelPath(Kind, LeftyPrint);
    auto model = ReadPicture(path);
    if (!model) return Outcome::Failed(Tr("The model picture {} cannot be loaded: {}", path, model.Why()));
    rows[2] = {std::move(*model), Tr("Model Swing")};
  }
  return SheetPrintout(Tr(kind.title), std::move(rows));
}

void ShortGameSheets::BriskoModel() {
  const Surface all = pictures_.All();
  const auto chosen =
      host_.PickNewFile({Tr("Save Bitmap"), JoinPath(settings_.AppPath, "pictures/"), "BMP (*.bmp)|*.BMP"});
  if (!chosen) return;
  const Outcome saved = host_.Drives().Answers(FolderOf(*chosen)) ? SaveBmp(RowsOf(all), *chosen)
                                                                  : Outcome::Failed(Tr("The drive does not answer."));
  if (!saved) host_.Message(MessageKind::Warning, "", Tr("The picture could not be saved. {}", saved.Why()));
}

}  // namespace kinalyx
