#pragma once

#include <QDialog>
#include <vector>

#include "platform/host/Host.h"
#include "printing/report/ReportMaker.h"

class QComboBox;
class QLabel;
class QListWidget;
class QTextEdit;

namespace kinalyx {

class Button;

/// "Report": what goes into the report and in which order, and the notes.
class ReportForm : public QDialog {
  Q_OBJECT

 public:
  /// @param report  outlives the form
  ReportForm(ReportMaker& report, QWidget* parent);

  /// What is ticked, and what is not, in the order of the list.
  std::vector<ReportItem> Items() const;
  RichText Notes() const;

 signals:
  /// The pages are to be seen; the form stays until it is told to go.
  void PreviewWanted();

 private:
  QLayout* MakeListSide();
  QLayout* MakeNotesSide();
  void AddRow(const ReportItem& item, int row);
  void Move(int by);
  void AddPicture();
  void RemovePicture();
  void TakeThen();
  void ShowState();

  ReportMaker& report_;
  std::vector<ReportItem> items_;  ///< the rows' data are indexes of it
  QListWidget* list_ = nullptr;
  QComboBox* then_ = nullptr;
  QLabel* thenLabel_ = nullptr;
  QTextEdit* notes_ = nullptr;
  Button* up_ = nullptr;
  Button* down_ = nullptr;
  Button* remove_ = nullptr;
  Button* preview_ = nullptr;
};

}  // namespace kinalyx
