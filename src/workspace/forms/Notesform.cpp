#include "workspace/forms/Notesform.h"

#include <QBoxLayout>
#include <QPlainTextEdit>

#include "platform/files/FileStore.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/NotesPanel.h"

namespace kinalyx {

Notesform::Notesform(IHost& host, IPrinter& printer, const QString& video, const QString& text, QWidget* parent)
    : QDialog(parent), host_(host), printer_(printer), video_(video) {
  setObjectName("Notesform");
  setWindowTitle(tr("Print Window with Notes"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);

  auto* file = new QHBoxLayout;
  file->setSpacing(8);
  const QString captions[] = {tr("New"), tr("Open"), tr("Save"), tr("Print")};
  const char* icons[] = {"add", "open", "save", "print"};
  for (int i = 0; i < 4; ++i) {
    auto* button = new Button(QString("PrintBtn%1").arg(i), captions[i], icons[i], Look::Quiet, this);
    connect(button, &QPushButton::clicked, this, [this, i] { PrintBtn_Click(i); });
    file->addWidget(button);
  }
  file->addStretch(1);
  rows->addLayout(file);

  notes_ = new QPlainTextEdit(text, this);
  notes_->setObjectName("Notes");
  notes_->setTabChangesFocus(true);
  rows->addWidget(notes_, 1);

  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  const QString prints[] = {tr("Print Highlighted Window"), tr("Print All Windows"), tr("Close without Printing")};
  for (int i = 0; i < 3; ++i) {
    auto* button = new Button(QString("SSCommand1_%1").arg(i), prints[i], i < 2 ? "print" : "",
                              i < 2 ? Look::Filled : Look::Quiet, this);
    actions->addWidget(button);
    if (i < 2) {
      SetComing(button);
    } else {
      connect(button, &QPushButton::clicked, this, &QDialog::reject);
    }
  }
  rows->addLayout(actions);
  LeastWidth(notes_, 596);
  LeastHeight(notes_, 310);
  notes_->setFocus();
  if (parent) ScaleForm(*this, *parent);
}

void Notesform::PrintBtn_Click(int index) {
  switch (index) {
    case 0:
      notes_->clear();
      file_.clear();
      break;
    case 1: Open(); break;
    case 2: Save(); break;
    case 3: Print(); break;
    default: break;
  }
  notes_->setFocus();
}

void Notesform::Open() {
  const auto path = host_.PickFile({tr("Open Notes").toStdString(), "", "Text Files (*.txt)|*.txt"});
  if (!path) return;
  if (const auto text = ReadTextFile(*path, 1 << 20)) {
    file_ = QString::fromStdString(*path);
    notes_->setPlainText(BoxText(*text));
  } else {
    host_.Message(MessageKind::Warning, "", tr("The file cannot be read, or it is too large for notes.").toStdString());
  }
}

void Notesform::Print() {
  const QString notes = notes_->toPlainText();
  if (notes.trimmed().isEmpty())
    return host_.Message(MessageKind::Information, "", tr("There are no notes to print.").toStdString());
  const Outcome printed =
      printer_.Print({video_.toStdString(), tr("Video Notes").toStdString(), notes.toStdString(), {}});
  if (printed.Kind() == Fault::Failed)
    host_.Message(MessageKind::Warning, "",
                  tr("The notes were not printed. %1").arg(QString::fromStdString(printed.Why())).toStdString());
}

void Notesform::Save() {
  const auto chosen =
      host_.PickNewFile({tr("Save Notes").toStdString(), file_.toStdString(), "Text Files (*.txt)|*.txt"});
  if (!chosen) return;
  QString path = Q(*chosen);
  if (!path.endsWith(".txt", Qt::CaseInsensitive)) path += ".txt";
  if (const Outcome saved = WriteWholeFile(path.toStdString(), FileText(notes_->toPlainText())); saved) {
    file_ = path;
  } else {
    host_.Message(MessageKind::Warning, "",
                  tr("The notes could not be saved: %1.").arg(QString::fromStdString(saved.Why())).toStdString());
  }
}

}  // namespace kinalyx
