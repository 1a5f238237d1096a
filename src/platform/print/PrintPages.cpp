#include "platform/print/PrintPages.h"

#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QTemporaryFile>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/print/PrintQueues.h"
#include "platform/print/Sheets.h"

namespace kinalyx {

namespace {

constexpr double kHundredthsPerInch = 2540;  // of a millimetre

bool WritePdf(const IPrintout& printout, Paper paper, const QRectF& printable, QIODevice& file) {
  PdfPages pages(file, QString::fromStdString(printout.Title()), paper, PlaceOfPage(SizeOf(paper), printable));
  printout.PrintOn(pages);
  return pages.End();
}

QRectF Whole(Paper paper) { return {{}, SizeOf(paper)}; }

Outcome NotWritten(const QString& path, const QString& why) {
  return Outcome::Failed(Tr("The file {} cannot be written: {}", path.toStdString(), why.toStdString()));
}

}  // namespace

Outcome PrintToPdf(const IPrintout& printout, Paper paper, const std::string& path) {
  QSaveFile file(QString::fromStdString(path));
  // Renaming over it would put a file in the place of a device or a pipe.
  const QFileInfo old(file.fileName());
  if (old.exists() && !old.isFile())
    return NotWritten(file.fileName(), QString::fromStdString(Tr("That name is not a file's.")));
  if (!file.open(QIODevice::WriteOnly)) return NotWritten(file.fileName(), file.errorString());
  // A full disk is told by the file, not by who paints on it.
  const bool written = WritePdf(printout, paper, Whole(paper), file);
  if (!written || !file.commit()) return NotWritten(file.fileName(), file.errorString());
  return {};
}

Outcome PrintToQueue(const IPrintout& printout, const PrintChoice& choice) {
  const QSizeF size = SizeOf(choice.Paper);
  const int width = qRound(size.width() * kHundredthsPerInch);
  const int height = qRound(size.height() * kHundredthsPerInch);
  QRectF printable = Whole(choice.Paper);
  if (const auto white = MarginsOf(choice.printer, width, height)) {
    printable.adjust(white->left / kHundredthsPerInch, white->top / kHundredthsPerInch,
                     -white->right / kHundredthsPerInch, -white->bottom / kHundredthsPerInch);
  }
  auto file = std::make_shared<QTemporaryFile>();
  if (!file->open()) return NotWritten(file->fileName(), file->errorString());
  if (!WritePdf(printout, choice.Paper, printable, *file) || !file->flush())
    return NotWritten(file->fileName(), file->errorString());
  return SendToQueue(choice.printer, std::move(file), printout.Title(), width, height, choice.copies);
}

std::vector<Surface> PicturesOf(const IPrintout& printout, Paper paper, int dotsPerInch, int most, int* count) {
  PicturePages pages(paper, dotsPerInch, most);
  printout.PrintOn(pages);
  if (count) *count = pages.Count();
  std::vector<Surface> pictures;
  for (const QImage& page : pages.End()) {
    Surface& picture = pictures.emplace_back(page.width(), page.height());
    for (int y = 0; y < picture.Height(); ++y)
      std::memcpy(picture.Row(y), page.constScanLine(y), static_cast<std::size_t>(picture.Stride()));
  }
  return pictures;
}

Paper UsualPaper() {
  return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? Paper::Letter : Paper::A4;
}

}  // namespace kinalyx
