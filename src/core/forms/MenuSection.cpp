#include "core/forms/MenuSection.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "core/MenuPicture.h"
#include "core/forms/MenuCanvas.h"
#include "platform/host/Host.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"

namespace kinalyx {

namespace {

/// Keeps the proportion of a screen.
class Sample : public MenuCanvas {
 public:
  using MenuCanvas::MenuCanvas;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return width * 10 / 16; }
};

}  // namespace

MenuSection::MenuSection(IHost& host, Settings& settings, QWidget* parent)
    : SetupSection("MenuSection", settings, parent), host_(host) {
  QVBoxLayout* heading = AddPanel(0, "Heading");
  heading->addWidget(MakeLabel({}, "Five lines over the picture, and on printouts", "caption"));
  for (int i = 0; i < 5; ++i) {
    lines_[i] = new QLineEdit;
    lines_[i]->setObjectName(QString("Printtext%1").arg(i + 1));
    lines_[i]->setAccessibleName(QString("Heading line %1").arg(i + 1));
    lines_[i]->setMaxLength(149);
    heading->addWidget(lines_[i]);
    connect(lines_[i], &QLineEdit::textChanged, this, [this, i](const QString& text) {
      if (!Store(settings_.Heading[static_cast<std::size_t>(i + 1)], text.toStdString())) return;
      sample_->SetupCaptionLabels(settings_);
      emit MenuChanged();
    });
  }

  QVBoxLayout* picture = AddPanel(1, "Picture");
  sample_ = new Sample("MenuSample");
  sample_->SetSample(true);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  sample_->setSizePolicy(policy);
  picture->addWidget(sample_);
  picture->addSpacing(4);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  auto* choose = new Button("MenuSetupBtn0", "Choose Picture", "open");
  auto* move = new Button("MenuSetupBtn1", "Move Heading", "chevron-right", Look::Quiet);
  move->setToolTip("To the next of ten places");
  actions->addWidget(choose);
  actions->addWidget(move);
  actions->addStretch(1);
  picture->addLayout(actions);
  connect(choose, &QPushButton::clicked, this, [this] { MenuSetupBtn_Click(0); });
  connect(move, &QPushButton::clicked, this, [this] { MenuSetupBtn_Click(1); });
  Finish();
}

void MenuSection::SetupProgram() {
  for (int i = 0; i < 5; ++i) {
    const QString line = QString::fromStdString(settings_.Heading[static_cast<std::size_t>(i + 1)]);
    if (lines_[i]->text() != line) lines_[i]->setText(line);
  }
  sample_->SetupMenu(host_, settings_);
}

void MenuSection::MenuSetupBtn_Click(int index) {
  if (index == 0) {
    if (!ChooseBackground(host_, settings_)) return;
  } else {
    NextCaptionPosition(settings_);
  }
  sample_->SetupMenu(host_, settings_);
  emit MenuChanged();
}

}  // namespace kinalyx
