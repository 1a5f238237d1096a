#include "distribution/lessons/forms/StudentChoice.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShowEvent>
#include <algorithm>
#include <utility>

#include "core/Vocabulary.h"
#include "library/Profile.h"
#include "library/forms/LibraryLists.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Boxes.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/NameForm.h"

namespace kinalyx {
namespace {

constexpr int kListHeight = 300;
constexpr int kListWidth = 250;
constexpr std::string_view kAddressField = "E-Mail Address";

}  // namespace

// ---------------------------------------------------------------- StudentChoice

StudentChoice::StudentChoice(const QString& name, const QString& title, IHost& host, const Settings& settings,
                             const StudentPick& chosen, QWidget* over)
    : QDialog(over),
      vocabulary_(settings),
      remembered_{chosen.instructor, chosen.student, {}},
      browser_(host.Drives(), settings, remembered_, LibraryBrowser::Kind::OpenVideo),
      host_(host),
      tree_(settings),
      lists_(new LibraryLists(browser_, settings, this)) {
  setObjectName(name);
  setWindowTitle(title);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel(name + "Title", title, "title", this));
  head_ = new QVBoxLayout;
  rows->addLayout(head_);
  find_ = new QLineEdit(this);
  find_->setObjectName("FindStudent");
  LetClear(*find_);
  find_->setPlaceholderText(tr("Find a %1").arg(Q(vocabulary_.noun())));
  find_->setAccessibleName(find_->placeholderText());
  connect(find_, &QLineEdit::textChanged, this, &StudentChoice::Narrow);
  rows->addWidget(find_);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(12);
  const auto add = [&](const QString& label, const QString& title_, NameList* list) {
    auto* panel = new Panel(label, title_, this);
    panel->Body()->addWidget(list);
    LeastWidth(list, kListWidth);
    LeastHeight(list, kListHeight);
    middle->addWidget(panel, 1);
  };
  add("InstructorLbl", tr("Instructors"), lists_->InstructorList());
  add("StudentLbl", Q(vocabulary_.Nouns()), lists_->StudentList());
  lists_->VideoList()->setParent(this);
  lists_->VideoList()->hide();
  rows->addLayout(middle);
  foot_ = new QVBoxLayout;
  rows->addLayout(foot_);
  auto* actions = new QHBoxLayout;
  actions->addStretch(1);
  auto* cancel = new Button(name + "Cancel", tr("Cancel"), {}, Look::Quiet, this);
  select_ = new Button(name + "Select", tr("Select this %1").arg(Q(vocabulary_.noun())), "check", Look::Filled, this);
  select_->setDefault(true);
  actions->addWidget(cancel);
  actions->addWidget(select_);
  rows->addLayout(actions);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(select_, &QPushButton::clicked, this, &QDialog::accept);
  connect(lists_->StudentList(), &QListWidget::itemDoubleClicked, this, [this] {
    if (browser_.HasStudent()) accept();
  });
  connect(lists_, &LibraryLists::InstructorChosen, this, [this] { ShowFitting(find_->text().trimmed()); });
  connect(lists_, &LibraryLists::StudentChosen, this, &StudentChoice::ChoiceChanged);
}

void StudentChoice::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  browser_.CapfolderSetup();
  lists_->ShowAll();
  ReadAll();
  ChoiceChanged();
  ScaleForm(*this, *parentWidget()->window());
  find_->setFocus();
}

void StudentChoice::ReadAll() {
  auto read = host_.Drives().Ask(tree_.Root(), [root = tree_.Root()] {
    const LibraryTree tree(root);
    std::vector<StudentPick> all;
    for (const std::string& instructor : tree.Instructors())
      for (const std::string& student : tree.Students(instructor)) all.push_back({instructor, student});
    return all;
  });
  if (read) all_ = std::move(*read);
}

/// Shows those students whose names hold what was typed, and takes the first of them; where this instructor has none,
/// that of another one.
void StudentChoice::Narrow(const QString& text) {
  const QString wanted = text.trimmed();
  int first = ShowFitting(wanted);
  if (wanted.isEmpty()) return;
  if (first < 0) {
    const auto fits = [&](const StudentPick& one) { return Q(one.student).contains(wanted, Qt::CaseInsensitive); };
    const auto found = std::ranges::find_if(all_, fits);
    if (found == all_.end() || !browser_.SelectInstructor(found->instructor)) return;
    lists_->ShowAll();
    first = ShowFitting(wanted);
  }
  NameList* list = lists_->StudentList();
  if (first >= 0 && (list->currentRow() < 0 || list->isRowHidden(list->currentRow()))) list->setCurrentRow(first);
}

/// @return  the first row that is shown; -1 for none
int StudentChoice::ShowFitting(const QString& wanted) {
  NameList* list = lists_->StudentList();
  int first = -1;
  for (int row = 0; row < list->count(); ++row) {
    const bool fits = list->item(row)->text().contains(wanted, Qt::CaseInsensitive);
    list->setRowHidden(row, !fits);
    if (fits && first < 0) first = row;
  }
  return first;
}

void StudentChoice::ChoiceChanged() { select_->setEnabled(browser_.HasStudent()); }

StudentPick StudentChoice::Pick() const { return {browser_.Instructor(), browser_.Student()}; }

// ---------------------------------------------------------------- RecorderSelectForm

RecorderSelectForm::RecorderSelectForm(IHost& host, const Settings& settings, const ProfileFields& fields,
                                       const StudentPick& chosen, QWidget* over)
    : StudentChoice("RecorderSelectForm", tr("%1 to Record").arg(Q(Vocabulary(settings).Select())), host, settings,
                    chosen, over),
      fields_(fields) {
  auto* row = new QHBoxLayout;
  address_ = MakeLabel("EmailLbl", {}, "muted", this);
  add_ = new Button("AddEmailBtn", tr("Add Email Address"), {}, Look::Quiet, this);
  add_->setAutoDefault(false);
  row->addWidget(address_, 1);
  row->addWidget(add_);
  Foot()->addLayout(row);
  connect(add_, &QPushButton::clicked, this, &RecorderSelectForm::AddAddress);
}

void RecorderSelectForm::ChoiceChanged() {
  StudentChoice::ChoiceChanged();
  const bool chosen = Browser().HasStudent();
  add_->setEnabled(chosen);
  if (!chosen) return address_->clear();
  const auto found = Host().Drives().Ask(
      Browser().Folder(), [folder = Browser().Folder()] { return GetEmailAddress(folder).value_or(""); });
  const QString address = Q(found.value_or("")).trimmed();
  address_->setText(address.isEmpty() ? tr("No Email address on file.") : address);
}

void RecorderSelectForm::AddAddress() {
  const auto field = std::ranges::find(fields_.Captions(), kAddressField);
  if (field == fields_.Captions().end()) {
    Host().Message(MessageKind::Information, "",
                   Tr("The profiles have no field \"E-Mail Address\". Program Setup has them."));
    return;
  }
  const std::string folder = Browser().Folder();
  NameForm form("EmailAddress", tr("Add Email Address"), tr("Email address of %1").arg(Q(Browser().Student())),
                kMaxFieldText, this);
  form.BeginWith(Q(GetEmailAddress(folder).value_or("")).trimmed());
  if (form.exec() != QDialog::Accepted) return;
  const FieldTexts base = OpenProfile(folder, fields_).Stored();
  FieldTexts values = base;
  values[static_cast<std::size_t>(field - fields_.Captions().begin())] = Std(form.Name());
  if (!SaveProfile(folder, fields_, values, base))
    Host().Message(MessageKind::Warning, "", Tr("The address could not be stored."));
  ChoiceChanged();
}

// ---------------------------------------------------------------- StudentSelectForm

StudentSelectForm::StudentSelectForm(IHost& host, const Settings& settings, const StudentPick& chosen, QWidget* over)
    : StudentChoice("StudentSelectForm", Q(Vocabulary(settings).Select()), host, settings, chosen, over) {
  const QString noun = Q(Vocabulary(settings).noun());
  auto* words = MakeLabel("StudentSelectText",
                          tr("Select the %1 name. This will allow the program to automatically add the %1 email "
                             "address.")
                              .arg(noun),
                          "muted", this);
  words->setWordWrap(true);
  Head()->addWidget(words);
}

}  // namespace kinalyx
