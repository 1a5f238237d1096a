#include "library/forms/ProfilePanel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <algorithm>
#include <optional>
#include <utility>

#include "core/Heading.h"
#include "core/Settings.h"
#include "library/forms/Divider.h"
#include "library/forms/FieldGrid.h"
#include "library/forms/HeadButton.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// The fields that an instructor looks at most: name, phone, e-mail, videos, years, hand, goals, injuries.
const std::vector<int> kBriefFields{0, 3, 4, 9, 5, 8, 12, 17};

/// After so long without a key the user counts as resting.
constexpr int kRestMs = 1000;

std::string NotSaved(const std::string& reason) {
  return Tr("The notes could not be saved: {}. They are kept and will be tried again.", reason);
}

std::vector<int> AllFields() {
  std::vector<int> fields;
  for (int field = 0; field < kProfileFields; ++field) fields.push_back(field);
  return fields;
}

}  // namespace

ProfilePanel::ProfilePanel(IHost& host, IPrinter& printer, const Settings& settings, QWidget* parent)
    : Panel("ProfileTitle", " ", parent),
      host_(host),
      printer_(printer),
      settings_(settings),
      vocabulary_(settings),
      notes_(*this) {
  details_ = HeadButton("ProBtn0", tr("Show Details"));
  edit_ = HeadButton("ProBtn1", tr("Edit"), "edit");
  print_ = HeadButton("ProBtn2", tr("Print"), "print");
  back_ = HeadButton("ProfileBack", tr("Videos"), "chevron-left");
  Head()->addWidget(back_);
  Head()->addWidget(edit_);
  Head()->addWidget(print_);
  Head()->addWidget(details_);

  fields_ = new FieldGrid;
  Body()->addWidget(fields_);

  notesPart_ = new QWidget;
  auto* notesRows = new QVBoxLayout(notesPart_);
  notesRows->setContentsMargins(0, 0, 0, 0);
  notesRows->addWidget(Divider());
  auto* notes = new QVBoxLayout;
  notes->setContentsMargins(kGap, 4, kGap, kGap);
  notes->setSpacing(6);
  notesRows->addLayout(notes, 1);
  notesTitle_ = MakeLabel("ProfileNotesTitle", {}, "heading");
  editor_ = new QPlainTextEdit;
  editor_->setObjectName("ProfileNotes");
  editor_->setTabChangesFocus(true);
  LeastHeight(editor_, 64);
  editor_->installEventFilter(this);
  notes->addWidget(notesTitle_);
  notes->addWidget(editor_, 1);
  Body()->addWidget(notesPart_, 1);
  notesTitle_->setBuddy(editor_);

  connect(editor_, &QPlainTextEdit::textChanged, this, [this] {
    typed_ = true;
    rest_ = HostTimer(host_, kRestMs, false, [this] { KeepTypedNotes(); });
  });
  connect(details_, &QPushButton::clicked, this, [this] { ProBtn(0); });
  connect(edit_, &QPushButton::clicked, this, [this] { ProBtn(1); });
  connect(print_, &QPushButton::clicked, this, [this] { ProBtn(2); });
  connect(back_, &QPushButton::clicked, this, &ProfilePanel::BackWanted);
  SetupVocabulary();
  SetView(View::Brief);
  OpenStudent("");
}

void ProfilePanel::SetupVocabulary() {
  notesTitle_->setText(Q(vocabulary_.Notes()));
  editor_->setAccessibleName(Q(vocabulary_.Notes()));
  editor_->setPlaceholderText(
      tr("What you want to remember about this %1. Saved by itself.").arg(Q(vocabulary_.noun())));
  if (notes_.StudentFolder().empty()) SetTitle(Q(vocabulary_.Profile()));
}

void ProfilePanel::SetView(View view) {
  if (view_ == View::Complete && view != View::Complete) SaveNotes();
  view_ = view;
  const bool complete = view == View::Complete;
  fields_->ShowFields(view == View::Brief ? kBriefFields : AllFields());
  notesPart_->setVisible(complete);
  back_->setVisible(complete);
  print_->setVisible(complete);
  details_->setVisible(!complete);
  details_->setText(view == View::Brief ? tr("Show Details") : tr("Details Off"));
  setSizePolicy(QSizePolicy::Preferred, complete ? QSizePolicy::Preferred : QSizePolicy::Maximum);
}

void ProfilePanel::ProBtn(int index) {
  if (notes_.StudentFolder().empty()) {
    emit Said(Q(vocabulary_.MustSelect()));
    return;
  }
  if (index == 0) SetView(view_ == View::Brief ? View::Details : View::Brief);
  if (index == 1) emit EditWanted();
  if (index == 2) PrintNotes();
}

void ProfilePanel::PrintNotes() {
  const std::string notes = TypedNotes();
  if (Q(notes).trimmed().isEmpty()) {
    emit Said(tr("There are no notes to print."));
    return;
  }
  const Outcome printed =
      printer_.Print({LastName(notes_.StudentFolder()), vocabulary_.Notes(), notes, ShownCompany(settings_)});
  if (printed.Kind() == Fault::Failed)
    host_.Message(MessageKind::Warning, vocabulary_.Notes(), Tr("The notes were not printed. {}", printed.Why()));
  else emit Said(printed ? tr("The notes were printed.") : tr("The notes were not printed."));
}

void ProfilePanel::OpenStudent(const std::string& studentFolder) {
  SaveNotes();
  const std::string& text = notes_.Open(studentFolder);
  const bool student = !studentFolder.empty();
  editor_->setPlainText(Q(text));
  typed_ = false;
  rest_.Stop();
  editor_->setEnabled(student && notes_.Readable());
  SetTitle(student ? Q(LastName(studentFolder)) : Q(vocabulary_.Profile()));
  if (!notes_.Readable()) emit Said(tr("The notes cannot be read."));
}

bool ProfilePanel::SaveNotes() {
  telling_.Stop();
  rest_.Stop();
  const Outcome kept = KeepNotes();
  if (kept) return true;
  const std::string text = NotSaved(kept.Why());
  const bool told = Told(kept.Why());
  toldReason_ = kept.Why();
  toldNotes_ = notes_.Unsaved();
  emit Said(Q(text));
  if (!told) host_.Message(MessageKind::Warning, Std(notesTitle_->text()), text);
  return told;
}

bool ProfilePanel::LeaveNotes() {
  const Outcome kept = KeepNotes();
  if (kept) return true;
  // A box that opens under a pressed mouse button leaves the list dragging.
  telling_ = HostTimer(host_, 0, false, [this] { SaveNotes(); });
  return Told(kept.Why()) || !notes_.OpenIsUnsaved();
}

/// The user knows that these notes could not be stored, and why.
bool ProfilePanel::Told(const std::string& reason) const {
  return reason == toldReason_ && notes_.Unsaved() == toldNotes_;
}

/// As it stands, with the no-break spaces that toPlainText would make plain ones.
std::string ProfilePanel::TypedNotes() const {
  QString text = editor_->document()->toRawText();
  text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
  return Std(text);
}

/// Puts into the editor what differs, so that the cursor stays where the user has it.
void ProfilePanel::ShowNotes(const std::string& text) {
  const QString wanted = Q(text).replace("\r\n", "\n");
  const QString shown = Q(TypedNotes());
  if (wanted == shown || wanted == shown + u'\n') return;
  const auto least = std::min(wanted.size(), shown.size());
  qsizetype front = 0;
  while (front < least && wanted[front] == shown[front]) ++front;
  qsizetype back = 0;
  while (back < least - front && wanted[wanted.size() - 1 - back] == shown[shown.size() - 1 - back]) ++back;
  const qsizetype shownEnd = shown.size() - back;
  const qsizetype wantedEnd = wanted.size() - back;
  // A cursor right before the added text stays before it.
  const auto placeOf = [&](qsizetype place) {
    return static_cast<int>(place <= front      ? place
                            : place >= shownEnd ? place - shownEnd + wantedEnd
                                                : std::min(place, wantedEnd));
  };
  QTextCursor own = editor_->textCursor();
  const int anchor = placeOf(own.anchor());
  const int position = placeOf(own.position());
  QTextCursor cursor(editor_->document());
  cursor.setPosition(static_cast<int>(front));
  cursor.setPosition(static_cast<int>(shownEnd), QTextCursor::KeepAnchor);
  cursor.insertText(wanted.mid(front, wantedEnd - front));
  own.setPosition(anchor);
  own.setPosition(position, QTextCursor::KeepAnchor);
  editor_->setTextCursor(own);
  typed_ = false;
  rest_.Stop();
}

/// What nobody has typed in is not looked at: the editor need not give back what it was given.
Outcome ProfilePanel::KeepNotes() {
  rest_.Stop();
  std::optional<std::string> typed;
  if (std::exchange(typed_, false)) typed = TypedNotes();
  const std::string shown = typed ? WithLineEnds(*typed) : notes_.Text();
  Outcome kept = notes_.Keep(typed);
  if (notes_.Text() != shown) ShowNotes(notes_.Text());  // what somebody else has written
  if (kept) toldNotes_.clear();
  return kept;
}

/// While the user rests. A silent drive is not waited for, and what fails is told without a box: the notes are
/// tried again when they are left.
void ProfilePanel::KeepTypedNotes() {
  resting_ = true;
  const Outcome kept = KeepNotes();
  resting_ = false;
  if (!kept) emit Said(Q(NotSaved(kept.Why())));
}

bool ProfilePanel::CanReachNotes(const std::string& folder) {
  DriveWatch& drives = host_.Drives();
  const std::string& library = settings_.LibraryPath;
  return resting_ ? drives.AnswersAtOnce(library, folder) : drives.Answers(library, folder);
}

/// The notes can at least be read, and copied out of the box; told when the click is over.
void ProfilePanel::NotesLost(const std::string& folder, const std::string& notes) {
  const std::string text = Tr("The notes of {} could not be saved: somebody else has renamed, moved or deleted the "
                              "folder. These were the notes:",
                              LastName(folder)) +
                           "\n\n" + notes;
  host_.StartTimer(0, false, [&host = host_, title = Std(notesTitle_->text()), text] {
    host.Message(MessageKind::Warning, title, text);
  });
}

void ProfilePanel::FocusNotes() { editor_->setFocus(Qt::OtherFocusReason); }

bool ProfilePanel::eventFilter(QObject* object, QEvent* event) {
  // A menu over the editor is no leaving of it.
  if (object == editor_ && event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
    LeaveNotes();
  return Panel::eventFilter(object, event);
}

}  // namespace kinalyx
