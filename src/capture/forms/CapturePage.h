#pragma once

#include <array>
#include <functional>
#include <memory>

#include "capture/CaptureSession.h"
#include "capture/CaptureSetup.h"
#include "capture/ICaptureViews.h"
#include "capture/VideoNaming.h"
#include "core/Vocabulary.h"
#include "library/LibraryBrowser.h"
#include "library/LibraryIndex.h"
#include "library/Profile.h"
#include "platform/widgets/PageWidget.h"
#include "video/PlayerServices.h"

class QBoxLayout;
class QButtonGroup;
class QComboBox;
class QLabel;
class QStackedWidget;

namespace kinalyx {

class Button;
class CameraLine;
class FindCamForm;
class HandsFree;
class ImportPanel;
class LibraryLists;
class LiveView;
class NamingPanel;
class OfferBar;
class Panel;
class ReviewDesk;
class SearchBar;
class StatusLine;
class UnfinishedBar;

/// The capture page: who is recorded and under what name on the left, the cameras in the middle, and beneath them the
/// one large button that starts, stops and goes back, with what belongs to each of these states.
class CapturePage : public PageWidget, private ICapturePage, private IMeterEvents, private ICaptureSetupEvents {
  Q_OBJECT

 public:
  /// What the page works with; all of it outlives the page.
  struct Parts {
    PlayerServices& services;
    Settings& settings;
    ProfileFields& fields;
    LastStudentInfo& remembered;
    CaptureSetup& setup;
    VideoNaming& naming;
    ICaptureWays& ways;
    IShortSounds& sounds;
    std::function<std::unique_ptr<IGraph>(IGraphEvents&)> makeGraph;
  };
  explicit CapturePage(Parts parts, QWidget* parent = nullptr);
  ~CapturePage() override;

  void Open() override;
  bool Leave() override;
  void SetupVocabulary();

  // --- handlers
  void Capturebtn_Click();
  void StartHerebtn_Click();
  void EndHerebtn_Click();
  void CapSavebtn_Click();
  void CapSendbtn_Click();
  void OneCamTwoOpt_Click(int index);
  void CamChoiceBtn_Click(int index);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeSide();
  QWidget* MakeCameras();
  QWidget* MakeStage();
  QWidget* MakeActions();
  void ConnectParts();
  void FolderChosen();
  void FocusMainButton();
  void GoTo(const SearchHit& hit);
  void FillCameras();
  void ShowKind();
  void ShowPlaces();
  void ShowPhase();
  void VideoKept();
  QString BadgeText(int camera) const;
  void AskForCamera();

  void CaptureChanged() override;
  void LivePictureCame(int camera) override;
  void SoundCame(double level, bool fired) override;
  IReviewPlayer& ReviewPlayer(int camera) override;
  void CaptureChoiceChanged() override;
  void CaptureDevicesChanged() override;

  Parts parts_;
  Vocabulary vocabulary_;
  LibraryBrowser browser_;
  WorkingFiles files_;
  JobRunner jobs_;
  JobRunner blockJobs_;
  std::unique_ptr<CaptureSession> session_;
  HandsFree* hands_ = nullptr;
  LibraryLists* lists_;
  SearchBar* search_;
  Panel* students_;
  QLabel* studentsTitle_;
  NamingPanel* names_;
  OfferBar* back_;
  QComboBox* kind_;
  Button* CapSetupBtn_ = nullptr;
  QButtonGroup* OneCamTwoOpt_;
  QButtonGroup* CamChoiceBtn_;
  QWidget* choice_;
  std::array<CameraLine*, 2> lines_{};
  std::array<LiveView*, 2> live_{};
  ReviewDesk* review_;
  QWidget* room_;  ///< of the pictures and what stands beside them
  QStackedWidget* stage_;
  QWidget* actions_;
  QBoxLayout* buttons_;
  ImportPanel* import_;
  std::string lastSaved_;
  UnfinishedBar* unfinished_;
  Button* mirror_;
  Button* Capturebtn_;
  Button* StartHerebtn_;
  Button* EndHerebtn_;
  Button* CapSavebtn_;
  Button* CapSendbtn_;
  StatusLine* status_;
  FindCamForm* asking_ = nullptr;  ///< that is on the screen
  int offered_ = 0;                ///< of the triggered videos that were lost
  bool open_ = false;              ///< on the screen
  bool asked_ = false;             ///< for a camera that is missing
};

}  // namespace kinalyx
