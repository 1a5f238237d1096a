#pragma once

#include <QDialog>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "platform/host/Host.h"
#include "platform/print/Printer.h"

class QComboBox;
class QLabel;
class QScrollArea;
class QSpinBox;
class QVBoxLayout;

namespace kinalyx {

class Button;

/// Shows how the pages will come out of the printer, and prints them or keeps them as a PDF file. It is accepted once
/// something has come out.
class PreviewForm : public QDialog {
  Q_OBJECT

 public:
  /// @param printout  outlives the form
  /// @param choice    printer and paper that are offered, and what was chosen; outlives the form
  PreviewForm(IHost& host, IPrinter& printer, const IPrintout& printout, PrintChoice& choice, QWidget* parent);

  /// True once a printer has the pages. A form that is accepted without has kept them in a file.
  bool Printed() const { return printed_; }

 signals:
  void PrintingBegins();
  /// @param cameOut  false: it failed, and a message says so
  void PrintingEnds(bool cameOut);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeSide();
  void ListPrinters();
  void ShowPrinters(const std::vector<std::string>& names);
  void ShowPages();
  void Zoom(int steps);
  void Print();
  void SavePdf();
  int DotsPerInch() const;
  void Tell(const Outcome& failed);

  IHost& host_;
  IPrinter& printer_;
  const IPrintout& printout_;
  PrintChoice& choice_;
  QScrollArea* area_ = nullptr;
  QVBoxLayout* sheets_ = nullptr;
  QComboBox* zoom_ = nullptr;
  QLabel* count_ = nullptr;
  QComboBox* printers_ = nullptr;
  QComboBox* paper_ = nullptr;
  QSpinBox* copies_ = nullptr;
  Button* print_ = nullptr;
  bool printed_ = false;
  QTimer look_;  ///< for printers that are heard of meanwhile
  QTimer rest_;  ///< of the hand that changes the size
  int looks_ = 0;
  std::optional<std::vector<std::string>> listed_;
  int shownAt_ = 0;  ///< dots to an inch of the pages that are shown
};

}  // namespace kinalyx
