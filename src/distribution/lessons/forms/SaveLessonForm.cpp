#include "distribution/lessons/forms/SaveLessonForm.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <cmath>

#include "distribution/lessons/LessonSaver.h"
#include "platform/files/Folders.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"

namespace kinalyx {
namespace {

constexpr int kWide = 420;
constexpr int kLongestName = 100;

QString Length(double seconds) {
  const int whole = static_cast<int>(std::lround(seconds));
  return QString("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QChar('0'));
}

}  // namespace

SaveLessonForm::SaveLessonForm(LessonSession& session, QWidget* over) : QDialog(over), session_(session) {
  setObjectName("SaveLessonForm");
  setWindowTitle(tr("Save Lesson"));
  setModal(true);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(20, 18, 20, 18);

  asking_ = new QWidget(this);
  auto* rows = new QVBoxLayout(asking_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel("SaveLessonTitle", tr("Save Lesson"), "title", asking_));
  auto* owner = new QHBoxLayout;
  whose_ = MakeLabel("LessonWhose", {}, nullptr, asking_);
  change_ = new Button("LessonStudent", tr("Change..."), {}, Look::Quiet, asking_);
  change_->setAutoDefault(false);
  owner->addWidget(whose_, 1);
  owner->addWidget(change_);
  rows->addLayout(owner);
  Text1_ = new QLineEdit(asking_);
  Text1_->setObjectName("Text1");
  Text1_->setAccessibleName(tr("Name of the lesson"));
  Text1_->setMaxLength(kLongestName);
  LeastWidth(Text1_, kWide);
  rows->addWidget(Text1_);
  MsgLbl_ = MakeLabel("MsgLbl", {}, nullptr, asking_);
  MsgLbl_->setWordWrap(true);
  FixWidth(MsgLbl_, kWide);
  rows->addWidget(MsgLbl_);
  progress_ = new QProgressBar(asking_);
  progress_->setObjectName("SaveLessonProgress");
  progress_->setRange(0, 100);
  rows->addWidget(progress_);
  auto* actions = new QHBoxLayout;
  actions->addStretch(1);
  later_ = new Button("SaveLessonLater", tr("Not Now"), {}, Look::Quiet, asking_);
  SSCommand1_ = new Button("SSCommand1", tr("Save Video"), "save", Look::Filled, asking_);
  SSCommand1_->setDefault(true);
  actions->addWidget(later_);
  actions->addWidget(SSCommand1_);
  rows->addLayout(actions);
  all->addWidget(asking_);

  MsgPnl_ = new QWidget(this);
  MsgPnl_->setObjectName("MsgPnl");
  auto* done = new QVBoxLayout(MsgPnl_);
  done->setContentsMargins(0, 0, 0, 0);
  done->setSpacing(12);
  done->addWidget(MakeLabel("MsgPnlTitle", tr("Video Saved Successfully."), "title", MsgPnl_));
  savedAs_ = MakeLabel("LessonSavedAs", {}, "muted", MsgPnl_);
  savedAs_->setWordWrap(true);
  FixWidth(savedAs_, kWide);
  done->addWidget(savedAs_);
  auto* next = new QHBoxLayout;
  next->addStretch(1);
  auto* folder = new Button("LessonFolderBtn", tr("Show in Folder"), "open", Look::Quiet, MsgPnl_);
  auto* play = new Button("LessonPlayBtn", tr("Play It"), "play", Look::Quiet, MsgPnl_);
  auto* ok = new Button("SSCommand2", tr("OK"), {}, Look::Filled, MsgPnl_);
  for (Button* button : {folder, play, ok}) next->addWidget(button);
  done->addLayout(next);
  all->addWidget(MsgPnl_);

  connect(SSCommand1_, &QPushButton::clicked, this, &SaveLessonForm::Save);
  connect(later_, &QPushButton::clicked, this, [this] {
    if (session_.Phase() == LessonPhase::Saving) session_.PressCancel();
    else reject();
  });
  connect(change_, &QPushButton::clicked, this, &SaveLessonForm::StudentWanted);
  connect(Text1_, &QLineEdit::textEdited, this, [this] { MsgLbl_->clear(); });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(folder, &QPushButton::clicked, this, [this] { emit FolderWanted(Q(FolderOf(Std(path_)))); });
  connect(play, &QPushButton::clicked, this, [this] {
    accept();
    emit PlayWanted(path_);
  });
}

void SaveLessonForm::Open() {
  asking_->show();
  MsgPnl_->hide();
  MsgLbl_->clear();
  proposed_ = Q(session_.ProposedName());
  Text1_->setText(proposed_);
  Text1_->selectAll();
  Update();
  open();
  ScaleForm(*this, *parentWidget()->window());
  Text1_->setFocus();
}

void SaveLessonForm::Update() {
  if (session_.Phase() != LessonPhase::Finished && session_.Phase() != LessonPhase::Saving) return;
  const bool saving = session_.Phase() == LessonPhase::Saving;
  const QString name = session_.Student().empty() ? tr("nobody yet") : Q(session_.Student());
  whose_->setText(
      tr("%1 for %2, as %3").arg(Length(session_.Length()), name, session_.Kind() == LessonKind::Mp4 ? "MP4" : "AVI"));
  progress_->setVisible(saving);
  progress_->setValue(static_cast<int>(session_.SavedPart() * 100));
  const bool again = !saving && !Text1_->isEnabled();
  for (QWidget* part : {static_cast<QWidget*>(Text1_), static_cast<QWidget*>(change_)}) part->setEnabled(!saving);
  SSCommand1_->setEnabled(!saving);
  // It could not be kept: Return tries once more, and does not put it off.
  if (again && isVisible()) Text1_->setFocus();
  later_->setText(saving ? tr("Cancel") : tr("Not Now"));
  later_->setToolTip(saving ? QString() : tr("The lesson waits in the recorder"));
  if (session_.Status() != StatusOf(session_.Phase())) MsgLbl_->setText(Q(session_.Status()));
  // A name that nobody has typed follows the student.
  if (!saving && Text1_->text() == proposed_ && isVisible()) {
    const QString next = Q(session_.ProposedName());
    if (next != proposed_) Text1_->setText(proposed_ = next);
  }
}

void SaveLessonForm::Save() {
  const std::string fault = session_.Save(Std(Text1_->text()));
  MsgLbl_->setText(Q(fault));
  if (fault.empty()) return;
  Text1_->setFocus();
  Text1_->selectAll();
}

bool SaveLessonForm::Asks() const { return isVisible() && asking_->isVisible(); }

void SaveLessonForm::Saved(const std::string& path) {
  path_ = Q(path);
  savedAs_->setText(path_);
  MsgLbl_->setText(tr("Video Saved."));
  asking_->hide();
  MsgPnl_->show();
  if (!isVisible()) open();
  adjustSize();
  findChild<QPushButton*>("SSCommand2")->setFocus();
}

}  // namespace kinalyx
