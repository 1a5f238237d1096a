#include "platform/net/IFileServer.h"

#include <gmock/gmock.h>

#include "NetFixture.h"
#include "support/TestDisks.h"
#include "platform/files/Folders.h"
#include "platform/net/ServerPath.h"

namespace kinalyx::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

/// A server of files, the folder that it serves, and a folder here.
class FileServerTest : public testing::Test {
 protected:
  bool Start(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"ftp", there_.Path()});
    return Use(std::make_unique<TestServer>(options));
  }
  bool StartBad(const std::string& kind) {
    return Use(std::make_unique<TestServer>(std::vector<std::string>{"bad", kind, there_.Path()}));
  }
  bool Use(std::unique_ptr<TestServer> server) {
    server_ = std::move(server);
    login_.address.host = "localhost";
    login_.address.port = server_->Port();
    login_.login = kTestLogin;
    login_.password = kTestPassword;
    return login_.address.port > 0;
  }
  std::unique_ptr<IFileServer> Server(NetLimits limits = {}, IDisk& disk = RealDisk()) const {
    return MakeFileServer(login_, limits, disk);
  }
  /// All that lies in the folder that is served, without those above.
  std::vector<std::string> Served(const std::string& folder = "") const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(there_.Path(folder)))
      names.push_back(entry.path().filename().string());
    return names;
  }

  TempFolder there_, here_;
  std::unique_ptr<TestServer> server_;
  ServerLogin login_;
  CountingWatch watch_;
};

TEST_F(FileServerTest, AFolderIsFilledListedAndFetched) {
  const TestCertificate mine("localhost");
  for (const auto& [tls, passive] :
       {std::pair("", true), {"", false}, {"start", true}, {"start", false}, {"first", true}}) {
    SCOPED_TRACE(std::string(tls) + (passive ? " passive" : " active"));
    std::vector<std::string> options;
    if (*tls) options = {"--tls", tls, "--cert", mine.Certificate(), "--key", mine.Key()};
    NEEDS(Start(options));
    login_.passive = passive;
    login_.caFile = mine.Certificate();
    login_.address.security = !*tls                              ? NetSecurity::None
                              : std::string_view(tls) == "start" ? NetSecurity::StartTls
                                                                 : NetSecurity::Tls;
    login_.address.folder = "site/Golf & Co";
    const auto server = Server();
    Outcome done = server->Connect(watch_);
    // With some libraries nothing would be encrypted there.
    if (*tls && !passive && done.Kind() == Fault::Refused) {
      EXPECT_THAT(done.Why(), HasSubstr("Choose the passive mode"));
      continue;
    }
    ASSERT_TRUE(done) << done.Why();
    EXPECT_EQ(server->List("", watch_).Kind(), Fault::NotFound);
    const std::string bytes = WildBytes(2'000'000, 3);
    const std::string source = here_.Put("source", bytes);
    ASSERT_TRUE(done = server->MakeFolder("Łukasz/videos", watch_)) << done.Why();
    ASSERT_TRUE(server->MakeFolder("Łukasz/videos", watch_));
    ASSERT_TRUE(done = server->Put(source, "Łukasz/videos/100% #1;type=a.wmv", watch_)) << done.Why();
    EXPECT_EQ(watch_.of, 2'000'000);
    ASSERT_TRUE(done = server->Put(here_.Put("empty", ""), "Łukasz/empty", watch_)) << done.Why();
    // Again: the new one takes the place of the old one.
    ASSERT_TRUE(done = server->Put(source, "Łukasz/empty", watch_)) << done.Why();
    const auto list = server->List("Łukasz", watch_);
    ASSERT_TRUE(list) << list.Why();
    EXPECT_THAT(*list, UnorderedElementsAre(ServerEntry{"videos", true, -1}, ServerEntry{"empty", false, 2'000'000}));
    ASSERT_TRUE(done = server->Get("Łukasz/videos/100% #1;type=a.wmv", here_.Path("back"), watch_)) << done.Why();
    EXPECT_TRUE(here_.Get("back") == bytes);
    EXPECT_TRUE(there_.Get("site/Golf & Co/Łukasz/videos/100% #1;type=a.wmv") == bytes);
    EXPECT_EQ(server->Get("Łukasz/empty", here_.Path("back"), watch_).Kind(), Fault::Refused) << "nothing is replaced";
    EXPECT_EQ(server->Get("Łukasz/none", here_.Path("none"), watch_).Kind(), Fault::NotFound);
    EXPECT_EQ(server->GetText("none/none", 10, watch_).Kind(), Fault::NotFound);
    ASSERT_TRUE(server->Put(here_.Put("versions", "KNX1 2:0:1"), "versions.txt", watch_));
    EXPECT_EQ(*server->GetText("versions.txt", 10, watch_), "KNX1 2:0:1");
    EXPECT_THAT(server->GetText("versions.txt", 9, watch_).Why(), HasSubstr("larger"));
    std::filesystem::remove(here_.Path("back"));
    EXPECT_THAT(Served("site/Golf & Co/Łukasz"), UnorderedElementsAre("videos", "empty")) << "no part is left";
    std::filesystem::remove_all(there_.Path("site"));
  }
}

TEST_F(FileServerTest, EveryWayToListAThousandFiles) {
  for (int i = 0; i < 1000; ++i) there_.Put("swing " + std::to_string(i) + ".avi", "x");
  for (const char* without : {"", "MLSD,MLST", "MLSD,MLST,LIST"}) {
    SCOPED_TRACE(without);
    NEEDS(Start({"--without", without}));
    const auto list = Server()->List("", watch_);
    ASSERT_TRUE(list) << list.Why();
    EXPECT_EQ(list->size(), 1000u);
    EXPECT_EQ(std::ranges::count(*list, std::string("swing 7.avi"), &ServerEntry::name), 1);
  }
}

TEST_F(FileServerTest, NamesFromOutsideLeadNowhere) {
  NEEDS(StartBad("lists"));
  there_.Put("mlsd", "type=file;size=1; ../../x\r\ntype=dir; ..\r\ntype=file;size=1; good.avi\r\n");
  const auto server = Server();
  EXPECT_THAT(*server->List("", watch_), ElementsAre(ServerEntry{"good.avi", false, 1}));
  for (const char* path : {"../x", "a//b", "/etc/passwd", "a/./b", "a\r\nDELE b", ""}) {
    EXPECT_EQ(server->Put(here_.Put("x", "x"), path, watch_).Kind(), Fault::Refused) << path;
    EXPECT_EQ(server->Get(path, here_.Path("y"), watch_).Kind(), Fault::Refused) << path;
  }
  login_.password = "x\r\nDELE b";
  EXPECT_THAT(Server()->Connect(watch_).Why(), HasSubstr("control character"));
  login_.address.host = "localhost/../";
  EXPECT_THAT(Server()->Connect(watch_).Why(), HasSubstr("in no name"));
}

TEST_F(FileServerTest, OldLettersComeBackAsTheyWere) {
  NEEDS(StartBad("lists"));
  there_.Put("list",
             "-rw-r--r-- 1 0 0 8 Jan  2 10:15 Gr\xFC\xDF"
             "e.avi\r\n");
  const auto server = Server();
  EXPECT_THAT(*server->List("", watch_), ElementsAre(ServerEntry{"Grüße.avi", false, 8}));
}

TEST_F(FileServerTest, WhoIsRefusedIsToldWhy) {
  const TestCertificate mine("localhost"), other("ftp.example.org");
  NEEDS(Start());
  login_.password = "wrong one";
  const Outcome wrong = Server()->Connect(watch_);
  EXPECT_EQ(wrong.Kind(), Fault::Refused);
  EXPECT_THAT(wrong.Why(), AllOf(HasSubstr("does not accept the login or the password"), Not(HasSubstr("wrong one"))));
  login_.address.security = NetSecurity::StartTls;
  EXPECT_THAT(Server()->Connect(watch_).Why(), HasSubstr("offers no encryption"));
  ASSERT_TRUE(Start({"--tls", "start", "--cert", other.Certificate(), "--key", other.Key()}));
  login_.caFile = other.Certificate();
  EXPECT_THAT(Server()->Connect(watch_).Why(), HasSubstr("belongs to a server of another name"));
  login_.caFile.clear();
  EXPECT_THAT(Server()->Connect(watch_).Why(), HasSubstr("signed by nobody"));
}

TEST_F(FileServerTest, ServersThatFail) {
  const std::string source = here_.Put("source", WildBytes(30'000'000, 1));
  struct Case {
    const char *kind, *get, *put;
  };
  for (const Case& one :
       {Case{"mute", "stopped answering", "stopped answering"}, Case{"hang", "stopped answering", "stopped answering"},
        Case{"hangdata", "stopped answering", "stopped answering"}, Case{"cut", "broke off", "broke off"},
        Case{"full", "broke off", "The server is full"}, Case{"busy", "busy", "busy"}}) {
    SCOPED_TRACE(one.kind);
    NEEDS(StartBad(one.kind));
    const auto server = Server(ShortLimits());
    EXPECT_THAT(server->Get("a.avi", here_.Path("got"), watch_).Why(), HasSubstr(one.get));
    EXPECT_THAT(server->Put(source, "a.avi", watch_).Why(), HasSubstr(one.put));
    EXPECT_EQ(here_.FileCount(), 1u) << "nothing half is left";
  }
}

TEST_F(FileServerTest, ACancelNeedsNoAnswer) {
  const std::string source = here_.Put("source", WildBytes(30'000'000, 1));
  for (const char* kind : {"mute", "hang", "hangdata"}) {
    SCOPED_TRACE(kind);
    NEEDS(StartBad(kind));
    const auto server = Server();
    CancellingWatch watch(0);
    EXPECT_EQ(server->Get("a.avi", here_.Path("got"), watch).Kind(), Fault::Cancelled);
    EXPECT_EQ(server->Put(source, "a.avi", watch).Kind(), Fault::Cancelled);
    EXPECT_EQ(server->List("", watch).Kind(), Fault::Cancelled);
  }
}

TEST_F(FileServerTest, ASlowUploadOfTheActiveModeIsNoSilence) {
  NEEDS(StartBad("slow"));
  login_.passive = false;
  const Outcome done = Server(ShortLimits())->Put(here_.Put("source", WildBytes(6'000'000, 1)), "a.avi", watch_);
  EXPECT_TRUE(done) << done.Why();
}

TEST_F(FileServerTest, ACancelledUploadLeavesTheOldFile) {
  NEEDS(Start());
  there_.Put("index.html", "old");
  const std::string source = here_.Put("source", WildBytes(200'000'000, 1));
  const auto server = Server();
  CancellingWatch watch(1'000'000);
  EXPECT_EQ(server->Put(source, "index.html", watch).Kind(), Fault::Cancelled);
  EXPECT_EQ(there_.Get("index.html"), "old");
  EXPECT_THAT(Served(), ElementsAre("index.html"));
  ASSERT_TRUE(server->Put(here_.Put("new", "new"), "index.html", watch_)) << "the connection is still good";
  EXPECT_EQ(there_.Get("index.html"), "new");
}

TEST_F(FileServerTest, WhatABrokenUploadLeftIsRemovedAndNothingElse) {
  NEEDS(Start());
  const std::vector<std::string> kOthers{
      "a.wmv",           "a.wmv.0123456789abcdef.part.bak", "a.wmv.0123456789abcdeg.part",
      "a.wmv.mine.part", "aa.wmv.0123456789abcdef.part",    "b.wmv"};
  for (const std::string& name : kOthers) there_.Put(name, "x");
  const std::string left = PartNameOnServer("a.wmv");
  there_.Put(left, "x");
  const auto server = Server();
  const auto entries = server->List("", watch_);
  ASSERT_TRUE(entries);
  EXPECT_TRUE(server->RemoveLeftovers("b.wmv", *entries, watch_));
  EXPECT_TRUE(std::filesystem::exists(there_.Path(left))) << "of another file";
  ASSERT_TRUE(server->RemoveLeftovers("a.wmv", *entries, watch_));
  EXPECT_THAT(Served(), UnorderedElementsAreArray(kOthers));
  EXPECT_EQ(server->RemoveLeftovers("a.wmv", *entries, watch_).Kind(), Fault::Refused) << "somebody was faster";
}

TEST_F(FileServerTest, AServerThatRenamesOverNothing) {
  NEEDS(Start({"--no-replace"}));
  there_.Put("index.html", "old");
  const auto server = Server();
  const Outcome done = server->Put(here_.Put("new", "new"), "index.html", watch_);
  ASSERT_TRUE(done) << done.Why();
  EXPECT_EQ(there_.Get("index.html"), "new");
  EXPECT_THAT(Served(), ElementsAre("index.html"));
}

TEST_F(FileServerTest, AFullDiskHere) {
  NEEDS(Start());
  there_.Put("a.avi", WildBytes(300'000, 1));
  for (int call = 0;; ++call) {
    FailingDisk disk(call);
    const Outcome got = Server({}, disk)->Get("a.avi", here_.Path("a.avi"), watch_);
    if (!disk.Failed()) break;
    EXPECT_EQ(here_.FileCount(), got ? 1u : 0u) << call;
    EXPECT_TRUE(got || got.Kind() == Fault::Unwritable) << got.Why();
    std::filesystem::remove(here_.Path("a.avi"));
  }
}

TEST(ServerAddressTest, AsUsersTypeIt) {
  using Kind = ServerAddress::Kind;
  struct Case {
    const char* text;
    Kind kind;
    NetSecurity security;
    const char *host, *folder;
    int port;
  };
  for (const Case& one : {Case{" ftp.host.com ", Kind::Ftp, NetSecurity::None, "ftp.host.com", "", 0},
                          Case{"ftp://host:2121/a/b/", Kind::Ftp, NetSecurity::None, "host", "a/b", 2121},
                          Case{"ftps://host", Kind::Ftp, NetSecurity::Tls, "host", "", 0},
                          Case{"ftpes://[::1]:21/x", Kind::Ftp, NetSecurity::StartTls, "[::1]", "x", 21},
                          Case{"FTPS://Host/A", Kind::Ftp, NetSecurity::Tls, "Host", "A", 0},
                          Case{"sftp://host/~/x", Kind::Sftp, NetSecurity::None, "host", "~/x", 0}}) {
    SCOPED_TRACE(one.text);
    const auto address = ReadServerAddress(one.text);
    ASSERT_TRUE(address);
    EXPECT_EQ(address->kind, one.kind);
    EXPECT_EQ(address->security, one.security);
    EXPECT_EQ(address->host, one.host);
    EXPECT_EQ(address->folder, one.folder);
    EXPECT_EQ(address->port, one.port);
  }
  for (const char* bad :
       {"", "http://host", "ftp://", "ftp://me@host", "host:0", "host:70000", "host:x", "a b", "a\nb"})
    EXPECT_FALSE(ReadServerAddress(bad)) << bad;
}

}  // namespace
}  // namespace kinalyx::test
