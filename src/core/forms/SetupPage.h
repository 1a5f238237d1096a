#pragma once

#include <array>

#include "platform/host/Host.h"
#include "platform/widgets/PageWidget.h"

class QButtonGroup;
class QStackedWidget;

namespace kinalyx {

class AnalysisSection;
class Button;
class ColorSchemes;
class GeneralSection;
class MenuSection;
class Settings;

/// Program Setup: sections to the left, the settings of one of them beside. Every control writes its key
/// at once.
class SetupPage : public PageWidget {
  Q_OBJECT

 public:
  /// The index of a section and of its button `PSCmd`.
  enum Section { kMainMenu = 0, kProfiles = 1, kCapture = 2, kAnalysis = 3, kGeneral = 4, kInternet = 5 };

  SetupPage(IHost& host, Settings& settings, ColorSchemes& schemes, QWidget* parent = nullptr);

  /// Some settings of the analysis section are changed there as well: the grid's, for one.
  void Open() override;

  /// Pushes every setting into its control, writing nothing.
  void SetupProgram();
  /// Takes over captions after the word for the person under analysis has changed.
  void SetupVocabulary();
  /// Opens a section and presses its button. A section that is not built yet is refused with false.
  bool PSCmd_Click(int index);
  /// Shows the settings after their file had gone and holds its first-run values again, and tells of each.
  void TakeReloaded();
  int CurrentSection() const { return current_; }

  /// Gives a section that comes from another room its page, which this page becomes the parent of. Until then the
  /// section is closed.
  void SetSection(Section section, QWidget* page);
  /// A panel of another room in the section General, which becomes its parent.
  void AddToGeneral(QWidget* panel);

  AnalysisSection& Analysis() { return *analysis_; }

 signals:
  /// The scheme's colours are applied to ColorSchemes already; the application must be dressed anew.
  void DesignChanged();
  void VocabularyChanged();
  void CompanyChanged(const QString& company);
  /// Heading lines, their place or the picture of the main menu.
  void MenuChanged();
  /// `LibraryPath` is another.
  void LibraryChanged();
  /// A setting of the analysis section.
  void AnalysisChanged();
  /// The window mode is another and written: close the program and start it again. Sent from the event
  /// loop, never from inside a control's own handler.
  void RestartWanted();

 private:
  QWidget* MakeSections();
  void RestartTimer_Timer();

  IHost& host_;
  Settings& settings_;
  ColorSchemes& schemes_;
  QButtonGroup* buttons_ = nullptr;
  QStackedWidget* stack_ = nullptr;
  MenuSection* menu_ = nullptr;
  AnalysisSection* analysis_ = nullptr;
  GeneralSection* general_ = nullptr;
  std::array<QWidget*, 6> pages_{};
  int current_ = -1;
  HostTimer RestartTimer_;
};

}  // namespace kinalyx
