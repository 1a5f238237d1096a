#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <memory>

#include "platform/print/Page.h"

namespace kinalyx {

class TextColumn;

inline constexpr int kDotsPerInch = 600;

QSizeF SizeOf(Paper paper);  ///< inches

/// How a page lies on the paper.
struct PagePlace {
  double left = 0;  ///< of its origin, inches from the corner of the paper
  double top = 0;
  double scale = 1;
};
/// @param paper      inches
/// @param printable  what the printer reaches of it
PagePlace PlaceOfPage(QSizeF paper, const QRectF& printable);

/// Prints on whatever can be painted on. Everything is measured in dots, whatever the device, so that lines of text
/// break in the same places on the screen and on paper.
class PagePainter : public IPage {
 public:
  explicit PagePainter(const PagePlace& place);
  ~PagePainter() override;

  void SetFont(const PageFont& font) override;
  void SetInk(Colour colour) override;
  void SetDrawWidth(int dots) override;
  void Line(PagePoint from, PagePoint to) override;
  void Box(const PageBox& box) override;
  void Fill(const PageBox& box, Colour colour) override;
  void PaintPicture(const Surface& picture, const PageBox& box) override;
  double TextWidth(std::string_view text) override;
  double LineHeight() override;
  void Print(PagePoint at, std::string_view line) override;
  std::optional<std::size_t> FormatRange(const RichText& text, std::size_t first, const PageBox& box) override;
  void NewPage() override;

 protected:
  /// Begins to paint on a sheet of this fineness.
  void BeginSheet(QPaintDevice& sheet, double dotsPerInch);
  QPainter& Painter() { return painter_; }
  /// The next sheet lies under the painter, or is begun now.
  virtual void NextSheet() = 0;

 private:
  void Dress();

  PagePlace place_;
  QPainter painter_;
  QFont font_;
  QColor ink_ = Qt::black;
  int dots_ = 1;
  std::unique_ptr<TextColumn> column_;  ///< the text that is being printed over several pages
};

}  // namespace kinalyx
