// The menu of the short-game school.

#include <utility>

#include "platform/files/Tr.h"
#include "workspace/commands/MenuBar.h"

namespace kinalyx {
namespace {

constexpr const char* kBrisko = "Brisko";
constexpr int kNoButton = 0;

struct Sheet {
  ShortGame sheet;
  const char* print;
  const char* printCaption;
  const char* save;
  const char* saveCaption;
};

constexpr Sheet kSheets[] = {
    {ShortGame::Putting, "BriskoPuttPrint", TrLater("Print Putting"), "BriskoSavePutt", TrLater("Save Putting Bmps")},
    {ShortGame::DistanceWedge, "BriskoDWedgePrint", TrLater("Print Distance Wedge"), "BriskoSaveDWege",
     TrLater("Save Distance Wedge Bmps")},
    {ShortGame::BunkerShot, "BriskoBunkerPrint", TrLater("Print Bunker Shot"), "BriskoSaveBunker",
     TrLater("Save Bunker Shot Bmps")},
    {ShortGame::ChipShot, "BriskoChipPrint", TrLater("Print Chip Shot"), "BriskoSaveChip",
     TrLater("Save Chip Shot Bmps")},
};

}  // namespace

void MenuBar::AddBrisko() {
  const auto add = [this](const char* item, const std::string& caption, std::function<void()> run) -> Command& {
    Add({item, kBrisko, caption, "", "", "", kNoButton, std::move(run)});
    return commands_.back();
  };
  // What a sheet needs is said when it is asked for.
  for (const Sheet& each : kSheets)
    add(each.print, Tr(each.printCaption), [this, sheet = each.sheet] { navigation_.Handouts().PrintSheet(sheet); });
  AddSeparator(kBrisko);
  for (const Sheet& each : kSheets)
    add(each.save, Tr(each.saveCaption),
        [this, sheet = each.sheet] { navigation_.Handouts().SaveSheetPictures(sheet); });
  AddSeparator(kBrisko);
  add("BriskoCreateModel", Tr("Create Model"), [this] { navigation_.Handouts().SaveModelPicture(); }).obstacle =
      [this] { return stage_.AnyVideo() ? std::string() : Tr("Open a video first"); };
  add("BriskoLeftySelect", Tr("Lefty Print"), [this] { navigation_.Handouts().ToggleLefty(); }).checked = [this] {
    return navigation_.Handouts().Lefty();
  };
  Add({"MenuExit", "", Tr("&Exit Analysis"), "", "", "", kNoButton, [this] {
         if (navigation_.Handouts().MayLeave() && PreparetoExit()) navigation_.ExitAnalysis();
       }});
}

}  // namespace kinalyx
