#include "capture/forms/CaptureSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSvgRenderer>
#include <QPainter>

#include "capture/SourceKinds.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kOther = 6;
constexpr QSize kPicture(132, 88);
/// `CamConfig_Camera`: what its indexes do.
enum CamConfig { kFolder = 2, kStoreFirst = 3, kStoreSecond = 4 };

struct FieldChoice {
  const char* caption;
  const char* tip;
};
constexpr FieldChoice kFieldChoices[] = {
    {TrLater("Swap the two fields"), TrLater("When movement jumps back and forth in a video of two fields")},
    {TrLater("Show field by field"), TrLater("Twice the pictures, of half the height")},
    {TrLater("Recompress"), TrLater("Pictures that come raw are compressed as the video is saved")},
};

QPixmap PictureOf(const Settings& settings, std::string_view name, QSize size, double ratio) {
  QSvgRenderer drawing(Q(JoinPath(JoinPath(settings.AppPath, "pictures/cameras"), std::string(name))));
  QPixmap pixmap(size * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  if (!drawing.isValid()) return pixmap;
  QPainter painter(&pixmap);
  drawing.render(&painter, QRectF(QPointF(), QSizeF(size)));
  return pixmap;
}

}  // namespace

CaptureSection::CaptureSection(IHost& host, Settings& settings, CaptureSetup& setup, VideoNaming& naming,
                               QWidget* parent)
    : SetupSection("CaptureSection", settings, parent), host_(host), setup_(setup), naming_(naming) {
  AddKinds();
  AddCameras();
  AddNetwork();
  AddMicrophone();
  AddNaming();
  AddFields();
  Finish();
}

void CaptureSection::AddKinds() {
  QVBoxLayout* rows = AddPanel(0, tr("Select Default Capture Method"));
  DVorAnOpt_ = new QButtonGroup(this);
  for (const SourceWords& words : SourceKinds()) {
    const int index = static_cast<int>(words.kind);
    auto* radio = new QRadioButton(Q(Tr(std::string(words.caption))));
    radio->setObjectName(QString("DVorAnOpt%1").arg(index));
    DVorAnOpt_->addButton(radio, index);
    rows->addWidget(radio);
  }
  connect(DVorAnOpt_, &QButtonGroup::idClicked, this, &CaptureSection::DVorAnOpt_Click);
  rows->addSpacing(4);
  folderButton_ = new Button("CamConfig_Camera2", {}, "open", Look::Quiet);
  folder_ = MakeLabel("ImportFolderLbl", {}, "muted");
  folder_->setWordWrap(true);
  connect(folderButton_, &QPushButton::clicked, this, [this] { CamConfig_Camera_Click(kFolder); });
  rows->addWidget(folderButton_, 0, Qt::AlignLeft);
  rows->addWidget(folder_);

  QVBoxLayout* wizard = AddPanel(0, tr("Get More Information"));
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  wizardPicture_ = new QLabel;
  wizardPicture_->setObjectName("WizardPicture");
  row->addWidget(wizardPicture_, 0, Qt::AlignTop);
  auto* words = new QVBoxLayout;
  wizardTitle_ = MakeLabel("WizardTitle", {}, "heading");
  wizardText_ = MakeLabel("WizardText", {});
  wizardText_->setWordWrap(true);
  words->addWidget(wizardTitle_);
  words->addWidget(wizardText_);
  toCapture_ = new Button("WizardCapture", tr("Choose the Camera"), "camera", Look::Quiet);
  toCapture_->setToolTip(tr("Goes to Capture Videos, where the cameras stand in a list above the picture"));
  connect(toCapture_, &QPushButton::clicked, this, &CaptureSection::CaptureWanted);
  words->addSpacing(4);
  words->addWidget(toCapture_, 0, Qt::AlignLeft);
  words->addStretch(1);
  row->addLayout(words, 1);
  wizard->addLayout(row);
}

void CaptureSection::AddCameras() {
  QVBoxLayout* rows = AddPanel(1, tr("Cameras"));
  rows->addWidget(MakeLabel({}, tr("Total Cameras"), "caption"));
  count_ = AddRadios(*rows, "OneCamSetup", {TrLater("One Cam"), TrLater("Two Cam")});
  connect(count_, &QButtonGroup::idClicked, this, [this](int index) {
    setup_.ChooseCameraCount(index == 0);
    ShowCameras();
  });
  AddDefault(*rows, 0);
  AddDefault(*rows, 1);
}

/// What the page shows for a camera, whether it is the saved one, and the button that saves it.
void CaptureSection::AddDefault(QVBoxLayout& rows, int camera) {
  rows.addSpacing(6);
  auto* row = new QHBoxLayout;
  auto* texts = new QVBoxLayout;
  texts->setSpacing(2);
  shown_[camera] = MakeLabel(QString("ShownCamera%1").arg(camera + 1), {}, "heading");
  shown_[camera]->setWordWrap(true);
  status_[camera] = MakeLabel(QString("CameraStatus%1").arg(camera + 1), {});
  texts->addWidget(shown_[camera]);
  texts->addWidget(status_[camera], 0, Qt::AlignLeft);
  row->addLayout(texts, 1);
  store_[camera] = new Button(QString("CamConfig_Camera%1").arg(camera + kStoreFirst),
                              tr("Set as Camera %1").arg(camera + 1), {}, Look::Quiet);
  store_[camera]->setToolTip(tr("The program starts with this camera, its size and its format from now on"));
  connect(store_[camera], &QPushButton::clicked, this,
          [this, camera] { CamConfig_Camera_Click(camera + kStoreFirst); });
  row->addWidget(store_[camera], 0, Qt::AlignTop);
  rows.addLayout(row);
}

void CaptureSection::AddNetwork() {
  QVBoxLayout* rows = AddPanel(1, tr("Cameras on the Network"));
  QLabel* help =
      MakeLabel({},
                tr("A telephone on a tripod is a camera: start a camera app on it and type the address that it "
                   "shows. A name may stand before it."),
                "caption");
  help->setWordWrap(true);
  rows->addWidget(help);
  for (int i = 0; i < static_cast<int>(network_.size()); ++i) {
    auto* box = new QLineEdit;
    box->setObjectName(QString("NetworkCamera%1").arg(i + 1));
    box->setAccessibleName(tr("Address of network camera %1").arg(i + 1));
    box->setMaxLength(149);
    box->setPlaceholderText(i == 0   ? tr("Telephone http://192.168.0.20:8080/video")
                            : i == 1 ? "rtsp://192.168.0.21/stream"
                                     : "");
    rows->addWidget(box);
    network_[i] = box;
    connect(box, &QLineEdit::editingFinished, this, [this, i, box] {
      if (settings_.Loading || Std(box->text()) == settings_.NetworkCamera[static_cast<std::size_t>(i)]) return;
      setup_.SetNetworkCamera(i, Std(box->text().trimmed()));
    });
  }
}

void CaptureSection::AddMicrophone() {
  QVBoxLayout* rows = AddPanel(1, tr("Microphone"));
  microphone_ = new QComboBox;
  microphone_->setObjectName("MVAudioSourceComboBox");
  microphone_->setAccessibleName(tr("Microphone"));
  rows->addWidget(microphone_);
  connect(microphone_, &QComboBox::textActivated, this, [this](const QString& name) {
    setup_.ChooseMicrophone(Std(name));
    ShowMicrophone();
  });
  line_ = new QWidget;
  auto* lines = new QVBoxLayout(line_);
  lines->setContentsMargins(0, 6, 0, 0);
  lines->addWidget(MakeLabel({}, tr("Input"), "caption"));
  AudioInputPinCombo_ = new QComboBox;
  AudioInputPinCombo_->setObjectName("AudioInputPinCombo");
  AudioInputPinCombo_->setAccessibleName(tr("Input of the microphone"));
  AudioInputPinCombo_->setToolTip(tr("What of all that is plugged into it is heard"));
  lines->addWidget(AudioInputPinCombo_);
  rows->addWidget(line_);
  connect(AudioInputPinCombo_, &QComboBox::activated, this, [this](int index) { setup_.ChooseMicrophoneLine(index); });
}

void CaptureSection::AddNaming() {
  QVBoxLayout* rows = AddPanel(0, tr("Video Naming"));
  AutoNameOpt_ = new QButtonGroup(this);
  constexpr const char* kModes[] = {TrLater("General"), TrLater("Detailed"), TrLater("Manually enter all Video Names"),
                                    TrLater("Automatic Naming ie: Video1 Video2 etc.")};
  for (int i = 0; i < 4; ++i) {
    auto* radio = new QRadioButton(tr(kModes[i]));
    radio->setObjectName(QString("AutoNameOpt%1").arg(i + 1));
    AutoNameOpt_->addButton(radio, i + 1);
    rows->addWidget(radio);
  }
  connect(AutoNameOpt_, &QButtonGroup::idClicked, this,
          [this](int index) { naming_.ChooseMode(static_cast<NameMode>(index)); });
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, tr("Camera 2 Name Extension"), "caption"));
  Cam2Ext_ = new QButtonGroup(this);
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  const auto add = [&](int index, const QString& caption) {
    auto* button = new Button(QString("Cam2Ext%1").arg(index), caption, {}, Look::Quiet);
    button->setCheckable(true);
    Cam2Ext_->addButton(button, index);
    row->addWidget(button);
  };
  for (int i = 0; i < kOther; ++i) add(i, Q(std::string(CameraExtensions()[static_cast<std::size_t>(i)])));
  add(kOther, tr("Other"));
  row->addStretch(1);
  rows->addLayout(row);
  txtSetup_ = new QLineEdit;
  txtSetup_->setObjectName("txtSetup0");
  txtSetup_->setAccessibleName(tr("Other extension"));
  txtSetup_->setMaxLength(40);
  rows->addWidget(txtSetup_);
  connect(Cam2Ext_, &QButtonGroup::idClicked, this, [this](int index) {
    txtSetup_->setVisible(index == kOther);
    naming_.ChooseExtension(index == kOther ? Std(txtSetup_->text())
                                            : CameraExtensions()[static_cast<std::size_t>(index)]);
  });
  connect(txtSetup_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!settings_.Loading) naming_.ChooseExtension(Std(text));
  });
}

void CaptureSection::AddFields() {
  QVBoxLayout* rows = AddPanel(1, tr("What Is Done to Videos"));
  for (int i = 0; i < static_cast<int>(CapChoice_.size()); ++i) {
    const FieldChoice& choice = kFieldChoices[i % 3];
    auto* box = new QCheckBox(tr(choice.caption));
    box->setObjectName(QString("CapChoice%1").arg(i));
    box->setToolTip(tr(choice.tip));
    rows->addWidget(box);
    CapChoice_[i] = box;
    connect(box, &QCheckBox::toggled, this, [this, i](bool on) {
      if (!settings_.Loading) setup_.SetCheck(i, on);
    });
  }
}

// ---------------------------------------------------------------- showing

void CaptureSection::SetupProgram() {
  const bool before = std::exchange(settings_.Loading, true);
  if (QAbstractButton* kind = DVorAnOpt_->button(settings_.VideoInSource)) kind->setChecked(true);
  count_->button(setup_.SingleCamera() ? 0 : 1)->setChecked(true);
  AutoNameOpt_->button(static_cast<int>(naming_.Mode()))->setChecked(true);
  const auto extensions = CameraExtensions();
  int extension = kOther;
  for (int i = 0; i < kOther; ++i)
    if (extensions[static_cast<std::size_t>(i)] == settings_.CamExt) extension = i;
  Cam2Ext_->button(extension)->setChecked(true);
  txtSetup_->setVisible(extension == kOther);
  if (extension == kOther) txtSetup_->setText(Q(settings_.CamExt));
  for (std::size_t i = 0; i < CapChoice_.size(); ++i) CapChoice_[i]->setChecked(setup_.Check(static_cast<int>(i)));
  for (std::size_t i = 0; i < network_.size(); ++i) {
    const std::string& address = settings_.NetworkCamera[i];
    network_[i]->setText(address.find("://") == std::string::npos ? QString() : Q(address));
  }
  settings_.Loading = before;
  ShowKind();
  ShowCameras();
}

void CaptureSection::ShowKind() {
  const SourceKind kind = setup_.Kind();
  const SourceWords& words = WordsOf(kind);
  wizardTitle_->setText(Q(Tr(std::string(words.title))));
  wizardText_->setText(Q(Tr(std::string(words.text))));
  wizardPicture_->setPixmap(PictureOf(settings_, words.picture, kPicture, devicePixelRatioF()));
  toCapture_->setVisible(!IsImport(kind));
  const bool folder = kind == SourceKind::HighDefImport || kind == SourceKind::AutoImport;
  folderButton_->setVisible(folder);
  folder_->setVisible(folder);
  folderButton_->setText(kind == SourceKind::HighDefImport ? tr("Set Camera Default Folder")
                                                           : tr("Set Automatic Import Folder"));
  if (folder)
    folder_->setText(setup_.ImportFolder().empty() ? tr("No folder is chosen yet.") : Q(setup_.ImportFolder()));
  const int first = kind == SourceKind::AutoImport ? 6 : IsImport(kind) ? 3 : 0;
  for (int i = 0; i < static_cast<int>(CapChoice_.size()); ++i) CapChoice_[i]->setVisible(i / 3 == first / 3);
}

void CaptureSection::ShowCameras() {
  for (int camera = 0; camera < 2; ++camera) {
    const CameraChoice& choice = setup_.Shown(camera);
    QString text = choice.name.empty() ? tr("No camera") : Q(choice.name);
    if (!choice.size.empty()) text += ", " + Q(choice.size);
    shown_[camera]->setText(text);
    const CameraStatus status = setup_.ShowCameraStatus(camera);
    status_[camera]->setText(Q(status.text));
    // The green of a camera that is there, in every scheme.
    status_[camera]->setStyleSheet(status.present ? "background: #00FF00; color: #000000; padding: 1px 6px;"
                                                  : QString());
    const bool used = camera == 0 || !setup_.SingleCamera();
    shown_[camera]->setVisible(used);
    store_[camera]->setEnabled(used && setup_.ShownDevice(camera));
    store_[camera]->setVisible(used);
  }
  ShowMicrophone();
}

void CaptureSection::ShowMicrophone() {
  const QSignalBlocker quiet(microphone_);
  microphone_->clear();
  for (const Device& device : setup_.Microphones()) microphone_->addItem(Q(device.name));
  microphone_->setCurrentText(Q(setup_.Microphone()));
  microphone_->setEnabled(microphone_->count() > 0);
  if (microphone_->count() == 0) microphone_->addItem(tr("No microphone is connected"));
  const std::vector<std::string> lines = setup_.MicrophoneLines();
  const QSignalBlocker quietToo(AudioInputPinCombo_);
  AudioInputPinCombo_->clear();
  for (const std::string& line : lines) AudioInputPinCombo_->addItem(Q(line));
  AudioInputPinCombo_->setCurrentText(Q(setup_.MicrophoneLine()));
  line_->setVisible(!lines.empty());
}

void CaptureSection::showEvent(QShowEvent* event) {
  SetupSection::showEvent(event);
  SetupProgram();
}

// ---------------------------------------------------------------- handlers

void CaptureSection::DVorAnOpt_Click(int index) {
  if (settings_.Loading) return;
  setup_.ChooseKind(static_cast<SourceKind>(index));
  ShowKind();
}

void CaptureSection::CamConfig_Camera_Click(int index) {
  switch (index) {
    case kFolder: {
      const auto folder = host_.PickFolder(Tr("Select your Video Camera folder"), setup_.ImportFolder());
      if (folder && Settings::Holds(*folder)) setup_.SetImportFolder(*folder);
      else if (folder) host_.Message(MessageKind::Warning, "", Settings::TooLongText(*folder));
      return ShowKind();
    }
    case kStoreFirst:
    case kStoreSecond: setup_.StoreCamera(index - kStoreFirst); return ShowCameras();
    default: return;
  }
}

}  // namespace kinalyx
