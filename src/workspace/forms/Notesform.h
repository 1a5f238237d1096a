#pragma once

#include <QDialog>

#include "platform/host/Host.h"

class QPlainTextEdit;

namespace kinalyx {

/// "Print Window with Notes": the text that goes with a printout, kept in text files of the user's choice.
class Notesform : public QDialog {
  Q_OBJECT

 public:
  /// `text` is what the box begins with.
  Notesform(IHost& host, const QString& text, QWidget* parent);

 private:
  void PrintBtn_Click(int index);
  void Open();
  void Save();

  IHost& host_;
  QPlainTextEdit* notes_;
  QString file_;  ///< opened or saved last
};

}  // namespace kinalyx
