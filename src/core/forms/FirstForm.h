#pragma once

#include <QDialog>

class QButtonGroup;
class QLineEdit;
class QVBoxLayout;

namespace kinalyx {

class ColorSchemes;
class MailSettings;
class Settings;

/// Asks a new user for name, company, look and way of working, on the very first start. Every change is kept at
/// once but for the look, which is shown at once and kept by "Finished"; that also makes name and company the
/// sender and the subject of mails.
class FirstForm : public QDialog {
  Q_OBJECT

 public:
  /// @param over  the window over whose middle the form opens
  FirstForm(Settings& settings, MailSettings& mail, ColorSchemes& schemes, QWidget* over = nullptr);

  /// Goes without being finished: the look is again that of the settings.
  void reject() override;

 signals:
  void CompanyChanged(const QString& company);
  /// The schemes have taken another look, which is to be worn.
  void DesignChanged();

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent*) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddLook(QVBoxLayout& rows);
  void AddKeys(QVBoxLayout& rows);
  void WearLook(int design);
  void Finish();

  Settings& settings_;
  MailSettings& mail_;
  ColorSchemes& schemes_;
  QButtonGroup* looks_ = nullptr;
  QLineEdit* name_ = nullptr;
  QLineEdit* company_ = nullptr;
};

}  // namespace kinalyx
