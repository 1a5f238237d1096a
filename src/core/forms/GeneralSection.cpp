#include "core/forms/GeneralSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

#include "core/ColorSchemes.h"
#include "core/Heading.h"
#include "core/LibraryPath.h"
#include "core/SystemTests.h"
#include "core/Vocabulary.h"
#include "core/WindowModes.h"
#include "core/forms/Choices.h"
#include "platform/files/Tr.h"
#include "platform/host/Host.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

/// Shows a text without moving the cursor of somebody who is typing the same.
void ShowText(QLineEdit* box, const std::string& text) {
  if (box->text() != Q(text)) box->setText(Q(text));
}

}  // namespace

/// A path to be read: elided in the middle where it is too long, and whole in its tip.
class PathBox final : public QLineEdit {
 public:
  PathBox() { setReadOnly(true); }
  void ShowPath(const QString& path) {
    path_ = path;
    setToolTip(path);
    setAccessibleDescription(path);
    Elide();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLineEdit::resizeEvent(event);
    Elide();
  }
  void changeEvent(QEvent* event) override {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) Elide();
  }

 private:
  void Elide() {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    constexpr int kBesideText = 6;  // a text box keeps so much free for its cursor
    setText(fontMetrics().elidedText(path_, Qt::ElideMiddle, room.width() - kBesideText));
  }

  QString path_;
};

GeneralSection::GeneralSection(IHost& host, Settings& settings, ColorSchemes& schemes, QWidget* parent)
    : SetupSection("GeneralSection", settings, parent), host_(host), schemes_(schemes) {
  AddWho();
  AddWindow();
  AddLibrary();
  AddColours();
  AddSystemTest();
  Finish();
}

void GeneralSection::AddWho() {
  QVBoxLayout* rows = AddPanel(0, tr("You and Your Company"));
  name_ = AddText(*rows, "UserNameBox", tr("Your name"));
  company_ = AddText(*rows, "CompanyNameBox", tr("Company name"));
  noun_ = AddText(*rows, "Text3", tr("What you call one person: Student, Golfer, Client ..."));
  noun_->setPlaceholderText(tr("Student"));
  connect(name_, &QLineEdit::textChanged, this, [this](const QString& text) { Store(settings_.UserName, Std(text)); });
  connect(company_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (Std(text) != ShownCompany(settings_) && Store(settings_.CompanyName, Std(text))) emit CompanyChanged(text);
  });
  connect(noun_, &QLineEdit::editingFinished, this, &GeneralSection::Text3_LostFocus);
}

void GeneralSection::AddWindow() {
  QVBoxLayout* rows = AddPanel(0, tr("Window"));
  resolution_ = new QComboBox;
  resolution_->setObjectName("cboResolution");
  resolution_->setAccessibleName(tr("Window mode"));
  for (const WindowModeItem& item : WindowModeItems())
    resolution_->addItem(Q(Tr(std::string(item.text))), Q(item.mode));
  rows->addWidget(resolution_);
  QLabel* note = MakeLabel({}, tr("Kinalyx starts anew to change its window."), "caption");
  rows->addWidget(note);
  connect(resolution_, &QComboBox::currentIndexChanged, this, &GeneralSection::cboResolution_Click);
}

void GeneralSection::AddColours() {
  QVBoxLayout* rows = AddPanel(1, tr("Colors"));
  auto* grid = new QGridLayout;
  grid->setSpacing(8);
  designs_ = new QButtonGroup(this);
  int index = 0;
  for (const ColorScheme& scheme : ColorSchemes::All()) {
    std::array<QColor, 4> colours;
    for (std::size_t i = 0; i < colours.size(); ++i) colours[i] = ToQColor(scheme.colours[i]);
    auto* choice = new SchemeButton(QString("optLayout%1").arg(index), Q(Tr(std::string(scheme.caption))), colours);
    choice->setCheckable(true);
    designs_->addButton(choice, index);
    grid->addWidget(choice, index / 2, index % 2);
    ++index;
  }
  rows->addLayout(grid);
  connect(designs_, &QButtonGroup::idClicked, this, &GeneralSection::optLayout_Click);
}

void GeneralSection::AddLibrary() {
  QVBoxLayout* rows = AddPanel(0, tr("Video Library"));
  network_ = new QCheckBox(tr("Network Server Enabled"));
  network_->setObjectName("SSCheck4");
  network_->setToolTip(tr("Keep the videos in a folder of your choice, for example on a server"));
  rows->addWidget(network_);
  path_ = new PathBox;
  path_->setObjectName("Networktext");
  QLabel* caption = MakeLabel({}, tr("Folder of the videos"), "caption");
  caption->setBuddy(path_);
  rows->addWidget(caption);
  rows->addWidget(path_);
  connect(network_, &QCheckBox::clicked, this, &GeneralSection::SSCheck4_Click);
}

void GeneralSection::AddSystemTest() {
  QVBoxLayout* rows = AddPanel(1, tr("System Test"));
  auto* run = new Button("SystemTestBtn", tr("Run System Test"), "check");
  auto* row = new QHBoxLayout;
  row->addWidget(run);
  row->addStretch(1);
  rows->addLayout(row);
  results_ = new QWidget;
  auto* grid = new QGridLayout(results_);
  grid->setContentsMargins(0, 8, 0, 0);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(10);
  grid->setColumnStretch(2, 1);
  for (int i = 0; i < 5; ++i) {
    titles_[i] = MakeLabel({}, {}, "muted");
    texts_[i] = new FigureLabel(QString("Label1_%1").arg(i));
    texts_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    texts_[i]->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    gauges_[i] = new Gauge(QString("FloodPanel%1").arg(i));
    grid->addWidget(titles_[i], i, 0);
    grid->addWidget(texts_[i], i, 1);
    grid->addWidget(gauges_[i], i, 2);
  }
  results_->hide();
  rows->addWidget(results_);
  connect(run, &QPushButton::clicked, this, &GeneralSection::RunSystemTest);
}

void GeneralSection::SetupProgram() {
  ShowText(name_, settings_.UserName);
  ShowText(company_, ShownCompany(settings_));
  ShowText(noun_, Vocabulary(settings_).Noun());
  // A mode that the list does not offer leaves it without a choice.
  resolution_->setCurrentIndex(resolution_->findData(Q(settings_.WindowMode)));
  if (QAbstractButton* design = designs_->button(schemes_.Design())) design->setChecked(true);
  ShowLibrary();
}

void GeneralSection::ShowLibrary() {
  network_->setChecked(settings_.UseNetwork);
  path_->ShowPath(Q(settings_.LibraryPath));
}

void GeneralSection::Text3_LostFocus() {
  if (settings_.Loading) return;
  const QString text = noun_->text().trimmed();  // the word stands in the middle of sentences
  // No page could be named without a word.
  if (!text.isEmpty() && SetPrimaryName(settings_, Std(text))) emit VocabularyChanged();
  ShowText(noun_, Vocabulary(settings_).Noun());
}

void GeneralSection::cboResolution_Click(int row) {
  if (settings_.Loading || row < 0) return;
  if (ChooseWindowMode(settings_, Std(resolution_->itemData(row).toString()))) emit RestartWanted();
}

void GeneralSection::optLayout_Click(int index) {
  if (!Store(settings_.Design, std::to_string(index))) return;
  schemes_.ApplyDesign(settings_.Design);
  emit DesignChanged();
}

void GeneralSection::SSCheck4_Click(bool on) {
  if (settings_.Loading) return;
  const std::string before = settings_.LibraryPath;
  if (on) SwitchNetworkOn(host_, settings_);
  else SwitchNetworkOff(settings_);
  ShowLibrary();
  if (settings_.LibraryPath != before) emit LibraryChanged();
}

void GeneralSection::RunSystemTest() {
  const auto rows = SystemTests(host_, settings_);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    titles_[i]->setText(Q(rows[i].title));
    texts_[i]->setText(Q(rows[i].text));
    gauges_[i]->Show(ToQColor(rows[i].colour), rows[i].percent);
  }
  results_->show();
}

}  // namespace kinalyx
