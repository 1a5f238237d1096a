#pragma once

#include <QObject>
#include <array>
#include <initializer_list>
#include <vector>

#include "core/Settings.h"
#include "library/LibraryActions.h"

class QBoxLayout;

namespace kinalyx {

class Button;
class NameList;
class StatusLine;

/// The buttons `SPBtn0` to `SPBtn12` of the profiles page, and the same actions in the menus of its lists. The
/// status line tells what a button does while the mouse is over it.
class LibraryButtons : public QObject {
  Q_OBJECT

 public:
  /// The buttons are made here, without a parent: the page places them. All that is passed outlives them.
  LibraryButtons(const Settings& settings, StatusLine& status, QObject* parent);

  Button* At(LibraryAction action) const { return buttons_[static_cast<std::size_t>(action)]; }
  /// Puts buttons side by side.
  void Place(std::initializer_list<LibraryAction> actions, QBoxLayout* row) const;
  /// Gives a list a menu for what is chosen in it, where the right mouse button and the menu key look for it.
  void GiveMenu(NameList* list, std::vector<LibraryAction> actions);
  /// Tips, here and in the status line, with the present word for the person under analysis.
  void SetupVocabulary();

 signals:
  void Wanted(LibraryAction action);

 private:
  QString Tip(LibraryAction action, int videos = 1) const;

  const Settings& settings_;
  StatusLine& status_;
  std::array<Button*, kLibraryActions> buttons_{};
};

}  // namespace kinalyx
