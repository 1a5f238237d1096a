#include "distribution/models/forms/DLModelsForm.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "support/TempFolder.h"
#include "support/TestDesk.h"
#include "support/TestServers.h"

namespace kinalyx::test {
namespace {

struct DLModelsFormTest : testing::Test, UsesApplication, TestDesk, FormDriver {
  DLModelsFormTest() {
    mail.LoadMailSettings();
    form = std::make_unique<DLModelsForm>(
        ModelVideos::Parts{.host = host,
                           .settings = settings,
                           .mail = mail,
                           .makeServer = [](ServerLogin login) { return MakeFileServer(std::move(login)); },
                           .on = JobRunner::On::HostTimer},
        &over);
  }
  void SetServer(const TestServer& server) {
    mail.Set(&MailSettings::ModelServer, "localhost:" + std::to_string(server.Port()));
    mail.Set(&MailSettings::ModelLogin, kTestLogin);
    mail.Set(&MailSettings::ModelPassword, kTestPassword);
  }
  void Put(const std::string& path, std::size_t bytes) {
    const std::filesystem::path whole = there.Path("modelvideos/" + path);
    std::filesystem::create_directories(whole.parent_path());
    std::ofstream(whole, std::ios::binary) << std::string(bytes, 'x');
  }
  void Wait() {
    while (form->Busy()) host.Advance(50);
  }
  QListWidget& List(const char* name) { return *Find<QListWidget>(name); }
  void Click(const char* list, int row) {
    emit List(list).itemClicked(List(list).item(row));
    Wait();
  }
  std::string Here(const std::string& path) const { return settings.LibraryPath + "/Golf/Driver/" + path; }
  QWidget& Form() override { return *form; }

  QWidget over;
  TempFolder there;
  MailSettings mail{settings.DataPath};
  std::unique_ptr<DLModelsForm> form;
};

TEST_F(DLModelsFormTest, WithoutAServerItLeadsToTheSetup) {
  QSignalSpy wanted(form.get(), &DLModelsForm::SetupWanted);
  form->Open();
  EXPECT_FALSE(form->Busy());
  EXPECT_FALSE(Find<QWidget>("SSCommand4")->isVisible());
  Press("DLModelsSetup");
  EXPECT_EQ(wanted.count(), 1);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(DLModelsFormTest, ChosenVideosComeAndACancelKeepsWhatIsWhole) {
  Put("Golf/Driver/1 Short.avi", 10);
  Put("Golf/Driver/2 Long.avi", 30'000'000);
  Put("Golf/Driver/3 Late.avi", 10);
  const TestServer server({"ftp", there.Path()});
  if (server.Port() == 0) GTEST_SKIP() << server.Missing() << server.Trouble();
  SetServer(server);
  form->Open();
  Wait();
  ASSERT_EQ(List("List1").count(), 1);
  Click("List1", 0);
  Click("List2", 0);
  ASSERT_EQ(List("List3").count(), 3);
  EXPECT_EQ(Text("DLModelsSelected"), "0 files selected for download.");
  EXPECT_FALSE(Find<QWidget>("SSCommand4")->isEnabled());
  List("List3").item(0)->setSelected(true);
  EXPECT_EQ(Text("DLModelsSelected"), "1 file selected for download.");
  List("List3").selectAll();
  EXPECT_EQ(Text("DLModelsSelected"), "3 files selected for download.");

  Press("SSCommand4");
  EXPECT_EQ(Find<QPushButton>("SSCommand4")->text(), "Cancel");
  EXPECT_FALSE(List("List1").isEnabled());
  while (form->Busy() && !std::filesystem::exists(Here("1 Short.avi"))) host.Advance(5);
  if (form->Busy()) Press("SSCommand4");
  Wait();
  EXPECT_TRUE(std::filesystem::exists(Here("1 Short.avi")));
  const bool cancelled = Text("DLModelsStatus") == "Download Cancelled";
  EXPECT_NE(cancelled, std::filesystem::exists(Here("3 Late.avi")));
  Press("SSCommand4");
  Wait();
  EXPECT_TRUE(Text("DLModelsStatus").startsWith("Download Complete"));
  EXPECT_EQ(std::filesystem::file_size(Here("2 Long.avi")), 30'000'000U);
  EXPECT_EQ(List("List3").item(0)->toolTip(), "In your library already");
}

TEST_F(DLModelsFormTest, ARefusedLoginIsToldAndCanBeTriedAgain) {
  Put("Golf/Driver/a.avi", 10);
  const TestServer server({"ftp", there.Path()});
  if (server.Port() == 0) GTEST_SKIP() << server.Missing() << server.Trouble();
  SetServer(server);
  mail.Set(&MailSettings::ModelPassword, "wrong");
  form->Open();
  Wait();
  ASSERT_EQ(host.messages.size(), 1U);
  EXPECT_EQ(Text("DLModelsStatus"), "Idle");
  mail.Set(&MailSettings::ModelPassword, kTestPassword);
  Press("DLModelsAgain");
  Wait();
  EXPECT_EQ(List("List1").count(), 1);
}

}  // namespace
}  // namespace kinalyx::test
