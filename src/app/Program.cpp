#include "app/Program.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <utility>

#include "capture/forms/CaptureSection.h"
#include "core/Heading.h"
#include "core/forms/FirstForm.h"
#include "core/forms/HelpPage.h"
#include "core/forms/LanguagePanel.h"
#include "core/forms/MenuPage.h"
#include "core/forms/SetupPage.h"
#include "core/forms/SplashForm.h"
#include "distribution/mail/forms/InternetSection.h"
#include "distribution/models/forms/ModelServerPanel.h"
#include "distribution/send/forms/SendPage.h"
#include "distribution/updates/forms/UpdatesPanel.h"
#include "library/forms/FieldsEditor.h"
#include "library/forms/ImportExportPage.h"
#include "library/forms/ProfilesPage.h"
#include "platform/files/Folders.h"
#include "platform/files/Languages.h"
#include "platform/files/Tr.h"
#include "platform/files/Trash.h"
#include "platform/host/CrashReport.h"
#include "platform/host/QtHost.h"
#include "platform/host/Readiness.h"
#include "platform/widgets/OfferBar.h"
#include "platform/widgets/FileDrop.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Style.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx {
namespace {

constexpr QSize kLeastMain(1000, 680);
/// After so long without a change of size a drag is taken as ended.
constexpr int kSettledMs = 150;
/// By then a desktop has put its frame around a new window.
constexpr int kFramedMs = 150;
/// How often it is asked whether the way is free for what another start has handed over.
constexpr int kWishMs = 200;

}  // namespace

Program::Program(QApplication& application, OneProgram& one, Log& log)
    : application_(application),
      one_(one),
      manners_(AskDesktop()),
      host_(MakeQtHost(log)),
      printer_(MakePrinter()),
      settings_(*host_, Settings::UserDataPath(), ProgramFolder(), *this),
      mail_(settings_.DataPath),
      vocabulary_(settings_),
      fields_(JoinPath(settings_.DataPath, "fields.ini")),
      scheduler_(*host_),
      players_{.host = *host_, .scheduler = scheduler_, .sound = &sound_},
      operations_(*host_, settings_, *this, {.trash = &DesktopTrash()}) {}

Program::~Program() = default;

std::string Program::CrashFolder() { return JoinPath(Settings::UserDataPath(), "crashes"); }
std::string Program::WordsFolder() { return JoinPath(ProgramFolder(), "words"); }

int Program::Run(const std::vector<std::string>& files) {
  SetStill(application_, manners_.still);
  DressApplication();  // for what is told while the settings are read
  StartUp(settings_, mail_, schemes_, *this);
  // The main form may have been closed already, from within the first form.
  int result = 0;
  if (!main_->Closed()) {
    if (!files.empty()) OpenFiles(files);
    OfferCrashReport();
    const EndSignals ending([this](EndSignals::Why why) { End(why); });
    one_.Serve([this](const StartWish& wish) { TakeWish(wish); });
    result = application_.exec();
  }
  one_.Release();
  splash_.reset();
  main_.reset();
  if (RestartFlag_) host_->StartDetached(Std(QCoreApplication::applicationFilePath()), {});
  return result;
}

void Program::TakeLanguage() { SpeakLanguage(application_, WordsFolder(), settings_.Language); }

void Program::ApplyScheme() {
  const WindowPlace place = PlaceOfMain();
  TakeSize(place.width / kTwipsPerPixel, place.height / kTwipsPerPixel);
  DressApplication();
}

void Program::EnsureFields() { fields_.EnsureFile(); }

void Program::ShowSplash() {
  splash_ = std::make_unique<SplashForm>(QCoreApplication::applicationVersion());
  splash_->Appear(*host_);
}

/// It stays its second over the main form, which can be used meanwhile.
void Program::CloseSplash() {
  if (splash_) splash_->LeaveLater(*host_);
}

bool Program::TakeSize(int width, int height) {
  resizeControls_.Resize(width, height);
  return SetTextPixels(application_, qRound(resizeControls_.TextPixels() * manners_.textScale));
}

/// The end of a drag, not each of its steps: to dress all forms anew takes a moment.
void Program::MainResized() {
  settling_ = HostTimer(*host_, kSettledMs, false, [this] {
    if (!main_ || !TakeSize(main_->width(), main_->height())) return;
    DressApplication();
    for (QWidget* form : QApplication::topLevelWidgets())
      if (form->isVisible() && qobject_cast<QDialog*>(form)) ScaleForm(*form, *main_);
  });
}

void Program::DressApplication() { ApplyTheme(application_, Theme::FromSlots(schemes_.Colours())); }

// ---------------------------------------------------------------- the main form

void Program::LoadMain() {
  fields_.SetupFields();
  lastStudent_ = {settings_.LastInstructor, settings_.LastStudent, {}};
  IMainEvents& events = *this;
  main_ = std::make_unique<Main>(events);
  QObject::connect(main_.get(), &Main::PageWanted, [this](int index) { OpenPage(index); });
  QObject::connect(main_.get(), &Main::Resized, [this] { MainResized(); });
  QObject::connect(main_.get(), &Main::Painted, main_.get(), TellReady, Qt::QueuedConnection);
  QObject::connect(new FileDrop(main_.get()), &FileDrop::Dropped,
                   [this](const std::vector<std::string>& paths) { OpenFiles(paths); });

  menu_ = new MenuPage(*host_, settings_);
  main_->SetPage(kMenuPage, menu_);
  reopen_ = new OfferBar("ReopenOffer", QObject::tr("Reopen (Ctrl+Shift+T)"), main_.get());
  QObject::connect(reopen_, &OfferBar::Accepted, main_.get(), [this] {
    OpenPage(kAnalysisPage);
    if (main_->CurrentPage() == kAnalysisPage) OpenAnalysis().Section().Commands().Run("ReopenVideos");
  });
  QObject::connect(menu_, &MenuPage::PageWanted, [this](int index) { OpenPage(index); });
  QObject::connect(menu_, &MenuPage::MenuChanged, [this] { setup_->SetupProgram(); });

  profiles_ = new ProfilesPage(players_, *printer_, settings_, fields_, lastStudent_, operations_);
  main_->SetPage(kProfilesPage, profiles_);

  settings_.LoadCaptureSettings();
  capture_ = std::make_unique<CaptureRoom>(CaptureRoom::Parts{
      .services = players_, .settings = settings_, .fields = fields_, .remembered = lastStudent_, .ways = *this});
  capturePage_ = capture_->MakePage();
  main_->SetPage(kCapturePage, capturePage_);
  mirror_ = std::make_unique<MirrorRoom>(MirrorRoom::Parts{
      .host = *host_, .settings = settings_, .remembered = lastStudent_, .capture = *capture_, .closed = [this] {
        MirrorClosed();
      }});

  ILiveDrawWays& liveDrawWays = *this;
  liveDraw_ = std::make_unique<LiveDrawRoom>(
      LiveDrawRoom::Parts{.host = *host_, .settings = settings_, .capture = *capture_, .ways = liveDrawWays});

  handouts_ =
      std::make_unique<HandoutRoom>(HandoutRoom::Parts{.services = players_,
                                                       .printer = *printer_,
                                                       .settings = settings_,
                                                       .mail = mail_,
                                                       .fields = fields_,
                                                       .remembered = lastStudent_,
                                                       .capture = *capture_,
                                                       .ways = *this,
                                                       .lessonSign =
                                                           [main = QPointer(main_.get())](const std::string& words) {
                                                             if (main) main->SetSign(Q(words));
                                                           },
                                                       .over = *main_});
  QObject::connect(main_.get(), &Main::SignPressed, [this] {
    OpenPage(kAnalysisPage);
    if (main_->CurrentPage() == kAnalysisPage) handouts_->StopLesson();
  });

  send_ = std::make_unique<SendRoom>(SendRoom::Parts{
      .host = *host_, .settings = settings_, .mail = mail_, .remembered = lastStudent_, .over = *main_});
  sendPage_ = send_->MakePage();
  main_->SetPage(kLessonPage, sendPage_);

  importExport_ = new ImportExportPage(*host_, settings_, operations_, lastStudent_);
  main_->SetPage(kImportExportPage, importExport_);

  setup_ = new SetupPage(*host_, settings_, schemes_);
  auto* fieldsEditor = new FieldsEditor(*host_, fields_);
  QObject::connect(fieldsEditor, &FieldsEditor::FieldsChanged, profiles_, &ProfilesPage::SetupFields);
  setup_->SetSection(SetupPage::kProfiles, fieldsEditor);
  CaptureSection* captureSection = capture_->MakeSection();
  QObject::connect(captureSection, &CaptureSection::CaptureWanted, captureSection, [this] { GoToCapture(); });
  setup_->SetSection(SetupPage::kCapture, captureSection);
  const auto makeServer = [](ServerLogin login) { return MakeFileServer(std::move(login)); };
  auto* internet = new InternetSection(
      *host_, settings_, mail_, [] { return MakeMailSender(); }, makeServer);
  internet->AddGroup(new ModelServerPanel(mail_));
  setup_->SetSection(SetupPage::kInternet, internet);
  updates_ = std::make_unique<UpdateCheck>(UpdateCheck::Parts{.host = *host_,
                                                              .settings = settings_,
                                                              .mail = mail_,
                                                              .makeServer = makeServer,
                                                              .ownVersion = Std(QCoreApplication::applicationVersion()),
                                                              .close = [this] { main_->close(); },
                                                              .changed = [this] { updatesPanel_->ShowState(); }});
  updatesPanel_ = new UpdatesPanel(settings_, mail_, *updates_);
  setup_->AddToGeneral(updatesPanel_);
  auto* language = new LanguagePanel(settings_, LanguagesIn(WordsFolder()));
  QObject::connect(language, &LanguagePanel::RestartWanted, setup_, &SetupPage::RestartWanted);
  setup_->AddToGeneral(language);
  main_->SetPage(kSetupPage, setup_);
  ConnectSetupPage();

  help_ = new HelpPage(Q(JoinPath(settings_.AppPath, "help")));
  main_->SetPage(kHelpPage, help_);

  main_->SetCompany(Q(ShownCompany(settings_)));
  SetupVocabulary();
  setup_->SetupProgram();

  if (TakeRestartRequest(settings_)) {
    setup_->PSCmd_Click(SetupPage::kGeneral);
    OpenPage(kSetupPage);
  } else {
    OpenPage(kMenuPage);
  }
  PlaceMain();
  updates_->CheckAtStart();
}

void Program::ConnectSetupPage() {
  const auto on = [this](auto signal, auto action) { QObject::connect(setup_, signal, main_.get(), action); };
  on(&SetupPage::DesignChanged, [this] { DressApplication(); });
  on(&SetupPage::VocabularyChanged, [this] { SetupVocabulary(); });
  on(&SetupPage::CompanyChanged, [this](const QString& company) { main_->SetCompany(company); });
  on(&SetupPage::MenuChanged, [this] { menu_->SetupMenuImage(); });
  on(&SetupPage::LibraryChanged, [this] { lastStudent_ = {}; });
  on(&SetupPage::AnalysisChanged, [this] {
    if (analysis_) analysis_->SettingsChanged();
  });
  on(&SetupPage::RestartWanted, [this] {
    RestartFlag_ = true;
    main_->close();
  });
}

WindowPlace Program::PlaceOfMain() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QSize size = screen ? screen->size() : QSize(1024, 768);
  return PlaceForMode(settings_.WindowMode, size.width(), size.height());
}

/// Gives the window the place of the chosen mode and shows it.
void Program::PlaceMain() {
  main_->setWindowTitle("Kinalyx " + QCoreApplication::applicationVersion().section('.', 0, 1));
  const WindowPlace place = PlaceOfMain();
  const QSize size(place.width / kTwipsPerPixel, place.height / kTwipsPerPixel);
  main_->SetFullScreen(place.fullScreen);
  // Less has no room for the pages, also where the mode asks for it.
  const QScreen* screen = main_->screen();
  main_->setMinimumSize(screen ? kLeastMain.boundedTo(screen->size()) : kLeastMain);
  if (place.fullScreen) {
    main_->setGeometry(QRect(QPoint(), size));
    main_->showFullScreen();
  } else {
    main_->setGeometry(QRect(QPoint(place.left / kTwipsPerPixel, place.top / kTwipsPerPixel), size));
    FitMain();
    main_->show();
    // The frame is known once the desktop has put it around the window.
    framing_ = HostTimer(*host_, kFramedMs, false, [this] { FitMain(); });
  }
  main_->activateWindow();
}

/// Keeps all of the window, its title bar above all, in the part of the screen that is free.
void Program::FitMain() {
  const QScreen* screen = main_ ? main_->screen() : nullptr;
  if (!screen || main_->isMaximized() || main_->isFullScreen()) return;
  const QRect room = screen->availableGeometry();
  const QRect whole = main_->frameGeometry();
  const ScreenArea fitted = FitOnScreen({whole.left(), whole.top(), whole.width(), whole.height()},
                                        {room.left(), room.top(), room.width(), room.height()});
  const QRect place(fitted.left, fitted.top, fitted.width, fitted.height);
  if (place == whole) return;
  const QRect inside = main_->geometry();
  const QMargins frame(inside.left() - whole.left(), inside.top() - whole.top(), whole.right() - inside.right(),
                       whole.bottom() - inside.bottom());
  main_->setMinimumSize(kLeastMain.boundedTo(place.marginsRemoved(frame).size()));
  main_->setGeometry(place.marginsRemoved(frame));
}

/// The next start finds the library where it was left.
void Program::KeepLastStudent() {
  if (settings_.LastInstructor != lastStudent_[0]) settings_.Set(settings_.LastInstructor, lastStudent_[0]);
  if (settings_.LastStudent != lastStudent_[1]) settings_.Set(settings_.LastStudent, lastStudent_[1]);
}

void Program::OpenPage(int index) {
  if (!main_) return;
  if (index != main_->CurrentPage() && !main_->LeavePage()) return;
  liveDraw_->GiveCameraAway(index == kCapturePage);
  KeepLastStudent();
  if (index == kAnalysisPage) {
    mirror_->Lend(false);
    main_->SetHeading(Q(vocabulary_.PageTitle(kAnalysisPage)));
    OpenAnalysis();
    main_->OpenPage(kAnalysisPage, QObject::tr("Analysis"));
    return;
  }
  if (!main_->Page(index)) return;
  mirror_->Lend(index == kCapturePage);
  if (index == kSetupPage && setup_->CurrentSection() < 0) setup_->PSCmd_Click(SetupPage::kMainMenu);
  if (index == kHelpPage) help_->Navigate("index.htm");
  main_->OpenPage(index, Q(vocabulary_.PageTitle(index)));
}

void Program::SetupVocabulary() {
  for (int index = 1; index <= 8; ++index) main_->SetSectionCaption(index, Q(vocabulary_.PageButton(index)));
  menu_->SetupVocabulary();
  setup_->SetupVocabulary();
  profiles_->SetupVocabulary();
  if (analysis_) analysis_->SettingsChanged();
  sendPage_->SetupVocabulary();
  importExport_->SetupVocabulary();
  capturePage_->SetupVocabulary();
  help_->SetupVocabulary(vocabulary_);
}

void Program::SettingsReloaded() {
  if (main_ && setup_) setup_->TakeReloaded();
}

void Program::ShowFirstForm() {
  // What asks is not covered.
  splash_->Stay(*host_);
  splash_.reset();
  FirstForm form(settings_, mail_, schemes_, main_.get());
  QObject::connect(&form, &FirstForm::CompanyChanged, main_.get(), &Main::SetCompany);
  QObject::connect(&form, &FirstForm::DesignChanged, main_.get(), [this] { DressApplication(); });
  form.exec();
  setup_->SetupProgram();
}

// ---------------------------------------------------------------- the analysis section

AnalysisForm& Program::OpenAnalysis() {
  if (!analysis_) {
    analysis_ = new AnalysisForm(*host_, settings_, players_, lastStudent_, *this);
    handouts_->Serve(analysis_);
    main_->SetPage(kAnalysisPage, analysis_);
  }
  return *analysis_;
}

/// Videos from the command line, or dropped where no page takes them.
void Program::OpenFiles(const std::vector<std::string>& paths) {
  OpenPage(kAnalysisPage);
  if (main_->CurrentPage() == kAnalysisPage) OpenAnalysis().Section().OpenFiles(0, paths);
}

/// Another start of the program has been asked for: the window comes forward, and what was to be opened is. While a
/// question stands open its answer comes first.
void Program::TakeWish(const StartWish& wish) {
  if (!main_ || main_->Closed()) return;
  if (!wish.token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(wish.token));
  if (main_->isMinimized()) main_->setWindowState(main_->windowState() & ~Qt::WindowMinimized);
  QWidget* const front = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : main_.get();
  front->raise();
  front->activateWindow();
  if (wish.paths.empty()) return;
  wished_.insert(wished_.end(), wish.paths.begin(), wish.paths.end());
  wishing_ = HostTimer(*host_, kWishMs, true, [this] {
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) return;
    wishing_.Stop();
    if (main_ && !main_->Closed()) OpenFiles(std::exchange(wished_, {}));
  });
}

void Program::OfferCrashReport() {
  if (!TakeCrashReport(CrashFolder())) return;
  auto* offer = new OfferBar("CrashOffer", QObject::tr("Show the Report"), main_.get());
  QObject::connect(offer, &OfferBar::Accepted, main_.get(), [this] { host_->ShowFolder(CrashFolder()); });
  offer->Offer(QObject::tr("Kinalyx broke off last time. A report of it lies on this computer, and is sent nowhere."));
}

void Program::GoToLibrary() { OpenPage(kProfilesPage); }
void Program::GoToCapture() { OpenPage(kCapturePage); }
void Program::GoToMainMenu() { OpenPage(kMenuPage); }
void Program::GoToHelp() { OpenPage(kHelpPage); }

/// Closes all videos, which keeps what was drawn, and lets the section go until it is wanted again.
void Program::ExitAnalysis() {
  if (!analysis_ || !analysis_->CloseAll()) return;
  OpenPage(kMenuPage);
  // The wish may come from one of its own buttons: it goes when that has returned.
  analysis_ = nullptr;
  handouts_->Serve(nullptr);
  host_->StartTimer(0, false, [this] {
    if (main_ && !analysis_) main_->DropPage(kAnalysisPage);
  });
}

void Program::OfferReopen(const std::string& words) {
  if (main_ && !main_->Closed()) reopen_->Offer(Q(words));
}

void Program::QuitProgram() {
  // The wish comes from a key of the page, which may go with the window.
  host_->StartTimer(0, false, [this] {
    if (main_) main_->close();
  });
}

bool Program::IsOpenInAnalysis(const std::string& path) const {
  return analysis_ && analysis_->Section().Stage().CheckOpenInAnalysis(path);
}

int Program::SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) {
  return OpenAnalysis().Section().Videos().SendToAnalysis(path, status);
}

/// Without the section its file alone remembers what stood there.
void Program::PathChanged(const std::string& from, const std::string& to) {
  if (analysis_) analysis_->Section().Videos().PathChanged(from, to);
  else AnalysisWorkspace::FollowInSession(settings_, from, to);
}

/// The wish comes from a page that is left by it: it goes when that has returned.
void Program::GoToAnalysis() {
  going_ = HostTimer(*host_, 0, false, [this] { OpenPage(kAnalysisPage); });
}

// ---------------------------------------------------------------- the capture section

bool Program::OpenInAnalysis(const std::vector<std::string>& paths) {
  if (paths.empty() || !OpenAnalysis().Section().OpenTogether(paths)) return false;
  GoToAnalysis();
  return true;
}

void Program::GoToCaptureSetup() {
  OpenPage(kSetupPage);
  if (main_->CurrentPage() == kSetupPage) setup_->PSCmd_Click(SetupPage::kCapture);
}

void Program::GoToInternetSetup() {
  OpenPage(kSetupPage);
  if (main_->CurrentPage() == kSetupPage) setup_->PSCmd_Click(SetupPage::kInternet);
}

/// One camera serves one of the two windows: the delayed mirror makes way, and live draw for it.
void Program::OpenLiveDraw() {
  if (!mirror_->MayClose()) return;
  backToCapture_ = false;
  mirror_->Close();
  liveDraw_->Show();
}

/// The wish comes from the other window, which stays open behind this one.
void Program::TakeToAnalysis(const std::string& macro) {
  OpenPage(kAnalysisPage);
  if (main_->CurrentPage() != kAnalysisPage) return;
  main_->raise();
  main_->activateWindow();
  AnalysisWorkspace& section = OpenAnalysis().Section();
  section.Transport().Announce(section.Edits().TakeMacro(macro)
                                   ? Tr("The drawing was laid on the video, and is kept as a macro.")
                                   : Tr("The drawing is kept as a macro."));
}

/// The wish may come from the capture page, which is left by it and comes again with the end of the mirror.
void Program::OpenMirror() {
  mirroring_ = HostTimer(*host_, 0, false, [this] {
    const bool captures = main_->CurrentPage() == kCapturePage;
    if (captures) OpenPage(kMenuPage);
    if (main_->CurrentPage() == kCapturePage) return;
    backToCapture_ = captures;
    liveDraw_->Close();
    mirror_->Open();
  });
}

void Program::MirrorClosed() {
  const bool back = std::exchange(backToCapture_, false);
  if (!back || !main_ || main_->Closed() || main_->CurrentPage() != kMenuPage) return;
  mirroring_ = HostTimer(*host_, 0, false, [this] {
    if (main_ && !main_->Closed() && main_->CurrentPage() == kMenuPage) OpenPage(kCapturePage);
  });
}

// ---------------------------------------------------------------- the end

/// False when the user would rather stay than lose what could not be saved; a wish to restart ends with it.
bool Program::MainMayClose() {
  const bool restart = std::exchange(RestartFlag_, false);
  if (main_->CurrentPage() == kCapturePage && !main_->LeavePage()) return false;
  if (!profiles_->MayClose() || !handouts_->MayClose() || !mirror_->MayClose() || !send_->MayClose()) return false;
  if (analysis_ && !analysis_->CloseAll()) return false;
  if (!profiles_->SaveLastNotes() &&
      !host_->Question("", Tr("The notes could not be saved. Do you want to close Kinalyx all the same?")))
    return false;
  main_->LeavePage();
  backToCapture_ = false;
  mirror_->Close();
  liveDraw_->Close();
  send_->Close();
  RestartFlag_ = restart;
  main_->setUpdatesEnabled(false);
  if (analysis_) {
    analysis_ = nullptr;
    handouts_->Serve(nullptr);
    main_->DropPage(kAnalysisPage);
    host_->DoEvents();
  }
  KeepLastStudent();
  StorePlace();
  return true;
}

void Program::StorePlace() {
  const QRect place = main_->frameGeometry();
  settings_.StoreWindowPlace(place.top() * kTwipsPerPixel, place.left() * kTwipsPerPixel,
                             place.width() * kTwipsPerPixel, place.height() * kTwipsPerPixel);
}

/// There is nobody to ask, and little time: what has a place is saved. A recording under way, or one that has not
/// been named, lies where the next start finds it.
void Program::End(EndSignals::Why why) {
  if (!main_ || main_->Closed()) return;
  if (analysis_) analysis_->Section().Keeping().SaveAll();
  profiles_->SaveUnasked();
  KeepLastStudent();
  StorePlace();
  if (why == EndSignals::Why::Told) QApplication::exit(0);
}

}  // namespace kinalyx
