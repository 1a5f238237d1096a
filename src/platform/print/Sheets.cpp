#include "platform/print/Sheets.h"

#include <QCoreApplication>
#include <utility>

namespace kinalyx {

PdfPages::PdfPages(QIODevice& device, const QString& title, Paper paper, const PagePlace& place)
    : PagePainter(place), writer_(&device) {
  writer_.setTitle(title);
  writer_.setCreator(QCoreApplication::applicationName());
  writer_.setResolution(kDotsPerInch);
  writer_.setPageSize(QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter));
  writer_.setPageMargins({});
  BeginSheet(writer_, kDotsPerInch);
  good_ = Painter().isActive();
}

bool PdfPages::End() { return Painter().end() && good_; }

PicturePages::PicturePages(Paper paper, int dotsPerInch)
    : PagePainter(PlaceOfPage(SizeOf(paper), {{}, SizeOf(paper)})),
      size_((SizeOf(paper) * dotsPerInch).toSize()),
      dotsPerInch_(dotsPerInch) {
  NextSheet();
}

void PicturePages::NextSheet() {
  if (Painter().isActive()) {
    Painter().end();
    done_.push_back(std::exchange(sheet_, {}));
  }
  sheet_ = QImage(size_, QImage::Format_RGB32);
  sheet_.fill(Qt::white);
  BeginSheet(sheet_, dotsPerInch_);
}

std::vector<QImage> PicturePages::End() {
  Painter().end();
  done_.push_back(std::exchange(sheet_, {}));
  return std::exchange(done_, {});
}

}  // namespace kinalyx
