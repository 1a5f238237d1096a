#pragma once

#include <QUrl>

#include "platform/widgets/PageWidget.h"

namespace kinalyx {

class Button;
class Reader;
class Vocabulary;

/// Shows the help pages that lie beside the program, in the user's language where a folder of its code has them
/// ("de/index.htm"). Links to the outside go to the desktop's browser.
class HelpPage : public PageWidget {
  Q_OBJECT

 public:
  /// @param folder  where `index.htm` lies
  explicit HelpPage(const QString& folder, QWidget* parent = nullptr);

  /// Opens a page by its name, "index.htm" the first.
  void Navigate(const QString& page);
  /// Takes over the word for the person under analysis, for which pages have places: "{student}", "{Students}" ...
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
