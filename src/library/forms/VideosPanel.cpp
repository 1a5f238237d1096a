#include "library/forms/VideosPanel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <utility>

#include "core/Settings.h"
#include "library/BadVideos.h"
#include "library/LibraryActions.h"
#include "library/LibraryReading.h"
#include "library/forms/Divider.h"
#include "library/forms/EditPanel.h"
#include "library/forms/HeadButton.h"
#include "library/forms/SidecarMarkLabels.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

// ---------------------------------------------------------------- summary

/// The facts of a video in one line; those that find no room are left out whole.
class SummaryLine final : public QWidget {
 public:
  SummaryLine() {
    setObjectName("StatsLine");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    LeastWidth(this, 60);
    LeastHeight(this, 20);
  }
  void SetFacts(QStringList facts) {
    facts_ = std::move(facts);
    setAccessibleName(facts_.join(", "));
    setToolTip(facts_.join("   "));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(CurrentTheme().muted);
    // They stand closer where that lets another one in.
    constexpr int kSpaces[] = {18, 14, 10};
    int space = kSpaces[0];
    for (const int closer : kSpaces)
      if (FactsIn(painter.fontMetrics(), closer) > FactsIn(painter.fontMetrics(), space)) space = closer;
    int left = 0;
    for (qsizetype at = 0; at < FactsIn(painter.fontMetrics(), space); ++at) {
      const int wide = FiguresWidth(painter.fontMetrics(), facts_[at]);
      DrawFigures(painter, QRect(left, 0, wide, height()), Qt::AlignLeft, facts_[at]);
      left += wide + space;
    }
  }

 private:
  /// How many of the facts find room when they stand so far apart.
  qsizetype FactsIn(const QFontMetrics& metrics, int space) const {
    int right = -space;
    qsizetype count = 0;
    while (count < facts_.size() && (right += space + FiguresWidth(metrics, facts_[count])) <= width()) ++count;
    return count;
  }

  QStringList facts_;
};

// ---------------------------------------------------------------- panel

VideosPanel::VideosPanel(PlayerServices& services, const Settings& settings, ListChoices& choices, NameList* list,
                         QWidget* parent)
    : Panel("VideosTitle", tr("Videos"), parent),
      drives_(services.host.Drives()),
      settings_(settings),
      choices_(choices),
      list_(list) {
  count_ = new FigureLabel("VideoCount");
  count_->setProperty("look", "caption");
  Head()->insertWidget(1, count_);
  Head()->setStretch(0, 0);
  Head()->addStretch(1);
  sort_ = HeadButton("VideoSortBtn", Q(SortCaption(choices_.Sort().by)));
  sort_->setToolTip(tr("By what the videos are sorted"));
  pictures_ = HeadButton("VideoPicturesBtn", {}, "rows");
  pictures_->setToolTip(tr("Pictures and details of the videos, or names alone"));
  pictures_->setAccessibleName(tr("Pictures and details"));
  pictures_->setCheckable(true);
  pictures_->setChecked(choices_.Pictures());
  Head()->addWidget(sort_);
  Head()->addWidget(pictures_);
  connect(sort_, &QPushButton::clicked, this, &VideosPanel::OpenSortMenu);
  connect(pictures_, &QPushButton::clicked, this, [this](bool shown) {
    choices_.SetPictures(shown);
    LimitList();
  });

  middle_ = new QHBoxLayout;
  middle_->setSpacing(0);
  preview_ = new PreviewPlayer(services);
  middle_->addLayout(MakeList());
  middle_->addWidget(Divider(true));
  middle_->addWidget(preview_);
  Body()->addLayout(middle_, 1);

  Body()->addWidget(MakeSummary());
  statsPart_ = MakeStats();
  statsPart_->hide();
  Body()->addWidget(statsPart_);
  trim_ = new EditPanel(*preview_, Q(LibraryTextsFor(settings).trim));
  trim_->hide();
  layout()->addWidget(trim_);
  ShowVideo("");
}

/// The list, and beneath it how it gets longer.
QLayout* VideosPanel::MakeList() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(0);
  LeastWidth(list_, 140);
  rows->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(8, 6, 8, 6);
  buttons->setSpacing(8);
  add_ = new Button("AddVideosBtn", tr("Add Videos"), "plus", Look::Quiet);
  add_->setToolTip(
      tr("Copies videos from this computer, a telephone or a card to the student. They can also be dropped here."));
  connect(add_, &QPushButton::clicked, this, &VideosPanel::AddWanted);
  auto* folder = IconButton("OpenFolderBtn", "open", tr("Shows the folder of these videos"), Look::Quiet);
  connect(folder, &QPushButton::clicked, this, &VideosPanel::FolderWanted);
  buttons->addWidget(add_);
  buttons->addWidget(folder);
  buttons->addStretch(1);
  rows->addLayout(buttons);
  return rows;
}

/// What the video is, in one line beneath the picture, and the marks of its drawings and notes.
QWidget* VideosPanel::MakeSummary() {
  auto* strip = MakeFrame("panelFoot");
  FixHeight(strip, 38);
  auto* stripRow = new QHBoxLayout(strip);
  stripRow->setContentsMargins(kGap, 0, kGap, 0);
  stripRow->setSpacing(kGap);
  summary_ = new SummaryLine;
  marks_ = new SidecarMarkLabels;
  stripRow->addWidget(summary_, 1);
  stripRow->addWidget(marks_);
  return strip;
}

QWidget* VideosPanel::MakeStats() {
  auto* part = new QWidget;
  part->setObjectName("VideoStatistics");
  auto* statsRows = new QVBoxLayout(part);
  statsRows->setContentsMargins(kGap, 8, kGap, 8);
  statsRows->setSpacing(6);
  statsRows->addWidget(MakeLabel("VideoStatisticsTitle", tr("Video Statistics"), "heading"));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(0);
  // One text: the height of a picture and that of a person can be two words.
  const QStringList captions = tr("Format, Width, Height, Rate, Length, Duration, File size, Color, Sound").split(", ");
  for (int line = 0; line < 9; ++line) {
    auto* caption = MakeLabel(QString("StatCaption%1").arg(line), captions.value(line), "caption");
    auto* value = new FigureLabel(QString("ProInfoLbl%1").arg(kFirstStat + line), kNoStat);
    value->setAccessibleName(captions.value(line));
    value->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    grid->addWidget(caption, line / 5 * 2, line % 5);
    grid->addWidget(value, line / 5 * 2 + 1, line % 5);
    grid->setColumnStretch(line % 5, 1);
    LeastHeight(value, 22);
    stats_[static_cast<std::size_t>(line)] = value;
  }
  statsRows->addLayout(grid);
  return part;
}

bool VideosPanel::ShowVideo(const std::string& path) {
  ShowStats(NoVideoStats());
  marks_->Show({});
  if (path.empty()) {
    preview_->Unload();
    summary_->SetFacts({});
    return true;
  }
  const auto marks = AskVideoMarks(drives_, settings_.LibraryPath, path);
  if (!marks) {
    preview_->Unload();
    summary_->SetFacts({tr("The drive with this video is not answering.")});
    return true;
  }
  if (!preview_->Load(path)) {
    summary_->SetFacts({tr("This video cannot be opened.")});
    const auto arriving = drives_.Ask(settings_.LibraryPath, [path] { return StillArriving(path); });
    preview_->ShowWords(Q(BadVideoText(arriving.value_or(false))));
    return false;
  }
  const AVIControl& control = preview_->Control();
  ShowStats(StatsOf(*control.Info(), control.CurFormatBits()));
  marks_->Show(*marks);
  return true;
}

void VideosPanel::ShowStats(const VideoStats& stats) {
  for (std::size_t line = 0; line < stats.size(); ++line) stats_[line]->setText(Q(stats[line]));
  summary_->SetFacts({Q(stats[0]), Q(stats[1]) + QString(" \u00D7 ") + Q(stats[2]), Q(stats[3]), Q(stats[4]),
                      Q(stats[5]), Q(stats[6])});
}

void VideosPanel::ShowStatsPanel(bool shown) { statsPart_->setVisible(shown); }

bool VideosPanel::StatsShown() const { return !statsPart_->isHidden(); }

void VideosPanel::ShowTrim(bool shown) {
  if (shown == TrimShown()) return;
  trim_->setVisible(shown);
  Foot()->parentWidget()->setVisible(!shown);
  list_->setEnabled(!shown);
  add_->setEnabled(!shown);
  preview_->SetBarShown(!shown);
  if (shown) trim_->Open();
}

bool VideosPanel::TrimShown() const { return !trim_->isHidden(); }

void VideosPanel::SetCount(int videos) { count_->setText(videos > 0 ? QString::number(videos) : QString()); }

void VideosPanel::resizeEvent(QResizeEvent* event) {
  Panel::resizeEvent(event);
  LimitList();
}

void VideosPanel::changeEvent(QEvent* event) {
  Panel::changeEvent(event);
  if (event->type() == QEvent::StyleChange && preview_) LimitList();
}

/// The picture may take all that a large window has, but a list needs no more than this. Where that is too little for
/// pictures beside the names, there are none.
void VideosPanel::LimitList() {
  const bool pictures = choices_.Pictures() && width() >= Px(440);
  // A name is read whole before its video is seen large.
  const int percent = !pictures ? 31 : width() < Px(560) ? 50 : 42;
  middle_->setStretch(0, percent);
  middle_->setStretch(2, 100 - percent);
  list_->setMaximumWidth(qMax(Px(140), qMin(Px(420), width() * percent / 100)));
  if (pictures != std::exchange(picturesShown_, pictures)) emit PicturesShown(pictures);
}

// ---------------------------------------------------------------- order

void VideosPanel::OpenSortMenu() {
  auto* menu = new QMenu(sort_);
  menu->setObjectName("VideoSortMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (int each = 0; each < kVideoSorts; ++each) {
    const auto by = static_cast<VideoSort::By>(each);
    const bool present = by == choices_.Sort().by;
    const QString caption = present ? tr("%1, the other way round").arg(Q(SortCaption(by))) : Q(SortCaption(by));
    menu->addAction(caption, this, [this, by] { Sort(by); });
  }
  menu->addSeparator();
  QAction* goes = menu->addAction(tr("Go to Analysis with what is sent"));
  goes->setCheckable(true);
  goes->setChecked(choices_.GoesAlong());
  connect(goes, &QAction::triggered, this, [this](bool along) { choices_.SetGoesAlong(along); });
  menu->popup(sort_->mapToGlobal(QPoint(0, sort_->height())));
}

/// What it is sorted by already turns round.
void VideosPanel::Sort(VideoSort::By by) {
  const VideoSort before = choices_.Sort();
  choices_.SetSort({by, by == before.by && !before.turned});
  sort_->setText(Q(SortCaption(by)));
  emit SortChanged();
}

}  // namespace kinalyx
