#include "capture/import/forms/CodecForm.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>

#include "platform/media/MediaFormats.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

enum Column { kName, kWhere, kReads, kWrites };
constexpr int kWidths[] = {150, 280, 80, 80};  // as designed

}  // namespace

CodecForm::CodecForm(QWidget* over) : QDialog(over) {
  setObjectName("CodecForm");
  setWindowTitle(tr("Kinds of Video"));
  setWindowModality(Qt::WindowModal);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 20, 24, 20);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(MakeLabel("CodecTitle", tr("Kinds of Video"), "title"));

  QStringList missing;
  auto* list = new QTreeWidget;
  list->setObjectName("CodecList");
  list->setAccessibleName(tr("Kinds of video"));
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setHeaderLabels({tr("Pictures"), tr("Stored by"), tr("Reads"), tr("Writes")});
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->header()->setSectionsMovable(false);
  for (const MediaFormat& format : KnownFormats()) {
    const auto mark = [](bool able) { return able ? tr("Yes") : QString("\u2013"); };
    auto* item = new QTreeWidgetItem({Q(format.name), Q(format.where), mark(format.reads), mark(format.writes)});
    item->setSizeHint(kName, QSize(0, Px(kRowHeight)));
    list->addTopLevelItem(item);
    if (!format.reads) missing << Q(format.name);
  }
  FixSize(list, {610, 360});
  rows->addWidget(list);

  auto* note = MakeLabel("CodecNote",
                         missing.isEmpty()
                             ? tr("All of them can be opened here. What is imported becomes Motion JPEG or DV.")
                             : tr("Missing: %1. Install the package libavcodec-extra, and start the program again.")
                                   .arg(missing.join(", ")),
                         "muted");
  note->setWordWrap(true);
  rows->addWidget(note);
  auto* close = new Button("CodecClose", tr("Close"));
  close->setDefault(true);
  auto* actions = new QHBoxLayout;
  actions->addStretch(1);
  actions->addWidget(close);
  rows->addLayout(actions);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  ScaleForm(*this, *over->window());
  for (int column = kName; column < kWrites; ++column) list->setColumnWidth(column, Px(kWidths[column]));
}

}  // namespace kinalyx
