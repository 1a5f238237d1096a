#include "workspace/forms/NotesPanel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextDocument>
#include <QToolButton>
#include <algorithm>

#include "library/Sidecar.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

QString BoxText(const std::string& notes) {
  return QString::fromStdString(notes).replace("\r\n", "\n").replace('\r', '\n');
}

std::string FileText(const QString& text) { return QString(text).replace("\n", "\r\n").toStdString(); }

NotesPanel::NotesPanel(VideoNotes& notes, QWidget* parent) : StagePanel("NotesPnl", parent), notes_(notes) {
  setProperty("look", "card");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(10, 6, 10, 10);
  rows->setSpacing(4);
  auto* head = new QHBoxLayout;
  QLabel* title = MakeLabel("NotesTitle", tr("Video notes"), nullptr, this);
  FixFont(title, kTextPixels, 600);
  head->addWidget(title, 1);
  close_ = new QToolButton(this);
  close_->setObjectName("NotesClose");
  close_->setToolTip(tr("Close the notes"));
  FixSize(close_, {22, 22});
  FixIcon(close_, 14);
  close_->setFocusPolicy(Qt::NoFocus);
  connect(close_, &QToolButton::clicked, this, [this] { notes_.Close(); });
  head->addWidget(close_);
  rows->addLayout(head);
  box_ = new QPlainTextEdit(this);
  box_->setObjectName("NotesBox");
  box_->setPlaceholderText(tr("Write what you see; it is kept with the video."));
  box_->setTabChangesFocus(true);
  connect(box_->document(), &QTextDocument::contentsChange, this, [this](int at, int, int added) {
    added_ = added;
    addedEnd_ = at + added;
  });
  connect(box_, &QPlainTextEdit::textChanged, this, [this] { TextChanged(); });
  rows->addWidget(box_, 1);
  full_ = MakeLabel("NotesFull", {}, nullptr, this);
  full_->setWordWrap(true);
  full_->hide();
  rows->addWidget(full_);
  setFocusProxy(box_);
  hide();
  FirstDress();
}

void NotesPanel::SetText(const std::string& text) {
  const QString wanted = BoxText(text);
  if (box_->toPlainText() == wanted) return;
  const QSignalBlocker quiet(box_);
  box_->setPlainText(wanted);
  full_->hide();
}

void NotesPanel::TextChanged() {
  const std::size_t length = NotesLength(FileText(box_->toPlainText()));
  // Between what came and what was left out of it there is a step that an undo passes over.
  if (length > kMaxNotes && box_->document()->isRedoAvailable()) return box_->undo();
  const int left = length > kMaxNotes ? TakeBack(length - kMaxNotes) : 0;
  full_->setText(tr("The notes are full: they hold %1 characters. The last %2 that were typed or pasted were left out.")
                     .arg(QLocale().toString(qulonglong(kMaxNotes)), QLocale().toString(left)));
  full_->setVisible(left > 0);
  notes_.TakeNotes(FileText(box_->toPlainText()));
}

/// A sidecar holds no more: as many characters, as the file counts them, go from the end of what came last.
/// Returns how many went; what was there before stays.
int NotesPanel::TakeBack(std::size_t characters) {
  const QString text = box_->toPlainText();
  const int end = std::min(addedEnd_, int(text.size()));
  const int least = std::max(end - added_, 0);
  int begin = end;
  for (std::size_t gone = 0; begin > least && gone < characters;) {
    const QChar one = text[--begin];
    if (!one.isLowSurrogate()) gone += one == '\n' ? 2 : 1;
  }
  const QSignalBlocker quiet(box_);
  QTextCursor cursor(box_->document());
  cursor.beginEditBlock();
  cursor.setPosition(begin);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  cursor.endEditBlock();
  return end - begin;
}

void NotesPanel::Dress() {
  WearStageSheet(this, kCardSheet);
  close_->setIcon(Icon("close", StageLook::Current().ink));
}

}  // namespace kinalyx
