#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "core/Settings.h"
#include "core/Vocabulary.h"
#include "library/LibraryActions.h"
#include "library/LibraryBrowser.h"
#include "library/LibraryOperations.h"
#include "library/Profile.h"
#include "platform/host/Host.h"
#include "video/AVIControl.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace kinalyx {

class Button;
class LibraryCommands;
class LibraryLists;
class NameList;
class Panel;
class ProfileEditor;
class ProfilePanel;
class VideosPanel;

/// The library page: instructors, students and videos side by side, the preview of the selected video,
/// and the profile of the selected student.
class ProfilesPage : public QWidget {
  Q_OBJECT

 public:
  /// All that is passed outlives the page.
  ProfilesPage(PlayerServices& services, Settings& settings, ProfileFields& fields, LastStudentInfo& remembered,
               LibraryOperations& operations, QWidget* parent = nullptr);
  ~ProfilesPage() override;

  /// The page is about to be shown: reads the library and goes to the remembered student.
  void Open();
  /// The page is left: stores the notes and closes the preview. False, after a message, when the notes
  /// could not be stored; they are kept.
  bool Leave();
  /// Captions with the present word for the person under analysis.
  void SetupVocabulary();
  /// The captions of the fields have changed.
  void SetupFields();
  /// The text of the status line `SPDisplay`.
  void Say(const QString& text);

  LibraryBrowser& Browser() { return browser_; }
  Button* SPBtn(LibraryAction action) { return buttons_[static_cast<std::size_t>(action)]; }
  void SPBtn_Click(LibraryAction action);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  Panel* MakeInstructorsPanel();
  Panel* MakeStudentsPanel();
  void MakeVideoButtons();
  void MakeButton(LibraryAction action, const char* caption, const char* icon);
  void AddButton(LibraryAction action, Button* button);
  void GiveMenu(NameList* list, std::vector<LibraryAction> actions);
  QString HoverText(LibraryAction action) const;
  bool ListKey(QObject* list, int key);
  bool IsHover(const QEvent& event) const;

  bool Release();
  void ShowResult(const OperationResult& result);
  void InstructorChosen();
  void StudentList_Click();
  void VideoList_Click();
  void OfferToDelete(const std::string& path);
  void OpenProfile();
  bool LibraryAnswers(const std::string& path);
  void ShowProfileView(bool shown);
  std::vector<std::string> RealInstructors() const;
  void OpenEditor(bool edit);
  void CloseEditor();
  void ProAddSaveBtn();
  void ShowInstructorBox(bool shown);
  void SSCommand2();

  PlayerServices& services_;
  Settings& settings_;
  Vocabulary vocabulary_;
  ProfileFields& fields_;
  LastStudentInfo& LastStudent_;
  LibraryOperations& operations_;
  LibraryBrowser browser_;
  LibraryLists* lists_;
  LibraryCommands* commands_;
  Profile profile_;
  QString said_;
  QPoint restingMouse_{-1, -1};  ///< where the mouse was when an operation ended
  HostTimer question_;
  std::string shownStudent_;
  std::string shownVideo_;
  using FileState = std::tuple<std::string, std::optional<std::int64_t>, std::optional<std::int64_t>>;
  std::set<FileState> keptBadVideos_;  ///< path, size and time of those that the user would not delete
  std::string editedFolder_;  ///< of the student whose profile is in the editor

  QGridLayout* grid_;
  Panel* instructors_;
  Panel* students_;
  VideosPanel* videos_;
  ProfilePanel* profilePanel_;
  ProfileEditor* editor_;
  QWidget* newInstructor_;
  QLineEdit* Text2_;
  Button* addInstructor_;
  Button* renameInstructor_;
  Button* deleteInstructor_;
  QLabel* SPDisplay_;
  std::array<Button*, kLibraryActions> buttons_{};
};

}  // namespace kinalyx
