// The menu of the short-game school.

#include <utility>

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
    {ShortGame::Putting, "BriskoPuttPrint", "Print Putting", "BriskoSavePutt", "Save Putting Bmps"},
    {ShortGame::DistanceWedge, "BriskoDWedgePrint", "Print Distance Wedge", "BriskoSaveDWege",
     "Save Distance Wedge Bmps"},
    {ShortGame::BunkerShot, "BriskoBunkerPrint", "Print Bunker Shot", "BriskoSaveBunker", "Save Bunker Shot Bmps"},
    {ShortGame::ChipShot, "BriskoChipPrint", "Print Chip Shot", "BriskoSaveChip", "Save Chip Shot Bmps"},
};

}  // namespace

void MenuBar::AddBrisko() {
  const auto add = [this](const char* item, const char* caption, std::function<void()> run) -> Command& {
    Add({item, kBrisko, caption, "", "", "", kNoButton, std::move(run)});
    return commands_.back();
  };
  // What a sheet needs is said when it is asked for.
  for (const Sheet& each : kSheets)
    add(each.print, each.printCaption, [this, sheet = each.sheet] { navigation_.Handouts().PrintSheet(sheet); });
  AddSeparator(kBrisko);
  for (const Sheet& each : kSheets)
    add(each.save, each.saveCaption, [this, sheet = each.sheet] { navigation_.Handouts().SaveSheetPictures(sheet); });
  AddSeparator(kBrisko);
  add("BriskoCreateModel", "Create Model", [this] { navigation_.Handouts().SaveModelPicture(); }).obstacle = [this] {
    return std::string(stage_.AnyVideo() ? "" : "Open a video first");
  };
  add("BriskoLeftySelect", "Lefty Print", [this] { navigation_.Handouts().ToggleLefty(); }).checked = [this] {
    return navigation_.Handouts().Lefty();
  };
  Add({"MenuExit", "", "&Exit Analysis", "", "", "", kNoButton, [this] {
         if (navigation_.Handouts().MayLeave() && PreparetoExit()) navigation_.ExitAnalysis();
       }});
}

}  // namespace kinalyx
