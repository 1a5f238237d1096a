#include "distribution/updates/UpdateCheck.h"

#include <gmock/gmock.h>

#include "distribution/updates/VersionsReader.h"
#include "platform/net/NetFixture.h"
#include "support/TempFolder.h"
#include "support/TestDesk.h"
#include "support/TestServers.h"

namespace kinalyx::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

TEST(VersionsReaderTest, TheRecordOfThisProductIsFound) {
  EXPECT_EQ(ReadVersions("OTHER 9:9:9\r\nKNX1 2:0:1\r\n"), (ProductVersion{2, 0, 1}));
  EXPECT_EQ(ReadVersions("KNX1=10:20:30KNX1 1:1:1"), (ProductVersion{10, 20, 30}));
  EXPECT_EQ(ReadVersions("KNX1 rubbish KNX1;3:4:5"), (ProductVersion{3, 4, 5}));
  for (const char* bad : {"", "KNX1", "KNX1 ", "KNX1 2", "KNX1 2:", "KNX1 2:0", "KNX1 -2:0:1", "KNX1 99999999999:0:1",
                          "KNX1 a:b:c", "KNX"})
    EXPECT_FALSE(ReadVersions(bad)) << bad;
  EXPECT_EQ(ReadVersion("2.0.1", '.'), (ProductVersion{2, 0, 1}));
  EXPECT_LT((ProductVersion{2, 0, 9}), (ProductVersion{2, 0, 10})) << "as numbers, not as text";
}

class UpdateCheckTest : public testing::Test, public TestDesk {
 protected:
  bool Start() {
    mail.LoadMailSettings();
    server_ = std::make_unique<TestServer>(
        std::vector<std::string>{"ftp", there.Path(), "--user", "anonymous", "--password", "guest@example.org"});
    mail.Set(&MailSettings::UpdateServer, "localhost:" + std::to_string(server_->Port()));
    mail.Set(&MailSettings::UpdatePage, "https://kinalyx.example/new");
    check =
        std::make_unique<UpdateCheck>(UpdateCheck::Parts{.host = host,
                                                         .settings = settings,
                                                         .mail = mail,
                                                         .makeServer =
                                                             [](ServerLogin login) {
                                                               login.login = "anonymous";
                                                               login.password = "guest@example.org";
                                                               return MakeFileServer(std::move(login), ShortLimits());
                                                             },
                                                         .ownVersion = "2.0.1",
                                                         .close = [this] { closed = true; },
                                                         .changed = [] {},
                                                         .on = JobRunner::On::HostTimer});
    return server_->Port() > 0;
  }
  void Ask(bool silent) {
    check->CheckForUpdates(silent);
    while (check->Busy()) host.Advance(50);
  }

  TempFolder there;
  MailSettings mail{settings.DataPath};
  std::unique_ptr<TestServer> server_;
  std::unique_ptr<UpdateCheck> check;
  bool closed = false;
};

TEST_F(UpdateCheckTest, OnlyANewerVersionIsOffered) {
  NEEDS(Start());
  for (const char* version : {"KNX1 2:0:1", "KNX1 2:0:0", "KNX1 1:9:9"}) {
    there.Put("versions.txt", version);
    Ask(true);
    EXPECT_THAT(host.messages, ElementsAre()) << version;
    Ask(false);
    EXPECT_THAT(host.messages, ElementsAre("You are running the latest version of the software.")) << version;
    host.messages.clear();
  }
  there.Put("versions.txt", "KNX1 2:0:10");
  Ask(true);
  EXPECT_THAT(host.questions, ElementsAre(HasSubstr("running version 2.0.1 and the latest version is 2.0.10.")));
  EXPECT_FALSE(closed);
  host.answers = {true};
  Ask(false);
  EXPECT_TRUE(closed);
  EXPECT_THAT(host.started, ElementsAre(ElementsAre("xdg-open", "https://kinalyx.example/new")));
  EXPECT_EQ(there.FileCount(), 1) << "nobody has agreed to a record";
}

TEST_F(UpdateCheckTest, ARecordGoesOnlyWhereTheUserAgreed) {
  NEEDS(Start());
  there.Put("versions.txt", "KNX1 2:0:1");
  mail.Set(&MailSettings::UsageRecord, true);
  Ask(true);
  EXPECT_THAT(there.Get("junk.txt"), MatchesRegex("[0-9]+-[0-9]+-[0-9]+,KXPA\r\n"));
  Ask(false);
  EXPECT_THAT(there.Get("junk.txt"), MatchesRegex("[0-9]+-[0-9]+-[0-9]+,KXPM\r\n"));
}

TEST_F(UpdateCheckTest, FailuresAreToldOnlyToWhoAsked) {
  NEEDS(Start());
  const auto both = [&] {
    host.messages.clear();
    Ask(true);
    EXPECT_THAT(host.messages, ElementsAre());
    Ask(false);
    return host.messages.empty() ? std::string() : host.messages.back();
  };
  EXPECT_THAT(both(), HasSubstr("Unable to connect to server to check for updates. Err 4")) << "no file";
  there.Put("versions.txt", "");
  EXPECT_EQ(both(), "Unable to connect to server to check for updates. Err 3");
  there.Put("versions.txt", "rubbish");
  EXPECT_EQ(both(), "Unable to connect to server to check for updates. Err 4");
  server_.reset();
  EXPECT_THAT(both(), testing::StartsWith("Unable to connect to server to check for updates.\n"));
  mail.Set(&MailSettings::UpdateServer, "");
  EXPECT_THAT(both(), HasSubstr("No server for updates is set"));
}

}  // namespace
}  // namespace kinalyx::test
