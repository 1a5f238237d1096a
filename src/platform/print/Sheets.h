#pragma once

#include <QImage>
#include <QPdfWriter>
#include <vector>

#include "platform/print/PagePainter.h"

namespace kinalyx {

/// Pages as a PDF.
class PdfPages final : public PagePainter {
 public:
  /// @param device  where the file goes; outlives the pages
  PdfPages(QIODevice& device, const QString& title, Paper paper, const PagePlace& place);
  /// False when not all of it could be written.
  bool End();

 private:
  void NextSheet() override { good_ = writer_.newPage() && good_; }

  QPdfWriter writer_;
  bool good_ = true;
};

/// Pages as pictures.
class PicturePages final : public PagePainter {
 public:
  /// @param most  pictures that are kept; further sheets are counted
  PicturePages(Paper paper, int dotsPerInch, int most);
  int Count() const { return count_; }
  std::vector<QImage> End();

 private:
  void NextSheet() override;
  void Keep();

  QSize size_;
  int dotsPerInch_;
  int most_;
  int count_ = 0;
  QImage sheet_;
  std::vector<QImage> done_;
};

}  // namespace kinalyx
