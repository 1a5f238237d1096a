#pragma once

#include <QDialog>

class QLineEdit;
class QVBoxLayout;

namespace kinalyx {

class MailSettings;
class Settings;

/// Asks a new user for name, company and way of working, on the very first start. Every change is kept at once;
/// "Finished" also makes them the sender and the subject of mails.
class FirstForm : public QDialog {
  Q_OBJECT

 public:
  /// @param over  the window over whose middle the form opens
  FirstForm(Settings& settings, MailSettings& mail, QWidget* over = nullptr);

 signals:
  void CompanyChanged(const QString& company);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent*) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddKeys(QVBoxLayout& rows);
  void Finish();

  Settings& settings_;
  MailSettings& mail_;
  QLineEdit* name_ = nullptr;
  QLineEdit* company_ = nullptr;
};

}  // namespace kinalyx
