#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>
#include <string>

#include "distribution/disc/DiscJob.h"
#include "distribution/disc/FolderJob.h"
#include "platform/host/Host.h"

class QLabel;
class QListWidget;
class QProgressBar;

namespace kinalyx {

class Button;
class FigureLabel;

/// Shows how a disc is burnt, or a folder filled: the lines of the status list, the state of the drive, how far it is.
/// It closes only when the work is over.
class BurnForm : public QDialog {
  Q_OBJECT

 public:
  BurnForm(IHost& host, QWidget* over, JobRunner::On on = JobRunner::On::Worker);
  ~BurnForm() override;

  void Burn(DiscOrder order, std::unique_ptr<IDiscDrive> drive, const BurnWish& wish);
  /// @param folder  what is there already under the names of the order is replaced after a question
  void Copy(DiscOrder order, const std::string& folder);
  bool Busy() const { return runner_.Busy(); }

 signals:
  /// The work is over, however it went.
  void Ended();
  /// What has been copied is to be looked at.
  void FolderWanted(const QString& folder);

 protected:
  void reject() override;

 private:
  class BurnEnd;
  class CopyEnd;

  void Begin(const QString& caption);
  void BeginCopy(bool replace);
  void BurnOver(const DiscJob* job);
  void CopyOver(const FolderJob* job);
  void ShowEnd(const QString& words, bool well);
  void Cancel();
  void Timer1_Timer();
  void Timer2_Timer();

  IHost& host_;
  JobRunner runner_;
  std::shared_ptr<BurnBoard> board_;
  DiscOrder order_;
  std::string folder_;  ///< of a copy; empty while a disc is burnt
  QString caption_;
  bool cancelled_ = false;
  bool over_ = false;
  QTimer Timer1_;  ///< how far
  QTimer Timer2_;  ///< the state
  QTimer patience_;
  QLabel* heading_;
  QLabel* state_;
  FigureLabel* progress_;
  QProgressBar* gauge_;
  QListWidget* status_;
  Button* leave_;
  Button* show_;
  Button* cmdCancel_;
};

}  // namespace kinalyx
