#include "library/forms/EditPanel.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include "library/forms/PreviewPlayer.h"
#include "library/forms/TrimSlider.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

EditPanel::EditPanel(PreviewPlayer& preview, const QString& help, QWidget* parent) : QFrame(parent), preview_(preview) {
  setObjectName("EditPanel");
  setProperty("look", "panelFoot");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, 8, kGap, kGap);
  rows->setSpacing(8);
  QLabel* text = MakeLabel("EditText", help);
  text->setWordWrap(true);
  HScroll1_ = new TrimSlider("HScroll1");
  rows->addWidget(text);
  QLabel* warning = MakeLabel(
      "EditWarning",
      tr("Save writes over the video itself: the frames outside cannot be brought back. An MP4 or MOV may keep a "
         "few of them in the file, hidden, because others are built on them."),
      "muted");
  warning->setWordWrap(true);
  rows->addWidget(warning);
  rows->addWidget(HScroll1_);
  range_ = new FigureLabel("EditRange");
  rows->addWidget(range_);

  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  auto* play = IconButton("EditPlay", "play", tr("Play what is kept (Space)"), Look::Quiet);
  auto* start = new Button("StartHerebtn", tr("Start Here"), {}, Look::Quiet);
  start->setToolTip(tr("The video begins with the frame that is shown (S)"));
  auto* end = new Button("EndHerebtn", tr("End Here"), {}, Look::Quiet);
  end->setToolTip(tr("The video ends with the frame that is shown (E)"));
  auto* cancel = new Button("EditCancelBtn", tr("Cancel"), {}, Look::Quiet);
  save_ = new Button("EditSaveBtn", tr("Save"), "check");
  for (Button* button : {play, start, end}) row->addWidget(button);
  row->addStretch(1);
  row->addWidget(cancel);
  row->addWidget(save_);
  rows->addLayout(row);

  connect(&preview_, &PreviewPlayer::Moved, this, [this] { HScroll1_->SetPosition(preview_.Frame()); });
  connect(&preview_, &PreviewPlayer::StateChanged, this,
          [this, play] { play->SetIcon(preview_.Control().IsPlaying() ? "pause" : "play"); });
  connect(HScroll1_, &TrimSlider::Sought, this, [this](int frame) { preview_.ShowFrame(frame); });
  connect(HScroll1_, &TrimSlider::RangeChanged, this, &EditPanel::ShowRange);
  connect(HScroll1_, &TrimSlider::StartWanted, this, &EditPanel::StartHere);
  connect(HScroll1_, &TrimSlider::EndWanted, this, &EditPanel::EndHere);
  connect(HScroll1_, &TrimSlider::PlayWanted, this, &EditPanel::PlayKept);
  connect(play, &QPushButton::clicked, this, &EditPanel::PlayKept);
  connect(start, &QPushButton::clicked, this, &EditPanel::StartHere);
  connect(end, &QPushButton::clicked, this, &EditPanel::EndHere);
  connect(cancel, &QPushButton::clicked, this, &EditPanel::CancelWanted);
  connect(save_, &QPushButton::clicked, this, &EditPanel::SaveWanted);
}

void EditPanel::Open() {
  HScroll1_->SetFrames(preview_.FrameCount());
  HScroll1_->SetPosition(preview_.Frame());
  ShowRange();
  HScroll1_->setFocus();
}

int EditPanel::FirstFrame() const { return HScroll1_->Start(); }
int EditPanel::LastFrame() const { return HScroll1_->End(); }

void EditPanel::StartHere() { HScroll1_->SetStart(preview_.Frame()); }
void EditPanel::EndHere() { HScroll1_->SetEnd(preview_.Frame()); }
void EditPanel::PlayKept() { preview_.TogglePlay(HScroll1_->Start(), HScroll1_->End()); }

void EditPanel::ShowRange() {
  const int kept = HScroll1_->End() - HScroll1_->Start() + 1;
  range_->setText(HScroll1_->Frames() == 0 ? QString()
                                           : tr("Start at %1   End at %2   %3 of %4 frames")
                                                 .arg(HScroll1_->Start())
                                                 .arg(HScroll1_->End())
                                                 .arg(kept)
                                                 .arg(HScroll1_->Frames()));
  save_->setEnabled(!HScroll1_->KeepsAll());
}

void EditPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) emit CancelWanted();
  else QFrame::keyPressEvent(event);
}

}  // namespace kinalyx
