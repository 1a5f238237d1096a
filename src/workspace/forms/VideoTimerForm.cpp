#include "workspace/forms/VideoTimerForm.h"

#include <QBoxLayout>
#include <QDoubleValidator>
#include <QLineEdit>
#include <QPushButton>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {

VideoTimerForm::VideoTimerForm(VideoTimer& timer, QWidget* parent)
    : FloatCard("VideoTimerForm", tr("Video Timer"), parent), timer_(timer) {
  reading_ = new FigureLabel("Label1", "00.00", this);
  FixFont(reading_, 34, 600);
  reading_->setAlignment(Qt::AlignCenter);
  LeastWidth(reading_, 180);
  LeastHeight(reading_, 48);
  Body()->addWidget(reading_);
  auto* row = new QHBoxLayout;
  row->addWidget(MakeLabel("FRLabel", tr("Frame rate"), nullptr, this), 1);
  rate_ = new QLineEdit(this);
  rate_->setObjectName("txtFRBox");
  rate_->setAccessibleName(tr("Frame rate"));
  FixWidth(rate_, 84);
  rate_->setAlignment(Qt::AlignRight);
  rate_->setMaxLength(9);
  rate_->setToolTip(tr("Pictures per second of the scene; leave it empty for the video's own"));
  connect(rate_, &QLineEdit::textEdited, this, [this](const QString& text) { timer_.TakeRate(text.toStdString()); });
  connect(rate_, &QLineEdit::returnPressed, this, [this] { rate_->clearFocus(); });
  row->addWidget(rate_);
  Body()->addLayout(row);
  zero_ = new QPushButton(tr("Set Zero Point"), this);
  zero_->setObjectName("VideoTimerBtn");
  zero_->setFocusPolicy(Qt::NoFocus);
  connect(zero_, &QPushButton::clicked, this, [this] { timer_.SetZero(); });
  Body()->addWidget(zero_);
}

void VideoTimerForm::SetReading(const QString& reading, bool negative, const QString& rate) {
  const StageLook look = StageLook::Current();
  const QColor ink = negative ? look.mark : look.ink;
  reading_->setStyleSheet(QString("color: %1;").arg(ink.name()));
  reading_->setText(reading);
  zero_->setEnabled(!rate.isEmpty());
  zero_->setToolTip(rate.isEmpty() ? tr("Open a video first") : tr("Time from the picture that is shown"));
  rate_->setEnabled(!rate.isEmpty());
  // What the user is typing is his.
  if (!rate_->hasFocus()) rate_->setText(rate);
}

}  // namespace kinalyx
