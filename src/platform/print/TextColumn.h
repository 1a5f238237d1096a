#pragma once

#include <QFont>
#include <QPainter>
#include <QTextDocument>
#include <cstddef>
#include <optional>

#include "platform/print/Page.h"

namespace kinalyx {

/// A text with formats, laid out in a column of one width; it is printed in pieces of whole lines.
class TextColumn {
 public:
  /// @param width  dots
  TextColumn(const RichText& text, const QFont& font, double width);

  bool Holds(const RichText& text, const QFont& font, double width) const;
  /// Paints the lines from that of the character `first` on, as many as fit into `height`, at least one, with their
  /// upper left corner in the painter's origin. Gives the first character that found no room.
  std::optional<std::size_t> Paint(QPainter& painter, std::size_t first, double height);

 private:
  RichText text_;
  QFont font_;
  double width_;
  QTextDocument document_;
};

}  // namespace kinalyx
