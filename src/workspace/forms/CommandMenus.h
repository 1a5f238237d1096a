#pragma once

#include <QMenuBar>
#include <string>
#include <utility>
#include <vector>

namespace kinalyx {

struct Command;

/// The menus of the analysis section, from the command table, with the keys beside the captions. Entries carry
/// the system's names as objectName; what is not built yet has none.
class CommandMenus : public QMenuBar {
  Q_OBJECT

 public:
  explicit CommandMenus(const std::vector<Command>& commands, QWidget* parent = nullptr);

  /// Enables, checks and explains the entries anew.
  void Update();
  /// Opens a menu of these commands at the mouse, once the press that wants it is over; null divides.
  void ShowAtMouse(const std::vector<const Command*>& commands);

 signals:
  /// A command is wanted, by its name in the table.
  void Wanted(const std::string& command);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Tint();

  std::vector<std::pair<const Command*, QAction*>> entries_;
};

}  // namespace kinalyx
