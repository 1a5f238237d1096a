#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTimer>

#include "FormsSupport.h"
#include "core/ColorSchemes.h"
#include "core/MailSettings.h"
#include "core/Vocabulary.h"
#include "core/forms/FirstForm.h"
#include "core/forms/HeadingInk.h"
#include "core/forms/HelpPage.h"
#include "core/forms/MenuPage.h"
#include "core/forms/MenuSection.h"
#include "core/forms/SplashForm.h"
#include "platform/widgets/Theme.h"
#include "support/TestDesk.h"

namespace kinalyx::test {
namespace {

struct Desk : UsesApplication, TestDesk {
  MailSettings mail{settings.DataPath};
  ColorSchemes schemes;

  Desk() { mail.LoadMailSettings(); }
  std::optional<std::string> OnDisk(const char* key) const { return TestDesk::OnDisk("General", key); }
};

template <typename Widget>
Widget* Find(QWidget& form, const char* name) {
  Widget* widget = form.findChild<Widget*>(name);
  EXPECT_TRUE(widget) << name;
  return widget;
}

TEST(FirstForm, KeepsEachChangeAndMakesTheSender) {
  Desk desk;
  desk.settings.UserName = "Old Coach";  // known to an older version
  FirstForm form(desk.settings, desk.mail, desk.schemes);
  QSignalSpy company(&form, &FirstForm::CompanyChanged);
  EXPECT_EQ(Find<QLineEdit>(form, "UserInfo0")->text(), "Old Coach");
  EXPECT_EQ(desk.OnDisk("UserName"), "Old Coach");
  EXPECT_EQ(Find<QLineEdit>(form, "UserInfo1")->text(), "") << "the first-run name of the company is no name";
  Find<QLineEdit>(form, "UserInfo0")->setText("Erica Sample");
  EXPECT_EQ(desk.OnDisk("UserName"), "Erica Sample");
  Find<QLineEdit>(form, "UserInfo1")->setText("Links");
  EXPECT_EQ(desk.OnDisk("CompanyName"), "Links");
  EXPECT_EQ(company.count(), 1);
  EXPECT_EQ(ReadProfileValue("General", "SenderName", desk.mail.File()), "");

  form.show();
  Find<QPushButton>(form, "SSCommand1")->click();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(ReadProfileValue("General", "SenderName", desk.mail.File()), "Erica Sample");
  EXPECT_EQ(ReadProfileValue("General", "Subject", desk.mail.File()), "Video Analysis from Links");
  EXPECT_EQ(desk.mail.Subject, "Video Analysis from Links");
  FirstForm again(desk.settings, desk.mail, desk.schemes);
  EXPECT_EQ(Find<QLineEdit>(again, "UserInfo1")->text(), "Links");
}

TEST(FirstForm, EnterGoesOnToTheNextBoxBeforeItFinishes) {
  Desk desk;
  FirstForm form(desk.settings, desk.mail, desk.schemes);
  form.show();
  form.activateWindow();
  QApplication::processEvents();
  const auto enter = [&] {
    ASSERT_NE(form.focusWidget(), nullptr);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(form.focusWidget(), &press);
  };
  EXPECT_EQ(form.focusWidget()->objectName(), "UserInfo0");
  enter();
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.focusWidget()->objectName(), "UserInfo1");
  enter();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(desk.mail.Subject, "Video Analysis from Company Name");
}

TEST(FirstForm, PutsANewUserIntoTheDarkRoomUnlessHeLeavesIt) {
  Desk desk;
  const auto design = [&] { return desk.TestDesk::OnDisk("Layout", "Design"); };
  FirstForm form(desk.settings, desk.mail, desk.schemes);
  QSignalSpy worn(&form, &FirstForm::DesignChanged);
  form.show();
  EXPECT_EQ(desk.schemes.Design(), kDarkRoom);
  Find<QAbstractButton>(form, "LookOpt0")->click();
  Find<QAbstractButton>(form, "LookOpt8")->click();
  EXPECT_EQ(worn.count(), 3) << "each look is worn as it is chosen";
  EXPECT_EQ(design(), "0") << "and kept when the form is finished";
  form.reject();
  EXPECT_EQ(desk.schemes.Design(), kBlueWhite) << "the next start wears what was kept";
  form.show();
  Find<QPushButton>(form, "SSCommand1")->click();
  EXPECT_EQ(design(), "8");
  EXPECT_EQ(desk.schemes.Design(), kDarkRoom);
}

TEST(SplashForm, NamesTheVersionAndStaysItsTime) {
  Desk desk;
  SplashForm form("1.2.3");
  EXPECT_EQ(Find<QLabel>(form, "Label1")->text(), "Software Version 1.2.3");
  // The hand-turned clock moves with every turn of the event loop, so the wait can be seen to end by it.
  int turns = 0;
  QTimer turn;
  QObject::connect(&turn, &QTimer::timeout, [&] {
    ++turns;
    desk.host.Advance(250);
  });
  turn.start(0);
  form.Appear(desk.host);
  form.Stay(desk.host, 1000);
  EXPECT_GE(turns, 4);
  EXPECT_TRUE(form.isVisible());
}

TEST(SplashForm, StaysOverTheMainFormForASecondOrUntilTheFirstKey) {
  Desk desk;
  QWidget main;
  for (const bool typed : {false, true}) {
    SplashForm form("1.2.3");
    form.Appear(desk.host);
    desk.host.Advance(600);
    form.LeaveLater(desk.host);
    desk.host.Advance(300);
    EXPECT_TRUE(form.isVisible());
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    if (typed) QApplication::sendEvent(&main, &key);
    else desk.host.Advance(200);
    EXPECT_FALSE(form.isVisible());
  }
}

TEST(MenuPage, TilesLeadToPagesAndCarryTheNoun) {
  Desk desk;
  MenuPage page(desk.host, desk.settings);
  QSignalSpy wanted(&page, &MenuPage::PageWanted);
  for (const char* tile : {"MainCmd1", "MainCmd2", "MainCmd7"}) Find<QPushButton>(page, tile)->click();
  ASSERT_EQ(wanted.count(), 3);
  EXPECT_EQ(wanted[0][0], 1);
  EXPECT_EQ(wanted[2][0], 7);
  EXPECT_EQ(Find<QPushButton>(page, "MainCmd1")->text(), "Student Profiles");
  SetPrimaryName(desk.settings, "Patient");
  page.SetupVocabulary();
  EXPECT_EQ(Find<QPushButton>(page, "MainCmd1")->text(), "Patient Profiles");
}

TEST(MenuPage, ItsButtonChoosesThePictureAndMovesTheHeading) {
  Desk desk;
  MenuPage page(desk.host, desk.settings);
  page.resize(1024, 700);
  page.show();
  QSignalSpy changed(&page, &MenuPage::MenuChanged);
  const auto choose = [&](int row) {
    QTimer::singleShot(0, [row] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_TRUE(menu);
      menu->actions().at(row)->trigger();
      menu->close();
    });
    Find<QPushButton>(page, "MenuSetupBtn")->click();
  };
  const auto pixelAt = [&](int x, int y) { return page.grab().toImage().pixelColor(x, y); };

  QImage red(64, 40, QImage::Format_RGB32);
  red.fill(QColor(200, 10, 10));
  const std::string picture = desk.folder.Path("red.png");
  ASSERT_TRUE(red.save(QString::fromStdString(picture)));
  EXPECT_NE(pixelAt(600, 350), QColor(200, 10, 10));
  desk.host.files = {picture};
  choose(0);
  EXPECT_EQ(desk.OnDisk("BackgroundPic"), picture);
  EXPECT_EQ(pixelAt(600, 350), QColor(200, 10, 10));

  // The heading goes from the left upper corner to the right lower one when it is moved on nine places.
  const auto letters = [&](const QRect& area) {
    const QImage image = page.grab(area).toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == Qt::white;
    return count;
  };
  const QRect left(0, 60, 400, 430), right(624, 60, 400, 430);
  EXPECT_GT(letters(left), 100);
  EXPECT_EQ(letters(right), 0);
  for (int i = 0; i < 9; ++i) choose(1);
  EXPECT_EQ(desk.OnDisk("CaptionPosition"), "10");
  EXPECT_EQ(letters(left), 0);
  EXPECT_GT(letters(right), 100);
  EXPECT_EQ(changed.count(), 10);

  desk.host.files = {desk.folder.Put("letter.png", "no picture at all")};
  choose(0);
  EXPECT_EQ(desk.OnDisk("BackgroundPic"), picture) << "the old one stays";
  choose(2);
  EXPECT_NE(pixelAt(600, 350), QColor(200, 10, 10));
}

TEST(MenuPage, ComesUpWithoutAPictureWhoseDriveNeverAnswers) {
  Desk desk;
  QImage red(64, 40, QImage::Format_RGB32);
  red.fill(QColor(200, 10, 10));
  const std::string picture = desk.folder.Path("share/red.png");
  std::filesystem::create_directories(desk.folder.Path("share"));
  ASSERT_TRUE(red.save(QString::fromStdString(picture)));
  for (auto* setting : {&desk.settings.BackgroundPic, &desk.settings.LogoName}) desk.settings.Set(*setting, picture);
  desk.host.drivesHang = true;
  MenuPage page(desk.host, desk.settings);
  MenuSection section(desk.host, desk.settings);
  section.SetupProgram();
  page.resize(1024, 700);
  page.Open();
  desk.host.Advance(60000);
  const auto shows = [&] { return page.grab().toImage().pixelColor(600, 350) == QColor(200, 10, 10); };
  EXPECT_FALSE(shows());
  EXPECT_EQ(Find<QLabel>(section, "LogoPreview")->text(), "The drive with this picture is not answering.");
  EXPECT_TRUE(desk.host.messages.empty() && desk.host.waits.empty()) << "nobody has asked for it just now";
  EXPECT_EQ(desk.OnDisk("BackgroundPic"), picture);

  desk.host.DrivesAnswer();
  desk.host.Advance(2000);
  EXPECT_TRUE(shows());
  EXPECT_FALSE(Find<QLabel>(section, "LogoPreview")->pixmap().isNull());

  // One that only takes long is not read again and again, to be late each time.
  PictureReader reader;
  desk.host.drivesHang = true;
  EXPECT_FALSE(reader.Read(desk.host.Drives(), picture));
  desk.host.DrivesAnswer();
  std::filesystem::remove(picture);
  EXPECT_EQ(reader.Read(desk.host.Drives(), picture).value_or(QImage()).size(), red.size());
  EXPECT_TRUE(reader.Read(desk.host.Drives(), picture).value_or(red).isNull());
}

TEST(MenuPage, TheHeadingCanBeReadOnAnyPicture) {
  const auto plain = [](const QColor& colour) {
    QImage ground(60, 30, QImage::Format_RGB32);
    ground.fill(colour);
    return ground;
  };
  QImage checkered = plain(Qt::white);
  for (int x = 0; x < 30; ++x)
    for (int y = 0; y < 30; ++y) checkered.setPixelColor(x, y, Qt::black);
  for (const QImage& ground : {plain(Qt::black), plain(Qt::white), plain(QColor(128, 128, 128)), checkered}) {
    const HeadingInk ink = InkOver(ground);
    for (const QPoint& at : {QPoint(2, 15), QPoint(57, 15)}) {
      const QColor beneath = Mix(ground.pixelColor(at), ink.veil, ink.strength);
      EXPECT_GE(ContrastRatio(ink.letters, beneath), 4.5) << ground.pixelColor(at).name().toStdString();
    }
  }
  EXPECT_EQ(InkOver(plain(Qt::black)).strength, 0);
  EXPECT_EQ(InkOver(plain(Qt::white)).strength, 0) << "dark letters need no veil there";
}

TEST(HelpPage, FollowsLinksAndComesBack) {
  [[maybe_unused]] const UsesApplication application;
  TempFolder folder;
  folder.Put("index.htm", "<html><head><title>Welcome</title></head><body><a href=\"keys.htm\">Keys</a></body></html>");
  folder.Put("keys.htm", "<html><head><title>Keys</title></head><body>All keys</body></html>");
  HelpPage page(QString::fromStdString(folder.Path()));
  page.Navigate("index.htm");
  auto* browser = Find<QTextBrowser>(page, "wcIE");
  EXPECT_EQ(Find<QLabel>(page, "HelpTitle")->text(), "Welcome");
  EXPECT_FALSE(Find<QPushButton>(page, "HelpBackBtn")->isEnabled());
  emit browser->anchorClicked(browser->source().resolved(QUrl("keys.htm")));
  EXPECT_EQ(browser->toPlainText(), "All keys");
  Find<QPushButton>(page, "HelpBackBtn")->click();
  EXPECT_EQ(Find<QLabel>(page, "HelpTitle")->text(), "Welcome");

  Desk desk;
  SetPrimaryName(desk.settings, "R & D");
  folder.Put("index.htm",
             "<html><body>A {student} of <a href=\"students.htm\">{Students}</a>, the {student}'s</body></html>");
  page.SetupVocabulary(Vocabulary(desk.settings));
  EXPECT_EQ(browser->toPlainText(), "A r & d of R & Ds, the r & d's");
  EXPECT_TRUE(browser->toHtml().contains("students.htm"));

  HelpPage empty("/nowhere");
  empty.Navigate("index.htm");
  EXPECT_TRUE(Find<QTextBrowser>(empty, "wcIE")->toPlainText().contains("/nowhere"));
}

}  // namespace
}  // namespace kinalyx::test
