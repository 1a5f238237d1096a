#include "distribution/mail/forms/EmailListForm.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

constexpr QSize kList{360, 200};

}  // namespace

EmailListForm::EmailListForm(const QString& student, const std::vector<std::string>& addresses,
                             const std::vector<std::string>& chosen, QWidget* over)
    : QDialog(over), list_(new QListWidget(this)) {
  setObjectName("EmailListForm");
  setWindowTitle(tr("E-Mail Addresses"));
  setWindowModality(Qt::WindowModal);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel("EmailListTitle", student.isEmpty() ? windowTitle() : student, "title"));
  list_->setObjectName("EmailList");
  list_->setAccessibleName(windowTitle());
  LeastWidth(list_, kList.width());
  LeastHeight(list_, kList.height());
  for (const std::string& address : addresses) {
    auto* item = new QListWidgetItem(Q(address), list_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(std::ranges::find(chosen, address) == chosen.end() ? Qt::Unchecked : Qt::Checked);
  }
  rows->addWidget(list_, 1);
  auto* actions = new QHBoxLayout;
  actions->addWidget(MakeLabel("EmailListLbl", tr("Three at the most"), "muted"), 1);
  auto* cancel = new Button("EmailListCancel", tr("Cancel"), {}, Look::Quiet, this);
  auto* choose = new Button("EmailListSelect", tr("Select"), "check", Look::Filled, this);
  choose->setDefault(true);
  actions->addWidget(cancel);
  actions->addWidget(choose);
  rows->addLayout(actions);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(choose, &QPushButton::clicked, this, &QDialog::accept);
  connect(list_, &QListWidget::itemChanged, this, &EmailListForm::LimitChoice);
  // A row is easier to hit than its box.
  connect(list_, &QListWidget::itemActivated, this, [](QListWidgetItem* item) {
    item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
  });
  LimitChoice();
  ScaleForm(*this, *over->window());
}

/// With three chosen the others are closed.
void EmailListForm::LimitChoice() {
  const QSignalBlocker quiet(list_);
  const bool full = Chosen().size() >= kMost;
  for (int row = 0; row < list_->count(); ++row) {
    QListWidgetItem* item = list_->item(row);
    const bool open = !full || item->checkState() == Qt::Checked;
    item->setFlags(open ? item->flags() | Qt::ItemIsEnabled : item->flags() & ~Qt::ItemIsEnabled);
  }
}

std::vector<std::string> EmailListForm::Chosen() const {
  std::vector<std::string> chosen;
  for (int row = 0; row < list_->count(); ++row)
    if (list_->item(row)->checkState() == Qt::Checked) chosen.push_back(Std(list_->item(row)->text()));
  return chosen;
}

}  // namespace kinalyx
