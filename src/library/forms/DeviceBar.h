#pragma once

#include <QFrame>
#include <string>
#include <vector>

#include "library/DeviceWatch.h"

class QLabel;

namespace kinalyx {

class DeviceVideosForm;

/// The bar at the foot of a page that tells of a telephone or card with new videos; hidden while there is none.
class DeviceBar : public QFrame {
  Q_OBJECT

 public:
  /// What is passed outlives the bar.
  /// @param over  the page, over which the list of videos opens
  DeviceBar(IHost& host, const Settings& settings, DeviceWatch::Environment environment, QWidget* over);

  /// Watches out for devices from now on.
  void Start() { watch_.Start(); }
  void Stop() { watch_.Stop(); }
  /// Opens the list of the device that is offered.
  /// @param student  who gets the videos
  void ShowVideos(const std::string& student);
  /// Tells how it went with the videos that were wanted last. What has been added is offered no more; what was not
  /// is looked at again.
  void AddingEnded(bool done);

 signals:
  void ShowWanted();
  void AddWanted(const std::vector<std::string>& paths);

 private:
  void ShowOffer();

  DeviceWatch watch_;
  QLabel* words_;
  DeviceVideosForm* form_;
  std::string adding_;  ///< the device from which videos are being added; empty for none
};

}  // namespace kinalyx
