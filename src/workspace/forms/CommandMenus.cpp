#include "workspace/forms/CommandMenus.h"

#include <QCursor>
#include <QEvent>
#include <QTimer>
#include <map>

#include "platform/files/Tr.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/commands/KeyWords.h"
#include "workspace/commands/MenuBar.h"

namespace kinalyx {

CommandMenus::CommandMenus(const std::vector<Command>& commands, QWidget* parent) : QMenuBar(parent) {
  setObjectName("MenuBar");
  setNativeMenuBar(false);
  std::map<std::string, QMenu*> menus;
  for (const Command& command : commands) {
    if (command.menu.empty() && command.caption.empty()) continue;  // a button alone
    if (command.Coming() && !command.caption.empty()) continue;     // and a menu of nothing else is none
    QMenu*& menu = menus[command.menu];
    if (!menu && !command.menu.empty()) {
      // A menu within a menu has both names.
      const QString name = QString::fromStdString(Tr(command.menu));
      QMenu* outer = name.contains('/') ? menus[command.menu.substr(0, command.menu.find('/'))] : nullptr;
      menu = outer ? outer->addMenu(name.section('/', 1)) : addMenu(name);
      menu->setToolTipsVisible(true);
    }
    if (command.caption.empty()) {
      menu->addSeparator();
      continue;
    }
    auto* action = new QAction(QString::fromStdString(command.caption), this);
    action->setObjectName(QString::fromStdString(command.item));
    action->setCheckable(static_cast<bool>(command.checked));
    connect(action, &QAction::triggered, this, [this, item = command.item] { emit Wanted(item); });
    menu ? menu->addAction(action) : addAction(action);
    entries_.emplace_back(&command, action);
  }
  Tint();
  Update();
}

void CommandMenus::Update() {
  for (const auto& [command, action] : entries_) {
    const std::string reason = command->Reason();
    action->setText(QString::fromStdString(CaptionWithKey(*command)));
    action->setEnabled(reason.empty());
    action->setToolTip(QString::fromStdString(reason.empty() ? command->tip : reason));
    if (command->checked) action->setChecked(command->checked());
  }
}

void CommandMenus::ShowAtMouse(const std::vector<const Command*>& commands) {
  auto* menu = new QMenu(this);
  menu->setObjectName("WindowMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const Theme theme = CurrentTheme();
  for (const Command* command : commands) {
    if (!command) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(QString::fromStdString(CaptionInColumns(*command)));
    action->setObjectName("Window" + QString::fromStdString(command->item));
    action->setCheckable(static_cast<bool>(command->checked));
    if (command->checked) action->setChecked(command->checked());
    else if (!command->icon.empty())
      action->setIcon(Icon(QString::fromStdString(command->icon), theme.heading, theme.accentText));
    connect(action, &QAction::triggered, this, [this, item = command->item] { emit Wanted(item); });
  }
  QTimer::singleShot(0, menu, [menu] { menu->popup(QCursor::pos()); });
}

void CommandMenus::changeEvent(QEvent* event) {
  QMenuBar::changeEvent(event);
  if (event->type() == QEvent::StyleChange) Tint();
}

void CommandMenus::Tint() {
  const Theme theme = CurrentTheme();
  for (const auto& [command, action] : entries_) {
    // A check mark takes the icon's place.
    if (!command->icon.empty() && !command->checked)
      action->setIcon(Icon(QString::fromStdString(command->icon), theme.heading, theme.accentText));
  }
}

}  // namespace kinalyx
