#include "core/forms/AnalysisSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QGridLayout>

#include "core/forms/Choices.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

struct LayoutChoice {
  int mode;
  const char* icon;
  const char* tip;
};

constexpr LayoutChoice kLayouts[] = {
    {1, "single", TrLater("Single")},
    {2, "double", TrLater("Double")},
    {3, "triple-triangular", TrLater("Triple")},
    {4, "quad", TrLater("Quad")},
    {5, "triple", TrLater("Triple, side by side")},
    {6, "six", TrLater("Six")},
    {8, "eight", TrLater("Eight")},
};

struct Tool {
  int index;
  const char* caption;
};

constexpr int kPathDown = 17;
constexpr Tool kTools[] = {
    {0, TrLater("Freehand")},      {1, TrLater("Plus Sign")},  {2, TrLater("Square")},     {3, TrLater("Line")},
    {4, TrLater("Circle")},        {5, TrLater("Angle")},      {6, TrLater("Path Trace")}, {kPathDown, "PathDown"},
    {7, TrLater("Parallelogram")}, {8, TrLater("Shade Zone")}, {9, TrLater("Clock Grid")}, {10, TrLater("Arrow")},
    {11, TrLater("Grid")},
};

constexpr int kWidest = 10;  // pixels that a line can be chosen to have
constexpr int kFewestCells = 2;
constexpr int kMostCells = 200;    // as many as the grid itself takes
constexpr int kWidestStrobe = 30;  // frames, where the list of the strobe's own form ends

}  // namespace

AnalysisSection::AnalysisSection(Settings& settings, QWidget* parent)
    : SetupSection("AnalysisSection", settings, parent) {
  AddLayouts();
  AddShowing();
  AddPlaying();
  AddDrawing();
  AddColours();
  AddMeasuring();
  Finish();
}

void AnalysisSection::AddLayouts() {
  QVBoxLayout* rows = AddPanel(0, tr("Opening"));
  rows->addWidget(MakeLabel({}, tr("Windows at the start"), "caption"));
  auto* strip = new QHBoxLayout;
  strip->setSpacing(6);
  layouts_ = new QButtonGroup(this);
  for (const LayoutChoice& choice : kLayouts) {
    Button* button = IconButton(QString("ScreenOpt%1").arg(choice.mode), choice.icon, tr(choice.tip), Look::Quiet);
    button->setCheckable(true);
    layouts_->addButton(button, choice.mode);
    strip->addWidget(button);
  }
  strip->addStretch(1);
  rows->addLayout(strip);
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, tr("List of videos to open"), "caption"));
  sides_ =
      AddRadios(*rows, "ODSetupOpt",
                {TrLater("On the right side"), TrLater("On the left side"), TrLater("Classic window in the middle")});
  rows->addSpacing(6);
  shortGame_ = new QCheckBox(tr("Short-game video names"));
  shortGame_->setObjectName("ShortGameCheck");
  shortGame_->setToolTip(
      tr("The list of videos to open loads the files of a shot together, in place of undoing the last open"));
  rows->addWidget(shortGame_);
  connect(shortGame_, &QCheckBox::toggled, this, [this](bool on) { StoreAndTell(settings_.ShortGame, on ? 1 : 0); });
  connect(layouts_, &QButtonGroup::idClicked, this,
          [this](int mode) { StoreAndTell(settings_.ScreenMode, std::to_string(mode)); });
  connect(sides_, &QButtonGroup::idClicked, this, [this](int side) { StoreAndTell(settings_.OpenDlgChoice, side); });
}

void AnalysisSection::AddShowing() {
  QVBoxLayout* rows = AddPanel(1, tr("Showing"));
  rows->addWidget(MakeLabel({}, tr("A video in its window"), "caption"));
  fits_ = AddRadios(*rows, "FitOpt", {TrLater("Fills the height of the window"), TrLater("Is seen as a whole")});
  rows->addSpacing(6);
  barPictures_ = new QCheckBox(tr("Pictures of the video over its bar"));
  barPictures_->setObjectName("BarPicturesCheck");
  barPictures_->setToolTip(tr("Where the window is high enough"));
  rows->addWidget(barPictures_);
  connect(fits_, &QButtonGroup::idClicked, this, [this](int fit) { StoreAndTell(settings_.VideoFit, fit); });
  connect(barPictures_, &QCheckBox::toggled, this,
          [this](bool on) { StoreAndTell(settings_.BarPictures, on ? 1 : 0); });
}

void AnalysisSection::AddPlaying() {
  QVBoxLayout* rows = AddPanel(0, tr("Slow Motion, Sound, Strobe and Grid"));
  const auto add = [&](const char* name, const QString& caption, int least, int most, const char* unit, auto& setting) {
    using Number = std::remove_reference_t<decltype(setting)>;
    SettlingSlider* slider = AddSlider(*rows, name, caption, least, most, unit);
    connect(slider, &QSlider::valueChanged, this, [this, &setting](int value) {
      if (!settings_.Loading) setting = static_cast<Number>(value);  // in effect while it is dragged, written later
    });
    connect(slider, &SettlingSlider::Settled, this,
            [this, &setting](int value) { StoreAndTell(setting, static_cast<Number>(value)); });
    return slider;
  };
  slomo_ = add("Slomoscroll", tr("Slow motion speed"), 1, 100, " %", settings_.SlomoSpeed);
  volume_ = add("SoundVolumeScroll", tr("Volume at full speed"), 0, 100, " %", settings_.SoundVolume);
  strobe_ = add("StrobeStepScroll", tr("Frames from one layer of a strobe to the next"), 1, kWidestStrobe, "",
                settings_.StrobeStep);
  grid_ = add("GridSizeScroll", tr("Columns of the grid over the picture"), kFewestCells, kMostCells, "",
              settings_.GridSize);
}

void AnalysisSection::AddDrawing() {
  QVBoxLayout* rows = AddPanel(0, tr("Lines"));
  rows->addWidget(MakeLabel({}, tr("Width of drawings"), "caption"));
  auto* grid = new QGridLayout;
  grid->setSpacing(6);
  widths_ = new QButtonGroup(this);
  for (int width = 1; width <= kWidest; ++width) {
    auto* button = new WidthButton(QString("Check1_%1").arg(width), width);
    widths_->addButton(button, width);
    grid->addWidget(button, (width - 1) / 5, (width - 1) % 5);
  }
  rows->addLayout(grid);
  rows->addSpacing(4);
  outline_ = new QCheckBox(tr("Dark outline around drawings"));
  outline_->setObjectName("CadOutlineCheck");
  rows->addWidget(outline_);
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, tr("Keys and tools"), "caption"));
  keys_ = AddRadios(*rows, "KeysOpt", {TrLater("Classic"), TrLater("Editor")});
  keys_->button(kEditorKeys)
      ->setToolTip(
          tr("What was drawn is taken at once; a click takes the line under it; soft lines in colors that stand out"));
  connect(keys_, &QButtonGroup::idClicked, this, [this](int way) { StoreAndTell(settings_.KeysAndTools, way); });
  connect(widths_, &QButtonGroup::idClicked, this, [this](int width) { StoreAndTell(settings_.CadWidth, width); });
  connect(outline_, &QCheckBox::toggled, this, [this](bool on) { StoreAndTell(settings_.CadOutline, on); });
}

void AnalysisSection::AddColours() {
  QVBoxLayout* rows = AddPanel(1, tr("Colors of the Drawing Tools"));
  colouring_ = AddRadios(*rows, "DCSetupOpt",
                         {TrLater("Each tool has its own color"), TrLater("Random colors, one after the other")});
  rows->addSpacing(6);
  auto* grid = new QGridLayout;
  grid->setSpacing(8);
  int place = 0;
  for (const Tool& tool : kTools) {
    const QString title = tr("Change %1 Color").arg(tr(tool.caption));
    auto* button = new ColourButton(QString("NewColor%1").arg(tool.index), tr(tool.caption));
    button->setToolTip(title);
    connect(button, &QAbstractButton::clicked, this,
            [this, index = tool.index, title] { NewColor_Click(index, title); });
    grid->addWidget(button, place / 2, place % 2);
    colours_[tool.index] = button;
    ++place;
  }
  rows->addLayout(grid);
  connect(colouring_, &QButtonGroup::idClicked, this, [this](int mode) { StoreAndTell(settings_.RandomColor, mode); });
}

void AnalysisSection::AddMeasuring() {
  QVBoxLayout* rows = AddPanel(1, tr("Measuring"));
  rows->addWidget(MakeLabel({}, tr("Standard of the cameras"), "caption"));
  standards_ =
      AddRadios(*rows, "SSOption2_", {TrLater("NTSC, 60 fields a second"), TrLater("PAL, 50 fields a second")});
  rows->addSpacing(6);
  labels_ = new QCheckBox(tr("Figures beside drawings"));
  labels_->setObjectName("ShapeLabelsCheck");
  rows->addWidget(labels_);
  ownRuler_ = new QCheckBox(tr("Each video has a ruler of its own"));
  ownRuler_->setObjectName("RulerPerVideoCheck");
  ownRuler_->setToolTip(tr("Without it what was calibrated last measures every video"));
  rows->addWidget(ownRuler_);
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, tr("Lines lean"), "caption"));
  angles_ = AddRadios(*rows, "AngleOpt", {TrLater("From the level"), TrLater("From the upright")});
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, tr("Speeds beside paths"), "caption"));
  speeds_ = AddRadios(*rows, "SpeedOpt",
                      {TrLater("As the ruler has it"), TrLater("Miles per hour"), TrLater("Kilometers per hour"),
                       TrLater("Meters per second")});
  connect(standards_, &QButtonGroup::idClicked, this,
          [this](int standard) { StoreAndTell(settings_.NTSCorPAL, std::to_string(standard)); });
  connect(labels_, &QCheckBox::toggled, this, [this](bool on) { StoreAndTell(settings_.ShapeLabels, on ? 1 : 0); });
  connect(ownRuler_, &QCheckBox::toggled, this, [this](bool on) { StoreAndTell(settings_.RulerPerVideo, on ? 1 : 0); });
  connect(angles_, &QButtonGroup::idClicked, this, [this](int from) { StoreAndTell(settings_.AngleFrom, from); });
  connect(speeds_, &QButtonGroup::idClicked, this, [this](int unit) { StoreAndTell(settings_.SpeedUnit, unit); });
}

void AnalysisSection::SetupProgram() {
  // A number that no button stands for leaves a group without a choice.
  const auto choose = [](QButtonGroup* group, int id) {
    group->setExclusive(false);
    for (QAbstractButton* button : group->buttons()) button->setChecked(group->id(button) == id);
    group->setExclusive(true);
  };
  choose(layouts_, settings_.ScreenModeNumber());
  choose(sides_, settings_.OpenDlgChoice);
  choose(widths_, settings_.CadWidth);
  choose(colouring_, settings_.RandomColor);
  choose(keys_, settings_.KeysAndTools == kEditorKeys ? kEditorKeys : kClassicKeys);
  choose(standards_, settings_.NTSCorPAL == "0" ? 0 : 1);  // what is not 0 measures as PAL
  choose(angles_, settings_.AngleFrom);
  choose(speeds_, settings_.SpeedUnit);
  labels_->setChecked(settings_.ShapeLabels != 0);
  ownRuler_->setChecked(settings_.RulerPerVideo != 0);
  choose(fits_, settings_.VideoFit == 1 ? 1 : 0);
  barPictures_->setChecked(settings_.BarPictures == 1);
  slomo_->setValue(settings_.SlomoSpeed);
  volume_->setValue(settings_.SoundVolume);
  strobe_->setValue(settings_.StrobeStep);
  grid_->setValue(settings_.GridSize);
  outline_->setChecked(settings_.CadOutline);
  shortGame_->setChecked(settings_.ShortGame == 1);
  for (const auto& [index, button] : colours_) {
    const std::int32_t colour =
        index == kPathDown ? settings_.PathDownColor : settings_.NewColors[static_cast<std::size_t>(index)];
    button->SetColour(ToQColor(colour));
  }
}

void AnalysisSection::NewColor_Click(int index, const QString& title) {
  if (settings_.Loading) return;
  const QColor chosen =
      QColorDialog::getColor(colours_[index]->Colour(), this, title, QColorDialog::DontUseNativeDialog);
  if (!chosen.isValid()) return;
  settings_.SetNewColor(index, FromQColor(chosen));
  colours_[index]->SetColour(chosen);
  emit AnalysisChanged();
}

}  // namespace kinalyx
