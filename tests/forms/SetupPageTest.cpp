#include "core/forms/SetupPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QWheelEvent>

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
struct Desk : UsesApplication {
  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path("data"), folder.Path("program")};
  ColorSchemes schemes;
  std::unique_ptr<SetupPage> page;

  Desk() {
    settings.LoadSettings();
    Open();
  }
  void Open() { page = std::make_unique<SetupPage>(host, settings, schemes); }

  template <typename Widget>
  Widget* Find(const char* name) {
    Widget* widget = page->findChild<Widget*>(name);
    EXPECT_TRUE(widget) << name;
    return widget;
  }
  void Click(const char* name) { Find<QAbstractButton>(name)->click(); }
  std::string OnDisk(const char* section, const char* key) {
    return ReadProfileValue(section, key, settings.ConfigFile()).value_or("missing");
  }
};

TEST(SetupPage, FillingTheControlsWritesNothing) {
  Desk desk;
  desk.settings.Set(desk.settings.CadWidth, 42);     // no button stands for it
  desk.settings.Set(desk.settings.SlomoSpeed, 0);    // the slider begins at 1
  desk.settings.Set(desk.settings.WindowMode, "4");  // not offered by the list
  const std::string before = desk.folder.Get("data/config10.ini");
  desk.Open();
  EXPECT_FALSE(desk.settings.Loading);
  EXPECT_EQ(desk.folder.Get("data/config10.ini"), before);
  EXPECT_EQ(desk.settings.SlomoSpeed, 0);
  EXPECT_EQ(desk.Find<QComboBox>("cboResolution")->currentIndex(), -1);
}

TEST(SetupPage, EveryControlWritesItsKeyAtOnce) {
  Desk desk;
  QSignalSpy analysis(desk.page.get(), &SetupPage::AnalysisChanged);
  desk.Click("ScreenOpt4");
  desk.Click("ODSetupOpt1");
  desk.Find<QSlider>("Slomoscroll")->setValue(40);
  desk.Find<QSlider>("GridSizeScroll")->setValue(12);
  desk.Find<QSlider>("StrobeStepScroll")->setValue(4);
  desk.Click("Check1_8");
  desk.Click("CadOutlineCheck");
  desk.Click("DCSetupOpt1");
  desk.Click("SSOption2_1");
  EXPECT_EQ(analysis.count(), 9);
  EXPECT_EQ(desk.OnDisk("General", "ScreenMode"), "4");
  EXPECT_EQ(desk.OnDisk("Analysis", "OpenDlgChoice"), "1");
  EXPECT_EQ(desk.OnDisk("Analysis", "SlomoSpeed"), "40");
  EXPECT_EQ(desk.OnDisk("Analysis", "GridSize"), "12");
  EXPECT_EQ(desk.OnDisk("Analysis", "StrobeStep"), "4");
  EXPECT_EQ(desk.OnDisk("Analysis", "CadWidth"), "8");
  EXPECT_EQ(desk.OnDisk("Analysis", "CadOutline"), "False");
  EXPECT_EQ(desk.OnDisk("Analysis", "RandomColor"), "1");
  EXPECT_EQ(desk.OnDisk("Ruler", "NTSCorPAL"), "1");

  QSignalSpy company(desk.page.get(), &SetupPage::CompanyChanged);
  QSignalSpy menu(desk.page.get(), &SetupPage::MenuChanged);
  desk.Find<QLineEdit>("UserNameBox")->setText("Erica S\u00e4mple");
  desk.Find<QLineEdit>("CompanyNameBox")->setText("Links");
  desk.Find<QLineEdit>("Printtext2")->setText("Links Golf");
  desk.Click("MenuSetupBtn1");
  desk.Click("UseLogochk");
  EXPECT_FALSE(desk.Find<QLabel>("LogoPreview")->text().isEmpty()) << "the file has no picture";
  QImage(40, 20, QImage::Format_RGB32).save(QString::fromStdString(desk.folder.Path("our.png")));
  desk.host.files = {desk.folder.Path("our.png")};
  desk.Click("SSCommand14");
  desk.Click("SSCommand14");  // cancelled
  EXPECT_EQ(desk.OnDisk("General", "Logo"), "False");
  EXPECT_EQ(desk.OnDisk("General", "LogoName"), desk.folder.Path("our.png"));
  EXPECT_FALSE(desk.Find<QLabel>("LogoPreview")->pixmap().isNull());
  EXPECT_EQ(desk.OnDisk("General", "UserName"), "Erica S\xC3\xA4mple");
  EXPECT_EQ(desk.OnDisk("General", "CompanyName"), "Links");
  EXPECT_EQ(desk.OnDisk("General", "Heading2"), "Links Golf");
  EXPECT_EQ(desk.OnDisk("General", "CaptionPosition"), "2");
  EXPECT_EQ(company.count(), 1);
  EXPECT_EQ(menu.count(), 2);

  desk.Open();
  EXPECT_TRUE(desk.Find<QAbstractButton>("ScreenOpt4")->isChecked());
  EXPECT_TRUE(desk.Find<QAbstractButton>("Check1_8")->isChecked());
  EXPECT_EQ(desk.Find<QSlider>("Slomoscroll")->value(), 40);
  EXPECT_EQ(desk.Find<QLineEdit>("CompanyNameBox")->text(), "Links");
}

TEST(SetupPage, ShowsWhatWasSetElsewhere) {
  Desk desk;
  desk.settings.Set(desk.settings.GridSize, 150);
  desk.page->show();
  EXPECT_EQ(desk.Find<QSlider>("GridSizeScroll")->value(), 150);
  EXPECT_EQ(desk.OnDisk("Analysis", "GridSize"), "150");
}

TEST(SetupPage, ADraggedSliderIsWrittenWhenItIsLetGo) {
  Desk desk;
  auto* slider = desk.Find<QSlider>("Slomoscroll");
  slider->setSliderDown(true);
  slider->setSliderPosition(60);
  EXPECT_EQ(desk.settings.SlomoSpeed, 60);
  EXPECT_EQ(desk.OnDisk("Analysis", "SlomoSpeed"), "25");
  slider->setSliderDown(false);
  EXPECT_EQ(desk.OnDisk("Analysis", "SlomoSpeed"), "60");
}

TEST(SetupPage, ToolColoursAreChosenInADialog) {
  Desk desk;
  QString asked;
  desk.page->Analysis().pickColour = [&](const QColor& present, const QString& title) -> std::optional<QColor> {
    asked = title + " " + present.name();
    return title.contains("Line") ? std::optional(QColor(1, 2, 3)) : title.contains("PathDown") ? QColor(0, 0, 9)
                                                                                                : std::optional<QColor>();
  };
  desk.Click("NewColor3");
  EXPECT_EQ(asked, "Change Line Color #0000ff");
  EXPECT_EQ(desk.OnDisk("Analysis", "NewColor3"), std::to_string(1 + 256 * 2 + 65536 * 3));
  desk.Click("NewColor4");
  EXPECT_EQ(desk.OnDisk("Analysis", "NewColor4"), "&HFF&") << "a cancelled dialog changes nothing";
  desk.Click("NewColor17");
  EXPECT_EQ(desk.OnDisk("Analysis", "NewColor17"), std::to_string(65536 * 9));
  EXPECT_EQ(desk.Find<ColourButton>("NewColor17")->Colour(), QColor(0, 0, 9));
}

TEST(SetupPage, ASchemeAndANounTakeEffectAtOnce) {
  Desk desk;
  QSignalSpy design(desk.page.get(), &SetupPage::DesignChanged);
  desk.Click("optLayout6");
  EXPECT_EQ(design.count(), 1);
  EXPECT_EQ(desk.schemes.Design(), 6);
  EXPECT_EQ(desk.OnDisk("Layout", "Design"), "6");

  QSignalSpy words(desk.page.get(), &SetupPage::VocabularyChanged);
  auto* noun = desk.Find<QLineEdit>("Text3");
  const auto leave = [&](const QString& text) {
    noun->setText(text);
    emit noun->editingFinished();
  };
  leave("Golfer");
  leave("Golfer");
  leave("  ");
  EXPECT_EQ(noun->text(), "Golfer");
  EXPECT_EQ(words.count(), 1);
  EXPECT_EQ(desk.OnDisk("Layout", "PrimaryName2"), "golfers");
  EXPECT_EQ(desk.Find<QAbstractButton>("PSCmd1")->text(), "Golfer Profiles");
}

TEST(SetupPage, AnotherWindowRestartsOnceTheListIsClosed) {
  Desk desk;
  QSignalSpy restart(desk.page.get(), &SetupPage::RestartWanted);
  auto* modes = desk.Find<QComboBox>("cboResolution");
  modes->setCurrentIndex(modes->currentIndex());
  desk.host.Advance(1000);
  EXPECT_EQ(restart.count(), 0);
  modes->setCurrentIndex(2);
  EXPECT_EQ(restart.count(), 0);
  EXPECT_EQ(desk.OnDisk("General", "WindowMode"), "3");
  EXPECT_EQ(desk.OnDisk("General", "RestartOption"), "1");
  desk.host.Advance(1);
  EXPECT_EQ(restart.count(), 1);
}

TEST(SetupPage, TheWheelTurnsThePageAndChangesNothing) {
  Desk desk;
  desk.page->resize(900, 700);
  desk.page->show();
  for (const char* name : {"cboResolution", "Slomoscroll"}) {
    auto* control = desk.Find<QWidget>(name);
    control->setFocus();
    const QPointF at = control->rect().center();
    QWheelEvent wheel(at, control->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &wheel);
  }
  EXPECT_EQ(desk.settings.WindowMode, "1");
  EXPECT_EQ(desk.settings.SlomoSpeed, 25);
}

TEST(SetupPage, TheLibraryMovesOnlyWhenTheUserMeansIt) {
  Desk desk;
  QSignalSpy moved(desk.page.get(), &SetupPage::LibraryChanged);
  auto* check = desk.Find<QCheckBox>("SSCheck4");
  desk.host.answers = {false};
  check->click();
  EXPECT_FALSE(check->isChecked());
  desk.host.answers = {true};
  desk.host.folders = {desk.folder.Path("server")};
  check->click();
  EXPECT_TRUE(check->isChecked());
  EXPECT_EQ(desk.Find<QLineEdit>("Networktext")->text().toStdString(), desk.folder.Path("server"));
  check->click();
  EXPECT_FALSE(check->isChecked());
  EXPECT_EQ(desk.settings.LibraryPath, desk.folder.Path("data/Video Library"));
  EXPECT_EQ(moved.count(), 2);
}

TEST(SetupPage, ALostFileShowsItsFirstValuesEverywhere) {
  Desk desk;
  desk.Find<QLineEdit>("UserNameBox")->setText("Erica");
  desk.Click("Check1_8");
  desk.Click("optLayout3");
  ASSERT_TRUE(KillFile(desk.settings.ConfigFile()));
  desk.Click("Check1_2");
  EXPECT_EQ(desk.schemes.Design(), 0);
  EXPECT_EQ(desk.settings.CadWidth, 5);
  EXPECT_TRUE(desk.Find<QAbstractButton>("Check1_5")->isChecked());
  EXPECT_EQ(desk.Find<QLineEdit>("UserNameBox")->text(), "");
}

TEST(SetupPage, TheSystemTestShowsFiveGauges) {
  Desk desk;
  desk.host.system = {1920, 1080, 32, 400, 8 << 20};
  desk.Click("SystemTestBtn");
  EXPECT_EQ(desk.Find<QLabel>("Label1_0")->text(), "32 Bit");
  EXPECT_EQ(desk.Find<QLabel>("Label1_2")->text(), "1920x1080");
  EXPECT_EQ(desk.Find<Gauge>("FloodPanel3")->value(), 50);
  EXPECT_EQ(desk.Find<Gauge>("FloodPanel3")->Colour(), QColor(0, 128, 0));
}

TEST(SetupPage, SectionsNotBuiltYetStayClosed) {
  Desk desk;
  for (const char* name : {"PSCmd1", "PSCmd2", "PSCmd5"}) {
    EXPECT_FALSE(desk.Find<QAbstractButton>(name)->isEnabled()) << name;
    EXPECT_EQ(desk.Find<QAbstractButton>(name)->toolTip(), "coming");
  }
  EXPECT_FALSE(desk.page->PSCmd_Click(SetupPage::kProfiles));
  desk.page->SetFieldEditor(new QLabel("fields"));
  desk.Click("PSCmd1");
  EXPECT_EQ(desk.page->CurrentSection(), SetupPage::kProfiles);
  desk.Click("PSCmd3");
  EXPECT_EQ(desk.page->CurrentSection(), SetupPage::kAnalysis);
}

}  // namespace
}  // namespace kinalyx::test
