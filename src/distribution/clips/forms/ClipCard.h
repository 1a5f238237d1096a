#pragma once

#include <QFrame>
#include <QTimer>
#include <string>

class QLabel;
class QProgressBar;

namespace kinalyx {

class Button;

/// A card in the lower corner of the main window that tells how far a clip is, and what became of it. It takes no
/// focus.
class ClipCard : public QFrame {
  Q_OBJECT

 public:
  explicit ClipCard(QWidget* over);

  void ShowProgress(const std::string& path, double part, int waiting);
  void ShowSaved(const std::string& path);
  /// What went wrong stays until it is dismissed.
  void ShowFailed(const std::string& words);
  void Leave() { hide(); }

 signals:
  void CancelWanted();
  void FolderWanted(const QString& path);
  void PlayWanted(const QString& path);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Arrange(const QString& words, bool running, bool saved);
  void Place();

  QLabel* words_;
  QProgressBar* gauge_;
  Button* cancel_;
  Button* play_;
  Button* folder_;
  Button* dismiss_;
  QString path_;
  QTimer end_;
};

}  // namespace kinalyx
