#include "library/forms/BoxLimits.h"

#include <QLabel>
#include <QLineEdit>
#include <QTextBoundaryFinder>

#include "library/LibraryTree.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

/// So much that a video's sidecar, with its longer ending, still finds room in what disks take for a name.
constexpr int kMostCharacters = 120;
constexpr int kMostBytes = 200;

/// The beginning of a name that is not too long, never half of a letter.
QString Cut(const QString& name) {
  if (name.size() <= kMostCharacters && name.toUtf8().size() <= kMostBytes) return name;
  QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, name);
  qsizetype end = 0;
  for (auto next = letters.toNextBoundary(); next > 0; next = letters.toNextBoundary()) {
    if (next > kMostCharacters || name.left(next).toUtf8().size() > kMostBytes) break;
    end = next;
  }
  return name.left(end);
}

QString WhatIsWrong(const QString& name) {
  if (name.startsWith('.')) return QObject::tr("A name cannot begin with a dot.");
  for (const QChar& letter : name) {
    if (letter.isSurrogate() || IsValidName(Std("a" + QString(letter)))) continue;
    return letter.isPrint() ? QObject::tr("A name cannot contain %1").arg(letter)
                            : QObject::tr("A name cannot contain control characters.");
  }
  return {};
}

}  // namespace

void LimitToNames(QLineEdit& box, QLabel& note) {
  const auto look = [&box, &note] {
    QString words = WhatIsWrong(box.text());
    if (const QString cut = Cut(box.text()); cut != box.text()) {
      const int cursor = box.cursorPosition();
      box.setText(cut);  // looks again
      box.setCursorPosition(cursor);
      if (words.isEmpty()) words = QObject::tr("A name cannot be longer.");
    }
    if (box.isReadOnly()) words.clear();  // it is as it is
    note.setText(words);
    note.setVisible(!words.isEmpty());
  };
  QObject::connect(&box, &QLineEdit::textChanged, &note, look);
  look();
}

void LimitLength(QLineEdit& box, QLabel& note, int characters) {
  box.setMaxLength(characters);
  QObject::connect(&box, &QLineEdit::textChanged, &note, [&note, characters](const QString& text) {
    note.setText(text.size() >= characters ? QObject::tr("%1 characters at most").arg(characters) : QString());
  });
}

}  // namespace kinalyx
