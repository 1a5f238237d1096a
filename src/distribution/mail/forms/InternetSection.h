#pragma once

#include <array>

#include "core/MailSettings.h"
#include "core/forms/SetupSection.h"
#include "distribution/mail/ServerTests.h"
#include "platform/host/Host.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;

namespace kinalyx {

class Button;

/// The section Internet of Program Setup: the account for outgoing mail, and the instructor's web space. What is typed
/// is written at once; the tests run beside, and the page may be left meanwhile.
class InternetSection final : public SetupSection, private ITestEvents {
  Q_OBJECT

 public:
  /// All that is passed outlives the section.
  InternetSection(IHost& host, Settings& settings, MailSettings& mail, MakeSender makeSender, MakeServer makeServer,
                  JobRunner::On on = JobRunner::On::Worker, QWidget* parent = nullptr);

  void SetupProgram() override;
  /// A panel of another room, beneath the web space; the section becomes its parent.
  void AddGroup(QWidget* panel) { AddGuest(1, panel); }

  // --- handlers
  void optMailService_Click(int index);
  void txtEmail_Change(int index);
  void ckEmail_Click(int index);
  void WebIn_Change(int index);
  void FTPCombo_Click();
  void btnFTPISPSetup_Click(int index);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  /// What stands beneath the button of a test.
  struct TestRow {
    Button* start = nullptr;
    Button* cancel = nullptr;
    QProgressBar* gauge = nullptr;
    QLabel* status = nullptr;
  };

  void AddMail();
  void AddServer(QVBoxLayout& rows);
  void AddLogin(QVBoxLayout& rows);
  void AddWebSpace();
  TestRow AddTest(QVBoxLayout& rows, int index, const QString& caption, const QString& name);
  void ForgetResult(const TestRow& row);
  void AddWords();
  QLineEdit* AddPassword(QVBoxLayout& rows, const QString& name, const QString& caption);
  void ShowService();
  void Wrote(bool written);
  void ShowTests();
  void Fill();
  TestRow& RowOf(ServerTest test) { return test == ServerTest::Mail ? mailTest_ : webTest_; }

  // --- ITestEvents
  void TestStatus(ServerTest test, const std::string& words) override;
  void TestOver(ServerTest test, const std::string& words, bool good) override;

  IHost& host_;
  MailSettings& mail_;
  QButtonGroup* optMailService_ = nullptr;
  std::array<QLineEdit*, 7> txtEmail_{};
  std::array<QCheckBox*, 3> ckEmail_{};
  std::array<QLineEdit*, 4> WebIn_{};
  QComboBox* FTPCombo_ = nullptr;
  Button* passwordEye_ = nullptr;
  QLabel* serviceHint_ = nullptr;
  QLabel* fault_ = nullptr;
  TestRow mailTest_;
  TestRow webTest_;
  ServerTests tests_;
};

}  // namespace kinalyx
