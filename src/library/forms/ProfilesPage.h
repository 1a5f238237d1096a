#pragma once

#include <string>
#include <vector>

#include "core/Settings.h"
#include "core/Vocabulary.h"
#include "library/BadVideos.h"
#include "library/DeviceWatch.h"
#include "library/GlanceStore.h"
#include "library/LibraryActions.h"
#include "library/LibraryBrowser.h"
#include "library/LibraryIndex.h"
#include "library/LibraryOperations.h"
#include "library/ListChoices.h"
#include "library/Profile.h"
#include "library/forms/LibraryCommands.h"
#include "platform/host/Host.h"
#include "platform/widgets/PageWidget.h"
#include "video/AVIControl.h"

class QGridLayout;

namespace kinalyx {

class DeviceBar;
class IPrinter;
class InstructorsPanel;
class LibraryButtons;
class LibraryLists;
class Panel;
class ProfileEditor;
class ProfilePanel;
class SearchBar;
class StatusLine;
class VideoRows;
class VideosPanel;

/// The library page: instructors, students and videos side by side, the preview of the selected video,
/// and the profile of the selected student.
class ProfilesPage : public PageWidget, private ILibraryPage {
  Q_OBJECT

 public:
  /// All that is passed outlives the page.
  ProfilesPage(PlayerServices& services, IPrinter& printer, Settings& settings, ProfileFields& fields,
               LastStudentInfo& remembered, LibraryOperations& operations, QWidget* parent = nullptr,
               DeviceWatch::Environment devices = {}, GlanceStore glances = GlanceStore::OfUser());
  ~ProfilesPage() override;

  /// Reads the library and goes to the remembered student.
  void Open() override;
  /// Stores the notes and closes the preview. False, after a message, when the notes could not be stored, and the
  /// page is as it was. Once the user has been told so it is true: the notes are kept in memory.
  bool Leave() override;
  /// The program is about to close: stores the notes that are in memory alone. False when some cannot be.
  bool SaveLastNotes();
  /// The session ends, and there is nobody to ask: stores the notes and what has been typed into a profile. A new
  /// student is added where the name and the place can be taken, as they are without a word.
  void SaveUnasked();
  /// The program is about to close: asks about a profile that is being edited. False when the user would
  /// rather stay.
  bool MayClose();
  /// Captions with the present word for the person under analysis.
  void SetupVocabulary();
  /// The captions of the fields have changed.
  void SetupFields();
  /// The text of the status line `SPDisplay`.
  void Say(const QString& text) override;

  LibraryBrowser& Browser() { return browser_; }
  void SPBtn_Click(LibraryAction action);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PlaceButtons();
  void ConnectParts();
  bool ListKey(QObject* list, int key);

  void ShowDevice();
  void AddFromDevice(const std::vector<std::string>& paths);
  void TakeDropped(const std::vector<std::string>& paths, QPoint at);
  void ShowDropTarget(QPoint at);
  /// Who gets what is dropped there: the student whose name it is, else the one who is chosen.
  std::string StudentAt(QPoint at) const;
  bool CloseVideo();
  bool Release() override;
  void ShowResult(const OperationResult& result) override;
  void InstructorChosen();
  void StudentList_Click();
  void SortVideos();
  void GoTo(const SearchHit& hit);
  void VideoList_Click();
  void OfferBadVideo();
  void OpenProfile();
  bool LibraryAnswers(const std::string& path);
  void ShowProfileView(bool shown);
  std::vector<std::string> RealInstructors() const;
  void OpenEditor(bool edit);
  bool MayDropEdits();
  void CancelEditor();
  void CloseEditor();
  void ProAddSaveBtn();
  void AddInstructor(const QString& name);

  PlayerServices& services_;
  Settings& settings_;
  Vocabulary vocabulary_;
  ProfileFields& fields_;
  LastStudentInfo& LastStudent_;
  LibraryOperations& operations_;
  LibraryBrowser browser_;
  ListChoices choices_;
  BadVideos badVideos_;
  LibraryLists* lists_;
  LibraryCommands* commands_;
  Profile profile_;
  std::string shownStudent_;
  std::string shownVideo_;
  bool shownOpens_ = true;    ///< the video that is shown could be opened
  std::string editedFolder_;  ///< of the student whose profile is in the editor

  SearchBar* search_;
  QGridLayout* grid_;
  InstructorsPanel* instructors_;
  Panel* students_;
  VideosPanel* videos_;
  VideoRows* rows_;
  ProfilePanel* profilePanel_;
  ProfileEditor* editor_;
  LibraryButtons* buttons_;
  DeviceBar* devices_;
  StatusLine* status_;
};

}  // namespace kinalyx
