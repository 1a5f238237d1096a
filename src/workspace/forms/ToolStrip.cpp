#include "workspace/forms/ToolStrip.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/commands/KeyWords.h"
#include "workspace/commands/MenuBar.h"

namespace kinalyx {
namespace {

constexpr int kMargin = 10;
constexpr int kAround = 6;         // above and below the buttons
constexpr int kNameHeight = 11;    // beneath them
constexpr int kNamePixels = 10;    // of its letters
constexpr int kWideEnough = 1280;  // pixels, for the names of the groups

}  // namespace

const ToolStrip::Sizes ToolStrip::kSizes[3] = {{34, 2, 13}, {30, 2, 11}, {28, 1, 9}};

bool ToolStrip::Tool::IsLayoutInUse() const { return name.starts_with("Scn") && command->checked(); }

ToolStrip::ToolStrip(const std::vector<Command>& commands, bool open, QWidget* parent) : QFrame(parent), open_(open) {
  setObjectName("VideoToolBar");
  setProperty("look", "strip");
  for (const Command& command : commands) {
    if (command.group == 0 || command.Coming()) continue;
    const std::string name = command.button.empty() ? command.item : command.button;
    auto* button = IconButton(Q(name), Q(command.icon), Q(command.tip), Look::Flat, this);
    button->setProperty("placed", true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setCheckable(static_cast<bool>(command.checked));
    connect(button, &QPushButton::clicked, this, [this, name] { emit Wanted(name); });
    if (command.twice) button->installEventFilter(this);
    tools_.push_back({&command, name, button});
  }
  std::ranges::stable_sort(tools_, {}, [](const Tool& tool) { return tool.command->group; });
  more_ = IconButton("MoreTools", "more", {}, Look::Flat, this);
  more_->setAccessibleName(tr("More tools, in a second row"));
  more_->setProperty("placed", true);
  more_->setFocusPolicy(Qt::NoFocus);
  more_->setCheckable(true);
  connect(more_, &QPushButton::clicked, this, [this](bool checked) {
    open_ = checked;
    Arrange();
    emit SecondRowOpened(open_);
  });
  Update();
}

void ToolStrip::Update() {
  std::string layout;
  for (const Tool& tool : tools_) {
    const QString reason = Q(tool.command->Reason());
    const QString tip = Q(TipWithKey(*tool.command));
    tool.button->setEnabled(reason.isEmpty());
    tool.button->setToolTip(reason.isEmpty() ? tip : tip + " \u2014 " + reason);
    if (tool.command->checked) tool.button->setChecked(tool.command->checked());
    if (tool.IsLayoutInUse()) layout = tool.name;
  }
  if (std::exchange(layout_, layout) != layout) Arrange();
}

bool ToolStrip::AllInFirst() const { return std::ranges::all_of(tools_, &Tool::first); }

int ToolStrip::WidthFor(const Sizes& sizes) const {
  int width = 2 * kMargin;
  int group = 0;
  for (const Tool& tool : tools_) {
    if (!tool.first) continue;
    if (group != 0 && tool.command->group != group) width += sizes.divider;
    group = tool.command->group;
    width += Px(sizes.side) + sizes.space;
  }
  return AllInFirst() ? width : width + Px(sizes.side) + sizes.space;
}

void ToolStrip::DropWhatDoesNotFit(const Sizes& sizes) {
  const auto drop = [&](auto wanted) {
    for (auto tool = tools_.rbegin(); tool != tools_.rend() && WidthFor(sizes) > width(); ++tool)
      if (tool->name != layout_ && wanted(*tool)) tool->first = false;
  };
  drop([](const Tool& tool) { return tool.command->spare; });
  drop([](const Tool& tool) { return tool.name.starts_with("Scn"); });  // the one in use says which it is
  drop([](const Tool&) { return true; });
}

void ToolStrip::Arrange() {
  for (Tool& tool : tools_) tool.first = true;
  const Sizes* sizes = std::ranges::find_if(kSizes, [this](const Sizes& each) { return WidthFor(each) <= width(); });
  if (sizes == std::end(kSizes)) {
    DropWhatDoesNotFit(kSizes[2]);
    // Without what is in the second row the first one may have more room.
    sizes = std::ranges::find_if(kSizes, [this](const Sizes& each) { return WidthFor(each) <= width(); });
    if (sizes == std::end(kSizes)) sizes = &kSizes[2];
  }
  const bool all = AllInFirst();
  const bool named = width() >= kWideEnough;
  const int side = Px(sizes->side);
  const int row = side + (named ? Px(kNameHeight) : 0);
  names_.clear();
  dividers_.clear();
  PlaceRow(true, kAround, *sizes);
  if (!named) names_.clear();
  const std::size_t names = names_.size();
  if (all || !open_) {
    for (const Tool& tool : tools_)
      if (!tool.first) tool.button->hide();
  } else {
    PlaceRow(false, kAround + row + 4, *sizes);
    names_.resize(names);  // its groups are too narrow for names
  }
  more_->setVisible(!all);
  more_->setChecked(open_);
  more_->setToolTip(open_ ? tr("Close the second row") : tr("More tools, in a second row"));
  more_->setFixedSize(side, side);
  more_->move(width() - kMargin - side, kAround);
  setFixedHeight(2 * kAround + row + (all || !open_ ? 0 : side + 4));
  update();
}

void ToolStrip::PlaceRow(bool first, int top, const Sizes& sizes) {
  const QString words[] = {tr("Open"),    tr("Windows"), tr("Draw"), tr("Change"),
                           tr("Compare"), tr("Measure"), tr("Share")};
  const int side = Px(sizes.side);
  int x = kMargin;
  int group = 0;
  for (const Tool& tool : tools_) {
    if (tool.first != first) continue;
    if (tool.command->group != group) {
      if (group != 0) {
        dividers_.emplace_back(x + sizes.divider / 2 - 1, top + 5, 1, side - 10);
        x += sizes.divider;
      }
      group = tool.command->group;
      names_.push_back({QRect(x, top + side, 0, Px(kNameHeight)), words[group - 1]});
    }
    tool.button->setFixedSize(side, side);
    tool.button->move(x, top);
    tool.button->show();
    x += side + sizes.space;
    names_.back().place.setRight(x - sizes.space - 1);
  }
}

void ToolStrip::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  const Theme theme = CurrentTheme();
  QPainter painter(this);
  for (const QRect& divider : dividers_) painter.fillRect(divider, theme.line);
  painter.setFont(UiFont(kNamePixels));
  painter.setPen(theme.muted);
  for (const Name& name : names_)  // in the middle of its group, also where it is wider than that
    painter.drawText(name.place.adjusted(-40, 0, 40, 0), Qt::AlignCenter, name.words);
}

void ToolStrip::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::StyleChange && more_) Arrange();
}

bool ToolStrip::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonDblClick) return false;
  emit WantedTwice(Std(watched->objectName()));
  return true;  // or its release were a second click
}

}  // namespace kinalyx
