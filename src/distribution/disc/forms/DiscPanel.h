#pragma once

#include <QPointer>
#include <QWidget>
#include <string>

#include "distribution/disc/DiscDesk.h"
#include "distribution/send/FilesToSend.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace kinalyx {

class BurnForm;
class Button;
class FigureLabel;

/// The disc on the page that sends lessons: the drive, how much room it has, and the way to the burner. It does nothing
/// before Open.
class DiscPanel : public QWidget, private IDiscDeskEvents {
  Q_OBJECT

 public:
  /// The members of the control array `cmdRecordCD`.
  enum Command { kStart, kEject, kTest, kCommands };

  /// All that is passed outlives the panel.
  DiscPanel(IHost& host, Settings& settings, const FilesToSend& files, IDiscDrives& drives, DiscDesk::Places places,
            QWidget* parent = nullptr, JobRunner::On on = JobRunner::On::Worker);

  /// It is on the screen, and the drives may have changed.
  void Open();
  /// The list has changed.
  void FilesChanged();
  void cmdRecordCD_Click(int index);
  void cmdCopyToFolder_Click();
  /// Asks whether a disc that is being written may be given up; true also when there is none.
  bool MayClose();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLayout* MakeFigures();
  QLayout* MakeDrive();
  QLayout* MakeActions();
  void FillDevices();
  void PickImage();
  void Start();
  BurnForm& Form();

  // --- IDiscDeskEvents
  void DriveChanged() override;
  void DriveTold(const std::string& title, const std::string& words) override;

  IHost& host_;
  const FilesToSend& files_;
  DiscDesk desk_;
  JobRunner::On on_;
  QPointer<BurnForm> form_;
  FigureLabel* required_;
  FigureLabel* space_;
  QLabel* driveStatus_;
  QLabel* words_;
  QLabel* said_;
  QComboBox* cbDevices_;
  QComboBox* cbSpeed_;
  QCheckBox* pageToo_;
  QCheckBox* check_;
  Button* cmdRecordCD_[kCommands];
  Button* cmdCopyToFolder_;
};

}  // namespace kinalyx
