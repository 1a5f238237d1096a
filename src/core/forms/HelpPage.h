#pragma once

#include <QUrl>
#include <QWidget>

class QTextBrowser;

namespace kinalyx {

class Button;

/// Shows the help pages that lie beside the program. Links to the outside go to the desktop's browser.
class HelpPage : public QWidget {
  Q_OBJECT

 public:
  /// @param folder  where `index.htm` lies
  explicit HelpPage(const QString& folder, QWidget* parent = nullptr);

  /// Opens a page of the folder, "index.htm" the first.
  void Navigate(const QString& page);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void TakeTheme();
  void Open(const QUrl& link);

  QString folder_;
  QTextBrowser* browser_ = nullptr;
  Button* back_ = nullptr;
  Button* forward_ = nullptr;
};

}  // namespace kinalyx
