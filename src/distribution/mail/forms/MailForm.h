#pragma once

#include <QDialog>
#include <array>

#include "distribution/mail/MailDesk.h"
#include "distribution/mail/MailReader.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QVBoxLayout;

namespace kinalyx {

class Button;
class MailPicture;

/// The queue of pictures, one at a time, and the mail that takes them to a student. Closing it leaves the queue as it
/// is; only a mail that went, and the buttons that say so, take pictures away.
class MailForm final : public QDialog, private IMailEvents {
  Q_OBJECT

 public:
  struct Parts {
    IHost& host;
    MailDesk& desk;
    MailReader reader;
  };
  /// All outlives the form.
  MailForm(Parts parts, QWidget* over);
  ~MailForm() override;

  // --- handlers
  void EmailBtn_Click(int index);
  void SSCommand1_Click(int index);

 public slots:
  /// While a mail is under way this cancels it, and the form stays.
  void reject() override;

 private:
  QWidget* MakePictures();
  QWidget* MakeMail();
  QWidget* MakeFoot();
  void AddAddresses(QVBoxLayout& rows);
  void ChooseAddresses();
  void ShowPicture();
  void Send();
  void DeletePicture();
  void ClearEmailQueue();
  void ShowState();

  // --- IMailEvents
  void MailStatus(const std::string& words, double part) override;
  void MailSent(const std::string& words) override;
  void MailFailed(const std::string& words) override;
  void MailCancelled() override;

  IHost& host_;
  MailDesk& desk_;
  MailReader reader_;
  int shown_ = 0;  ///< index of the picture on show
  bool sent_ = false;

  MailPicture* picture_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* bytes_ = nullptr;
  std::array<Button*, 2> SSCommand1_{};
  std::array<Button*, 4> EmailBtn_{};
  std::array<QComboBox*, 3> address_{};
  Button* list_ = nullptr;
  QLineEdit* subject_ = nullptr;
  QPlainTextEdit* body_ = nullptr;
  QLabel* status_ = nullptr;
  QProgressBar* gauge_ = nullptr;
};

}  // namespace kinalyx
