#pragma once

#include <functional>
#include <string>

#include "core/Settings.h"
#include "platform/host/Host.h"
#include "platform/print/Printer.h"
#include "video/PlayerServices.h"
#include "workspace/commands/IHandouts.h"

class QWidget;

namespace kinalyx {

class AnalysisForm;
class AnalysisWorkspace;
class Notesform;

/// Where printed pages are made of what stands on the stage: the page of the analysis with its notes, the sheets of
/// the short-game school, and reports.
class PrintDesk {
 public:
  /// All outlives the desk.
  PrintDesk(PlayerServices& services, IPrinter& printer, const Settings& settings);

  void Serve(AnalysisForm* analysis) { analysis_ = analysis; }

  void ShowPrintForm();
  void ShowReportForm();
  void PrintSheet(ShortGame sheet);
  void SaveSheetPictures(ShortGame sheet);
  void SaveModelPicture();
  void ToggleLefty() { LeftyPrint_ = !LeftyPrint_; }
  bool Lefty() const { return LeftyPrint_; }

 private:
  AnalysisWorkspace& Section();
  void PrintWindows(Notesform& form, bool all);
  void PrintNotes(Notesform& form);
  enum class CameOut { Nothing, File, Paper };
  /// Shows the pages; the status says `done` when something came out.
  CameOut Preview(const IPrintout& printout, QWidget* over, const std::string& done);

  PlayerServices& services_;
  IHost& host_;
  IPrinter& printer_;
  const Settings& settings_;
  AnalysisForm* analysis_ = nullptr;
  PrintChoice choice_;  ///< what was chosen last
  bool LeftyPrint_ = false;
};

}  // namespace kinalyx
