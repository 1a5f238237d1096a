#include "distribution/mail/forms/MailForm.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "distribution/mail/MailFakes.h"
#include "distribution/mail/forms/EmailPnl.h"
#include "workspace/forms/LoneCtrl.h"

namespace kinalyx::test {
namespace {

struct MailFormTest : testing::Test, UsesApplication, MailStage, FormDriver {
  void Open(std::vector<std::string> addresses = {"clara@example.org", "mother@example.org"}) {
    form = std::make_unique<MailForm>(MailForm::Parts{host, desk, {"Clara Weiss", std::move(addresses)}}, &over);
    form->show();
  }
  QWidget& Form() override { return *form; }
  QString Count() { return Text("MailCountLbl"); }
  bool Enabled(const char* name) { return Find<QWidget>(name)->isEnabled(); }
  void Address(const char* box, const QString& text) { Find<QComboBox>(box)->setEditText(text); }

  QWidget over;
  MailDesk desk{host, mail, queue, net.Sender(), JobRunner::On::HostTimer};
  std::unique_ptr<MailForm> form;
};

TEST_F(MailFormTest, PicturesAreLookedThroughAndDeleted) {
  Shoot(3);
  Open();
  EXPECT_EQ(form->windowTitle(), "Send Pictures to Clara Weiss");
  EXPECT_EQ(Count(), "Picture 1 of 3");
  EXPECT_FALSE(Enabled("SSCommand1_0"));
  Press("SSCommand1_1");
  Press("SSCommand1_1");
  EXPECT_EQ(Count(), "Picture 3 of 3");
  EXPECT_FALSE(Enabled("SSCommand1_1"));
  Press("EmailBtn2");
  EXPECT_EQ(Count(), "Picture 2 of 2");
  EXPECT_FALSE(std::filesystem::exists(File(3)));
  std::filesystem::remove(File(1));  // by hand, and the other one is damaged
  folder.Put("email/email2.jpg", "no picture");
  Press("SSCommand1_0");
  EXPECT_EQ(Count(), "Picture 1 of 1");
  Press("EmailBtn2");
  EXPECT_EQ(Count(), "Picture 0 of 0");
  EXPECT_FALSE(Enabled("EmailBtn0") || Enabled("EmailBtn2"));
}

TEST_F(MailFormTest, ClosingKeepsTheQueueAndDeletingItAsks) {
  Shoot(2);
  Open();
  Press("EmailBtn1");
  EXPECT_TRUE(form->isHidden());
  EXPECT_EQ(queue.Count(), 2);
  Open();
  Press("EmailBtn3");
  EXPECT_EQ(host.questions.back(), "Do you want to delete all 2 pictures without sending?");
  EXPECT_EQ(queue.Count(), 2);
  host.answers = {true};
  Press("EmailBtn3");
  EXPECT_EQ(queue.Count(), 0);
  EXPECT_TRUE(form->isHidden());
}

TEST_F(MailFormTest, SendsToWhatStandsInTheForm) {
  Shoot(2);
  Open();
  EXPECT_EQ(Find<QComboBox>("EmailCombo0")->currentText(), "clara@example.org") << "of the profile";
  Address("EmailCombo0", "clara");
  Press("EmailBtn0");
  EXPECT_EQ(host.messages.back(), "You must add a valid email address to continue.");
  Address("EmailCombo0", "clara@example.org");
  Address("EmailCombo2", "trainer@club.example");
  Find<QLineEdit>("MailSubject")->setText("Zażółć");
  Find<QPlainTextEdit>("MailBody")->setPlainText("日本語");
  net.answer = Outcome::Failed("The server does not accept the password.");
  Press("EmailBtn0");
  EXPECT_FALSE(Enabled("EmailBtn0") || Enabled("EmailCombo0") || Enabled("MailSubject"));
  EXPECT_EQ(Find<QAbstractButton>("EmailBtn1")->text(), "Cancel");
  host.Advance(100);
  EXPECT_EQ(host.messages.back(), "The server does not accept the password.");
  EXPECT_EQ(Count(), "Picture 1 of 2");
  EXPECT_TRUE(Enabled("EmailBtn0"));

  Press("EmailBtn0");
  Press("EmailBtn1");
  host.Advance(100);
  EXPECT_FALSE(form->isHidden()) << "a cancelled mail can be sent again";
  EXPECT_EQ(Text("MailStatusLbl"), "Cancelled. The pictures stay in the queue.");

  net.answer = {};
  Press("EmailBtn0");
  host.Advance(100);
  EXPECT_EQ(Text("MailStatusLbl"), "Send Successful!");
  EXPECT_EQ(Count(), "Picture 0 of 0");
  EXPECT_EQ(net.messages.back().to, (std::vector<std::string>{"clara@example.org", "trainer@club.example"}));
  EXPECT_EQ(net.messages.back().subject + net.messages.back().body, "Zażółć日本語");
}

TEST_F(MailFormTest, AddressesAreChosenFromTheProfile) {
  Shoot(1);
  Open({"a@x.org", "b@x.org", "c@x.org", "d@x.org"});
  std::vector<bool> open;
  QTimer::singleShot(0, [&] {
    auto* list = form->findChild<QListWidget*>("EmailList");
    EXPECT_EQ(list->item(0)->checkState(), Qt::Checked) << "stands in the form already";
    list->item(2)->setCheckState(Qt::Checked);
    list->item(3)->setCheckState(Qt::Checked);
    for (int row = 0; row < list->count(); ++row) open.push_back(list->item(row)->flags() & Qt::ItemIsEnabled);
    form->findChild<QAbstractButton*>("EmailListSelect")->click();
  });
  Press("EmailListBtn");
  EXPECT_EQ(open, (std::vector<bool>{true, false, true, true})) << "three at the most";
  EXPECT_EQ(Find<QComboBox>("EmailCombo1")->currentText(), "c@x.org");
  EXPECT_EQ(Find<QComboBox>("EmailCombo2")->currentText(), "d@x.org");
}

TEST_F(MailFormTest, APanelTellsOverTheStage) {
  over.resize(800, 600);
  auto* panel = new EmailPnl(&over);
  over.show();
  EXPECT_FALSE(panel->isVisible());
  panel->ShowEmailPnl("Picture Saved...");
  EXPECT_TRUE(panel->isVisible());
  over.resize(400, 300);
  QCoreApplication::processEvents();
  EXPECT_NEAR(panel->geometry().center().x(), 200, 1);
  panel->HideEmailPnl();
  EXPECT_FALSE(panel->isVisible());
}

TEST(LoneCtrlTest, CtrlIsAKeyOfItsOwnOnlyWhenItComesAlone) {
  QWidget page;
  QLineEdit box(&page);
  box.setAccessibleName("box");
  page.show();
  page.activateWindow();
  box.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  LoneCtrl ctrl(&page);
  const QSignalSpy taps(&ctrl, &LoneCtrl::Tapped);
  const auto press = [&] { QTest::keyPress(&box, Qt::Key_Control); };
  const auto release = [&] { QTest::keyRelease(&box, Qt::Key_Control, Qt::ControlModifier); };
  press();
  EXPECT_EQ(taps.count(), 0) << "not before it is let go";
  release();
  EXPECT_EQ(taps.count(), 1);

  press();
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  release();
  press();
  QTest::mouseClick(&page, Qt::LeftButton, Qt::ControlModifier);
  release();
  QTest::mousePress(&page, Qt::LeftButton);
  press();
  release();
  QTest::mouseRelease(&page, Qt::LeftButton);
  QTest::keyPress(&box, Qt::Key_Shift);
  QTest::keyPress(&box, Qt::Key_Control, Qt::ShiftModifier);
  release();
  QTest::keyRelease(&box, Qt::Key_Shift);
  press();
  QTest::keyPress(&box, Qt::Key_Shift, Qt::ControlModifier);
  QTest::keyRelease(&box, Qt::Key_Shift, Qt::ControlModifier);
  release();
  release();
  EXPECT_EQ(taps.count(), 1);
  page.hide();
  press();
  release();
  EXPECT_EQ(taps.count(), 1) << "nor on another page";
}

}  // namespace
}  // namespace kinalyx::test
