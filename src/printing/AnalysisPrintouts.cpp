#include "printing/AnalysisPrintouts.h"

#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {

AnalysisPrintout AnalysisPrintouts::PrintAll(RichText notes) {
  const std::vector<int> shown = pictures_.Shown();
  std::string title = shown.size() == 1 ? NameOfVideo(stage_.At(shown.front()).path) : Tr("Analysis");
  return {std::move(title), ReadHeading(host_, settings_), pictures_.All(), std::move(notes)};
}

Result<AnalysisPrintout> AnalysisPrintouts::PrintHigh(RichText notes) {
  const int slot = stage_.CurrentWindow;
  if (!stage_.HasVideo(slot)) return Outcome{Fault::Refused, Tr("There is no video in the highlighted window")};
  return AnalysisPrintout(NameOfVideo(stage_.At(slot).path), ReadHeading(host_, settings_), pictures_.Whole(slot),
                          std::move(notes));
}

}  // namespace kinalyx
