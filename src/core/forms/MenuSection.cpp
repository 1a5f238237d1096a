#include "core/forms/MenuSection.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>

#include "core/Heading.h"
#include "core/MenuPicture.h"
#include "core/forms/MenuCanvas.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/Host.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// Keeps the proportion of a screen.
class Sample : public MenuCanvas {
 public:
  using MenuCanvas::MenuCanvas;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return width * 10 / 16; }
};

constexpr QSize kLogoRoom(200, 72);  // as designed
constexpr int kNameRoom = 140;       // beside the button in the narrowest page

}  // namespace

MenuSection::MenuSection(IHost& host, Settings& settings, QWidget* parent)
    : SetupSection("MenuSection", settings, parent), host_(host) {
  AddHeading();
  AddLogo();
  AddPicture();
  Finish();
}

void MenuSection::AddHeading() {
  QVBoxLayout* heading = AddPanel(0, tr("Heading"));
  heading->addWidget(MakeLabel({}, tr("Five lines over the picture, and on printouts"), "caption"));
  for (int i = 0; i < 5; ++i) {
    lines_[i] = new QLineEdit;
    lines_[i]->setObjectName(QString("Printtext%1").arg(i + 1));
    lines_[i]->setAccessibleName(tr("Heading line %1").arg(i + 1));
    lines_[i]->setMaxLength(149);
    heading->addWidget(lines_[i]);
    connect(lines_[i], &QLineEdit::textChanged, this, [this, i](const QString& text) {
      const auto line = static_cast<std::size_t>(i);
      if (Std(text) == ShownHeading(settings_)[line] || !Store(settings_.Heading[line + 1], Std(text))) return;
      sample_->SetupCaptionLabels(settings_);
      emit MenuChanged();
    });
  }
}

void MenuSection::AddPicture() {
  QVBoxLayout* picture = AddPanel(1, tr("Picture"));
  sample_ = new Sample("MenuSample");
  sample_->SetSample(true);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  sample_->setSizePolicy(policy);
  picture->addWidget(sample_);
  picture->addSpacing(4);
  auto* actions = new QHBoxLayout;
  actions->setSpacing(8);
  auto* choose = new Button("MenuSetupBtn0", tr("Choose Picture"), "open");
  auto* move = new Button("MenuSetupBtn1", tr("Move Heading"), "chevron-right", Look::Quiet);
  move->setToolTip(tr("To the next of ten places"));
  actions->addWidget(choose);
  actions->addWidget(move);
  actions->addStretch(1);
  picture->addLayout(actions);
  auto* reset = new Button("MenuSetupBtn2", tr("Default Picture"), {}, Look::Quiet);
  reset->setToolTip(tr("Back to the picture that comes with Kinalyx"));
  auto* back = new QHBoxLayout;
  back->addWidget(reset);
  back->addStretch(1);
  picture->addLayout(back);
  connect(reset, &QPushButton::clicked, this, [this] { MenuSetupBtn_Click(2); });
  connect(choose, &QPushButton::clicked, this, [this] { MenuSetupBtn_Click(0); });
  connect(move, &QPushButton::clicked, this, [this] { MenuSetupBtn_Click(1); });
}

void MenuSection::AddLogo() {
  QVBoxLayout* rows = AddPanel(0, tr("Logo"));
  UseLogochk_ = new QCheckBox(tr("Print the logo on printouts"));
  UseLogochk_->setObjectName("UseLogochk");
  rows->addWidget(UseLogochk_);
  logo_ = MakeLabel("LogoPreview", {}, "logo");
  FixSize(logo_, kLogoRoom);
  logo_->setAlignment(Qt::AlignCenter);
  rows->addWidget(logo_);
  rows->addSpacing(4);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  auto* choose = new Button("SSCommand14", tr("Choose Logo"), "open");
  logoName_ = MakeLabel("LogoNameLbl", {}, "caption");
  row->addWidget(choose);
  row->addWidget(logoName_, 1);
  rows->addLayout(row);
  auto* reset = new Button("DefaultLogoBtn", tr("Default Logo"), {}, Look::Quiet);
  reset->setToolTip(tr("Back to the logo that comes with Kinalyx"));
  auto* back = new QHBoxLayout;
  back->addWidget(reset);
  back->addStretch(1);
  rows->addLayout(back);
  connect(reset, &QPushButton::clicked, this, [this] {
    ResetLogo(settings_);
    ShowLogo();
  });
  connect(UseLogochk_, &QCheckBox::toggled, this, [this](bool on) {
    Store(settings_.Logo, on);
    logo_->setEnabled(on);
  });
  connect(choose, &QPushButton::clicked, this, &MenuSection::SSCommand14_Click);
}

void MenuSection::ShowLogo() {
  again_.Stop();
  const QString file = Q(settings_.LogoName);
  logoName_->setText(logoName_->fontMetrics().elidedText(QFileInfo(file).fileName(), Qt::ElideMiddle, Px(kNameRoom)));
  logoName_->setToolTip(file);
  DriveWatch& drives = host_.Drives();
  const std::string place = FolderOf(settings_.LogoName);
  const auto asked = drives.AskAtOnce(place, [path = settings_.LogoName] { return FileIsThere(path); });
  const std::optional<bool> there = asked.value_or(std::nullopt);
  if (there == false) return logo_->setText(tr("This picture has gone."));
  const auto read = there ? reader_.Read(drives, settings_.LogoName) : std::nullopt;
  if (!read) {
    logo_->setText(tr("The drive with this picture is not answering."));
    if (drives.Silent(place)) again_ = drives.WhenAnswers(place, [this] { ShowLogo(); });
    return;
  }
  const QImage& picture = *read;
  if (picture.isNull()) return logo_->setText(tr("There is no picture in this file."));
  const qreal ratio = devicePixelRatioF();
  const QSize room = (logo_->size() - QSize(12, 12)) * ratio;
  const bool fits = picture.width() <= room.width() && picture.height() <= room.height();
  QPixmap shown =
      QPixmap::fromImage(fits ? picture : picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  shown.setDevicePixelRatio(ratio);
  logo_->setPixmap(shown);
}

void MenuSection::SetupProgram() {
  const HeadingLines heading = ShownHeading(settings_);
  for (int i = 0; i < 5; ++i) {
    const QString line = Q(heading[static_cast<std::size_t>(i)]);
    if (lines_[i]->text() != line) lines_[i]->setText(line);
  }
  sample_->SetupMenu(host_, settings_);
  UseLogochk_->setChecked(settings_.Logo);
  logo_->setEnabled(settings_.Logo);
  ShowLogo();
}

void MenuSection::SSCommand14_Click() {
  if (ChooseLogo(host_, settings_, &HoldsPicture)) ShowLogo();
}

void MenuSection::MenuSetupBtn_Click(int index) {
  switch (index) {
    case 0:
      if (!ChooseBackground(host_, settings_, &HoldsPicture)) return;
      break;
    case 1: NextCaptionPosition(settings_); break;
    case 2: ResetBackground(settings_); break;
    default: return;
  }
  sample_->SetupMenu(host_, settings_);
  emit MenuChanged();
}

}  // namespace kinalyx
