#include "distribution/web/SendJob.h"

#include <algorithm>

#include "WebFakes.h"
#include "distribution/web/SendSession.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

class Sending : public testing::Test, protected ISendView {
 protected:
  Sending() { order.workFolder = folder.Path("WMVTemp"); }

  std::string AddVideo(const std::string& name, int frames = 8, bool lesson = false) {
    const std::string path = folder.Path(name);
    fs::create_directories(FolderOf(path));
    fs::copy_file(MakeTestVideo(MjpegVideo(frames)), path, fs::copy_options::overwrite_existing);
    order.files.push_back({path, lesson, 1});
    return path;
  }
  Outcome Run() {
    board = std::make_shared<SendBoard>();
    SendJob job({.order = order, .board = board, .memory = memory, .servers = servers});
    while (job.Step()) said.push_back(board->News());
    said.push_back(board->News());
    return job.How();
  }
  bool Said(const std::string& words) const {
    return std::ranges::any_of(said, [&](const SendNews& news) { return news.words == words; });
  }
  std::string Page(const std::string& student = "Anna") const {
    const auto found = servers->files.find("ŁódźGolfCo/" + student + "/index.html");
    return found == servers->files.end() ? "" : found->second;
  }
  void SendChanged() override { ++changes; }
  void SendLeaves() override { ++leaves; }

  TempFolder folder;
  std::shared_ptr<FakeWebServers> servers = std::make_shared<FakeWebServers>();
  std::shared_ptr<SendMemory> memory = std::make_shared<SendMemory>();
  std::shared_ptr<SendBoard> board;
  std::vector<SendNews> said;
  SendOrder order = OrderFor("Anna", "");
  int changes = 0;
  int leaves = 0;
};

const std::string kVideos = "ŁódźGolfCo/Anna/videos/";

TEST_F(Sending, APageComesWithItsVideosFirstAndItselfLast) {
  AddVideo("Swing.avi");
  AddVideo("Lessons/Swing.avi", 10, true);
  order.addresses = {"anna@example.org", "mum@example.org"};
  ASSERT_TRUE(Run());
  EXPECT_EQ(servers->puts, (std::vector<std::string>{kVideos + "Swing.wmv", kVideos + "Swing.mp4",
                                                     kVideos + "Swing-2.wmv", kVideos + "Swing-2.mp4",
                                                     kVideos + "playlist.wvx", "ŁódźGolfCo/Anna/index.html"}));
  EXPECT_TRUE(servers->files[kVideos + "Swing.wmv"].starts_with("\x30\x26\xB2\x75")) << "Windows Media";
  EXPECT_EQ(servers->files[kVideos + "Swing.mp4"].substr(4, 4), "ftyp");
  EXPECT_NE(Page().find("data-step=\"0.0333333\" data-kind=\"lesson\">2026-11-26<"), std::string::npos);
  ASSERT_EQ(servers->mails.size(), 2U);
  EXPECT_EQ(servers->mails[1].to, std::vector<std::string>{"mum@example.org"});
  EXPECT_NE(servers->mails[0].body.find("/Anna/index.html"), std::string::npos);
  for (const char* words : {"Checking web for current content", "Converting video 1 of 2", "Converting video 2 of 2",
                            "Uploading to web....", "Connecting to Email Server", "Sending email...",
                            "Deleting temporary videos...", "Processes complete"})
    EXPECT_TRUE(Said(words)) << words;
  EXPECT_EQ(said.back().detail, "Conversion, uploading, and emailing complete");
  EXPECT_TRUE(fs::is_empty(order.workFolder));
}

TEST_F(Sending, ASecondSendKeepsWhatThePageShows) {
  AddVideo("Swing.avi");
  ASSERT_TRUE(Run());
  order.files.clear();
  AddVideo("Putt.avi", 9);
  const std::string list = servers->files[kVideos + "playlist.wvx"];
  servers->duringPut = [&] { EXPECT_EQ(BytesOf(order.workFolder + "/oldplaylist.wvx"), list); };
  ASSERT_TRUE(Run());
  EXPECT_NE(Page().find("videos/Swing.wmv"), std::string::npos);
  EXPECT_LT(Page().find("videos/Putt.wmv"), Page().find("videos/Swing.wmv"));
  EXPECT_NE(servers->files[kVideos + "playlist.wvx"].find("Swing.wmv"), std::string::npos);
  // What cannot be read would be lost: nothing is written then.
  const auto before = servers->files;
  for (const std::string& path : {std::string("ŁódźGolfCo/Anna/index.html"), kVideos + "playlist.wvx"}) {
    servers->unreadable = path;
    EXPECT_EQ(Run().Why(), "the server is busy");
    EXPECT_EQ(servers->files, before);
  }
}

TEST_F(Sending, AnotherStudentWithTheSameFolderGetsOneOfHisOwn) {
  AddVideo("Swing.avi");
  order.student = "An na";
  ASSERT_TRUE(Run());
  order.student = "Anna";
  memory = std::make_shared<SendMemory>();
  ASSERT_TRUE(Run());
  ASSERT_EQ(servers->mails.size(), 2U);
  EXPECT_NE(Page().find("<p class=\"student\">An na</p>"), std::string::npos);
  EXPECT_NE(Page("Anna-2").find("<p class=\"student\">Anna</p>"), std::string::npos);
  EXPECT_NE(servers->mails[1].body.find("/Anna-2/index.html"), std::string::npos);
}

TEST_F(Sending, ASendThatBrokeOffIsTakenUpWhereverItWas) {
  AddVideo("Old.avi");
  ASSERT_TRUE(Run());
  const std::string oldPage = Page();
  order.files.clear();
  AddVideo("One.avi");
  AddVideo("Two.avi", 12);
  for (int arrive = 0; arrive < 6; ++arrive) {
    const auto kept = servers->files;
    servers->puts.clear();
    servers->mails.clear();
    servers->putsLeft = arrive;
    memory = std::make_shared<SendMemory>();
    EXPECT_EQ(Run().Why(), "The server has gone.") << arrive;
    EXPECT_EQ(Page(), oldPage);
    EXPECT_TRUE(servers->mails.empty());
    EXPECT_FALSE(fs::is_empty(order.workFolder)) << "for the next try";
    // Another program run: nothing is remembered, and what lies there whole is not sent again.
    RemoveWorkFolder(order.workFolder);
    memory = std::make_shared<SendMemory>();
    servers->putsLeft = -1;
    const std::string left = kVideos + (arrive % 2 == 0 ? "Two.mp4" : "playlist.wvx") + ".part";
    servers->files[left] = "half of it";
    ASSERT_TRUE(Run());
    EXPECT_FALSE(servers->files.contains(left));
    EXPECT_LE(servers->puts.size(), static_cast<std::size_t>(7)) << arrive << ": one file twice at the most";
    EXPECT_EQ(servers->files.size(), kept.size() + 4);
    EXPECT_NE(Page().find("videos/Two.wmv"), std::string::npos);
    servers->files = kept;
  }
}

TEST_F(Sending, WhatWasConvertedAndMailedIsNotDoneAgain) {
  AddVideo("One.avi");
  const std::string two = AddVideo("Two.avi");
  order.addresses = {"anna@example.org", "gone@example.org"};
  servers->refused = {"gone@example.org"};
  EXPECT_EQ(Run().Why(), std::string(kMailFault) + "\n\nNo such mailbox.");
  const auto converted = [&] {
    return std::ranges::count_if(said, [](const SendNews& news) { return news.detail == "100% complete"; });
  };
  EXPECT_EQ(converted(), 2);
  fs::copy_file(MakeTestVideo(MjpegVideo(11)), two, fs::copy_options::overwrite_existing);
  servers->refused.clear();
  ASSERT_TRUE(Run());
  EXPECT_EQ(converted(), 3) << "only the one that has changed";
  ASSERT_EQ(servers->mails.size(), 2U);
  EXPECT_EQ(servers->mails[1].to.at(0), "gone@example.org");
}

TEST_F(Sending, MailsHoldOneVideoEach) {
  order.mode = SendOrder::Mode::Email;
  AddVideo("Swing.avi");
  AddVideo("Lessons/Łuk.avi", 8, true);
  std::vector<SendNews> during;
  servers->duringMail = [&] { during.push_back(board->News()); };
  ASSERT_TRUE(Run());
  EXPECT_TRUE(servers->puts.empty());
  ASSERT_EQ(servers->mails.size(), 2U);
  EXPECT_EQ(servers->mails[0].subject, "Video Analysis from Jo - Videos Attached");
  ASSERT_EQ(servers->mails[1].attachments.size(), 2U);
  EXPECT_EQ(servers->mails[1].attachments[0].name, "Łuk.wmv");
  EXPECT_EQ(servers->mails[1].attachments[1].name, "Łuk.mp4");
  EXPECT_TRUE(servers->bodies[1].starts_with("\x30\x26\xB2\x75"));
  EXPECT_TRUE(Said("Preparing email"));
  EXPECT_EQ(during[1].detail, "anna@example.org, 50% complete");
  EXPECT_DOUBLE_EQ(during[1].part, 0.75) << "in the middle of the second of two";
  EXPECT_TRUE(fs::is_empty(order.workFolder));
}

TEST_F(Sending, AFileThatIsGoneOrIsNoVideoIsNamed) {
  AddVideo("Swing.avi");
  fs::remove(order.files[0].path);
  EXPECT_EQ(Run().Why(), "\"Swing.avi\" could not be found.");
  folder.Put("Swing.avi", "no video at all");
  EXPECT_TRUE(Run().Why().starts_with("\"Swing.avi\" could not be converted: "));
  EXPECT_TRUE(servers->files.empty());
}

TEST_F(Sending, CancelWorksInEveryStepAndLeavesNothing) {
  AddVideo("Swing.avi", 40);
  int steps = 0;
  for (bool ended = false; !ended; ++steps) {
    *servers = FakeWebServers();
    board = std::make_shared<SendBoard>();
    SendJob job({.order = order, .board = board, .memory = memory, .servers = servers});
    for (int step = 0; step < steps && !ended; ++step) ended = !job.Step();
    if (ended) break;
    board->Stop();
    while (job.Step()) {
    }
    EXPECT_EQ(job.How().Kind(), Fault::Cancelled);
    EXPECT_TRUE(!fs::exists(order.workFolder) || fs::is_empty(order.workFolder)) << steps;
  }
  EXPECT_GT(steps, 8);
  *servers = FakeWebServers();
  servers->duringPut = [this] { board->Stop(); };
  EXPECT_EQ(Run().Kind(), Fault::Cancelled);
  EXPECT_TRUE(fs::is_empty(order.workFolder));
  *servers = FakeWebServers();
  memory = std::make_shared<SendMemory>();
  servers->duringMail = [this] { board->Stop(); };
  EXPECT_EQ(Run().Kind(), Fault::Cancelled);
  EXPECT_TRUE(fs::is_empty(order.workFolder));
}

TEST_F(Sending, TheButtonStartsCancelsAndTriesAgain) {
  TestHost host;
  SendSession session(host, *this, servers, JobRunner::On::HostTimer);
  AddVideo("Swing.avi");
  ASSERT_TRUE(session.Take(order));
  EXPECT_STREQ(ButtonOf(session.Phase()), "Create Now");
  session.Press();
  EXPECT_STREQ(ButtonOf(session.Phase()), "Cancel");
  EXPECT_EQ(session.Take(order).Why(), "Videos are still being sent.");
  session.Press();
  host.Advance(50);
  EXPECT_EQ(session.Phase(), SendPhase::Ready);
  EXPECT_EQ(session.News().words, "Cancelled");

  servers->putsLeft = 1;
  session.Press();
  host.Advance(500);
  ASSERT_EQ(session.Phase(), SendPhase::Failed);
  EXPECT_EQ(session.Fault(), "The server has gone.");
  EXPECT_STREQ(ButtonOf(session.Phase()), "Try Again");
  servers->putsLeft = -1;
  servers->closesBadly = true;
  session.Press();
  host.Advance(500);
  ASSERT_EQ(session.Phase(), SendPhase::Done);
  EXPECT_EQ(session.News().detail,
            "Conversion, uploading, and emailing complete\nConnection to SMTP server not closed cleanly.");
  EXPECT_EQ(leaves, 0);
  host.Advance(5000);
  EXPECT_EQ(leaves, 1);

  SendSession other(host, *this, servers, JobRunner::On::HostTimer);
  EXPECT_TRUE(other.Take(order).Why().starts_with("Another window is sending")) << "the first one still has the folder";
  session.Leave();
  EXPECT_TRUE(other.Take(order));
}

}  // namespace
}  // namespace kinalyx::test
