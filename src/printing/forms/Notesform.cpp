#include "printing/forms/Notesform.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QShortcut>
#include <QTextEdit>
#include <functional>

#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "printing/forms/RichNotes.h"
#include "workspace/forms/NotesPanel.h"

namespace kinalyx {

namespace {

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 24};
constexpr int kUsualSize = 10;                 // as the page has it
constexpr std::size_t kMostBytes = 256 << 10;  // some hundred pages

bool IsPage(const QString& path) {
  return path.endsWith(".html", Qt::CaseInsensitive) || path.endsWith(".htm", Qt::CaseInsensitive);
}

}  // namespace

Notesform::Notesform(IHost& host, const QString& text, QWidget* parent) : QDialog(parent), host_(host) {
  setObjectName("Notesform");
  setWindowTitle(tr("Print Window with Notes"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  notes_ = new QTextEdit(this);
  notes_->setObjectName("Notes");
  notes_->setAccessibleName(tr("Notes"));
  notes_->setTabChangesFocus(true);
  notes_->setPlaceholderText(tr("What the student shall read beneath the picture"));
  notes_->setPlainText(text);
  TextIsKept();
  rows->addLayout(MakeFileRow());
  rows->addLayout(MakeFormatRow());
  rows->addWidget(notes_, 1);
  rows->addLayout(MakeActions());
  connect(notes_, &QTextEdit::currentCharFormatChanged, this, [this] { ShowFormat(); });
  ShowFormat();
  LeastWidth(notes_, 596);
  LeastHeight(notes_, 310);
  notes_->setFocus();
  if (parent) ScaleForm(*this, *parent);
}

QHBoxLayout* Notesform::MakeFileRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  const QString captions[] = {tr("New"), tr("Open"), tr("Save"), tr("Print")};
  const QString tips[] = {tr("Begins with an empty box"), tr("Opens notes that were kept in a file"),
                          tr("Keeps the notes in a file"), tr("Prints the notes alone")};
  const char* icons[] = {"add", "open", "save", "print"};
  for (int i = 0; i < 4; ++i) {
    auto* button = new Button(QString("PrintBtn%1").arg(i), captions[i], icons[i], Look::Quiet, this);
    button->setToolTip(tips[i]);
    connect(button, &QPushButton::clicked, this, [this, i] { PrintBtn_Click(i); });
    row->addWidget(button);
  }
  row->addStretch(1);
  return row;
}

QHBoxLayout* Notesform::MakeFormatRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  const auto add = [&](const char* name, const QString& letter, const QString& tip, const QKeySequence& key,
                       const std::function<void(QFont&)>& dress, const std::function<void(bool)>& apply) {
    auto* button = new Button(name, letter, {}, Look::Quiet, this);
    button->setCheckable(true);
    button->setToolTip(QString("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    button->setAccessibleName(tip);
    // At once, for who goes on typing; a shortcut of the button's own would hold it down for a moment.
    connect(new QShortcut(key, notes_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, button,
            &QPushButton::click);
    button->setFocusPolicy(Qt::TabFocus);
    FixWidth(button, kButtonHeight);
    QFont font = button->font();
    dress(font);
    button->setFont(font);
    connect(button, &QPushButton::clicked, this, [this, apply](bool on) {
      apply(on);
      notes_->setFocus();
    });
    row->addWidget(button);
    return button;
  };
  bold_ = add(
      "BoldBtn", "B", tr("Bold"), QKeySequence::Bold, [](QFont& font) { font.setBold(true); },
      [this](bool on) { notes_->setFontWeight(on ? QFont::Bold : QFont::Normal); });
  italic_ = add(
      "ItalicBtn", "I", tr("Italic"), QKeySequence::Italic, [](QFont& font) { font.setItalic(true); },
      [this](bool on) { notes_->setFontItalic(on); });
  underline_ = add(
      "UnderlineBtn", "U", tr("Underline"), QKeySequence::Underline, [](QFont& font) { font.setUnderline(true); },
      [this](bool on) { notes_->setFontUnderline(on); });
  row->addSpacing(8);
  row->addWidget(MakeLabel("SizeLabel", tr("Size"), "caption", this));
  size_ = new QComboBox(this);
  size_->setObjectName("SizeBox");
  size_->setAccessibleName(tr("Size of the letters"));
  for (const int points : kSizes) size_->addItem(QString::number(points), points);
  connect(size_, &QComboBox::activated, this, [this] {
    notes_->setFontPointSize(size_->currentData().toInt());
    notes_->setFocus();
  });
  row->addWidget(size_);
  row->addStretch(1);
  return row;
}

QHBoxLayout* Notesform::MakeActions() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addStretch(1);
  const QString captions[] = {tr("Print Highlighted Window"), tr("Print All Windows"), tr("Close without Printing")};
  for (int i = 0; i < 3; ++i) {
    auto* button = new Button(QString("SSCommand1_%1").arg(i), captions[i], i < 2 ? "print" : "",
                              i < 2 ? Look::Filled : Look::Quiet, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, i] {
      if (i == 0) emit PrintHighWanted();
      else if (i == 1) emit PrintAllWanted();
      else reject();
    });
    row->addWidget(button);
  }
  return row;
}

/// The buttons tell the format where the cursor stands.
void Notesform::ShowFormat() {
  bold_->setChecked(notes_->fontWeight() > QFont::Medium);
  italic_->setChecked(notes_->fontItalic());
  underline_->setChecked(notes_->fontUnderline());
  const bool sized = notes_->currentCharFormat().hasProperty(QTextFormat::FontPointSize);
  size_->setCurrentIndex(size_->findData(sized ? qRound(notes_->fontPointSize()) : kUsualSize));
}

RichText Notesform::Notes() const { return RichTextOf(*notes_->document()); }

void Notesform::PrintBtn_Click(int index) {
  switch (index) {
    case 0: New(); break;
    case 1: Open(); break;
    case 2: Save(); break;
    case 3:
      if (Notes().Blank())
        host_.Message(MessageKind::Information, "", tr("There are no notes to print.").toStdString());
      else emit PrintNotesWanted();
      break;
    default: break;
  }
  notes_->setFocus();
}

/// True where no text would be lost, or the user does not mind.
bool Notesform::MayDrop() {
  const RichText notes = Notes();
  return notes.Blank() || notes.runs == kept_.runs ||
         host_.Question("", tr("The notes have not been saved. Do you want to lose them?").toStdString());
}

void Notesform::reject() {
  if (MayDrop()) QDialog::reject();
}

void Notesform::New() {
  if (!MayDrop()) return;
  notes_->clear();
  notes_->setCurrentCharFormat({});
  file_.clear();
}

void Notesform::Open() {
  if (!MayDrop()) return;
  const auto path =
      host_.PickFile({tr("Open Notes").toStdString(), "", Tr("Notes (*.txt;*.html;*.htm)|*.txt; *.html; *.htm")});
  if (!path) return;
  const auto read = host_.Drives().Ask(FolderOf(*path), [path = *path] { return ReadTextFile(path, kMostBytes); });
  if (!read)
    return host_.Message(MessageKind::Warning, "", tr("The drive of the notes does not answer.").toStdString());
  const auto& text = *read;
  if (!text)
    return host_.Message(MessageKind::Warning, "",
                         tr("The file cannot be read, or it is too large for notes.").toStdString());
  file_ = Q(*path);
  notes_->setCurrentCharFormat({});
  if (IsPage(file_)) notes_->setHtml(Q(*text));
  else notes_->setPlainText(BoxText(*text));
  TextIsKept();
}

void Notesform::Save() {
  const auto chosen = host_.PickNewFile(
      {tr("Save Notes").toStdString(), file_.toStdString(),
       Tr("Text Files, words alone (*.txt)|*.txt|Web Pages, with bold, italic and sizes (*.html)|*.html")});
  if (!chosen) return;
  const QString path = Q(*chosen);
  if (!host_.Drives().Answers(FolderOf(*chosen)))
    return host_.Message(MessageKind::Warning, "",
                         tr("The notes could not be saved: %1.").arg(tr("the drive does not answer")).toStdString());
  const std::string text = IsPage(path) ? notes_->toHtml().toStdString() : FileText(notes_->toPlainText());
  if (const Outcome saved = WriteWholeFile(path.toStdString(), text); saved) {
    file_ = path;
    TextIsKept();
  } else {
    host_.Message(MessageKind::Warning, "",
                  tr("The notes could not be saved: %1.").arg(QString::fromStdString(saved.Why())).toStdString());
  }
}

}  // namespace kinalyx
