#include "printing/forms/RichNotes.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextList>

namespace kinalyx {

namespace {

TextRun RunOf(const QTextFragment& fragment) {
  const QTextCharFormat format = fragment.charFormat();
  TextRun run;
  run.text = QString(fragment.text())
                 .remove(QChar::ObjectReplacementCharacter)
                 .replace(QChar::LineSeparator, '\n')
                 .toStdString();
  run.bold = format.fontWeight() > QFont::Medium;
  run.italic = format.fontItalic();
  run.underline = format.fontUnderline();
  run.points = format.hasProperty(QTextFormat::FontPointSize) ? format.fontPointSize() : 0;
  return run;
}

void Add(RichText& text, TextRun run) {
  TextRun* last = text.runs.empty() ? nullptr : &text.runs.back();
  TextRun same = run;
  if (last) same.text = last->text;
  if (last && same == *last) {
    last->text += run.text;
  } else {
    text.runs.push_back(std::move(run));
  }
}

}  // namespace

RichText RichTextOf(const QTextDocument& document) {
  RichText text;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block != document.begin()) {
      TextRun end = text.runs.empty() ? TextRun() : text.runs.back();
      end.text.assign(1, '\n');
      Add(text, std::move(end));
    }
    if (const QTextList* list = block.textList(); list) Add(text, {list->itemText(block).toStdString() + " "});
    for (auto part = block.begin(); !part.atEnd(); ++part) Add(text, RunOf(part.fragment()));
  }
  return text;
}

}  // namespace kinalyx
