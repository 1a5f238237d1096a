#include "distribution/models/forms/DLModelsForm.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <utility>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

constexpr QSize kRoom{760, 420};
constexpr int kParts = 1000;

/// Shows texts without losing the row that is chosen, where they are as they were.
void Fill(QListWidget& list, const std::vector<std::string>& texts) {
  bool same = list.count() == static_cast<int>(texts.size());
  for (int row = 0; same && row < list.count(); ++row)
    same = list.item(row)->text() == Q(texts[static_cast<std::size_t>(row)]);
  if (same) return;
  const QSignalBlocker quiet(list);
  list.clear();
  for (const std::string& text : texts) list.addItem(Q(text));
}

}  // namespace

DLModelsForm::DLModelsForm(ModelVideos::Parts parts, QWidget* over)
    : QDialog(over), host_(parts.host), models_(std::move(parts), *this) {
  setObjectName("DLModelsForm");
  setWindowTitle(tr("Download Model Videos"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel("DLModelsTitle", windowTitle(), "title"));
  parts_ = new QStackedWidget;
  parts_->addWidget(MakeLists());
  parts_->addWidget(MakeEmpty());
  LeastWidth(parts_, kRoom.width());
  LeastHeight(parts_, kRoom.height());
  rows->addWidget(parts_, 1);
  gauge_ = new QProgressBar;
  gauge_->setObjectName("DLModelsGauge");
  gauge_->setTextVisible(false);
  QSizePolicy keep = gauge_->sizePolicy();
  keep.setRetainSizeWhenHidden(true);
  gauge_->setSizePolicy(keep);
  rows->addWidget(gauge_);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(8);
  status_ = MakeLabel("DLModelsStatus", {});
  detail_ = MakeLabel("DLModelsDetail", {}, "muted");
  selected_ = MakeLabel("DLModelsSelected", {}, "muted");
  again_ = new Button("DLModelsAgain", tr("Try Again"), "loop", Look::Quiet);
  close_ = new Button("DLModelsClose", tr("Close"), {}, Look::Quiet);
  SSCommand4_ = new Button("SSCommand4", tr("Download"), "save", Look::Filled);
  for (Button* button : {again_, close_, SSCommand4_}) button->setAutoDefault(false);
  foot->addWidget(status_);
  foot->addWidget(detail_, 1);
  foot->addWidget(selected_);
  for (Button* button : {again_, close_, SSCommand4_}) foot->addWidget(button);
  rows->addLayout(foot);
  // A folder that is current already can be asked for again; the keys go to it by Return.
  for (const auto signal : {&QListWidget::itemClicked, &QListWidget::itemActivated}) {
    connect(List1_, signal, this, [this](QListWidgetItem* item) { List1_Click(List1_->row(item)); });
    connect(List2_, signal, this, [this](QListWidgetItem* item) { List2_Click(List2_->row(item)); });
  }
  connect(List3_, &QListWidget::itemSelectionChanged, this, &DLModelsForm::List3_Click);
  connect(List3_, &QListWidget::itemActivated, this, &DLModelsForm::SSCommand4_Click);
  connect(again_, &QPushButton::clicked, this, &DLModelsForm::Form_Load);
  connect(close_, &QPushButton::clicked, this, &DLModelsForm::reject);
  connect(SSCommand4_, &QPushButton::clicked, this, &DLModelsForm::SSCommand4_Click);
  ScaleForm(*this, *over->window());
}

QWidget* DLModelsForm::MakeLists() {
  auto* lists = new QWidget;
  auto* columns = new QHBoxLayout(lists);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(10);
  const auto add = [&](const char* name, const QString& title, const QString& hint, int stretch) {
    auto* panel = new Panel(QString(name) + "Title", title);
    auto* list = new NameList(name);
    list->setAccessibleName(title);
    list->SetHint(hint);
    panel->Body()->addWidget(list);
    columns->addWidget(panel, stretch);
    return list;
  };
  List1_ = add("List1", tr("Folders"), {}, 2);
  List2_ = add("List2", tr("Models"), tr("Choose a folder."), 2);
  List3_ = add("List3", tr("Videos"), tr("Choose a model to see the videos."), 3);
  List3_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  return lists;
}

QWidget* DLModelsForm::MakeEmpty() {
  auto* empty = new QWidget;
  auto* rows = new QVBoxLayout(empty);
  auto* words = MakeLabel("DLModelsEmpty",
                          tr("No server for model videos is set. If your club or association has one, type its address "
                             "into Program Setup, Internet."));
  words->setWordWrap(true);
  words->setAlignment(Qt::AlignCenter);
  auto* go = new Button("DLModelsSetup", tr("Go to Program Setup"), "setup", Look::Filled);
  rows->addStretch(1);
  rows->addWidget(words);
  rows->addSpacing(12);
  rows->addWidget(go, 0, Qt::AlignCenter);
  rows->addStretch(1);
  connect(go, &QPushButton::clicked, this, [this] {
    hide();
    emit SetupWanted();
  });
  return empty;
}

void DLModelsForm::Open() {
  show();
  raise();
  activateWindow();
  if (models_.Folders().empty() && !models_.Busy()) Form_Load();
  ShowState();
}

void DLModelsForm::Form_Load() {
  models_.Open();
  ShowState();
}

void DLModelsForm::List1_Click(int row) { models_.ChooseFolder(row); }
void DLModelsForm::List2_Click(int row) { models_.ChooseSubfolder(row); }
void DLModelsForm::List3_Click() { ShowState(); }

/// The button cancels what it has begun.
void DLModelsForm::SSCommand4_Click() {
  if (models_.Busy()) return models_.Cancel();
  models_.Download(Chosen());
}

std::vector<int> DLModelsForm::Chosen() const {
  std::vector<int> rows;
  for (int row = 0; row < List3_->count(); ++row)
    if (List3_->item(row)->isSelected()) rows.push_back(row);
  return rows;
}

void DLModelsForm::FillLists() {
  Fill(*List1_, models_.Folders());
  Fill(*List2_, models_.Subfolders());
  std::vector<std::string> names;
  for (const ModelVideo& video : models_.Videos()) names.push_back(video.name);
  Fill(*List3_, names);
  for (int row = 0; row < List3_->count(); ++row) {
    const ModelVideo& video = models_.Videos()[static_cast<std::size_t>(row)];
    const QString size = video.bytes < 0 ? QString() : QLocale().formattedDataSize(video.bytes);
    List3_->item(row)->setToolTip(video.here ? tr("In your library already") : size);
    List3_->item(row)->setForeground(
        palette().brush(video.here ? QPalette::Disabled : QPalette::Active, QPalette::Text));
  }
}

void DLModelsForm::ShowState() {
  const bool busy = models_.Busy();
  parts_->setCurrentIndex(models_.Configured() ? 0 : 1);
  for (QListWidget* list : {List1_, List2_, List3_}) list->setEnabled(!busy);
  status_->setText(models_.Configured() ? Q(models_.Status()) : QString());
  detail_->setText(Q(models_.Detail()));
  selected_->setText(Q(SelectedText(Chosen().size())));
  selected_->setVisible(models_.Configured() && !busy && List3_->count() > 0);
  gauge_->setVisible(busy);
  const double part = models_.Part();
  gauge_->setRange(0, part < 0 ? 0 : kParts);
  gauge_->setValue(static_cast<int>(part * kParts));
  again_->setVisible(models_.Configured() && !busy && models_.Folders().empty());
  SSCommand4_->setVisible(models_.Configured());
  SSCommand4_->setText(busy ? tr("Cancel") : tr("Download"));
  SSCommand4_->setEnabled(busy || !Chosen().empty());
}

void DLModelsForm::ModelsChanged() {
  FillLists();
  ShowState();
}

void DLModelsForm::ModelsFailed(const std::string& title, const std::string& text) {
  ShowState();
  host_.Message(MessageKind::Information, title, text);
}

/// A download goes on without its form.
void DLModelsForm::reject() {
  if (models_.Busy() && !models_.Downloading()) models_.Cancel();
  QDialog::reject();
}

}  // namespace kinalyx
