#include "app/Main.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>

#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

struct Section {
  int index;
  const char* caption;
  const char* icon;
};

constexpr Section kSections[] = {
    {1, TrLater("Student Profiles"), "students"},   {2, TrLater("Capture Videos"), "camera"},
    {3, TrLater("Analyze Videos"), "analyze"},      {4, TrLater("Send Lesson"), "send"},
    {5, TrLater("Import/Export"), "import-export"}, {6, TrLater("Program Setup"), "setup"},
    {7, TrLater("Help and Demos"), "help"},         {8, TrLater("To Main Menu"), "home"},
};

/// Control and the section's number; 0 leads to the main menu.
QKeySequence KeysOf(int index) { return {Qt::CTRL | Qt::Key(Qt::Key_0 + (index < kPageCount ? index : kMenuPage))}; }

QString Tip(int index, const QString& caption) {
  return QString("%1 (%2)").arg(caption, KeysOf(index).toString(QKeySequence::NativeText));
}

}  // namespace

Main::Main(IMainEvents& events, QWidget* parent) : QWidget(parent), events_(events) {
  setObjectName("Main");
  setAttribute(Qt::WA_StyledBackground);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(MakeHeading());
  auto* columns = new QHBoxLayout;
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(0);
  columns->addWidget(MakeRail());
  stack_ = new QStackedWidget(this);
  columns->addWidget(stack_, 1);
  rows->addLayout(columns, 1);
}

Main::~Main() = default;

QWidget* Main::MakeHeading() {
  QFrame* heading = MakeFrame("header", this);
  FixHeight(heading, 36);
  auto* row = new QHBoxLayout(heading);
  row->setContentsMargins(14, 0, 4, 0);
  row->setSpacing(10);
  logo_ = MakeLabel("MainCmd0", "Kinalyx", "brand");
  logo_->setCursor(Qt::PointingHandCursor);
  logo_->setToolTip(Tip(kMenuPage, tr("To Main Menu")));
  logo_->installEventFilter(this);
  row->addWidget(logo_);
  title_ = MakeLabel("PageTitle", "", "pageTitle");
  row->addWidget(title_, 1);
  sign_ = new Button("LessonSign", tr("Stop Recording"), "stop", Look::Filled, heading);
  sign_->setFocusPolicy(Qt::NoFocus);
  SetSign({});
  connect(sign_, &QPushButton::clicked, this, &Main::SignPressed);
  row->addWidget(sign_);
  company_ = MakeLabel("CourseLbl", "", "pageTitle");
  row->addWidget(company_);
  minimize_ = IconButton("MinimizeBtn", "minimize", tr("Put the window away"), Look::Filled, heading);
  close_ = IconButton("QuitBtn", "close", tr("Close Kinalyx"), Look::Filled, heading);
  for (Button* button : {minimize_, close_}) {
    button->setFocusPolicy(Qt::NoFocus);
    FixSize(button, {40, 32});
    button->hide();
    row->addWidget(button);
  }
  connect(minimize_, &QPushButton::clicked, this, [this] { showMinimized(); });
  connect(close_, &QPushButton::clicked, this, [this] { close(); });
  return heading;
}

QWidget* Main::MakeRail() {
  auto* room = new QScrollArea(this);
  room->setFrameShape(QFrame::NoFrame);
  room->setFocusPolicy(Qt::NoFocus);
  room->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  room->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  room->setWidgetResizable(true);
  FixWidth(room, 132);
  QFrame* rail = MakeFrame("rail");
  auto* column = new QVBoxLayout(rail);
  column->setContentsMargins(8, 10, 7, 10);
  column->setSpacing(6);
  for (const Section& section : kSections) {
    if (section.index == 8) column->addStretch(1);
    auto* button = new TileButton(QString("MainCmd%1").arg(section.index), tr(section.caption), section.icon,
                                  TileButton::Place::Rail, rail);
    const bool isPage = section.index < kPageCount;
    button->setCheckable(isPage);
    const int wanted = isPage ? section.index : kMenuPage;
    const auto want = [this, button, wanted] {
      button->setChecked(current_ == wanted);  // the press is a wish: the page that opens marks its button
      emit PageWanted(wanted);
    };
    connect(button, &QPushButton::clicked, this, want);
    connect(new QShortcut(KeysOf(section.index), this), &QShortcut::activated, this, [button, want] {
      if (button->isEnabled()) want();
    });
    button->setToolTip(Tip(section.index, tr(section.caption)));
    column->addWidget(button);
    sections_[static_cast<std::size_t>(section.index)] = button;
  }
  room->setWidget(rail);
  rail_ = room;
  return room;
}

void Main::SetPage(int index, PageWidget* page) {
  DropPage(index);
  pages_[static_cast<std::size_t>(index)] = page;
  stack_->addWidget(page);
}

void Main::DropPage(int index) {
  PageWidget*& page = pages_[static_cast<std::size_t>(index)];
  if (!page) return;
  stack_->removeWidget(page);
  delete std::exchange(page, nullptr);
  if (current_ == index) current_ = -1;
}

bool Main::LeavePage() { return current_ < 0 || Page(current_)->Leave(); }

void Main::OpenPage(int index, const QString& title) {
  PageWidget* page = Page(index);
  if (!page) return;
  current_ = index;
  // The menu picture and the stage take the whole window. The stage must not see the rail for a moment:
  // what floats on it would be pushed aside.
  const bool rail = index != kMenuPage && index != kAnalysisPage;
  if (!rail) rail_->hide();
  for (TileButton* section : sections_)
    if (section && section->isCheckable()) section->setChecked(section == sections_[static_cast<std::size_t>(index)]);
  stack_->setCurrentWidget(page);
  if (rail) rail_->show();
  SetHeading(title);
  ShowSign();
  page->Open();
  // What had the keys there, or was given them as the page opened, has them.
  QWidget* const inside = page->focusWidget();
  (inside ? inside : page)->setFocus();
}

void Main::SetHeading(const QString& title) { title_->setText(title); }

void Main::SetCompany(const QString& company) { company_->setText(company); }

void Main::SetSign(const QString& words) {
  sign_->setText(words);
  ShowSign();
}

void Main::ShowSign() { sign_->setVisible(!sign_->text().isEmpty() && current_ != kAnalysisPage); }

void Main::SetSectionCaption(int index, const QString& caption) {
  TileButton* section = sections_[static_cast<std::size_t>(index)];
  if (!section) return;
  section->setText(caption);
  section->setToolTip(Tip(index, caption));
}

bool Main::eventFilter(QObject* object, QEvent* event) {
  if (object == logo_ && event->type() == QEvent::MouseButtonRelease) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::LeftButton && logo_->rect().contains(mouse->position().toPoint()))
      emit PageWanted(kMenuPage);
  }
  return QWidget::eventFilter(object, event);
}

void Main::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  emit Resized(size());
}

void Main::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!std::exchange(painted_, true)) emit Painted();
}

void Main::SetFullScreen(bool on) {
  minimize_->setVisible(on);
  close_->setVisible(on);
  // Words stand off the edge of the window, buttons in its corner.
  close_->parentWidget()->layout()->setContentsMargins(14, 0, on ? 4 : 14, 0);
}

void Main::closeEvent(QCloseEvent* event) {
  // Whoever is asked may let events run, and with them the wish to close once more.
  if (!closed_ && !std::exchange(asking_, true)) {
    closed_ = events_.MainMayClose();
    asking_ = false;
  }
  event->setAccepted(closed_);
}

}  // namespace kinalyx
