#pragma once

#include <QDialog>

#include "platform/host/Host.h"
#include "platform/print/Page.h"

class QComboBox;
class QHBoxLayout;
class QPushButton;
class QTextEdit;

namespace kinalyx {

/// "Print Window with Notes": the text that goes with a printout, with its formats, kept in files of the user's choice:
/// a web page (.html) keeps the formats, a text file (.txt) the words.
class Notesform : public QDialog {
  Q_OBJECT

 public:
  /// @param text  what the box begins with
  Notesform(IHost& host, const QString& text, QWidget* parent);

  RichText Notes() const;
  /// The text lies somewhere: it is not asked about until it changes.
  void TextIsKept() { kept_ = Notes(); }
  /// Closes the form; asks first where text would be lost.
  void reject() override;

 signals:
  /// The buttons that print; the form stays until it is told to go.
  void PrintHighWanted();
  void PrintAllWanted();
  void PrintNotesWanted();

 private:
  void PrintBtn_Click(int index);
  void New();
  void Open();
  void Save();
  QHBoxLayout* MakeFileRow();
  QHBoxLayout* MakeFormatRow();
  QHBoxLayout* MakeActions();
  void ShowFormat();

  IHost& host_;
  QTextEdit* notes_;
  QPushButton* bold_ = nullptr;
  QPushButton* italic_ = nullptr;
  QPushButton* underline_ = nullptr;
  QComboBox* size_ = nullptr;
  bool MayDrop();

  QString file_;   ///< opened or saved last
  RichText kept_;  ///< the text as it was opened, saved or proposed
};

}  // namespace kinalyx
