#include "capture/forms/NamingPanel.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr const char* kModes[] = {TrLater("General"), TrLater("Detailed"), TrLater("Manually enter all Video Names"),
                                  TrLater("Automatic Naming ie: Video1 Video2 etc.")};
constexpr const char* kNoName =
    TrLater("A name cannot hold these: \\ / : * ? \" < > | ! @ # $ % ^ & + = { } [ ] ~ ` ; '");

/// Choice buttons with the numbers of `LineChoicebtn` from `first` on.
QWidget* MakeChoices(QButtonGroup& group, std::span<const std::string_view> captions, int first, int columns) {
  auto* ground = new QWidget;
  auto* grid = new QGridLayout(ground);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(6);
  for (int i = 0; i < static_cast<int>(captions.size()); ++i) {
    auto* button = new Button(QString("LineChoicebtn%1").arg(first + i), Q(std::string(captions[i])), {}, Look::Quiet);
    button->setCheckable(true);
    group.addButton(button, first + i);
    grid->addWidget(button, i / columns, i % columns);
  }
  return ground;
}

}  // namespace

NamingPanel::NamingPanel(VideoNaming& naming, QWidget* parent)
    : Panel("NamingTitle", tr("Name of the Video"), parent), naming_(naming) {
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(kGap, 8, kGap, 10);
  rows->setSpacing(6);
  Body()->addLayout(rows);

  auto* name = new QHBoxLayout;
  VidNameLbl_ = MakeLabel("VidNameLbl", {}, "heading");
  VidNameLbl_->setWordWrap(true);
  change_ = IconButton("ChangeNamebtn", "rename", tr("Type another name for the next video"), Look::Quiet);
  name->addWidget(VidNameLbl_, 1);
  name->addWidget(change_);
  rows->addLayout(name);

  NameFrame_ = new QFrame;
  NameFrame_->setObjectName("NameFrame");
  auto* frame = new QHBoxLayout(NameFrame_);
  frame->setContentsMargins(0, 0, 0, 0);
  box_ = new QLineEdit;
  box_->setObjectName("ChangeNameBox");
  box_->setAccessibleName(tr("Name of the next video"));
  box_->setMaxLength(120);
  auto* take = IconButton("ChangeNameOk", "check", tr("Take this name (Return)"));
  frame->addWidget(box_, 1);
  frame->addWidget(take);
  NameFrame_->hide();
  rows->addWidget(NameFrame_);

  mode_ = new QComboBox;
  mode_->setObjectName("NameModeList");
  mode_->setAccessibleName(tr("Video Naming"));
  for (const char* mode : kModes) mode_->addItem(tr(mode));
  mode_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  mode_->setMinimumContentsLength(10);
  rows->addWidget(mode_);

  VidNametxt_ = new QLineEdit;
  VidNametxt_->setObjectName("VidNametxt");
  VidNametxt_->setMaxLength(80);
  VidNametxt_->setPlaceholderText(tr("Driver, vault, squat ..."));
  VidNametxt_->setAccessibleName(tr("Text in the name"));
  rows->addWidget(VidNametxt_);

  LineChoicebtn_ = new QButtonGroup(this);
  const int views = static_cast<int>(ViewChoices().size());
  views_ = MakeChoices(*LineChoicebtn_, ViewChoices(), 0, 3);
  shots_ = MakeChoices(*LineChoicebtn_, ShortGameChoices(), views, 1);
  rows->addWidget(views_);
  rows->addWidget(shots_);

  connect(change_, &QPushButton::clicked, this, &NamingPanel::ChangeNamebtn_Click);
  connect(take, &QPushButton::clicked, this, &NamingPanel::TakeName);
  for (QObject* field : std::initializer_list<QObject*>{box_, VidNametxt_}) field->installEventFilter(this);
  connect(mode_, &QComboBox::activated, this, [this](int index) {
    naming_.ChooseMode(static_cast<NameMode>(index + 1));
    SetupNameMode();
  });
  connect(VidNametxt_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!naming_.SetText(Std(text))) emit Told(tr(kNoName));
  });
  connect(LineChoicebtn_, &QButtonGroup::idClicked, this, [this](int index) { naming_.ChooseDetail(index); });
  naming_.SetEvents(this);
  SetupNameMode();
}

NamingPanel::~NamingPanel() { naming_.SetEvents(nullptr); }

void NamingPanel::SetupNameMode() {
  const NameMode mode = naming_.Mode();
  mode_->setCurrentIndex(static_cast<int>(mode) - 1);
  views_->setVisible(mode == NameMode::Detailed && !naming_.ShortGame());
  shots_->setVisible(mode == NameMode::Detailed && naming_.ShortGame());
  VidNametxt_->setPlaceholderText(mode == NameMode::Manual ? tr("Name of the next video")
                                                           : tr("Driver, vault, squat ..."));
  const int first = naming_.ShortGame() ? static_cast<int>(ViewChoices().size()) : 0;
  const bool fits = naming_.ShortGame() == (naming_.Detail() >= static_cast<int>(ViewChoices().size()));
  if (!fits) naming_.ChooseDetail(first);
  if (QAbstractButton* chosen = LineChoicebtn_->button(naming_.Detail())) chosen->setChecked(true);
  NameChanged();
}

void NamingPanel::NameChanged() {
  const QSignalBlocker quiet(VidNametxt_);
  if (naming_.Text().empty() && naming_.Mode() == NameMode::Manual) VidNametxt_->clear();
  const std::string shown = naming_.Shown();
  VidNameLbl_->setText(!shown.empty()             ? Q(shown)
                       : naming_.Folder().empty() ? tr("Choose who it is for")
                                                  : tr("Type a name"));
}

void NamingPanel::NameWanted() {
  if (naming_.Folder().empty()) return;
  ChangeNamebtn_Click();
}

void NamingPanel::ChangeNamebtn_Click() {
  if (!NameFrame_->isHidden()) return CloseBox();
  box_->setText(Q(naming_.NameToChange()));
  NameFrame_->show();
  box_->setFocus();
  box_->selectAll();
}

bool NamingPanel::TakeTyped() {
  if (NameFrame_->isHidden()) return true;
  // Who has typed the name in the field below wants no other.
  if (!box_->text().trimmed().isEmpty() || naming_.Shown().empty()) return TakeName();
  CloseBox();
  return true;
}

bool NamingPanel::TakeName() {
  if (!naming_.TakeChangedName(Std(box_->text()))) {
    emit Told(box_->text().trimmed().isEmpty() ? tr("Type a name for the video.") : tr(kNoName));
    return false;
  }
  CloseBox();
  return true;
}

void NamingPanel::CloseBox() {
  NameFrame_->hide();
  change_->setFocus();
}

bool NamingPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return Panel::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (watched == box_ && key == Qt::Key_Escape) {
    CloseBox();
    return true;
  }
  // Here it ends a name; to the page it means more.
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    if (watched == box_) TakeName();
    return true;
  }
  return Panel::eventFilter(watched, event);
}

}  // namespace kinalyx
