#include "core/forms/MenuPage.h"

#include <QBoxLayout>
#include <QMenu>

#include "core/MenuPicture.h"
#include "core/Vocabulary.h"
#include "core/forms/MenuCanvas.h"
#include "core/forms/PictureFile.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

constexpr std::array<const char*, 8> kIcons = {"",     "students",      "camera", "analyze",
                                               "send", "import-export", "setup",  "help"};

}  // namespace

MenuPage::MenuPage(IHost& host, Settings& settings, QWidget* parent)
    : PageWidget(parent), host_(host), settings_(settings) {
  setObjectName("MenuPage");
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  canvas_ = new MenuCanvas("MenuImage", this);
  whole->addWidget(canvas_);

  auto* rows = new QVBoxLayout(canvas_);
  rows->setContentsMargins(0, 10, 12, 0);
  setup_ = IconButton("MenuSetupBtn", "palette", tr("Change the picture or move the heading"), Look::Stage);
  setup_->setProperty("over", "picture");
  auto* head = new QHBoxLayout;
  head->setContentsMargins(12, 0, 0, 0);  // where the desktop reads from right to left it stands at this end
  head->addStretch(1);
  head->addWidget(setup_);
  rows->addLayout(head);
  rows->addStretch(1);
  row_ = new QHBoxLayout;
  for (int i = 1; i < static_cast<int>(tiles_.size()); ++i) {
    auto* tile = new TileButton(QString("MainCmd%1").arg(i), {}, kIcons[static_cast<std::size_t>(i)],
                                TileButton::Place::Picture);
    connect(tile, &QPushButton::clicked, this, [this, i] { emit PageWanted(i); });
    row_->addWidget(tile, 1);
    tiles_[static_cast<std::size_t>(i)] = tile;
  }
  rows->addLayout(row_);
  connect(setup_, &QPushButton::clicked, this, &MenuPage::ShowSetupMenu);
  SetupVocabulary();
  SetupMenuImage();
}

void MenuPage::SetupVocabulary() {
  const Vocabulary words(settings_);
  for (std::size_t i = 1; i < tiles_.size(); ++i) tiles_[i]->setText(Q(words.PageButton(static_cast<int>(i))));
}

void MenuPage::Open() {
  if (canvas_->StandsIn()) SetupMenuImage();
}

void MenuPage::SetupMenuImage() { canvas_->SetupMenu(host_, settings_); }

void MenuPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int side = MenuCanvas::SideMargin(width());
  row_->setSpacing(width() < 1000 ? 8 : 14);
  row_->setContentsMargins(side, 0, side - 12, qRound(height() * 0.073));
}

void MenuPage::ShowSetupMenu() {
  QMenu menu(this);
  menu.setObjectName("MenuSetup");
  menu.addAction(tr("Choose Picture"), this, [this] {
    if (!ChooseBackground(host_, settings_, &HoldsPicture)) return;
    SetupMenuImage();
    emit MenuChanged();
  });
  menu.addAction(tr("Move Heading"), this, [this] {
    NextCaptionPosition(settings_);
    SetupMenuImage();  // tells, too, when the picture has gone meanwhile
    emit MenuChanged();
  });
  menu.addAction(tr("Default Picture"), this, [this] {
    ResetBackground(settings_);
    SetupMenuImage();
    emit MenuChanged();
  });
  menu.exec(setup_->mapToGlobal(setup_->rect().bottomRight() - QPoint(menu.sizeHint().width(), 0)));
}

}  // namespace kinalyx
