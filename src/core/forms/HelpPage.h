#pragma once

#include <QUrl>

#include "platform/widgets/PageWidget.h"

namespace kinalyx {

class Button;
class Reader;
class Vocabulary;

/// Shows the help pages that lie beside the program. Links to the outside go to the desktop's browser.
class HelpPage : public PageWidget {
  Q_OBJECT

 public:
  /// @param folder  where `index.htm` lies
  explicit HelpPage(const QString& folder, QWidget* parent = nullptr);

  /// Opens a page of the folder, "index.htm" the first.
  void Navigate(const QString& page);
  /// Takes over the word for the person under analysis: the pages are written with "student".
  void SetupVocabulary(const Vocabulary& words);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void TakeTheme();
  void Open(const QUrl& link);

  QString folder_;
  Reader* browser_ = nullptr;
  Button* back_ = nullptr;
  Button* forward_ = nullptr;
};

}  // namespace kinalyx
