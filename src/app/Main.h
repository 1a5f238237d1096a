#pragma once

#include <QString>
#include <QWidget>
#include <array>

#include "platform/widgets/PageWidget.h"

class QLabel;
class QStackedWidget;

namespace kinalyx {

class Button;
class TileButton;

/// Pages of the main window, by the index of the button that leads there.
enum MainPage {
  kMenuPage = 0,
  kProfilesPage = 1,
  kCapturePage = 2,
  kAnalysisPage = 3,
  kLessonPage = 4,
  kImportExportPage = 5,
  kSetupPage = 6,
  kHelpPage = 7,
  kPageCount = 8,
};

/// What the hub window asks before it goes.
class IMainEvents {
 public:
  virtual ~IMainEvents() = default;
  /// The window is to be closed, however that was begun. With true it goes and asks no more; with false it stays.
  virtual bool MainMayClose() = 0;
};

/// The hub window: a heading, a rail of sections and the page that is open. Decides nothing: it shows the
/// pages that it is given and tells which one the user wants.
class Main : public QWidget {
  Q_OBJECT

 public:
  /// @param events  outlives the window
  explicit Main(IMainEvents& events, QWidget* parent = nullptr);
  ~Main() override;

  /// Gives a page its place; the window becomes its parent. An earlier page there is let go.
  void SetPage(int index, PageWidget* page);
  /// Takes a page out and lets it go.
  void DropPage(int index);
  PageWidget* Page(int index) const { return pages_[static_cast<std::size_t>(index)]; }

  /// Asks the page that is shown whether it can be left for another one; true when there is none.
  bool LeavePage();
  /// Shows a page that has been set, with its title in the heading, and has it open.
  void OpenPage(int index, const QString& title);
  int CurrentPage() const { return current_; }
  void SetHeading(const QString& title);
  /// The company's name, at the right of the heading.
  void SetCompany(const QString& company);
  /// What goes on in the analysis section while another page is shown, in the heading; empty for nothing. A press on
  /// it is told as SignPressed.
  void SetSign(const QString& words);
  /// Words of a section's button, on the rail.
  void SetSectionCaption(int index, const QString& caption);

  /// With nothing around the window, the heading carries buttons that put it away and close it.
  void SetFullScreen(bool on);

  bool Closed() const { return closed_; }

 signals:
  void PageWanted(int index);
  void SignPressed();
  /// At every step of a drag.
  void Resized(QSize size);
  /// For the first time, and with it all that is in the window.
  void Painted();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* MakeHeading();
  void ShowSign();
  QWidget* MakeRail();

  IMainEvents& events_;
  QLabel* logo_ = nullptr;
  QLabel* title_ = nullptr;
  QLabel* company_ = nullptr;
  Button* sign_ = nullptr;
  Button* minimize_ = nullptr;
  Button* close_ = nullptr;
  QWidget* rail_ = nullptr;
  QStackedWidget* stack_ = nullptr;
  std::array<TileButton*, 9> sections_{};
  std::array<PageWidget*, kPageCount> pages_{};
  int current_ = -1;     ///< the page that is shown; after DropPage or at first none
  bool asking_ = false;  ///< whether it may close
  bool closed_ = false;
  bool painted_ = false;
};

}  // namespace kinalyx
