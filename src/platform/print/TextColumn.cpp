#include "platform/print/TextColumn.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

#include "platform/print/PagePainter.h"

namespace kinalyx {

namespace {

constexpr double kTabStop = 80.0 / 96;  // inches, as far apart as in the box of the notes

}  // namespace

TextColumn::TextColumn(const RichText& text, const QFont& font, double width)
    : text_(text), font_(font), width_(width) {
  document_.setDocumentMargin(0);
  document_.setUndoRedoEnabled(false);
  document_.setDefaultFont(font);
  QTextOption wrap;
  wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);  // a long address must not run over the rule
  wrap.setTabStopDistance(kTabStop * kDotsPerInch);
  document_.setDefaultTextOption(wrap);
  QTextCursor cursor(&document_);
  for (const TextRun& run : text.runs) {
    QFont letters = font;
    letters.setBold(run.bold);
    letters.setItalic(run.italic);
    letters.setUnderline(run.underline);
    if (run.points > 0) letters.setPixelSize(std::max(1, qRound(run.points * kDotsPerInch / 72)));
    QTextCharFormat format;
    format.setFont(letters);
    cursor.insertText(QString::fromStdString(run.text), format);
  }
  document_.setTextWidth(width);
}

bool TextColumn::Holds(const RichText& text, const QFont& font, double width) const {
  return width == width_ && font == font_ && text.runs == text_.runs;
}

std::optional<std::size_t> TextColumn::Paint(QPainter& painter, std::size_t first, double height) {
  const auto* layout = document_.documentLayout();
  std::optional<double> from;
  double to = 0;
  std::optional<std::size_t> next;
  for (QTextBlock block = document_.findBlock(static_cast<int>(first)); block.isValid() && !next;
       block = block.next()) {
    const double top = layout->blockBoundingRect(block).top();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      const QTextLine line = block.layout()->lineAt(i);
      const auto start = static_cast<std::size_t>(block.position() + line.textStart());
      if (start + static_cast<std::size_t>(line.textLength()) < first) continue;
      if (start < first && !from) continue;
      const double bottom = top + line.y() + line.height();
      if (!from) {
        from = top + line.y();
      } else if (bottom - *from > height) {
        next = start;
        break;
      }
      to = bottom;
    }
  }
  if (!from) return std::nullopt;
  painter.save();
  painter.translate(0, -*from);
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = QRectF(0, *from, width_, to - *from);
  context.palette.setColor(QPalette::Text, painter.pen().color());  // whatever the desktop's colours are
  painter.setClipRect(context.clip, Qt::IntersectClip);
  document_.documentLayout()->draw(&painter, context);
  painter.restore();
  return next;
}

}  // namespace kinalyx
