#include "capture/forms/CapturePage.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QStackedWidget>

#include "capture/SourceKinds.h"
#include "capture/forms/CameraLine.h"
#include "capture/forms/FindCamForm.h"
#include "capture/forms/HandsFree.h"
#include "capture/forms/LiveView.h"
#include "capture/forms/NamingPanel.h"
#include "capture/forms/ReviewDesk.h"
#include "capture/forms/UnfinishedBar.h"
#include "capture/import/forms/ImportPanel.h"
#include "library/TodayText.h"
#include "library/forms/Divider.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/SearchBar.h"
#include "library/forms/StatusLine.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/OfferBar.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr const char* kSetupCaption = TrLater("Capture Setup");
constexpr int kSideWidth = 256;  // as designed
enum StagePage { kLivePage, kReviewPage };

QButtonGroup* MakeChoice(QHBoxLayout& row, const QString& name, std::initializer_list<const char*> captions,
                         QObject* owner) {
  auto* group = new QButtonGroup(owner);
  int index = 0;
  for (const char* caption : captions) {
    auto* button = new Button(name + QString::number(index), QObject::tr(caption), {}, Look::Quiet);
    button->setCheckable(true);
    group->addButton(button, index++);
    row.addWidget(button);
  }
  return group;
}

}  // namespace

CapturePage::CapturePage(Parts parts, QWidget* parent)
    : PageWidget(parent),
      parts_(std::move(parts)),
      vocabulary_(parts_.settings),
      browser_(parts_.services.host.Drives(), parts_.settings, parts_.remembered, LibraryBrowser::Kind::Profiles),
      files_(JoinPath(parts_.settings.DataPath, "capture")),
      jobs_(parts_.services.host, JobRunner::On::Worker),
      blockJobs_(parts_.services.host, JobRunner::On::Worker) {
  setObjectName("CapturePage");
  IHost& host = parts_.services.host;
  session_ = std::make_unique<CaptureSession>(CaptureSession::Parts{
      .host = host,
      .settings = parts_.settings,
      .setup = parts_.setup,
      .naming = parts_.naming,
      .files = files_,
      .page = *this,
      .meter = *this,
      .ways = parts_.ways,
      .jobs = jobs_,
      .blockJobs = blockJobs_,
      .trimProgram = JoinPath(parts_.settings.AppPath, "avitrim"),
  });
  session_->SetGraph(parts_.makeGraph(session_->GraphEvents()));

  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(14, 14, 14, 14);
  columns->setSpacing(kGap);
  status_ = new StatusLine("CapStatus");
  columns->addWidget(MakeSide());
  auto* middle = new QVBoxLayout;
  middle->setSpacing(kGap);
  unfinished_ = new UnfinishedBar(host, JoinPath(parts_.settings.DataPath, "capture"));
  middle->addWidget(unfinished_);
  middle->addWidget(MakeCameras());
  room_ = new QWidget;
  auto* room = new QHBoxLayout(room_);
  room->setContentsMargins(0, 0, 0, 0);
  room->setSpacing(kGap);
  review_ = new ReviewDesk(parts_.services, *session_, *this);
  QWidget* stage = MakeStage();
  hands_ = new HandsFree({.host = host,
                          .settings = parts_.settings,
                          .setup = parts_.setup,
                          .naming = parts_.naming,
                          .names = *names_,
                          .session = *session_,
                          .meter = *this,
                          .sounds = parts_.sounds,
                          .makeGraph = parts_.makeGraph},
                         this, stage);
  room->addWidget(hands_->SidePanel());
  room->addWidget(stage, 1);
  middle->addWidget(room_, 1);
  actions_ = MakeActions();
  middle->addWidget(actions_);
  import_ = new ImportPanel(parts_.services, parts_.settings, parts_.naming);
  middle->addWidget(import_, 1);
  middle->addWidget(status_);
  columns->addLayout(middle, 1);
  ConnectParts();
  SetupVocabulary();
  FillCameras();
  ShowPhase();
}

CapturePage::~CapturePage() {
  parts_.setup.SetEvents(nullptr);
  session_->Triggers().FinishKeeping();
  delete hands_;
  session_.reset();
}

// ---------------------------------------------------------------- the parts of the page

QWidget* CapturePage::MakeSide() {
  auto* side = new QWidget;
  FixWidth(side, kSideWidth);
  auto* rows = new QVBoxLayout(side);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGap);
  lists_ = new LibraryLists(browser_, parts_.settings, this, {"InstructorList", "StudentList", "CapVideoList"});
  lists_->VideoList()->setParent(this);
  lists_->VideoList()->hide();
  search_ =
      new SearchBar(parts_.services.host, DriveWatch::SendWorker, parts_.settings.LibraryPath, parts_.fields, this);
  rows->addWidget(search_);
  students_ = new Panel("CapFolderTitle", {});
  MostWidth(students_, kSideWidth);
  studentsTitle_ = MakeLabel("CapStudents", {}, "caption");
  QLabel* instructors = MakeLabel({}, tr("Instructors"), "caption");
  for (QLabel* label : {instructors, studentsTitle_}) label->setContentsMargins(kGap, 8, kGap, 2);
  students_->Body()->addWidget(instructors);
  students_->Body()->addWidget(lists_->InstructorList(), 2);
  students_->Body()->addWidget(Divider());
  students_->Body()->addWidget(studentsTitle_);
  students_->Body()->addWidget(lists_->StudentList(), 3);
  rows->addWidget(students_, 1);
  names_ = new NamingPanel(parts_.naming);
  rows->addWidget(names_);
  return side;
}

QWidget* CapturePage::MakeCameras() {
  auto* ground = new QWidget;
  auto* rows = new QVBoxLayout(ground);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(6);
  auto* first = new QHBoxLayout;
  first->setSpacing(6);
  kind_ = new QComboBox;
  kind_->setObjectName("CapKindList");
  kind_->setToolTip(tr("Where videos come from"));
  kind_->setAccessibleName(kind_->toolTip());
  kind_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  kind_->setMinimumContentsLength(8);
  for (const SourceWords& words : SourceKinds())
    kind_->addItem(Q(Tr(std::string(words.caption))), static_cast<int>(words.kind));
  connect(kind_, &QComboBox::activated, this,
          [this](int row) { parts_.setup.ChooseKind(static_cast<SourceKind>(kind_->itemData(row).toInt())); });
  MostWidth(kind_, 230);
  first->addWidget(kind_, 3);
  OneCamTwoOpt_ = MakeChoice(*first, "OneCamTwoOpt", {TrLater("One Cam"), TrLater("Two Cam")}, this);
  choice_ = new QWidget;
  auto* choices = new QHBoxLayout(choice_);
  choices->setContentsMargins(kGap, 0, 0, 0);
  choices->setSpacing(6);
  CamChoiceBtn_ = MakeChoice(*choices, "CamChoiceBtn", {TrLater("Camera 1"), TrLater("Camera 2")}, this);
  first->addWidget(choice_);
  first->addStretch(1);
  CapSetupBtn_ = new Button("CapSetupBtn", tr(kSetupCaption), "setup", Look::Quiet);
  CapSetupBtn_->setToolTip(tr("Capture setup: kinds of cameras, naming, default cameras, cameras on the network"));
  CapSetupBtn_->setAccessibleName(tr(kSetupCaption));
  connect(CapSetupBtn_, &QPushButton::clicked, this, [this] { parts_.ways.GoToCaptureSetup(); });
  first->addWidget(CapSetupBtn_);
  rows->addLayout(first);
  for (int camera = 0; camera < 2; ++camera) {
    lines_[camera] = new CameraLine(parts_.setup, camera);
    rows->addWidget(lines_[camera]);
  }
  return ground;
}

QWidget* CapturePage::MakeStage() {
  stage_ = new QStackedWidget;
  stage_->setObjectName("Videobox");
  auto* live = MakeFrame("stage");
  auto* row = new QHBoxLayout(live);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (int camera = 0; camera < 2; ++camera) {
    live_[camera] = new LiveView(QString("ezVidCap%1").arg(camera + 1));
    row->addWidget(live_[camera], 1);
    connect(live_[camera], &LiveView::Pressed, this, [this] { hands_->FireByMouse(); });
    connect(live_[camera], &LiveView::RoomChanged, this,
            [this, camera](QSize room) { session_->WantSize(camera, room.width(), room.height()); });
  }
  stage_->addWidget(live);
  stage_->addWidget(review_->Videos());
  return stage_;
}

QWidget* CapturePage::MakeActions() {
  auto* ground = new QWidget;
  auto* rows = new QVBoxLayout(ground);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(6);
  rows->addWidget(review_->Bar());

  Capturebtn_ = new Button("Capturebtn", tr("Start Capture"), "record");
  LeastWidth(Capturebtn_, 190);
  Capturebtn_->setToolTip(tr("Space"));
  StartHerebtn_ = new Button("StartHerebtn", tr("Trim Front of Video"), "trim", Look::Quiet);
  StartHerebtn_->setToolTip(tr("The video begins at the picture that is shown (I)"));
  EndHerebtn_ = new Button("EndHerebtn", tr("Trim End of Video"), "trim", Look::Quiet);
  EndHerebtn_->setToolTip(tr("The video ends at the picture that is shown (O)"));
  CapSavebtn_ = new Button("CapSavebtn", tr("Save Capture"), "save");
  CapSavebtn_->setToolTip(tr("Ctrl+S"));
  CapSendbtn_ = new Button("CapSendbtn", tr("Send to Analysis"), "send");
  CapSendbtn_->setToolTip(tr("Saves the recording and opens it in the analysis section (Return)"));
  buttons_ = new QBoxLayout(QBoxLayout::LeftToRight);
  buttons_->setSpacing(8);
  mirror_ = new Button("MirrorBtn", tr("Delayed Mirror"), "delayed-mirror", Look::Quiet);
  mirror_->setToolTip(tr("A window that shows the cameras some seconds ago"));
  connect(mirror_, &QPushButton::clicked, this, [this] { parts_.ways.OpenMirror(); });
  auto* methods = static_cast<QHBoxLayout*>(hands_->Methods()->layout());
  methods->addSpacing(kGap);
  methods->addWidget(mirror_);
  buttons_->addWidget(hands_->Methods());
  buttons_->addStretch(1);
  const auto add = [this](std::initializer_list<QWidget*> buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (QWidget* button : buttons) row->addWidget(button);
    buttons_->addLayout(row);
  };
  add({Capturebtn_, StartHerebtn_, EndHerebtn_});
  add({CapSavebtn_, CapSendbtn_});
  buttons_->addWidget(hands_->Buttons());
  rows->addLayout(buttons_);
  return ground;
}

/// In a narrow window the buttons of the review take two rows, and the way to the setup is a picture alone.
void CapturePage::resizeEvent(QResizeEvent* event) {
  PageWidget::resizeEvent(event);
  int wanted = 0;
  for (const Button* button : {Capturebtn_, StartHerebtn_, EndHerebtn_, CapSavebtn_, CapSendbtn_})
    wanted += button->sizeHint().width() + 8;
  const int room = width() - Px(kSideWidth) - 4 * kGap;
  buttons_->setDirection(room >= wanted ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  CapSetupBtn_->setText(tr(kSetupCaption));
  int choices = kind_->minimumSizeHint().width() + CapSetupBtn_->sizeHint().width();
  for (const QButtonGroup* group : {OneCamTwoOpt_, CamChoiceBtn_})
    for (const QAbstractButton* button : group->buttons()) choices += button->sizeHint().width() + 8;
  if (room < choices) CapSetupBtn_->setText(QString());
}

void CapturePage::ConnectParts() {
  connect(lists_, &LibraryLists::InstructorChosen, this, &CapturePage::FolderChosen);
  connect(lists_, &LibraryLists::StudentChosen, this, &CapturePage::FolderChosen);
  connect(search_, &SearchBar::Wanted, this, &CapturePage::GoTo);
  connect(search_, &SearchBar::Left, this, [this] { lists_->StudentList()->setFocus(); });
  connect(import_, &ImportPanel::SetupWanted, this, [this] { parts_.ways.GoToCaptureSetup(); });
  connect(import_, &ImportPanel::AnalyzeWanted, this,
          [this](const std::string& path) { parts_.ways.OpenInAnalysis({path}); });
  connect(import_, &ImportPanel::VideoSaved, this, [this] {
    parts_.naming.NameUsed();
    VideoKept();
  });
  // Who has chosen somebody with the mouse records next.
  connect(lists_->StudentList(), &QListWidget::clicked, this, [this] { FocusMainButton(); });
  back_ = new OfferBar("BringBackOffer", tr("Bring It Back"), this);
  connect(back_, &OfferBar::Accepted, this, [this] {
    session_->BringBack();
    ShowPhase();
  });
  connect(unfinished_, &UnfinishedBar::Told, status_, &StatusLine::Say);
  connect(unfinished_, &UnfinishedBar::LookWanted, this,
          [this](const UnfinishedRecording& recording) { session_->ReviewUnfinished(recording); });
  connect(hands_, &HandsFree::MethodChosen, this, [this] {
    session_->Rebuild();
    ShowPhase();
  });
  connect(hands_, &HandsFree::Changed, this, [this] {
    if (hands_->Running()) back_->hide();
    ShowPhase();
  });
  connect(names_, &NamingPanel::Told, status_, &StatusLine::Say);
  connect(OneCamTwoOpt_, &QButtonGroup::idClicked, this, &CapturePage::OneCamTwoOpt_Click);
  connect(CamChoiceBtn_, &QButtonGroup::idClicked, this, &CapturePage::CamChoiceBtn_Click);
  connect(Capturebtn_, &QPushButton::clicked, this, &CapturePage::Capturebtn_Click);
  connect(StartHerebtn_, &QPushButton::clicked, this, &CapturePage::StartHerebtn_Click);
  connect(EndHerebtn_, &QPushButton::clicked, this, &CapturePage::EndHerebtn_Click);
  connect(CapSavebtn_, &QPushButton::clicked, this, &CapturePage::CapSavebtn_Click);
  connect(CapSendbtn_, &QPushButton::clicked, this, &CapturePage::CapSendbtn_Click);
  connect(review_, &ReviewDesk::StartWanted, this, &CapturePage::StartHerebtn_Click);
  connect(review_, &ReviewDesk::EndWanted, this, &CapturePage::EndHerebtn_Click);
  const auto key = [this](const QKeySequence& keys, auto action) {
    auto* shortcut = new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, action);
  };
  key(QKeySequence("Ctrl+F"), [this] { search_->FocusBox(); });
  key(QKeySequence("Ctrl+S"), [this] { CapSavebtn_Click(); });
  parts_.setup.SetEvents(this);
}

// ---------------------------------------------------------------- coming and going

void CapturePage::Open() {
  open_ = true;
  session_->Triggers().ResetCount();
  browser_.Return(true);
  lists_->ShowAll();
  FolderChosen();
  names_->SetupNameMode();
  FillCameras();
  ShowKind();
  session_->Open();
  ShowPhase();
  unfinished_->LookForThem();
  AskForCamera();
  FocusMainButton();
}

bool CapturePage::Leave() {
  search_->HideResults();
  hands_->StopAnyCapture();
  open_ = !session_->Leave();
  ShowPhase();
  return !open_;
}

void CapturePage::SetupVocabulary() {
  students_->SetTitle(tr("For Which %1").arg(Q(vocabulary_.Noun())));
  studentsTitle_->setText(Q(vocabulary_.Nouns()));
}

void CapturePage::FocusMainButton() {
  QWidget* button = hands_->MainButton();
  (button ? button : Capturebtn_)->setFocus();
}

void CapturePage::FolderChosen() { parts_.naming.SetFolder(browser_.Folder()); }

void CapturePage::GoTo(const SearchHit& hit) {
  browser_.Refresh();
  const bool there =
      browser_.SelectInstructor(hit.instructor) && (hit.student.empty() || browser_.SelectStudent(hit.student));
  lists_->ShowAll();
  FolderChosen();
  if (!there) status_->Say(tr("It is not there any more."));
  FocusMainButton();
}

/// Once for each opening of the page: a camera that the program was told to start with is not there.
void CapturePage::AskForCamera() {
  while (!asked_) {
    const std::optional<int> missing = parts_.setup.MissingCamera();
    if (!missing) return;
    FindCamForm form(*missing, this);
    asking_ = &form;
    const int answer = form.exec();
    asking_ = nullptr;
    if (answer != QDialog::Accepted) asked_ = true;
  }
}

// ---------------------------------------------------------------- handlers

void CapturePage::Capturebtn_Click() {
  session_->PressCapture();
  if (session_->Phase() == CapturePhase::Reviewing) review_->FocusBar();
  if (session_->CanBringBack()) back_->Offer(tr("The recording was put away."));
}
void CapturePage::StartHerebtn_Click() { session_->TrimFront(); }
void CapturePage::EndHerebtn_Click() { session_->TrimEnd(); }
void CapturePage::CapSavebtn_Click() {
  if (names_->TakeTyped()) session_->Save();
}
void CapturePage::CapSendbtn_Click() {
  if (names_->TakeTyped()) session_->SendToAnalysis();
}
void CapturePage::OneCamTwoOpt_Click(int index) { parts_.setup.ChooseCameraCount(index == 0); }
void CapturePage::CamChoiceBtn_Click(int index) { parts_.setup.ChooseCamera(index); }

void CapturePage::keyPressEvent(QKeyEvent* event) {
  // Space starts and stops, and plays what has been recorded; it never puts it away.
  if (event->key() == Qt::Key_Space && Capturebtn_->isVisible())
    return session_->Phase() == CapturePhase::Reviewing ? review_->Play() : Capturebtn_Click();
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && session_->Phase() == CapturePhase::Reviewing) return CapSendbtn_Click();
  PageWidget::keyPressEvent(event);
}

// ---------------------------------------------------------------- what is shown

void CapturePage::FillCameras() {
  const bool two = !parts_.setup.SingleCamera();
  for (CameraLine* line : lines_) line->Fill();
  const bool live = !IsImport(parts_.setup.Kind());
  kind_->setCurrentIndex(kind_->findData(static_cast<int>(parts_.setup.Kind())));
  OneCamTwoOpt_->button(two ? 1 : 0)->setChecked(true);
  for (QAbstractButton* button : OneCamTwoOpt_->buttons()) button->setVisible(live);
  choice_->setVisible(live && !two);
  CamChoiceBtn_->button(parts_.setup.Use() == CameraUse::Second ? 1 : 0)->setChecked(true);
}

QString CapturePage::BadgeText(int camera) const {
  const RecordingTally tally = session_->Tally(camera);
  const std::int64_t tenths = std::max<std::int64_t>(0, tally.lastNs - tally.firstNs) / 100'000'000;
  QString text = QString("%1:%2.%3").arg(tenths / 600).arg(tenths / 10 % 60, 2, 10, QChar('0')).arg(tenths % 10);
  if (tally.lost > 0) text += "   " + (tally.lost == 1 ? tr("1 picture lost") : tr("%1 pictures lost").arg(tally.lost));
  return text;
}

void CapturePage::ShowPhase() {
  const CapturePhase phase = session_->Phase();
  const bool review = phase == CapturePhase::Reviewing;
  const bool writing = phase == CapturePhase::Writing;
  const bool two = session_->TwoCameras();
  Capturebtn_->setText(Q(std::string(CaptionOf(phase))));
  Capturebtn_->SetIcon(writing ? "stop" : review ? "rewind" : "record");
  const bool byHand = parts_.setup.Method() == CaptureMethod::StartStop;
  const bool running = hands_->Running();
  Capturebtn_->setVisible(byHand || (review && !running));
  Capturebtn_->setEnabled(!session_->Saving());
  for (Button* button : {StartHerebtn_, EndHerebtn_, CapSavebtn_, CapSendbtn_}) {
    button->setVisible(review && !running);
    button->setEnabled(!session_->Saving());
  }
  StartHerebtn_->setText(session_->TrimStartFrame() > 0 ? tr("Start at %1").arg(session_->TrimStartFrame())
                                                        : tr("Trim Front of Video"));
  EndHerebtn_->setText(session_->TrimEndFrame() > 0 ? tr("End at %1").arg(session_->TrimEndFrame())
                                                    : tr("Trim End of Video"));
  review_->Bar()->setVisible(review && !running);
  review_->SetOn(review);
  stage_->setCurrentIndex(review && !running ? kReviewPage : kLivePage);

  live_[1]->setVisible(two);
  review_->ShowSecond(two);
  for (int camera = 0; camera < 2; ++camera) {
    live_[camera]->SetWords(Q(session_->CameraWords(camera)));
    live_[camera]->SetBadge(writing ? BadgeText(camera) : QString());
    live_[camera]->SetCaption(two ? tr("Camera %1").arg(camera + 1) : QString());
  }
  // What is being recorded is not changed under way.
  const bool live = phase == CapturePhase::LivePreview && !session_->Saving() && !running;
  for (QWidget* widget : {static_cast<QWidget*>(search_), static_cast<QWidget*>(students_),
                          static_cast<QWidget*>(names_), static_cast<QWidget*>(kind_)})
    widget->setEnabled(!running);
  for (CameraLine* line : lines_) line->SetUsable(live);
  for (QButtonGroup* group : {OneCamTwoOpt_, CamChoiceBtn_})
    for (QAbstractButton* button : group->buttons()) button->setEnabled(live);
  mirror_->setEnabled(live);
  status_->Say(Q(session_->Status()));
  unfinished_->SetUsable(live);
  ShowPlaces();
  if (review) review_->Show();
}

/// Files take the place of cameras, but for a recording that is looked at.
void CapturePage::ShowPlaces() {
  const bool files = IsImport(parts_.setup.Kind()) && session_->Phase() != CapturePhase::Reviewing;
  room_->setVisible(!files);
  const bool live = session_->Phase() != CapturePhase::Reviewing || hands_->Running();
  hands_->SetupCapMode(open_ && !files && live);
  actions_->setVisible(!files);
  status_->setVisible(!files);
  import_->setVisible(files);
}

void CapturePage::ShowKind() {
  ShowPlaces();
  if (!IsImport(parts_.setup.Kind())) return import_->Session().EndWatch();
  import_->SetKind(static_cast<ImportKind>(parts_.setup.Kind()));
  import_->Open();
}

/// The folder has a video more.
void CapturePage::VideoKept() {
  browser_.Refresh();
  lists_->ShowAll();
  FolderChosen();
}

void CapturePage::CaptureChanged() {
  if (session_ && std::exchange(lastSaved_, session_->LastSavedVideo()) != session_->LastSavedVideo()) VideoKept();
  ShowPhase();
  const int lost = session_ ? session_->Triggers().LostCount() : 0;
  if (lost > offered_ && !hands_->Running()) {
    offered_ = lost;
    unfinished_->LookAgain();
  }
}

void CapturePage::SoundCame(double level, bool fired) {
  if (hands_) hands_->SoundCame(level, fired);
}

void CapturePage::LivePictureCame(int camera) { live_[camera]->ShowPicture(session_->Latest(camera)); }

IReviewPlayer& CapturePage::ReviewPlayer(int camera) { return review_->Player(camera); }

void CapturePage::CaptureChoiceChanged() {
  FillCameras();
  ShowKind();
  session_->Rebuild();
  ShowPhase();
}

void CapturePage::CaptureDevicesChanged() {
  FillCameras();
  if (asking_) {
    if (!parts_.setup.MissingCamera()) asking_->accept();
    return;
  }
  // Who is away from the desk is not asked: the camera is taken again when it is back.
  if (isVisible() && !hands_->Running() && session_->Phase() == CapturePhase::LivePreview) AskForCamera();
}

}  // namespace kinalyx
