#include "workspace/forms/CloneForm.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QPushButton>
#include <algorithm>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr int kPlanWidth = 396;  // as designed
constexpr int kPlanHeight = 224;

}  // namespace

CloneForm::CloneForm(const std::vector<Window>& windows, QWidget* parent) : QDialog(parent) {
  setObjectName("CloneForm");
  setWindowTitle(tr("Clone Drawings to another Window"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  auto* words =
      MakeLabel("CloneText", tr("Clone all drawings to another window. Select the window to copy to and click 'OK'"),
                nullptr, this);
  words->setWordWrap(true);
  FixWidth(words, kPlanWidth);
  rows->addWidget(words);

  auto* plan = new QWidget(this);
  FixSize(plan, {kPlanWidth, kPlanHeight});
  rows->addWidget(plan);
  windows_ = new QButtonGroup(this);
  QRect whole;
  for (const Window& window : windows) whole |= window.place;
  const auto scaled = [](int at, int size, int room) { return size > 0 ? at * room / size : 0; };
  for (const Window& window : windows) {
    auto* button =
        new Button(QString("WindowBtn%1").arg(window.number), QString::number(window.number), {}, Look::Quiet, plan);
    const int left = scaled(window.place.left() - whole.left(), whole.width(), plan->width());
    const int top = scaled(window.place.top() - whole.top(), whole.height(), plan->height());
    const int right = scaled(window.place.left() + window.place.width() - whole.left(), whole.width(), plan->width());
    const int bottom = scaled(window.place.top() + window.place.height() - whole.top(), whole.height(), plan->height());
    // Fixed: the style gives buttons a height of their own.
    button->setStyleSheet("min-height: 0; max-height: 10000px; padding: 0 2px;");
    button->ensurePolished();  // its font is the sheet's
    button->setFixedSize(std::max(20, right - left - 4), std::max(20, bottom - top - 4));
    button->move(left + 2, top + 2);
    button->setCheckable(true);
    button->setEnabled(!window.source && !window.video.isEmpty());
    const QString name = window.source ? tr("this window") : window.video;
    if (!name.isEmpty())
      button->setText(QString("%1\n%2")
                          .arg(window.number)
                          .arg(button->fontMetrics().elidedText(name, Qt::ElideRight, button->width() - 12)));
    button->setToolTip(window.source            ? tr("The drawings of this window are copied")
                       : window.video.isEmpty() ? tr("No video in this window")
                                                : window.video);
    windows_->addButton(button, window.number);
  }

  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  auto* ok = new Button("Command1", tr("OK"), {}, Look::Filled, this);
  auto* cancel = new Button("Command2", tr("Cancel"), {}, Look::Quiet, this);
  ok->setDefault(true);
  ok->setEnabled(false);
  ok->setToolTip(tr("Select a window first"));
  actions->addWidget(ok);
  actions->addWidget(cancel);
  rows->addLayout(actions);
  connect(windows_, &QButtonGroup::idClicked, this, [ok] {
    ok->setEnabled(true);
    ok->setToolTip({});
  });
  // Where there is one choice it is made.
  std::vector<QAbstractButton*> open;
  for (QAbstractButton* button : windows_->buttons())
    if (button->isEnabled()) open.push_back(button);
  if (open.size() == 1) {
    open.front()->click();
    ok->setFocus();
  }
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  if (parent) ScaleForm(*this, *parent);
}

int CloneForm::Target() const { return std::max(0, windows_->checkedId()); }

}  // namespace kinalyx
