#include "printing/forms/MomentForm.h"

#include <QBoxLayout>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

MomentForm::MomentForm(const ReportMaker& report, QWidget* parent)
    : QDialog(parent), report_(report), videos_(report.Videos()) {
  setObjectName("MomentForm");
  setWindowTitle(tr("Add Picture - %1").arg(Q(report.Student())));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kGap);
  const auto list = [&](const char* name, const QString& title, int stretch) {
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    column->addWidget(MakeLabel(QString(name) + "Title", title, "caption", this));
    auto* made = new NameList(name, this);
    column->addWidget(made, 1);
    lists->addLayout(column, stretch);
    return made;
  };
  videoList_ = list("VideoList", tr("Video"), 3);
  markList_ = list("MarkList", tr("Picture"), 2);
  LeastWidth(videoList_, 340);
  LeastWidth(markList_, 220);
  LeastHeight(videoList_, 300);
  rows->addLayout(lists, 1);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  actions->addStretch(1);
  add_ = new Button("AddBtn", tr("Add"), "add", Look::Filled, this);
  connect(add_, &QPushButton::clicked, this, &QDialog::accept);
  auto* cancel = new Button("CancelBtn", tr("Cancel"), "", Look::Quiet, this);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  actions->addWidget(add_);
  actions->addWidget(cancel);
  rows->addLayout(actions);
  QStringList names;
  for (const StudentVideo& video : videos_) names << QString("%1  (%2)").arg(Q(video.name), Q(video.date));
  connect(videoList_, &QListWidget::currentRowChanged, this, &MomentForm::ShowMarks);
  connect(markList_, &QListWidget::currentRowChanged, this, &MomentForm::ShowState);
  connect(markList_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  videoList_->SetHint(tr("The student has no videos."));
  videoList_->Fill(names, -1);
  videoList_->setCurrentRow(static_cast<int>(videos_.size()) - 1);
  ShowState();
  if (parent) ScaleForm(*this, *parent);
}

void MomentForm::ShowMarks() {
  const int row = videoList_->currentRow();
  if (row < 0) return;
  marks_.assign(1, VideoMark());  // the beginning
  const auto found = report_.MarksOf(videos_[static_cast<std::size_t>(row)].path);
  marks_.insert(marks_.end(), found.begin(), found.end());
  QStringList names;
  for (std::size_t i = 0; i < marks_.size(); ++i)
    names << (i == 0 ? tr("Beginning")
                     : tr("Mark %1").arg(i) + (marks_[i].Name.empty() ? QString() : ": " + Q(marks_[i].Name)));
  markList_->Fill(names, -1);
  // The first mark is where something is to be seen.
  markList_->setCurrentRow(marks_.size() > 1 ? 1 : 0);
  ShowState();
}

void MomentForm::ShowState() { add_->setEnabled(videoList_->currentRow() >= 0 && markList_->currentRow() >= 0); }

ReportItem MomentForm::Chosen() const {
  const StudentVideo& video = videos_[static_cast<std::size_t>(videoList_->currentRow())];
  const VideoMark& mark = marks_[static_cast<std::size_t>(markList_->currentRow())];
  const QString words = QString("%1, %2 (%3)").arg(Q(video.name), markList_->currentItem()->text(), Q(video.date));
  return {.kind = ReportItem::Kind::Moment, .caption = Std(words), .path = video.path, .moment = mark.Moment};
}

}  // namespace kinalyx
