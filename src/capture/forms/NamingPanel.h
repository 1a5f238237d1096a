#pragma once

#include "capture/VideoNaming.h"
#include "platform/widgets/Panel.h"

class QButtonGroup;
class QComboBox;
class QFrame;
class QGridLayout;
class QLineEdit;

namespace kinalyx {

class Button;

/// How the next video is called: the name that it gets, the text and the view or shot that go into it, and the box in
/// which it can be typed for once.
class NamingPanel : public Panel, private INamingEvents {
  Q_OBJECT

 public:
  /// The naming outlives it and has it as its events from now on.
  explicit NamingPanel(VideoNaming& naming, QWidget* parent = nullptr);
  ~NamingPanel() override;

  /// Shows the panels of the naming that is chosen, `SetupNameMode`.
  void SetupNameMode();
  /// Takes a name that is being typed, as its button would. False, told, when it is no name.
  bool TakeTyped();

 signals:
  /// Something that the user should read: why a text cannot be a name.
  void Told(const QString& words);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void NameChanged() override;
  void NameWanted() override;
  void ChangeNamebtn_Click();
  bool TakeName();
  void CloseBox();

  VideoNaming& naming_;
  QComboBox* mode_;
  QLabel* VidNameLbl_;
  Button* change_;
  QFrame* NameFrame_;
  QLineEdit* box_;
  QLineEdit* VidNametxt_;
  QWidget* views_;
  QWidget* shots_;
  QButtonGroup* LineChoicebtn_;
};

}  // namespace kinalyx
