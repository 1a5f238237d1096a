#include "workspace/forms/ToolStrip.h"

#include <QEvent>
#include <QMenu>
#include <algorithm>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/commands/MenuBar.h"

namespace kinalyx {
namespace {

constexpr int kMargin = 10;

}  // namespace

const ToolStrip::Sizes ToolStrip::kSizes[3] = {{34, 2, 13}, {30, 2, 11}, {28, 1, 9}};

ToolStrip::ToolStrip(const std::vector<Command>& commands, QWidget* parent) : QFrame(parent) {
  setObjectName("VideoToolBar");
  setProperty("look", "strip");
  FixHeight(this, 46);
  for (const Command& command : commands) {
    if (command.group == 0) continue;
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
  for (std::size_t i = 1; i < tools_.size(); ++i)
    if (tools_[i].command->group != tools_[i - 1].command->group) dividers_.push_back(MakeFrame("divider", this));
  more_ = IconButton("MoreTools", "more", tr("More tools"), Look::Flat, this);
  more_->setProperty("placed", true);
  more_->setFocusPolicy(Qt::NoFocus);
  connect(more_, &QPushButton::clicked, this, [this] { ShowMore(); });
  Update();
}

void ToolStrip::Update() {
  for (const Tool& tool : tools_) {
    const QString reason = Q(tool.command->Reason());
    tool.button->setEnabled(reason.isEmpty());
    tool.button->setToolTip(reason.isEmpty() ? Q(tool.command->tip) : Q(tool.command->tip) + " \u2014 " + reason);
    if (tool.command->checked) tool.button->setChecked(tool.command->checked());
  }
}

int ToolStrip::WidthFor(const Sizes& sizes) const {
  int width = 2 * kMargin;
  int group = 0;
  for (const Tool& tool : tools_) {
    if (!tool.placed) continue;
    if (group != 0 && tool.command->group != group) width += sizes.divider;
    group = tool.command->group;
    width += Px(sizes.side) + sizes.space;
  }
  const bool all = std::ranges::all_of(tools_, &Tool::placed);
  return all ? width : width + Px(sizes.side) + sizes.space;
}

void ToolStrip::Arrange() {
  for (Tool& tool : tools_) tool.placed = true;
  const auto fitting = std::ranges::find_if(kSizes, [this](const Sizes& sizes) { return WidthFor(sizes) <= width(); });
  const Sizes& sizes = fitting == std::end(kSizes) ? kSizes[2] : *fitting;
  // What does nothing yet goes first, then what can be spared.
  const auto give = [&](auto wanted) {
    for (auto tool = tools_.rbegin(); tool != tools_.rend() && WidthFor(sizes) > width(); ++tool)
      if (wanted(*tool->command)) tool->placed = false;
  };
  give([](const Command& command) { return command.Coming(); });
  give([](const Command& command) { return command.spare; });
  give([](const Command&) { return true; });
  // Without what is behind "More tools" the others may have more room.
  Place(*std::ranges::find_if(kSizes,
                              [&](const Sizes& wider) { return &wider == &sizes || WidthFor(wider) <= width(); }));
}

void ToolStrip::Place(const Sizes& sizes) {
  int x = kMargin;
  int group = 0;
  std::size_t divider = 0;
  for (QFrame* line : dividers_) line->hide();
  const int side = Px(sizes.side);
  const auto place = [&](Button* button) {
    button->setFixedSize(side, side);
    button->move(x, (height() - side) / 2);
    button->show();
    x += side + sizes.space;
  };
  for (const Tool& tool : tools_) {
    if (!tool.placed) {
      tool.button->hide();
      continue;
    }
    if (group != 0 && tool.command->group != group) {
      QFrame* line = dividers_[divider++];
      line->setGeometry(x + sizes.divider / 2 - 1, 11, 1, height() - 22);
      line->show();
      x += sizes.divider;
    }
    group = tool.command->group;
    place(tool.button);
  }
  more_->hide();
  if (std::ranges::all_of(tools_, &Tool::placed)) return;
  x = std::max(x, width() - kMargin - side);
  place(more_);
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

void ToolStrip::ShowMore() {
  QMenu menu(this);
  menu.setToolTipsVisible(true);
  const Theme theme = CurrentTheme();
  std::string chosen;
  for (const Tool& tool : tools_) {
    if (tool.placed) continue;
    const QString reason = Q(tool.command->Reason());
    QAction* action =
        menu.addAction(Icon(Q(tool.command->icon), theme.heading, theme.accentText), Q(tool.command->tip));
    action->setEnabled(reason.isEmpty());
    if (!reason.isEmpty()) {
      action->setToolTip(reason);
      action->setText(Q(tool.command->tip) + "\t" + reason);
    }
    connect(action, &QAction::triggered, &menu, [&chosen, &tool] { chosen = tool.name; });
  }
  menu.exec(more_->mapToGlobal(QPoint(0, more_->height() + 4)));
  if (!chosen.empty()) emit Wanted(chosen);
}

}  // namespace kinalyx
