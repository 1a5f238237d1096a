#include "workspace/forms/NotesPanel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QToolButton>

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

NotesPanel::NotesPanel(VideoNotes& notes, QWidget* parent) : QFrame(parent), notes_(notes) {
  setObjectName("NotesPnl");
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
  connect(box_, &QPlainTextEdit::textChanged, this, [this] { TextChanged(); });
  rows->addWidget(box_, 1);
  setFocusProxy(box_);
  hide();
  Dress();
}

void NotesPanel::SetText(const std::string& text) {
  const QString wanted = BoxText(text);
  if (box_->toPlainText() == wanted) return;
  const QSignalBlocker quiet(box_);
  box_->setPlainText(wanted);
}

void NotesPanel::TextChanged() {
  std::string text = FileText(box_->toPlainText());
  if (static_cast<std::size_t>(QString::fromStdString(text).size()) > kMaxNotes) {
    // A sidecar holds no more. What was typed or pasted last is taken back.
    const QSignalBlocker quiet(box_);
    box_->undo();
    text = FileText(box_->toPlainText());
  }
  notes_.NotesBox_Change(text);
}

void NotesPanel::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange && close_) Dress();
}

void NotesPanel::Dress() {
  WearStageSheet(this, kCardSheet);
  close_->setIcon(Icon("close", StageLook::Current().ink));
}

}  // namespace kinalyx
