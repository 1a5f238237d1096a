#pragma once

#include <QFrame>

#include "capture/mirror/MirrorSession.h"

class QButtonGroup;
class QLabel;
class QMenu;

namespace kinalyx {

class Button;

/// The bar of the mirror: all that can be chosen, in one row, and beneath it what is remembered and the keys. It shows
/// what the session says and tells what is pressed.
class MirrorBar : public QFrame {
  Q_OBJECT

 public:
  MirrorBar(MirrorSession& session, QWidget* parent);

  /// Brings all of it up to date.
  void ShowAll(bool fullScreen);
  /// Less where there is less room.
  void FitTo(int width);
  /// A list is open: the bar stays.
  bool Busy() const;

 signals:
  void FullScreenWanted();
  /// On the monitor of that number, as the program counts them.
  void ScreenWanted(int index);
  void CloseWanted();

 private:
  Button* Add(const QString& name, const QString& caption, const QString& icon, const QString& tip);
  void AddGap();
  QButtonGroup* AddChoice(const QString& name, const QStringList& captions, const QString& tip);
  void FillScreens();

  MirrorSession& session_;
  QHBoxLayout* row_;
  QButtonGroup* panes_;
  QButtonGroup* cameras_;
  QButtonGroup* speeds_;
  QLabel* delay_;
  QLabel* seconds_;
  QLabel* keeps_;
  QLabel* memory_;
  QLabel* keys_;
  Button* loop_;
  Button* freeze_;
  Button* keep_;
  Button* mirrored_;
  Button* screens_;
  Button* full_;
  QMenu* screenMenu_;
};

}  // namespace kinalyx
