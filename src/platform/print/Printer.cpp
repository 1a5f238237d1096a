#include "platform/print/Printer.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "platform/files/Tr.h"
#include "platform/print/PrintPages.h"
#include "platform/print/PrintQueues.h"

namespace kinalyx {

namespace {

constexpr double kMarginMm = 18;
constexpr double kTextPoints = 11;
constexpr double kTitlePoints = 20;
constexpr double kFooterPoints = 9;
constexpr double kFooterRoom = 2.5;  // lines of the footer that the text leaves free

QString Text(const std::string& text) { return QString::fromStdString(text); }

QFont FontOf(double points, bool bold = false) {
  QFont font = QApplication::font();
  font.setPointSizeF(points);  // a size in pixels would shrink with the fineness of the printer
  font.setBold(bold);
  return font;
}

/// The text, laid out for the pages of a printer.
class Pages {
 public:
  Pages(const PrintedText& text, QPrinter& printer) : printer_(printer), footer_(Text(text.footer)) {
    document_.setDocumentMargin(0);
    document_.setDefaultFont(FontOf(kTextPoints));
    document_.documentLayout()->setPaintDevice(&printer);
    QTextOption wrap;
    wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);  // a long address must not run off the paper
    wrap.setFlags(QTextOption::IncludeTrailingSpaces);
    document_.setDefaultTextOption(wrap);
    QTextCursor cursor(&document_);
    const auto add = [&](const QString& words, const QFont& font) {
      if (words.isEmpty()) return;
      QTextCharFormat letters;
      letters.setFont(font);
      cursor.insertText(words, letters);
      cursor.insertBlock();
    };
    add(Text(text.title), FontOf(kTitlePoints, true));
    add(Text(text.subtitle), FontOf(kTextPoints, true));
    if (!document_.isEmpty()) cursor.insertBlock();
    QTextCharFormat letters;
    letters.setFont(FontOf(kTextPoints));
    QString words = Text(text.text).remove('\r');
    while (!words.isEmpty() && words.back().isSpace()) words.chop(1);  // blank lines would come out as blank pages
    cursor.insertText(words, letters);
    paper_ = printer.pageRect(QPrinter::DevicePixel);
    paper_.moveTopLeft({});
    line_ = QFontMetricsF(FontOf(kFooterPoints), &printer).height();
    document_.setPageSize({paper_.width(), paper_.height() - line_ * kFooterRoom});
  }

  int Count() const { return document_.pageCount(); }

  /// @param page  from 0
  void Paint(QPainter& painter, int page) {
    const double height = document_.pageSize().height();
    const QRectF part(0, page * height, paper_.width(), height);
    painter.save();
    painter.translate(0, -part.top());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, Qt::black);  // whatever the desktop's colours are
    painter.setClipRect(part);
    document_.documentLayout()->draw(&painter, context);
    painter.restore();
    painter.setFont(FontOf(kFooterPoints));
    painter.setPen(Qt::black);
    const QRectF foot(0, paper_.height() - line_, paper_.width(), line_);
    const QString number = QString("%1 / %2").arg(page + 1).arg(Count());
    const double room = foot.width() - 2 * painter.fontMetrics().horizontalAdvance(number);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(painter.font(), &printer_).elidedText(footer_, Qt::ElideRight, room));
    painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, number);
  }

 private:
  QPrinter& printer_;
  QString footer_;
  QTextDocument document_;
  QRectF paper_;
  double line_ = 0;
};

Outcome Failed(const QPrinter& printer) {
  const QString file = printer.outputFileName();
  return Outcome::Failed(file.isEmpty()
                             ? Tr("The printer {} does not take the pages.", printer.printerName().toStdString())
                             : Tr("The file {} cannot be written.", file.toStdString()));
}

/// A PDF file ends in a mark of its own; one that was cut short, on a full disk, does not.
bool IsWhole(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  file.seek(std::max<qint64>(0, file.size() - 32));
  return file.read(32).contains("%%EOF");
}

Outcome PrintOn(QPrinter& printer, const PrintedText& text) {
  printer.setDocName(Text(text.title));
  Pages pages(text, printer);
  const int first = std::max(1, printer.fromPage());
  const int last = printer.toPage() > 0 ? std::min(printer.toPage(), pages.Count()) : pages.Count();
  if (first > last) return Outcome::Failed(Tr("There are only {} pages.", pages.Count()));
  const bool backwards = printer.pageOrder() == QPrinter::LastPageFirst;
  QPainter painter;
  if (!painter.begin(&printer)) return Failed(printer);
  for (int at = first; at <= last; ++at) {
    if (at > first && !printer.newPage()) return Failed(printer);
    pages.Paint(painter, (backwards ? first + last - at : at) - 1);
  }
  const bool sent = painter.end() && printer.printerState() != QPrinter::Error;
  const bool pdf = printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
  if (!sent || (pdf && !IsWhole(printer.outputFileName()))) return Failed(printer);
  return {};
}

void SetMargins(QPrinter& printer) {
  printer.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm), QPageLayout::Millimeter);
}

class DesktopPrinter final : public IPrinter {
 public:
  Outcome Print(const PrintedText& text) override {
    QPrinter printer(QPrinter::HighResolution);
    SetMargins(printer);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return {Fault::Cancelled, {}};
    return PrintOn(printer, text);
  }

  std::optional<std::vector<std::string>> Printers() override { return queues_.Known(); }

  Outcome Print(const IPrintout& printout, const PrintChoice& choice) override {
    return PrintToQueue(printout, choice);
  }

 private:
  QueueNames queues_;
};

}  // namespace

std::unique_ptr<IPrinter> MakePrinter() { return std::make_unique<DesktopPrinter>(); }

Outcome PrintToPdf(const PrintedText& text, const std::string& path) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(Text(path));
  SetMargins(printer);
  return PrintOn(printer, text);
}

}  // namespace kinalyx
