#include <QProgressBar>
#include <filesystem>

#include "../distribution/web/WebFakes.h"
#include "FormDriver.h"
#include "FormsSupport.h"
#include "distribution/web/forms/FTPUploadForm.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

/// The form with servers in memory; its work is done as the clock is turned.
class UploadFormTest : public ::testing::Test, UsesApplication, protected FormDriver {
 protected:
  UploadFormTest() {
    std::filesystem::copy_file(MakeTestVideo(MjpegVideo(8)), folder.Path("Swing.avi"));
    order.files = {{folder.Path("Swing.avi"), false, 1}};
    over.show();
  }
  QWidget& Form() override { return form; }
  void Work() {
    for (int turn = 0; turn < 5000 && form.Busy(); ++turn) host.Advance(1);
    host.Advance(50);
  }
  QString Button() { return Find<QAbstractButton>("FTPGObtn")->text(); }
  bool Shown(const char* name) { return Find<QWidget>(name)->isVisible(); }

  TempFolder folder;
  TestHost host;
  QWidget over;
  std::shared_ptr<FakeWebServers> servers = std::make_shared<FakeWebServers>();
  SendOrder order = OrderFor("Anna", folder.Path("WMVTemp"));
  FTPUploadForm form{host, servers, &over, JobRunner::On::HostTimer};
};

TEST_F(UploadFormTest, ShowsTheStepsOfItsMode) {
  form.Open(order);
  EXPECT_EQ(form.windowTitle(), "Send Videos to Web Server");
  EXPECT_EQ(Text("FTPTitle"), "Send Videos to Web Server");
  EXPECT_EQ(Text("FTPWhose"), "1 file for Anna, to anna@example.org");
  EXPECT_EQ(Text("FTPStep0"), "Step 1) Convert videos for the web.");
  EXPECT_EQ(Text("FTPStep1"), "Step 2) Upload videos to the web.");
  EXPECT_EQ(Text("FTPStep2"), "Step 3) Create and Send email(s).");
  EXPECT_EQ(Button(), "Create Now");
  EXPECT_TRUE(servers->files.empty()) << "nothing goes before the user says so";
  Press("FTPClose");
  EXPECT_FALSE(form.isVisible());

  order.mode = SendOrder::Mode::Email;
  order.files.push_back(order.files[0]);
  form.Open(order);
  EXPECT_EQ(Text("FTPTitle"), "Send Videos to Email Addresses");
  EXPECT_EQ(Text("FTPWhose"), "2 files for Anna, to anna@example.org");
  EXPECT_EQ(Text("FTPStep0"), "Step 1) Convert videos for email.");
  EXPECT_EQ(Text("FTPStep1"), "Step 2) Prepare to send.");
}

TEST_F(UploadFormTest, DoesNotComeWithoutNamesOrAccount) {
  order.company.clear();
  form.Open(order);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(host.messages.back(), "You must fill in your name and Company name in Program Setup to use this feature.");
  order.company = "Links";
  order.mailMissing = "Your own e-mail address is not set yet.";
  form.Open(order);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(host.messages.back(), std::string(kMailFault) + "\n\nYour own e-mail address is not set yet.");
}

TEST_F(UploadFormTest, FailsIsTakenUpAgainAndLeavesWhenItIsDone) {
  form.Open(order);
  servers->putsLeft = 1;
  Press("FTPGObtn");
  EXPECT_EQ(Button(), "Cancel");
  EXPECT_TRUE(Shown("FTPProgress"));
  EXPECT_FALSE(Shown("FTPClose"));
  Work();
  EXPECT_EQ(Button(), "Try Again");
  EXPECT_EQ(Text("FTPStatus"), "The server has gone.");
  EXPECT_EQ(Text("FTPMark0") + Text("FTPMark1") + Text("FTPMark2"), "\u2713!\u2022");
  EXPECT_TRUE(Shown("FTPClose"));
  EXPECT_FALSE(Shown("FTPProgress"));

  servers->putsLeft = -1;
  Press("FTPGObtn");
  Work();
  EXPECT_EQ(Text("FTPStatus"), "Processes complete");
  EXPECT_EQ(Text("FTPDetail"), "Conversion, uploading, and emailing complete");
  EXPECT_EQ(Text("FTPMark0") + Text("FTPMark1") + Text("FTPMark2"), "\u2713\u2713\u2713");
  EXPECT_EQ(Button(), "Close");
  EXPECT_EQ(servers->mails.size(), 1U);
  EXPECT_TRUE(form.isVisible());
  host.Advance(5000);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(UploadFormTest, IsCancelledAfterAQuestionOrByItsButton) {
  form.Open(order);
  Press("FTPGObtn");
  host.Advance(1);
  form.reject();
  EXPECT_EQ(host.questions.back(), "The videos are still being sent. Do you want to cancel that?");
  EXPECT_EQ(Button(), "Cancel") << "the answer was no";
  SendOrder other = order;
  other.student = "Tom";
  form.Open(other);
  EXPECT_EQ(Text("FTPWhose"), "1 file for Anna, to anna@example.org") << "one after the other";
  host.answers = {true};
  form.reject();
  EXPECT_EQ(Button(), "Cancelling...");
  EXPECT_FALSE(Find<QWidget>("FTPGObtn")->isEnabled());
  Work();
  EXPECT_EQ(Text("FTPStatus"), "Cancelled");
  EXPECT_EQ(Button(), "Create Now");
  Press("FTPGObtn");
  host.Advance(1);
  Press("FTPGObtn");
  Work();
  EXPECT_EQ(Text("FTPStatus"), "Cancelled");
  EXPECT_TRUE(servers->mails.empty());
  EXPECT_TRUE(std::filesystem::is_empty(order.workFolder));
  form.reject();
  EXPECT_FALSE(form.isVisible());
}

TEST_F(UploadFormTest, GivesUpWithTheProgram) {
  form.Open(order);
  form.GiveUp();
  EXPECT_FALSE(form.isVisible());
  form.Open(order);
  Press("FTPGObtn");
  host.Advance(1);
  form.GiveUp();
  EXPECT_FALSE(form.isVisible());
  Work();
  EXPECT_FALSE(form.Busy());
  EXPECT_TRUE(servers->mails.empty());
  EXPECT_TRUE(std::filesystem::is_empty(order.workFolder));
  // A server that fails in that very moment leaves nothing behind either.
  form.Open(order);
  Press("FTPGObtn");
  servers->duringPut = [this] {
    form.GiveUp();
    servers->putsLeft = 0;
  };
  Work();
  EXPECT_TRUE(host.notes.empty());
  form.Open(order);
  EXPECT_EQ(Button(), "Create Now");
}

}  // namespace
}  // namespace kinalyx::test
