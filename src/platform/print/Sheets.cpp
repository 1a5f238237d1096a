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

PicturePages::PicturePages(Paper paper, int dotsPerInch, int most)
    : PagePainter(PlaceOfPage(SizeOf(paper), {{}, SizeOf(paper)})),
      size_((SizeOf(paper) * dotsPerInch).toSize()),
      dotsPerInch_(dotsPerInch),
      most_(most) {
  NextSheet();
}

void PicturePages::NextSheet() {
  if (Painter().isActive()) {
    Painter().end();
    Keep();
  }
  ++count_;
  if (sheet_.isNull()) sheet_ = QImage(size_, QImage::Format_RGB32);
  if (count_ <= most_) sheet_.fill(Qt::white);
  BeginSheet(sheet_, dotsPerInch_);
}

/// A sheet that nobody will see is painted on again.
void PicturePages::Keep() {
  if (count_ <= most_) done_.push_back(std::exchange(sheet_, {}));
}

std::vector<QImage> PicturePages::End() {
  Painter().end();
  Keep();
  return std::exchange(done_, {});
}

}  // namespace kinalyx
