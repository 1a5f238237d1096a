#include "platform/widgets/Scale.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "AnalysisFormFixture.h"
#include "ProfilesStage.h"
#include "core/ColorSchemes.h"
#include "core/MailSettings.h"
#include "core/ResizeControls.h"
#include "core/Vocabulary.h"
#include "core/forms/FirstForm.h"
#include "core/forms/SetupPage.h"
#include "platform/files/Languages.h"
#include "platform/widgets/Theme.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

QApplication& Application() { return *static_cast<QApplication*>(QCoreApplication::instance()); }

/// Dresses all forms for a main window of some size, as the program does, and undresses them at the end.
struct Dressed {
  explicit Dressed(QSize main = {1024, 768}) { Resize(main); }
  ~Dressed() {
    SetTextPixels(Application(), 13);
    ApplyTheme(Application(), CurrentTheme());
    Application().setStyleSheet({});
  }
  void Resize(QSize main) {
    controls.Resize(main.width(), main.height());
    SetTextPixels(Application(), controls.TextPixels());
    ApplyTheme(Application(), CurrentTheme());
    Settle();
  }
  /// A label tells its layout, that tells the card: each in a turn of its own.
  static void Settle() {
    for (int turn = 0; turn < 5; ++turn) QTest::qWait(0);
  }
  ResizeControls controls;
};

/// Names of the visible labels and buttons whose words have less room than they take.
std::string Clipped(const QWidget& form) {
  QStringList found;
  const auto check = [&](const QWidget* widget, QString words, int beside) {
    if (words.isEmpty() || !widget->isVisible()) return;
    words.remove('&');
    const QSize taken = widget->fontMetrics().size(0, words) + QSize(beside, 0);
    // The room of a line may be less than what the font keeps for accents.
    if (widget->width() < taken.width() || widget->height() + 3 < taken.height())
      found << QString("%1 '%2' %3x%4 in %5x%6")
                   .arg(widget->objectName(), words)
                   .arg(taken.width())
                   .arg(taken.height())
                   .arg(widget->width())
                   .arg(widget->height());
  };
  for (const auto* label : form.findChildren<QLabel*>())
    if (!label->wordWrap()) check(label, label->text(), 0);
  for (const auto* button : form.findChildren<QAbstractButton*>())
    if (button->property("look") != "tile" && !button->inherits("QLineEditIconButton"))  // which paint no words
      check(button, button->text(), button->icon().isNull() ? 0 : button->iconSize().width());
  return found.join("; ").toStdString();
}

/// Has a page looked at in main windows of all sizes.
/// @param beside  what stands beside it and above, in pixels of an unscaled window
template <typename Look>
void AtEverySize(QWidget& page, QSize beside, Look look) {
  Dressed dressed;
  for (const QSize& main : {QSize(1000, 680), QSize(1024, 768), QSize(1280, 800), QSize(1280, 1024), QSize(1440, 900),
                            QSize(1440, 950), QSize(1920, 1080)}) {
    SCOPED_TRACE(std::to_string(main.width()) + " x " + std::to_string(main.height()));
    dressed.Resize(main);
    page.resize(main - QSize(Px(beside.width()), Px(beside.height())));
    Dressed::Settle();
    look();
  }
}

/// For as long as it lives the forms that are made speak a language.
struct Speaks {
  explicit Speaks(const char* code) { SpeakLanguage(Application(), KINALYX_COMPILED_WORDS, code); }
  ~Speaks() { SpeakLanguage(Application(), KINALYX_COMPILED_WORDS, "en"); }
  Speaks(const Speaks&) = delete;
  Speaks& operator=(const Speaks&) = delete;
};

TEST(Scale, LengthsInSheetsGrowWithTheText) {
  Dressed dressed({1920, 1080});
  EXPECT_EQ(TextPixels(), 15);
  EXPECT_EQ(WithSizes("a { font-size: @13; min-height: @34-4; border: 2px; border-radius: @20/2; }"),
            "a { font-size: 15px; min-height: 35px; border: 2px; border-radius: 11px; }");
}

TEST(Scale, FormsThatStandTakeTheSizesOfTheMainWindowAndGiveThemBack) {
  TempFolder folder;
  TestHost host;
  Settings settings(host, folder.Path("data"), folder.Path("program"));
  settings.LoadSettings();
  ColorSchemes schemes;
  MailSettings mail(settings.DataPath);
  Dressed dressed({1280, 800});
  SetupPage page(host, settings, schemes);
  FirstForm form(settings, mail, schemes, &page);
  page.show();
  form.show();
  struct Seen {
    int words, caption, box, button, icon, form;
    bool operator==(const Seen&) const = default;
  };
  const auto look = [&] {
    QTest::qWait(0);
    const auto pixels = [](const QWidget* widget) { return QFontInfo(widget->font()).pixelSize(); };
    const auto* test = page.findChild<QPushButton*>("SystemTestBtn");
    return Seen{pixels(page.findChild<QLineEdit*>("UserNameBox")),
                pixels(form.findChild<QLabel*>("UserInfo0Lbl")),
                page.findChild<QLineEdit*>("UserNameBox")->height(),
                test->height(),
                test->iconSize().width(),
                form.width()};
  };
  const Seen small = look();
  EXPECT_EQ(small, (Seen{13, 11, 34, 34, 20, 440}));
  dressed.Resize({1920, 1080});
  EXPECT_EQ(look(), (Seen{15, 13, 39, 39, 23, 508}));
  FirstForm later(settings, mail, schemes, &page);
  EXPECT_EQ(later.width(), 508) << "a form that opens later";
  dressed.Resize({1366, 768});
  EXPECT_EQ(look(), small);
}

TEST(Scale, NothingOfTheSetupPageIsClippedInAnyLanguage) {
  TempFolder folder;
  TestHost host;
  Settings settings(host, folder.Path("data"), folder.Path("program"));
  settings.LoadSettings();
  ColorSchemes schemes;
  for (const char* language : {"en", "de", "es"}) {
    SCOPED_TRACE(language);
    const Speaks speaks(language);
    SetupPage page(host, settings, schemes);
    page.show();
    AtEverySize(page, {132, 36}, [&] {
      for (const int section : {SetupPage::kMainMenu, SetupPage::kAnalysis, SetupPage::kGeneral}) {
        page.PSCmd_Click(section);
        QTest::qWait(0);
        EXPECT_EQ(Clipped(page), "");
      }
    });
  }
}

using ScaledProfiles = ProfilesStage;

TEST_F(ScaledProfiles, NothingIsClipped) {
  Choose("InstructorList", "Demo");
  Choose("StudentList", "Sample, Erica");
  AtEverySize(*page, {132, 36}, [&] { EXPECT_EQ(Clipped(*page), ""); });
}

struct SpeaksGerman : Speaks {
  SpeaksGerman() : Speaks("de") {}
};
struct SpeaksSpanish : Speaks {
  SpeaksSpanish() : Speaks("es") {}
};
class GermanProfiles : SpeaksGerman, public ProfilesStage {};
class SpanishProfiles : SpeaksSpanish, public ProfilesStage {};
class GermanAnalysis : SpeaksGerman, public AnalysisFormFixture {};
class SpanishAnalysis : SpeaksSpanish, public AnalysisFormFixture {};

TEST_F(GermanProfiles, NothingIsClippedAndTheWordForAPersonIsGerman) {
  EXPECT_EQ(page->findChild<QLabel*>("StudentsTitle")->text(), "Schüler");
  Choose("InstructorList", "Demo");
  Choose("StudentList", "Sample, Erica");
  AtEverySize(*page, {132, 36}, [&] { EXPECT_EQ(Clipped(*page), ""); });
  SetPrimaryName(library.settings, "Schüler");
  EXPECT_EQ(library.settings.PrimaryName[0], "Student") << "the shown word typed again is no other word";
  SetPrimaryName(library.settings, "Patient");
  const Vocabulary words(library.settings);
  EXPECT_EQ(words.nouns(), "Patienten");
  EXPECT_EQ(words.AddNew(), "Patient hinzufügen");
  EXPECT_EQ(library.settings.PrimaryName[2], "patients") << "stored as ever";
}

TEST_F(SpanishProfiles, NothingIsClipped) {
  Choose("InstructorList", "Demo");
  Choose("StudentList", "Sample, Erica");
  AtEverySize(*page, {132, 36}, [&] { EXPECT_EQ(Clipped(*page), ""); });
}

TEST_F(GermanAnalysis, NothingIsClipped) {
  Send("a.avi");
  for (const char* card : {"TVT", "TCal", "TZP", "TASF", "TAGrid", "AddMacro"}) form->Section().Commands().Run(card);
  AtEverySize(*form, {0, 36}, [&] { EXPECT_EQ(Clipped(*form), ""); });
}

TEST_F(SpanishAnalysis, NothingIsClipped) {
  Send("a.avi");
  for (const char* card : {"TVT", "TCal", "TZP", "TASF", "TAGrid", "AddMacro"}) form->Section().Commands().Run(card);
  AtEverySize(*form, {0, 36}, [&] { EXPECT_EQ(Clipped(*form), ""); });
}

using ScaledAnalysis = AnalysisFormFixture;

TEST_F(ScaledAnalysis, NothingIsClippedOrCutOff) {
  Send("a.avi");
  Send("b.avi");
  for (const char* card : {"TVT", "TCal", "TZP", "TASF", "TAGrid", "AddMacro"}) form->Section().Commands().Run(card);
  const auto expectInBar = [&](std::initializer_list<const char*> names) {
    const QRect bar = OnForm(Find<QWidget>("Playbar"));
    for (const char* name : names) EXPECT_TRUE(bar.contains(OnForm(Find<QWidget>(name)))) << name;
  };
  AtEverySize(*form, {0, 36}, [&] {
    for (const char* layout : {"Scn1", "Scn2", "Scn4", "Scn8"}) {
      SCOPED_TRACE(layout);
      Click(layout);
      QTest::qWait(0);
      EXPECT_EQ(Clipped(*form), "");
      for (const char* name : {"CmdMakeShape0", "CmdMakeShape10", "DDSABtn", "Notesbutton", "CmdAfunctions4",
                               "CmdButton3", "ColorChoiceBtn11", "Playbar"}) {
        QWidget* widget = Find<QWidget>(name);
        EXPECT_TRUE(widget->isVisible() && form->rect().contains(OnForm(widget))) << name;
      }
      expectInBar({"CmdButton0", "CmdButton2", "LoopButton", "DisplayPanel", "PlayBarHScroll", "PlayBarDetachBtn"});
      EXPECT_FALSE(OnForm(Find<QWidget>("LoopButton")).intersects(OnForm(Find<QWidget>("PlayBarDetachBtn"))));
    }
    // Beside the open panel eight windows are narrow indeed.
    Click("Openbtn");
    QTest::qWait(0);
    expectInBar({"CmdButton0", "CmdButton2", "LoopButton", "DisplayPanel", "PlayBarHScroll"});
    EXPECT_GE(Find<QLabel>("DisplayPanel")->width(), Find<QLabel>("DisplayPanel")->sizeHint().width());
    Click("CmdOpenVideo1");
    for (const char* name : {"CmdMakeShape3", "StrobeBtn", "cmdDualPlay"})
      EXPECT_TRUE(Find<QWidget>(name)->isVisible() || Find<QWidget>("MoreTools")->isVisible()) << name;
  });
}

}  // namespace
}  // namespace kinalyx::test
