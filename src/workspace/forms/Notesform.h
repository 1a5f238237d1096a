#pragma once

#include <QDialog>

#include "platform/host/Host.h"
#include "platform/print/Printer.h"

class QPlainTextEdit;

namespace kinalyx {

/// "Print Window with Notes": the text that goes with a printout, kept in text files of the user's choice.
class Notesform : public QDialog {
  Q_OBJECT

 public:
  /// @param printer  outlives the form
  /// @param video    the name that stands over the printed text; may be empty
  /// @param text     what the box begins with
  Notesform(IHost& host, IPrinter& printer, const QString& video, const QString& text, QWidget* parent);

 private:
  void PrintBtn_Click(int index);
  void Open();
  void Save();
  void Print();

  IHost& host_;
  IPrinter& printer_;
  QString video_;
  QPlainTextEdit* notes_;
  QString file_;  ///< opened or saved last
};

}  // namespace kinalyx
