#include "app/PrintDesk.h"

#include <QObject>

#include "platform/files/Tr.h"
#include "platform/widgets/Text.h"
#include "printing/AnalysisPrintouts.h"
#include "printing/forms/Notesform.h"
#include "printing/forms/PreviewForm.h"
#include "printing/forms/ReportForm.h"
#include "printing/report/ReportMaker.h"
#include "printing/sheets/ShortGameSheets.h"
#include "workspace/forms/AnalysisForm.h"
#include "workspace/forms/NotesPanel.h"
#include "workspace/pictures/StagePictures.h"

namespace kinalyx {

PrintDesk::PrintDesk(PlayerServices& services, IPrinter& printer, const Settings& settings)
    : services_(services), host_(services.host), printer_(printer), settings_(settings) {
  choice_.Paper = UsualPaper();
}

AnalysisWorkspace& PrintDesk::Section() { return analysis_->Section(); }

void PrintDesk::ShowPrintForm() {
  if (!analysis_) return;
  Notesform form(host_, BoxText(Section().Stage().Current().data.Notes), analysis_);
  QObject::connect(&form, &Notesform::PrintHighWanted, &form, [this, &form] { PrintWindows(form, false); });
  QObject::connect(&form, &Notesform::PrintAllWanted, &form, [this, &form] { PrintWindows(form, true); });
  QObject::connect(&form, &Notesform::PrintNotesWanted, &form, [this, &form] { PrintNotes(form); });
  form.exec();
}

void PrintDesk::ShowReportForm() {
  if (!analysis_) return;
  StagePictures pictures(Section().Stage(), Section().Compare());
  ReportMaker report({services_, settings_, Section().Stage(), Section().Tools(), pictures});
  ReportForm form(report, analysis_);
  QObject::connect(&form, &ReportForm::PreviewWanted, &form, [&] {
    if (Preview(report.Make(form.Items(), form.Notes()), &form, Tr("Ready")) != CameOut::Nothing) form.accept();
  });
  form.exec();
}

void PrintDesk::PrintWindows(Notesform& form, bool all) {
  StagePictures pictures(Section().Stage(), Section().Compare());
  AnalysisPrintouts printouts(host_, settings_, Section().Stage(), pictures);
  Result<AnalysisPrintout> page = all ? printouts.PrintAll(form.Notes()) : printouts.PrintHigh(form.Notes());
  if (!page) return host_.Message(MessageKind::Information, "", page.Why());
  switch (Preview(*page, &form, Tr("Ready"))) {
    case CameOut::Paper: form.accept(); break;
    case CameOut::File: form.TextIsKept(); break;  // another window may follow with the same notes
    case CameOut::Nothing: break;
  }
}

void PrintDesk::PrintNotes(Notesform& form) {
  const std::string& path = Section().Stage().Current().path;
  const NotesPrintout page(path.empty() ? Tr("Notes") : NameOfVideo(path), form.Notes());
  if (Preview(page, &form, Tr("Ready")) != CameOut::Nothing) form.TextIsKept();
}

void PrintDesk::PrintSheet(ShortGame sheet) {
  if (!analysis_) return;
  StagePictures pictures(Section().Stage(), Section().Compare());
  const auto page = ShortGameSheets(host_, settings_, Section().Stage(), pictures).MakeSheet(sheet, LeftyPrint_);
  if (page) {
    Preview(*page, analysis_, Tr("Print Done"));
  } else {
    host_.Message(page.Kind() == Fault::Refused ? MessageKind::Information : MessageKind::Warning, "", page.Why());
  }
}

void PrintDesk::SaveSheetPictures(ShortGame sheet) {
  if (!analysis_) return;
  StagePictures pictures(Section().Stage(), Section().Compare());
  ShortGameSheets(host_, settings_, Section().Stage(), pictures).BriskoSaveScreen(sheet);
}

void PrintDesk::SaveModelPicture() {
  if (!analysis_) return;
  StagePictures pictures(Section().Stage(), Section().Compare());
  ShortGameSheets(host_, settings_, Section().Stage(), pictures).BriskoModel();
}

PrintDesk::CameOut PrintDesk::Preview(const IPrintout& printout, QWidget* over, const std::string& done) {
  PreviewForm form(host_, printer_, printout, choice_, over);
  Transport& status = Section().Transport();
  QObject::connect(&form, &PreviewForm::PrintingBegins, &form, [&] { status.DisplayData(Tr("Printing...")); });
  QObject::connect(&form, &PreviewForm::PrintingEnds, &form, [&](bool cameOut) {
    if (cameOut) status.Announce(done);
    else status.DisplayData("");
  });
  if (form.exec() != QDialog::Accepted) return CameOut::Nothing;
  return form.Printed() ? CameOut::Paper : CameOut::File;
}

}  // namespace kinalyx
