#include "core/forms/AnalysisSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QGridLayout>

#include "core/forms/Choices.h"
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
    {1, "single", "Single"},
    {2, "double", "Double"},
    {3, "triple-triangular", "Triple"},
    {4, "quad", "Quad"},
    {5, "triple", "Triple, side by side"},
    {6, "six", "Six"},
    {8, "eight", "Eight"},
};

struct Tool {
  int index;
  const char* caption;
};

constexpr int kPathDown = 17;
constexpr Tool kTools[] = {
    {0, "Freehand"},      {1, "Plus Sign"},  {2, "Square"},     {3, "Line"},
    {4, "Circle"},        {5, "Angle"},      {6, "Path Trace"}, {kPathDown, "PathDown"},
    {7, "Parallelogram"}, {8, "Shade Zone"}, {9, "Clock Grid"}, {10, "Arrow"},
    {11, "Grid"},
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
  QVBoxLayout* rows = AddPanel(0, "Opening");
  rows->addWidget(MakeLabel({}, "Windows at the start", "caption"));
  auto* strip = new QHBoxLayout;
  strip->setSpacing(6);
  layouts_ = new QButtonGroup(this);
  for (const LayoutChoice& choice : kLayouts) {
    Button* button = IconButton(QString("ScreenOpt%1").arg(choice.mode), choice.icon, choice.tip, Look::Quiet);
    button->setCheckable(true);
    layouts_->addButton(button, choice.mode);
    strip->addWidget(button);
  }
  strip->addStretch(1);
  rows->addLayout(strip);
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, "List of videos to open", "caption"));
  sides_ = AddRadios(*rows, "ODSetupOpt", {"On the right side", "On the left side", "Classic window in the middle"});
  rows->addSpacing(6);
  shortGame_ = new QCheckBox("Short-game video names");
  shortGame_->setObjectName("ShortGameCheck");
  shortGame_->setToolTip(
      "The list of videos to open loads the files of a shot together, in place of undoing the last open");
  rows->addWidget(shortGame_);
  connect(shortGame_, &QCheckBox::toggled, this, [this](bool on) { StoreAndTell(settings_.ShortGame, on ? 1 : 0); });
  connect(layouts_, &QButtonGroup::idClicked, this,
          [this](int mode) { StoreAndTell(settings_.ScreenMode, std::to_string(mode)); });
  connect(sides_, &QButtonGroup::idClicked, this, [this](int side) { StoreAndTell(settings_.OpenDlgChoice, side); });
}

void AnalysisSection::AddShowing() {
  QVBoxLayout* rows = AddPanel(1, "Showing");
  rows->addWidget(MakeLabel({}, "A video in its window", "caption"));
  fits_ = AddRadios(*rows, "FitOpt", {"Fills the height of the window", "Is seen as a whole"});
  rows->addSpacing(6);
  barPictures_ = new QCheckBox("Pictures of the video over its bar");
  barPictures_->setObjectName("BarPicturesCheck");
  barPictures_->setToolTip("Where the window is high enough");
  rows->addWidget(barPictures_);
  connect(fits_, &QButtonGroup::idClicked, this, [this](int fit) { StoreAndTell(settings_.VideoFit, fit); });
  connect(barPictures_, &QCheckBox::toggled, this,
          [this](bool on) { StoreAndTell(settings_.BarPictures, on ? 1 : 0); });
}

void AnalysisSection::AddPlaying() {
  QVBoxLayout* rows = AddPanel(0, "Slow Motion, Sound, Strobe and Grid");
  const auto add = [&](const char* name, const char* caption, int least, int most, const char* unit, auto& setting) {
    using Number = std::remove_reference_t<decltype(setting)>;
    SettlingSlider* slider = AddSlider(*rows, name, caption, least, most, unit);
    connect(slider, &QSlider::valueChanged, this, [this, &setting](int value) {
      if (!settings_.Loading) setting = static_cast<Number>(value);  // in effect while it is dragged, written later
    });
    connect(slider, &SettlingSlider::Settled, this,
            [this, &setting](int value) { StoreAndTell(setting, static_cast<Number>(value)); });
    return slider;
  };
  slomo_ = add("Slomoscroll", "Slow motion speed", 1, 100, " %", settings_.SlomoSpeed);
  volume_ = add("SoundVolumeScroll", "Volume at full speed", 0, 100, " %", settings_.SoundVolume);
  strobe_ = add("StrobeStepScroll", "Frames from one layer of a strobe to the next", 1, kWidestStrobe, "",
                settings_.StrobeStep);
  grid_ =
      add("GridSizeScroll", "Columns of the grid over the picture", kFewestCells, kMostCells, "", settings_.GridSize);
}

void AnalysisSection::AddDrawing() {
  QVBoxLayout* rows = AddPanel(0, "Lines");
  rows->addWidget(MakeLabel({}, "Width of drawings", "caption"));
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
  outline_ = new QCheckBox("Dark outline around drawings");
  outline_->setObjectName("CadOutlineCheck");
  rows->addWidget(outline_);
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, "Keys and tools", "caption"));
  keys_ = AddRadios(*rows, "KeysOpt", {"Classic", "Editor"});
  keys_->button(kEditorKeys)
      ->setToolTip(
          "What was drawn is taken at once; a click takes the line under it; soft lines in colors that stand out");
  connect(keys_, &QButtonGroup::idClicked, this, [this](int way) { StoreAndTell(settings_.KeysAndTools, way); });
  connect(widths_, &QButtonGroup::idClicked, this, [this](int width) { StoreAndTell(settings_.CadWidth, width); });
  connect(outline_, &QCheckBox::toggled, this, [this](bool on) { StoreAndTell(settings_.CadOutline, on); });
}

void AnalysisSection::AddColours() {
  QVBoxLayout* rows = AddPanel(1, "Colors of the Drawing Tools");
  colouring_ = AddRadios(*rows, "DCSetupOpt", {"Each tool has its own color", "Random colors, one after the other"});
  rows->addSpacing(6);
  auto* grid = new QGridLayout;
  grid->setSpacing(8);
  int place = 0;
  for (const Tool& tool : kTools) {
    const QString title = QString("Change %1 Color").arg(tool.caption);
    auto* button = new ColourButton(QString("NewColor%1").arg(tool.index), tool.caption);
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
  QVBoxLayout* rows = AddPanel(1, "Measuring");
  rows->addWidget(MakeLabel({}, "Standard of the cameras", "caption"));
  standards_ = AddRadios(*rows, "SSOption2_", {"NTSC, 60 fields a second", "PAL, 50 fields a second"});
  rows->addSpacing(6);
  labels_ = new QCheckBox("Figures beside drawings");
  labels_->setObjectName("ShapeLabelsCheck");
  rows->addWidget(labels_);
  ownRuler_ = new QCheckBox("Each video has a ruler of its own");
  ownRuler_->setObjectName("RulerPerVideoCheck");
  ownRuler_->setToolTip("Without it what was calibrated last measures every video");
  rows->addWidget(ownRuler_);
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, "Lines lean", "caption"));
  angles_ = AddRadios(*rows, "AngleOpt", {"From the level", "From the upright"});
  rows->addSpacing(6);
  rows->addWidget(MakeLabel({}, "Speeds beside paths", "caption"));
  speeds_ = AddRadios(*rows, "SpeedOpt",
                      {"As the ruler has it", "Miles per hour", "Kilometers per hour", "Meters per second"});
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
