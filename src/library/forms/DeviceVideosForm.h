#pragma once

#include <QDialog>
#include <memory>
#include <string>
#include <vector>

#include "library/DeviceWatch.h"

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace kinalyx {

class Button;

/// Shows the videos of a telephone or card, and lets the user tick those that are to be added; the new ones are
/// ticked already. Their pictures and lengths come one after the other, for the rows that can be seen, and nothing
/// waits for them.
class DeviceVideosForm : public QDialog {
  Q_OBJECT

 public:
  /// @param send  how work gets to the device
  DeviceVideosForm(IHost& host, DriveWatch::Send send, QWidget* over);

  /// @param student  who gets the videos
  void Open(const OfferedDevice& device, const std::string& student);
  /// The path of the device that was shown last.
  const std::string& Place() const { return device_.place.path; }
  /// The device has been pulled out: nothing can be added any more.
  void ShowGone();

 signals:
  /// The form has closed, and these are to be added.
  void AddWanted(const std::vector<std::string>& paths);

 private:
  struct Glanced;

  void MakeList();
  void Fill();
  std::vector<std::string> Ticked() const;
  void ShowAction();
  void TickOther();
  void Add();
  void GoOnLooking();
  void ShowLook();
  QTreeWidgetItem* NextToLookAt() const;
  void StopLooking();

  IHost& host_;
  DriveWatch::Send send_;
  OfferedDevice device_;
  bool gone_ = false;
  HostTimer timer_;
  std::shared_ptr<Glanced> look_;  ///< under way
  std::shared_ptr<IErrand> errand_;
  std::int64_t lookBegan_ = 0;

  QLabel* title_;
  QLabel* text_;
  QTreeWidget* list_;
  QLabel* note_;
  Button* tick_;
  Button* cancel_;
  Button* add_;
};

}  // namespace kinalyx
