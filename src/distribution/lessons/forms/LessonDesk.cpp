#include "distribution/lessons/forms/LessonDesk.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QWidget>
#include <cmath>
#include <utility>

#include "core/Settings.h"
#include "distribution/lessons/forms/ClickRing.h"
#include "distribution/lessons/forms/LessonPanel.h"
#include "distribution/lessons/forms/SaveLessonForm.h"
#include "distribution/lessons/forms/StudentChoice.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

LessonDesk::LessonDesk(const Parts& parts, QWidget* stage)
    : QObject(nullptr),
      parts_(parts),
      stage_(stage),
      jobs_(parts.host, JobRunner::On::Worker),
      session_({.host = parts.host,
                .settings = parts.settings,
                .setup = parts.setup,
                .screens = parts.screens,
                .remembered = parts.remembered,
                .view = *this,
                .jobs = jobs_},
               JoinPath(parts.settings.DataPath, "capture")),
      ring_(new ClickRing(this)) {
  session_.SetGraph(parts.makeGraph(session_.GraphEvents()));
}

/// The stage may have taken its panels with it.
LessonDesk::~LessonDesk() {
  session_.Leave();
  delete save_;
  delete panel_;
  delete offer_;
}

// ---------------------------------------------------------------- ILessonView

void LessonDesk::LessonChanged() {
  const LessonPhase phase = session_.Phase();
  if (phase != LessonPhase::Away && !panel_) {
    panel_ = new LessonPanel(session_, parts_.settings, stage_);
    parts_.events.TakeCard(*panel_);
    connect(panel_, &LessonPanel::StudentWanted, this, &LessonDesk::ChooseStudent);
    connect(panel_, &LessonPanel::SaveWanted, this, [this] { ShowSaveForm(); });
  }
  if (offer_ && phase != LessonPhase::Away) offer_->hide();
  if (panel_) panel_->Update();
  if (save_) save_->Update();
  if (std::exchange(told_, phase) == phase) return;
  ring_->SetOn(IsUnderWay(phase));
  stage_->setCursor(phase == LessonPhase::Preparing ? Qt::BusyCursor : Qt::ArrowCursor);
  if (phase == LessonPhase::Away) {
    if (save_ && save_->Asks()) save_->reject();
    ShowOffer();
  }
  parts_.events.LessonChanged();
}

void LessonDesk::ShowLevel(double level) {
  if (panel_) panel_->ShowLevel(level);
}

/// In the screen's own pixels.
ScreenPlace LessonDesk::Screen() {
  const QScreen* screen = stage_->screen();
  const QRect all = screen->geometry();
  const double density = screen->devicePixelRatio();
  return {all.left(), all.top(), static_cast<int>(std::lround(all.width() * density)),
          static_cast<int>(std::lround(all.height() * density))};
}

void LessonDesk::ShowSaveForm() {
  if (!save_) {
    save_ = new SaveLessonForm(session_, stage_->window());
    connect(save_, &SaveLessonForm::StudentWanted, this, &LessonDesk::ChooseOther);
    connect(save_, &SaveLessonForm::FolderWanted, this,
            [this](const QString& folder) { parts_.host.ShowFolder(Std(folder)); });
    connect(save_, &SaveLessonForm::PlayWanted, this,
            [this](const QString& path) { parts_.events.PlayLesson(Std(path)); });
  }
  save_->Open();
}

void LessonDesk::LessonSaved(const std::string& path) {
  if (!save_) ShowSaveForm();
  save_->Saved(path);
}

// ---------------------------------------------------------------- whose lesson it is

void LessonDesk::ChooseStudent() {
  RecorderSelectForm form(parts_.host, parts_.settings, parts_.fields, {session_.Instructor(), session_.Student()},
                          stage_->window());
  if (form.exec() == QDialog::Accepted) session_.ChooseStudent(form.Pick().instructor, form.Pick().student);
}

void LessonDesk::ChooseOther() {
  StudentSelectForm form(parts_.host, parts_.settings, {session_.Instructor(), session_.Student()}, save_);
  if (form.exec() == QDialog::Accepted) session_.ChooseStudent(form.Pick().instructor, form.Pick().student);
}

// ---------------------------------------------------------------- what an earlier run has left

void LessonDesk::Offer(std::vector<RecordedLesson> lessons) {
  left_ = std::move(lessons);
  ShowOffer();
}

void LessonDesk::MakeOffer() {
  offer_ = new FloatCard("UnfinishedLesson", tr("Unfinished Lesson"), stage_);
  parts_.events.TakeCard(*offer_);
  offerWords_ = MakeLabel("UnfinishedLessonWords", {}, nullptr, offer_);
  auto* row = new QHBoxLayout;
  auto* away = new QPushButton(tr("Throw Away"), offer_);
  away->setObjectName("UnfinishedLessonAway");
  auto* save = new QPushButton(tr("Save It"), offer_);
  save->setObjectName("UnfinishedLessonSave");
  row->addStretch(1);
  for (QPushButton* button : {away, save}) {
    button->setFocusPolicy(Qt::NoFocus);
    row->addWidget(button);
  }
  offer_->Body()->addWidget(offerWords_);
  offer_->Body()->addLayout(row);
  connect(save, &QPushButton::clicked, this, [this] {
    const RecordedLesson lesson = left_.front();
    left_.erase(left_.begin());
    session_.TakeUp(lesson);
    ShowOffer();
  });
  connect(away, &QPushButton::clicked, this, [this] {
    if (!parts_.host.Question("", Tr("Do you want to throw the unfinished lesson away?"))) return;
    const RecordedLesson lesson = left_.front();
    left_.erase(left_.begin());
    session_.DropLeft(lesson);
    ShowOffer();
  });
  connect(offer_, &FloatCard::CloseWanted, this, [this] {
    left_.clear();  // until the next start
    ShowOffer();
  });
}

void LessonDesk::ShowOffer() {
  if (left_.empty() || session_.Shown()) {
    if (offer_) offer_->hide();
    return;
  }
  if (!offer_) MakeOffer();
  const RecordedLesson& lesson = left_.front();
  const QDateTime written = QDateTime::fromSecsSinceEpoch(lesson.written);
  const int seconds = static_cast<int>(std::lround(lesson.facts.seconds));
  const QString when =
      QLocale().toString(written, written.date() == QDate::currentDate() ? QString("HH:mm") : tr("d MMM, HH:mm"));
  const QString whose = lesson.student.empty() ? QString() : Q(lesson.student) + ", ";
  offerWords_->setText(tr("A lesson was broken off: %1%2:%3 minutes, %4")
                           .arg(whose)
                           .arg(seconds / 60)
                           .arg(seconds % 60, 2, 10, QChar('0'))
                           .arg(when));
  offer_->Open(FloatCard::Place::Top);
}

}  // namespace kinalyx
