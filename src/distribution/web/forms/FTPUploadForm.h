#pragma once

#include <QDialog>
#include <array>
#include <memory>

#include "distribution/web/SendSession.h"

class QLabel;
class QProgressBar;
class QVBoxLayout;

namespace kinalyx {

class Button;

/// A send in three steps, beside the rest of the program: the user goes on with his work meanwhile.
class FTPUploadForm : public QDialog, private ISendView {
  Q_OBJECT

 public:
  /// @param host  outlives the form
  FTPUploadForm(IHost& host, std::shared_ptr<ISendServers> servers, QWidget* over,
                JobRunner::On on = JobRunner::On::Worker);
  ~FTPUploadForm() override;

  /// Shows the form for this order; says in a message what is missing to it.
  void Open(SendOrder order);
  bool Busy() const { return session_.Busy(); }
  /// Ends what is under way, and goes, without a question.
  void GiveUp();

 public slots:
  /// Asks first where something is under way.
  void reject() override;

 private:
  void MakeSteps(QVBoxLayout& rows);
  void SendChanged() override;
  void SendLeaves() override;

  IHost& host_;
  SendSession session_;
  QLabel* title_;
  QLabel* whose_;
  std::array<QLabel*, 3> marks_{};
  std::array<QLabel*, 3> steps_{};
  QLabel* words_;
  QLabel* detail_;
  QProgressBar* gauge_;
  Button* close_;
  Button* FTPGObtn_;
  int shownPhase_ = -1;
};

}  // namespace kinalyx
