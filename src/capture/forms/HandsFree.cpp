#include "capture/forms/HandsFree.h"

#include <QApplication>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>

#include "capture/RemoteKeys.h"
#include "capture/forms/CountPanel.h"
#include "capture/forms/NamingPanel.h"
#include "capture/forms/SoundMeter.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kPanelWidth = 228;  // as designed
constexpr const char* kMethods[] = {TrLater("Start-Stop"), TrLater("One Click"), TrLater("Beep"), TrLater("Sound")};
constexpr const char* kRemoteCaptions[] = {TrLater("Page Down"), "B", "F5", TrLater("Period")};
constexpr Qt::Key kRemoteKeys[] = {Qt::Key_PageDown, Qt::Key_B, Qt::Key_F5, Qt::Key_Period};
enum PanelPage { kSoundPage, kClickPage, kBeepPage };

QVBoxLayout* Rows(QWidget* ground) {
  auto* rows = new QVBoxLayout(ground);
  rows->setContentsMargins(kGap, 8, kGap, 10);
  rows->setSpacing(8);
  return rows;
}

QLabel* Wrapped(const QString& name, const char* look) {
  QLabel* label = MakeLabel(name, {}, look);
  label->setWordWrap(true);
  return label;
}

QString MemoryText(const MemoryTally& memory) {
  constexpr double kMiB = 1 << 20;
  return QObject::tr("Remembers %1 of %2 s, %3 of %4 MiB")
      .arg(std::min(memory.seconds, memory.wanted), 0, 'f', 1)
      .arg(memory.wanted, 0, 'g', 3)
      .arg(static_cast<double>(memory.bytes) / kMiB, 0, 'f', 0)
      .arg(static_cast<double>(memory.bound) / kMiB, 0, 'f', 0);
}

}  // namespace

HandsFree::HandsFree(Parts parts, QWidget* page, QWidget* stage)
    : QObject(page),
      parts_(parts),
      beep_({.host = parts.host,
             .settings = parts.settings,
             .naming = parts.naming,
             .cameras = parts.session,
             .sounds = parts.sounds,
             .events = *this,
             .soundFolder = JoinPath(parts.settings.AppPath, "pictures")}),
      meter_(parts.host, parts.meter, parts.makeGraph),
      page_(page),
      CountPnl_(new CountPanel(stage)) {
  methods_ = new QWidget;
  methods_->setToolTip(tr("Capture Method"));
  auto* row = new QHBoxLayout(methods_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  CapOptionBtn_ = new QButtonGroup(this);
  for (int method = 1; method <= 4; ++method) {
    auto* button = new Button(QString("CapOptionBtn%1").arg(method), tr(kMethods[method - 1]), {}, Look::Quiet);
    button->setCheckable(true);
    CapOptionBtn_->addButton(button, method);
    row->addWidget(button);
  }
  connect(CapOptionBtn_, &QButtonGroup::idClicked, this, &HandsFree::CapOptionBtn_Click);

  panel_ = new Panel("CapMethodTitle", {});
  FixWidth(panel_, kPanelWidth);
  pages_ = new QStackedWidget;
  panel_->Body()->addWidget(pages_);
  MakeSound();
  MakeClick();
  MakeBeep();
  MakeButtons();
  FillTimes();
}

HandsFree::~HandsFree() { meter_.Stop(); }

QWidget* HandsFree::SidePanel() { return panel_; }

// ---------------------------------------------------------------- the parts

void HandsFree::MakeSound() {
  auto* ground = new QWidget;
  QVBoxLayout* rows = Rows(ground);
  BlockTimeList_[0] = MakeTimes(*rows, 0, tr("Before"));
  BlockTimeList_[1] = MakeTimes(*rows, 1, tr("After"));
  sound_ = new SoundMeter;
  rows->addWidget(sound_);
  connect(sound_, &SoundMeter::TriggerLevelChanged, this, [this](int percent) {
    parts_.session.Triggers().SetThreshold(percent);
    meter_.SetLevels(ThresholdOf(parts_.settings), GainOf(parts_.settings));
  });
  connect(sound_, &SoundMeter::SoundLevelChanged, this, [this](int percent) {
    parts_.session.Triggers().SetInputLevel(percent);
    meter_.SetLevels(ThresholdOf(parts_.settings), GainOf(parts_.settings));
  });
  microphone_ = Wrapped("CapMicrophone", "muted");
  rows->addWidget(microphone_);
  rows->addStretch(1);
  memory_[0] = Wrapped("SoundMemoryLbl", "muted");
  rows->addWidget(memory_[0]);
  AutoCountLbl_ = MakeLabel("AutoCountLbl", {}, "heading");
  rows->addWidget(AutoCountLbl_);
  pages_->addWidget(ground);
}

void HandsFree::MakeClick() {
  auto* ground = new QWidget;
  QVBoxLayout* rows = Rows(ground);
  BlockTimeList_[2] = MakeTimes(*rows, 2, tr("Capture Time"));
  QLabel* how = Wrapped({}, "muted");
  how->setText(
      tr("Click the picture or the button at the end of the swing, or press the space bar. A remote control for "
         "presentations can do it too:"));
  rows->addWidget(how);
  auto* keys = new QGridLayout;
  keys->setSpacing(6);
  const std::vector<bool> on = RemoteKeysOf(parts_.settings.RemoteKeys);
  for (std::size_t i = 0; i < RemoteKeyNames().size(); ++i) {
    auto* key = new Button(QString("RemoteKey%1").arg(i), tr(kRemoteCaptions[i]), {}, Look::Quiet);
    key->setCheckable(true);
    key->setChecked(on[i]);
    key->setToolTip(tr("This key of a remote control captures, too"));
    connect(key, &QPushButton::clicked, this, [this] {
      std::vector<bool> chosen;
      for (const Button* button : remote_) chosen.push_back(button->isChecked());
      parts_.settings.Set(parts_.settings.RemoteKeys, RemoteKeysText(chosen));
    });
    keys->addWidget(key, static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    remote_.push_back(key);
  }
  rows->addLayout(keys);
  rows->addStretch(1);
  memory_[1] = Wrapped("ClickMemoryLbl", "muted");
  rows->addWidget(memory_[1]);
  OneClickCountLbl_ = MakeLabel("OneClickCountLbl", {}, "heading");
  rows->addWidget(OneClickCountLbl_);
  pages_->addWidget(ground);
}

void HandsFree::MakeBeep() {
  auto* ground = new QWidget;
  QVBoxLayout* rows = Rows(ground);
  BeepArray_[0] = MakeBeepSlider(*rows, 0, tr("Seconds to wait"), kMostBeepSeconds);
  BeepArray_[1] = MakeBeepSlider(*rows, 1, tr("Seconds to capture"), kMostBeepSeconds);
  BeepArray_[2] = MakeBeepSlider(*rows, 2, tr("Captures in cycle"), kMostBeepCycles);
  rows->addStretch(1);
  pages_->addWidget(ground);
}

/// One of `BlockTimeList`, with a unit behind it.
QComboBox* HandsFree::MakeTimes(QLayout& rows, int index, const QString& caption) {
  auto* ground = new QWidget;
  auto* row = new QHBoxLayout(ground);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(MakeLabel({}, caption), 1);
  auto* list = new QComboBox;
  list->setObjectName(QString("BlockTimeList%1").arg(index));
  list->setAccessibleName(caption);
  for (const std::string_view entry : TriggerSeconds()) list->addItem(Q(entry) + " s", Q(entry));
  row->addWidget(list);
  rows.addWidget(ground);
  connect(list, &QComboBox::activated, this, [this, list, index](int at) {
    Settings& settings = parts_.settings;
    std::string& key = index == 2 ? settings.OneClickTime : settings.TriggerTime[static_cast<std::size_t>(index)];
    settings.Set(key, Std(list->itemData(at).toString()));
  });
  return list;
}

/// A time that somebody has written into the file by hand stands in its list.
void HandsFree::FillTimes() {
  const double seconds[] = {-SoundWindow(parts_.settings).start, SoundWindow(parts_.settings).end,
                            -OneClickWindow(parts_.settings).start};
  for (std::size_t i = 0; i < BlockTimeList_.size(); ++i) {
    QComboBox* list = BlockTimeList_[i];
    const QString entry = QString::number(seconds[i]);
    int at = list->findData(entry);
    if (at < 0) {
      list->insertItem(0, entry + " s", entry);
      at = 0;
    }
    list->setCurrentIndex(at);
  }
  sound_->SetTriggerLevel(PercentOf(parts_.settings.TriggerLevel));
  sound_->SetSoundLevel(PercentOf(parts_.settings.SoundLevel));
}

std::int32_t& HandsFree::BeepSetting(int index) {
  Settings& settings = parts_.settings;
  return index == 0 ? settings.BeepPausetime : index == 1 ? settings.BeepCapTime : settings.BeepCycles;
}

QSlider* HandsFree::MakeBeepSlider(QLayout& rows, int index, const QString& caption, int most) {
  QLabel* words = MakeLabel({}, {});
  auto* slider = new QSlider(Qt::Horizontal);
  slider->setObjectName(QString("BeepArray%1").arg(index));
  slider->setAccessibleName(caption);
  slider->setRange(1, most);
  const auto show = [words, caption](int value) { words->setText(QString("%1: %2").arg(caption).arg(value)); };
  slider->setValue(BeepSetting(index));
  show(slider->value());
  connect(slider, &QSlider::valueChanged, this, [this, index, show](int value) {
    parts_.settings.Set(BeepSetting(index), value);
    show(value);
  });
  rows.addWidget(words);
  rows.addWidget(slider);
  return slider;
}

void HandsFree::MakeButtons() {
  buttons_ = new QWidget;
  auto* row = new QHBoxLayout(buttons_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  AutoCapturebtn_ = new Button("AutoCapturebtn", tr("Start Sound Capture"), "record");
  OneClickbtn_ = {new Button("OneClickbtn0", tr("Start to Monitor"), "record"),
                  new Button("OneClickbtn1", tr("Capture the Swing"), "check")};
  BeepCaptureStart_ = new Button("BeepCaptureStart", tr("Start Beep Capture"), "record");
  for (Button* button : {OneClickbtn_[1], AutoCapturebtn_, OneClickbtn_[0], BeepCaptureStart_}) {
    LeastWidth(button, 190);
    row->addWidget(button);
  }
  connect(AutoCapturebtn_, &QPushButton::clicked, this, &HandsFree::AutoCapturebtn_Click);
  connect(OneClickbtn_[0], &QPushButton::clicked, this, [this] { OneClickbtn_Click(0); });
  // Pressed, not clicked: the moment counts.
  connect(OneClickbtn_[1], &QPushButton::pressed, this, &HandsFree::FireByMouse);
  connect(BeepCaptureStart_, &QPushButton::clicked, this, &HandsFree::BeepCaptureStart_Click);

  const auto add = [this](const QKeySequence& keys) {
    auto* shortcut = new QShortcut(keys, page_, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false);
    shortcut->setEnabled(false);
    connect(shortcut, &QShortcut::activated, this, [this] { OneClickbtn_Click(1); });
    keys_.push_back(shortcut);
  };
  add(Qt::Key_Space);
  for (const Qt::Key key : kRemoteKeys) add(key);
}

// ---------------------------------------------------------------- handlers

void HandsFree::CapOptionBtn_Click(int method) {
  parts_.setup.ChooseMethod(static_cast<CaptureMethod>(method));
  emit MethodChosen();
}

void HandsFree::AutoCapturebtn_Click() {
  meter_.Stop();
  PressMonitor();
}

void HandsFree::OneClickbtn_Click(int index) {
  if (index == 1) return static_cast<void>(parts_.session.Triggers().Fire());
  PressMonitor();
  MainButton()->setFocus();
}

void HandsFree::PressMonitor() {
  if (parts_.session.Triggers().Armed() || parts_.names.TakeTyped()) parts_.session.PressMonitor();
  emit Changed();
}

/// The second press of a double click means the same moment.
void HandsFree::FireByMouse() {
  const bool again = sinceMouse_.isValid() && sinceMouse_.elapsed() < QApplication::doubleClickInterval();
  sinceMouse_.start();
  if (!again) OneClickbtn_Click(1);
}

void HandsFree::BeepCaptureStart_Click() {
  if (!beep_.Running() && !parts_.names.TakeTyped()) return;
  parts_.session.ForgetPutAway();
  beep_.Press();
}

void HandsFree::StopAnyCapture() {
  beep_.Stop();
  meter_.Stop();
  for (QShortcut* key : keys_) key->setEnabled(false);
}

// ---------------------------------------------------------------- what is shown

void HandsFree::SetupCapMode(bool shown) {
  const CaptureMethod method = parts_.setup.Method();
  const bool armed = parts_.session.Triggers().Armed();
  const bool sound = method == CaptureMethod::Sound, click = method == CaptureMethod::OneClick;
  CapOptionBtn_->button(static_cast<int>(method))->setChecked(true);
  const bool idle = parts_.session.Phase() == CapturePhase::LivePreview && !parts_.session.Saving() && !Running();
  for (QAbstractButton* button : CapOptionBtn_->buttons()) button->setEnabled(idle);
  methods_->setVisible(shown);
  panel_->setVisible(shown && method != CaptureMethod::StartStop);
  panel_->SetTitle(tr(kMethods[static_cast<int>(method) - 1]));
  pages_->setCurrentIndex(sound ? kSoundPage : click ? kClickPage : kBeepPage);
  AutoCapturebtn_->setVisible(sound);
  AutoCapturebtn_->setText(armed ? tr("Stop Sound Capture") : tr("Start Sound Capture"));
  OneClickbtn_[0]->setVisible(click);
  OneClickbtn_[0]->setText(armed ? tr("Stop Monitoring") : tr("Start to Monitor"));
  OneClickbtn_[1]->setVisible(click && armed);
  for (Button* button : {AutoCapturebtn_, OneClickbtn_[0]}) button->SetIcon(armed ? "stop" : "record");
  BeepCaptureStart_->setVisible(method == CaptureMethod::Beep);
  BeepCaptureStart_->setText(Q(beep_.Caption()));
  BeepCaptureStart_->SetIcon(beep_.Running() ? "stop" : "record");
  buttons_->setVisible(shown && method != CaptureMethod::StartStop);
  for (QComboBox* list : BlockTimeList_) list->setEnabled(!armed);
  for (QSlider* slider : BeepArray_) slider->setEnabled(!beep_.Running());
  for (Button* key : remote_) key->setEnabled(!armed);
  const std::vector<bool> remote = RemoteKeysOf(parts_.settings.RemoteKeys);
  for (std::size_t i = 0; i < keys_.size(); ++i) keys_[i]->setEnabled(click && armed && (i == 0 || remote[i - 1]));
  const std::string microphone = parts_.setup.Microphone();
  microphone_->setText(microphone.empty() ? tr("No microphone is connected.") : Q(microphone));
  if (shown && sound && !armed) meter_.Start(microphone, ThresholdOf(parts_.settings), GainOf(parts_.settings));
  else meter_.Stop();
  ShowCounts();
}

void HandsFree::ShowCounts() {
  const Monitoring& triggers = parts_.session.Triggers();
  const QString count = tr("%1 Videos Captured").arg(triggers.CapturedCount());
  for (QLabel* label : {AutoCountLbl_, OneClickCountLbl_}) label->setText(count);
  const QString memory = triggers.Armed() ? MemoryText(triggers.Memory()) : QString();
  for (QLabel* label : memory_)
    if (label->text() != memory) label->setText(memory);
}

QWidget* HandsFree::MainButton() const {
  switch (parts_.setup.Method()) {
    case CaptureMethod::OneClick: return OneClickbtn_[parts_.session.Triggers().Armed() ? 1 : 0];
    case CaptureMethod::Beep: return BeepCaptureStart_;
    case CaptureMethod::Sound: return AutoCapturebtn_;
    case CaptureMethod::StartStop: break;
  }
  return nullptr;
}

void HandsFree::SoundCame(double level, bool fired) {
  sound_->ShowLevel(level);
  if (fired) sound_->ShowFired();
  ShowCounts();
}

void HandsFree::BeepChanged() {
  CountPnl_->Show(Q(beep_.Count()));
  emit Changed();
}

}  // namespace kinalyx
