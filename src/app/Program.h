#pragma once

#include <memory>
#include <string>

#include "app/CaptureRoom.h"
#include "app/HandoutRoom.h"
#include "app/LiveDrawRoom.h"
#include "app/Main.h"
#include "app/MirrorRoom.h"
#include "app/SendRoom.h"
#include "core/ColorSchemes.h"
#include "core/MailSettings.h"
#include "core/ResizeControls.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "core/Vocabulary.h"
#include "core/WindowModes.h"
#include "distribution/updates/UpdateCheck.h"
#include "library/LibraryOperations.h"
#include "library/LibraryTree.h"
#include "library/Profile.h"
#include "platform/graph/SoundOutput.h"
#include "platform/host/DesktopManners.h"
#include "platform/host/EndSignals.h"
#include "platform/host/Host.h"
#include "platform/host/OneProgram.h"
#include "platform/print/Printer.h"
#include "video/AVIControl.h"
#include "video/PlayScheduler.h"
#include "workspace/commands/INavigation.h"

class QApplication;

namespace kinalyx {

class AnalysisForm;
class OfferBar;
class HelpPage;
class ImportExportPage;
class Log;
class MenuPage;
class ProfilesPage;
class SendPage;
class SetupPage;
class UpdatesPanel;
class SplashForm;

/// The whole program: makes its objects in the order in which they need each other, hands them round, and
/// carries what one page wants of another. Whatever is decided is decided in the rooms below.
class Program final : private ISettingsEvents,
                      private IStartUpSteps,
                      private IMainEvents,
                      private IAnalysisLink,
                      private INavigation,
                      private ICaptureWays,
                      private ILiveDrawWays,
                      private IHandoutWays {
 public:
  /// @param application  made before and let go after the program
  /// @param one          by which further starts hand over their files; the same
  /// @param log          the same
  Program(QApplication& application, OneProgram& one, Log& log);
  ~Program() override;
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// What crashes leave, beside the log.
  static std::string CrashFolder();
  /// What the program says in other languages, beside it.
  static std::string WordsFolder();

  /// Brings the program up and runs it to its end; the result is that of the process. When the user has
  /// asked for a restart, a new copy has been started by then.
  /// @param files  given on the command line: the videos among them are opened in the analysis section
  int Run(const std::vector<std::string>& files);

 private:
  WindowPlace PlaceOfMain() const;
  void DressApplication();
  void PlaceMain();
  void FitMain();
  void KeepLastStudent();
  /// Takes the size that the main form has, or is about to have; true when that changes the text.
  bool TakeSize(int width, int height);
  void MainResized();
  void ConnectSetupPage();
  void OpenPage(int index);
  void SetupVocabulary();
  AnalysisForm& OpenAnalysis();
  void OpenFiles(const std::vector<std::string>& paths);
  void TakeWish(const StartWish& wish);
  void OfferCrashReport();
  void StorePlace();
  void End(EndSignals::Why why);

  // --- ISettingsEvents
  void SettingsReloaded() override;

  // --- IStartUpSteps
  void TakeLanguage() override;
  void ApplyScheme() override;
  void EnsureFields() override;
  void ShowSplash() override;
  void LoadMain() override;
  void ShowFirstForm() override;
  void CloseSplash() override;

  // --- IMainEvents
  bool MainMayClose() override;

  // --- INavigation
  void GoToLibrary() override;
  void GoToCapture() override;
  void GoToMainMenu() override;
  void GoToHelp() override;
  void OpenLiveDraw() override;
  void ExitAnalysis() override;
  void OfferReopen(const std::string& words) override;
  void QuitProgram() override;
  IHandouts& Handouts() override { return *handouts_; }

  // --- IAnalysisLink: what the library may know of the section, which is made by the first video sent to it
  bool IsOpenInAnalysis(const std::string& path) const override;
  int SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) override;
  void GoToAnalysis() override;
  void PathChanged(const std::string& from, const std::string& to) override;

  // --- INavigation and ICaptureWays
  void OpenMirror() override;
  void MirrorClosed();

  // --- ICaptureWays and IHandoutWays
  bool OpenInAnalysis(const std::vector<std::string>& paths) override;
  void GoToInternetSetup() override;
  void GoToCaptureSetup() override;

  // --- ILiveDrawWays
  void TakeToAnalysis(const std::string& macro) override;

  QApplication& application_;
  OneProgram& one_;
  const DesktopManners manners_;  ///< asked before the application is dressed
  std::unique_ptr<IHost> host_;
  std::unique_ptr<IPrinter> printer_;
  Settings settings_;
  MailSettings mail_;
  ColorSchemes schemes_;
  Vocabulary vocabulary_;
  ProfileFields fields_;
  LastStudentInfo lastStudent_;
  PlayScheduler scheduler_;
  SoundOutput sound_;
  PlayerServices players_;
  LibraryOperations operations_;

  std::unique_ptr<CaptureRoom> capture_;  ///< its page and section go with the main form, before it

  std::unique_ptr<MirrorRoom> mirror_;  ///< a window beside the main form
  bool backToCapture_ = false;          ///< when the mirror closes, for it was opened from that page
  std::unique_ptr<LiveDrawRoom> liveDraw_;

  std::unique_ptr<UpdateCheck> updates_;
  std::unique_ptr<HandoutRoom> handouts_;  ///< outlives the analysis section, which goes with the main form

  std::unique_ptr<SendRoom> send_;  ///< its page and form go with the main form, before it

  std::unique_ptr<SplashForm> splash_;
  std::unique_ptr<Main> main_;
  // Owned by the main form.
  MenuPage* menu_ = nullptr;
  ProfilesPage* profiles_ = nullptr;
  CapturePage* capturePage_ = nullptr;
  SendPage* sendPage_ = nullptr;
  ImportExportPage* importExport_ = nullptr;
  AnalysisForm* analysis_ = nullptr;
  OfferBar* reopen_ = nullptr;
  SetupPage* setup_ = nullptr;
  UpdatesPanel* updatesPanel_ = nullptr;
  HelpPage* help_ = nullptr;
  ResizeControls resizeControls_;
  HostTimer settling_;
  HostTimer framing_;
  HostTimer going_;
  HostTimer mirroring_;
  HostTimer wishing_;
  std::vector<std::string> wished_;  ///< by another start, and not opened yet
  bool RestartFlag_ = false;
};

}  // namespace kinalyx
