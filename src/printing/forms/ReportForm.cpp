#include "printing/forms/ReportForm.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTextEdit>
#include <algorithm>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "printing/forms/MomentForm.h"
#include "printing/forms/RichNotes.h"

namespace kinalyx {

namespace {

/// A text as a box edits it; sizes are the page's own.
void Fill(QTextEdit& box, const RichText& text) {
  QTextCursor cursor(box.document());
  for (const TextRun& run : text.runs) {
    QTextCharFormat format;
    format.setFontWeight(run.bold ? QFont::Bold : QFont::Normal);
    cursor.insertText(Q(run.text), format);
  }
}

}  // namespace

ReportForm::ReportForm(ReportMaker& report, QWidget* parent)
    : QDialog(parent), report_(report), items_(report.Offer()) {
  setObjectName("ReportForm");
  setWindowTitle(tr("Report - %1").arg(Q(report.Student())));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  auto* sides = new QHBoxLayout;
  sides->setSpacing(kGap);
  sides->addLayout(MakeListSide(), 1);
  sides->addLayout(MakeNotesSide(), 1);
  rows->addLayout(sides, 1);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  preview_ = new Button("PreviewBtn", tr("Preview and Print..."), "print", Look::Filled, this);
  preview_->setAutoDefault(false);
  connect(preview_, &QPushButton::clicked, this, &ReportForm::PreviewWanted);
  auto* close = new Button("CloseBtn", tr("Close"), "", Look::Quiet, this);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  actions->addWidget(preview_);
  actions->addWidget(close);
  rows->addLayout(actions);
  for (int i = 0; i < static_cast<int>(items_.size()); ++i) AddRow(items_[static_cast<std::size_t>(i)], i);
  connect(list_, &QListWidget::itemSelectionChanged, this, &ReportForm::ShowState);
  connect(list_, &QListWidget::itemChanged, this, &ReportForm::ShowState);
  list_->setCurrentRow(0);
  if (parent) ScaleForm(*this, *parent);
}

QLayout* ReportForm::MakeListSide() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(8);
  rows->addWidget(MakeLabel("ListTitle", tr("What goes in, from the first page to the last"), "caption", this));
  list_ = new QListWidget(this);
  list_->setObjectName("ReportList");
  list_->setAccessibleName(tr("What the report shows"));
  list_->setDragDropMode(QAbstractItemView::InternalMove);
  list_->setDefaultDropAction(Qt::MoveAction);
  list_->setSpacing(3);
  LeastWidth(list_, 380);
  LeastHeight(list_, 300);
  rows->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  up_ = IconButton("UpBtn", "chevron-up", tr("Earlier in the report"), Look::Quiet, this);
  connect(up_, &QPushButton::clicked, this, [this] { Move(-1); });
  down_ = IconButton("DownBtn", "chevron-down", tr("Later in the report"), Look::Quiet, this);
  connect(down_, &QPushButton::clicked, this, [this] { Move(1); });
  auto* add = new Button("AddBtn", tr("Add Picture..."), "add", Look::Quiet, this);
  add->setToolTip(tr("A picture of any video of the student, at one of its marks"));
  connect(add, &QPushButton::clicked, this, &ReportForm::AddPicture);
  remove_ = new Button("RemoveBtn", tr("Remove"), "trash", Look::Quiet, this);
  remove_->setToolTip(tr("Takes a picture that was added off the list"));
  connect(remove_, &QPushButton::clicked, this, &ReportForm::RemovePicture);
  for (Button* button : {up_, down_, add, remove_}) {
    button->setAutoDefault(false);
    buttons->addWidget(button);
  }
  buttons->addStretch(1);
  rows->addLayout(buttons);
  return rows;
}

QLayout* ReportForm::MakeNotesSide() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(8);
  thenLabel_ = MakeLabel("ThenLabel", tr("\"Then\" of \"Then and now\" is"), "caption", this);
  rows->addWidget(thenLabel_);
  then_ = new QComboBox(this);
  then_->setObjectName("ThenBox");
  then_->setAccessibleName(tr("The video of the earlier day"));
  then_->setToolTip(tr("Seen at its first mark, or at the mark that has the name of the present one"));
  then_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  for (const StudentVideo& video : report_.OtherVideos())
    then_->addItem(QString("%1  (%2)").arg(Q(video.name), Q(video.date)), Q(video.path));
  thenLabel_->setVisible(then_->count() > 0);
  then_->setVisible(then_->count() > 0);
  connect(then_, &QComboBox::activated, this, &ReportForm::TakeThen);
  rows->addWidget(then_);
  rows->addWidget(MakeLabel("NotesTitle", tr("Notes"), "caption", this));
  notes_ = new QTextEdit(this);
  notes_->setObjectName("Notes");
  notes_->setAccessibleName(tr("Notes"));
  notes_->setTabChangesFocus(true);
  notes_->setPlaceholderText(tr("What the student shall read and work on"));
  Fill(*notes_, report_.NotesOnStage());
  LeastWidth(notes_, 300);
  rows->addWidget(notes_, 1);
  return rows;
}

void ReportForm::AddRow(const ReportItem& item, int row) {
  const auto index = std::ranges::find_if(items_, [&](const ReportItem& each) { return &each == &item; });
  auto* entry = new QListWidgetItem(Q(item.caption));
  entry->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
  entry->setCheckState(item.wanted ? Qt::Checked : Qt::Unchecked);
  entry->setData(Qt::UserRole, static_cast<int>(index - items_.begin()));
  list_->insertItem(row, entry);
}

std::vector<ReportItem> ReportForm::Items() const {
  std::vector<ReportItem> items;
  for (int row = 0; row < list_->count(); ++row) {
    items.push_back(items_[static_cast<std::size_t>(list_->item(row)->data(Qt::UserRole).toInt())]);
    items.back().wanted = list_->item(row)->checkState() == Qt::Checked;
  }
  return items;
}

RichText ReportForm::Notes() const { return RichTextOf(*notes_->document()); }

void ReportForm::Move(int by) {
  const int row = list_->currentRow();
  if (row < 0 || row + by < 0 || row + by >= list_->count()) return;
  QListWidgetItem* item = list_->takeItem(row);
  list_->insertItem(row + by, item);
  list_->setCurrentRow(row + by);
}

void ReportForm::AddPicture() {
  MomentForm form(report_, this);
  if (form.exec() != QDialog::Accepted) return;
  items_.push_back(form.Chosen());
  const int row = list_->currentRow() + 1;
  AddRow(items_.back(), row);
  list_->setCurrentRow(row);
}

void ReportForm::RemovePicture() {
  delete list_->takeItem(list_->currentRow());
  ShowState();
}

void ReportForm::TakeThen() {
  for (ReportItem& item : items_)
    if (item.kind == ReportItem::Kind::ThenAndNow) item.path = Std(then_->currentData().toString());
}

void ReportForm::ShowState() {
  const int row = list_->currentRow();
  const QListWidgetItem* item = list_->item(row);
  const bool added =
      item && items_[static_cast<std::size_t>(item->data(Qt::UserRole).toInt())].kind == ReportItem::Kind::Moment;
  up_->setEnabled(row > 0);
  down_->setEnabled(row >= 0 && row + 1 < list_->count());
  remove_->setEnabled(added);
  const bool any = std::ranges::any_of(Items(), &ReportItem::wanted);
  preview_->setEnabled(any);
  preview_->setToolTip(any ? QString() : tr("Tick what shall go into the report first"));
}

}  // namespace kinalyx
