#pragma once

#include <QFrame>
#include <string>
#include <vector>

#include "capture/UnfinishedRecordings.h"
#include "library/JobRunner.h"

class QLabel;

namespace kinalyx {

/// Offers the recordings that an earlier run has left, the latest first: to be looked at, or thrown away.
class UnfinishedBar : public QFrame {
  Q_OBJECT

 public:
  /// @param host    outlives the bar
  /// @param folder  of the working files
  UnfinishedBar(IHost& host, std::string folder, QWidget* parent = nullptr);

  /// Looks for them, beside the user's own work; the second call and those after it do nothing.
  void LookForThem();
  /// Looks once more: something could not be kept.
  void LookAgain();
  /// A recording could be looked at now. Otherwise the bar is out of sight.
  void SetUsable(bool usable);

 signals:
  /// The user wants to see it; it is not offered again.
  void LookWanted(const UnfinishedRecording& recording);
  /// Why one could not be thrown away.
  void Told(const QString& words);

 private:
  class Finding;

  void ShowLatest();
  void Look();
  void Throw();

  IHost& host_;
  std::string folder_;
  JobRunner finder_;
  std::vector<UnfinishedRecording> found_;
  bool looked_ = false;
  bool usable_ = false;
  QLabel* words_;
};

}  // namespace kinalyx
