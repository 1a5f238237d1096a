#include "core/forms/SetupPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTimer>
#include <QWheelEvent>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "core/ColorSchemes.h"
#include "core/forms/AnalysisSection.h"
#include "core/forms/Choices.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {
namespace {

/// The setup page over a data folder of its own.
class SetupPageTest : public ::testing::Test, UsesApplication, protected FormDriver, private ISettingsEvents {
 protected:
  SetupPageTest() {
    settings.LoadSettings();
    Open();
  }
  void Open() { page = std::make_unique<SetupPage>(host, settings, schemes); }
  std::string OnDisk(const char* section, const char* key) {
    return ReadProfileValue(section, key, settings.ConfigFile()).value_or("missing");
  }

  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path("data"), folder.Path("program"), *this};
  ColorSchemes schemes;
  std::unique_ptr<SetupPage> page;

 private:
  QWidget& Form() override { return *page; }
  void SettingsReloaded() override { page->TakeReloaded(); }
};

TEST_F(SetupPageTest, FillingTheControlsWritesNothing) {
  settings.Set(settings.CadWidth, 42);     // no button stands for it
  settings.Set(settings.SlomoSpeed, 0);    // the slider begins at 1
  settings.Set(settings.WindowMode, "4");  // not offered by the list
  const std::string before = folder.Get("data/config10.ini");
  Open();
  EXPECT_FALSE(settings.Loading);
  EXPECT_EQ(folder.Get("data/config10.ini"), before);
  EXPECT_EQ(settings.SlomoSpeed, 0);
  EXPECT_EQ(Find<QComboBox>("cboResolution")->currentIndex(), -1);
  settings.Set(settings.GridSize, 150);
  page->Open();
  EXPECT_EQ(Find<QSlider>("GridSizeScroll")->value(), 150) << "what was set elsewhere is shown";
  EXPECT_EQ(OnDisk("Analysis", "GridSize"), "150");
}

TEST_F(SetupPageTest, EveryControlWritesItsKeyAtOnce) {
  QSignalSpy analysis(page.get(), &SetupPage::AnalysisChanged);
  for (const char* button :
       {"ScreenOpt4", "ODSetupOpt1", "ShortGameCheck", "FitOpt0", "BarPicturesCheck", "Check1_8", "CadOutlineCheck",
        "DCSetupOpt1", "SSOption2_1", "KeysOpt1", "ShapeLabelsCheck", "RulerPerVideoCheck", "AngleOpt1", "SpeedOpt2"})
    Press(button);
  Find<QSlider>("Slomoscroll")->setValue(40);
  Find<QSlider>("SoundVolumeScroll")->setValue(30);
  Find<QSlider>("GridSizeScroll")->setValue(12);
  Find<QSlider>("StrobeStepScroll")->setValue(4);
  EXPECT_EQ(analysis.count(), 18);

  QSignalSpy company(page.get(), &SetupPage::CompanyChanged);
  QSignalSpy menu(page.get(), &SetupPage::MenuChanged);
  Type("UserNameBox", "Erica S\u00e4mple");
  Type("CompanyNameBox", "Links");
  Type("Printtext2", "Links Golf");
  Press("MenuSetupBtn1");
  EXPECT_EQ(company.count(), 1);
  EXPECT_EQ(menu.count(), 2);

  Press("UseLogochk");
  EXPECT_FALSE(Text("LogoPreview").isEmpty()) << "the file has no picture";
  QImage(40, 20, QImage::Format_RGB32).save(QString::fromStdString(folder.Path("our.png")));
  host.files = {folder.Path("our.png")};
  Press("SSCommand14");
  Press("SSCommand14");  // cancelled
  EXPECT_FALSE(Find<QLabel>("LogoPreview")->pixmap().isNull());

  const struct {
    const char *section, *key;
    std::string value;
  } written[] = {{"General", "ScreenMode", "4"},
                 {"Analysis", "OpenDlgChoice", "1"},
                 {"Analysis", "ShortGame", "1"},
                 {"Analysis", "KeysAndTools", "1"},
                 {"Analysis", "GridSize", "12"},
                 {"Analysis", "SlomoSpeed", "40"},
                 {"Analysis", "StrobeStep", "4"},
                 {"Analysis", "VideoFit", "0"},
                 {"Analysis", "BarPictures", "0"},
                 {"Analysis", "SoundVolume", "30"},
                 {"Analysis", "CadWidth", "8"},
                 {"Analysis", "CadOutline", "False"},
                 {"Analysis", "RandomColor", "1"},
                 {"Ruler", "NTSCorPAL", "1"},
                 {"General", "Logo", "False"},
                 {"General", "CompanyName", "Links"},
                 {"General", "Heading2", "Links Golf"},
                 {"General", "CaptionPosition", "2"},
                 {"General", "UserName", "Erica S\xC3\xA4mple"},
                 {"General", "LogoName", folder.Path("our.png")}};
  for (const auto& [section, key, value] : written) EXPECT_EQ(OnDisk(section, key), value) << key;

  Press("DefaultLogoBtn");
  EXPECT_TRUE(OnDisk("General", "LogoName").ends_with("/pictures/Logo.jpg"));

  Open();
  EXPECT_TRUE(Find<QAbstractButton>("ScreenOpt4")->isChecked());
  EXPECT_TRUE(Find<QAbstractButton>("Check1_8")->isChecked());
  EXPECT_EQ(Find<QSlider>("Slomoscroll")->value(), 40);
  EXPECT_EQ(Find<QLineEdit>("CompanyNameBox")->text(), "Links");
}

TEST_F(SetupPageTest, ADraggedSliderIsWrittenWhenItIsLetGo) {
  auto* slider = Find<QSlider>("Slomoscroll");
  slider->setSliderDown(true);
  slider->setSliderPosition(60);
  EXPECT_EQ(settings.SlomoSpeed, 60);
  EXPECT_EQ(OnDisk("Analysis", "SlomoSpeed"), "25");
  slider->setSliderDown(false);
  EXPECT_EQ(OnDisk("Analysis", "SlomoSpeed"), "60");
}

TEST_F(SetupPageTest, ToolColoursAreChosenInADialog) {
  // What the user does in the dialog that the button opens: chooses a colour, or cancels.
  QString asked;
  const auto press = [&](const char* button, const QColor& chosen) {
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      asked = dialog->windowTitle() + " " + dialog->currentColor().name();
      if (chosen.isValid()) dialog->setCurrentColor(chosen);
      if (chosen.isValid()) dialog->accept();
      else dialog->reject();
    });
    Press(button);
  };
  press("NewColor3", QColor(1, 2, 3));
  EXPECT_EQ(asked, "Change Line Color #0000ff");
  EXPECT_EQ(OnDisk("Analysis", "NewColor3"), std::to_string(1 + 256 * 2 + 65536 * 3));
  press("NewColor4", QColor());
  EXPECT_EQ(OnDisk("Analysis", "NewColor4"), "&HFF&") << "a cancelled dialog changes nothing";
  press("NewColor17", QColor(0, 0, 9));
  EXPECT_EQ(OnDisk("Analysis", "NewColor17"), std::to_string(65536 * 9));
  EXPECT_EQ(Find<ColourButton>("NewColor17")->Colour(), QColor(0, 0, 9));
}

TEST_F(SetupPageTest, ASchemeAndANounTakeEffectAtOnce) {
  QSignalSpy design(page.get(), &SetupPage::DesignChanged);
  Press("optLayout6");
  EXPECT_EQ(design.count(), 1);
  EXPECT_EQ(schemes.Design(), 6);
  EXPECT_EQ(OnDisk("Layout", "Design"), "6");

  QSignalSpy words(page.get(), &SetupPage::VocabularyChanged);
  auto* noun = Find<QLineEdit>("Text3");
  const auto leave = [&](const QString& text) {
    noun->setText(text);
    emit noun->editingFinished();
  };
  leave("Golfer");
  leave("Golfer");
  leave("  ");
  EXPECT_EQ(noun->text(), "Golfer");
  EXPECT_EQ(words.count(), 1);
  EXPECT_EQ(OnDisk("Layout", "PrimaryName2"), "golfers");
  EXPECT_EQ(Find<QAbstractButton>("PSCmd1")->text(), "Golfer Profiles");
}

TEST_F(SetupPageTest, AnotherWindowRestartsOnceTheListIsClosed) {
  QSignalSpy restart(page.get(), &SetupPage::RestartWanted);
  auto* modes = Find<QComboBox>("cboResolution");
  modes->setCurrentIndex(modes->currentIndex());
  host.Advance(1000);
  EXPECT_EQ(restart.count(), 0);
  modes->setCurrentIndex(2);
  EXPECT_EQ(restart.count(), 0);
  EXPECT_EQ(OnDisk("General", "WindowMode"), "3");
  EXPECT_EQ(OnDisk("General", "RestartOption"), "1");
  host.Advance(1);
  EXPECT_EQ(restart.count(), 1);
}

TEST_F(SetupPageTest, TheWheelTurnsThePageAndChangesNothing) {
  page->resize(900, 700);
  page->show();
  for (const char* name : {"cboResolution", "Slomoscroll", "BarPicturesCheck"}) {
    SCOPED_TRACE(name);
    auto* control = Find<QWidget>(name);
    control->setFocus();
    QScrollArea* section = nullptr;
    for (QWidget* above = control; above && !section; above = above->parentWidget())
      section = qobject_cast<QScrollArea*>(above);
    ASSERT_TRUE(section);
    section->verticalScrollBar()->setRange(0, 500);
    const QPointF at = control->rect().center();
    QWheelEvent wheel(at, control->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &wheel);
    EXPECT_GT(section->verticalScrollBar()->value(), 0);
  }
  EXPECT_EQ(settings.WindowMode, "1");
  EXPECT_EQ(settings.SlomoSpeed, 25);
}

TEST_F(SetupPageTest, TheLibraryMovesOnlyWhenTheUserMeansIt) {
  QSignalSpy moved(page.get(), &SetupPage::LibraryChanged);
  auto* check = Find<QCheckBox>("SSCheck4");
  host.answers = {false};
  check->click();
  EXPECT_FALSE(check->isChecked());
  host.answers = {true};
  host.folders = {folder.Path("server")};
  check->click();
  EXPECT_TRUE(check->isChecked());
  EXPECT_EQ(Find<QLineEdit>("Networktext")->toolTip().toStdString(), folder.Path("server"));
  check->click();
  EXPECT_FALSE(check->isChecked());
  EXPECT_EQ(settings.LibraryPath, folder.Path("data/Video Library"));
  EXPECT_EQ(moved.count(), 2);
}

TEST_F(SetupPageTest, ALostFileShowsItsFirstValuesEverywhere) {
  Type("UserNameBox", "Erica");
  Press("Check1_8");
  Press("optLayout3");
  ASSERT_TRUE(KillFile(settings.ConfigFile()));
  Press("Check1_2");
  EXPECT_EQ(schemes.Design(), 0);
  EXPECT_EQ(settings.CadWidth, 5);
  EXPECT_TRUE(Find<QAbstractButton>("Check1_5")->isChecked());
  EXPECT_EQ(Find<QLineEdit>("UserNameBox")->text(), "");
}

TEST_F(SetupPageTest, TheSystemTestFillsItsGauges) {
  host.system = {1920, 1080, 32, 400, 8 << 20};
  Press("SystemTestBtn");
  EXPECT_EQ(Text("Label1_2"), "1920x1080");
  EXPECT_EQ(Find<Gauge>("FloodPanel3")->value(), 50);
}

}  // namespace
}  // namespace kinalyx::test
