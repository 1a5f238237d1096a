#include "platform/net/IMailSender.h"

#include <gmock/gmock.h>

#include "NetFixture.h"
#include "platform/net/MailText.h"

namespace kinalyx::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// A mail server, and somebody who writes to it.
class MailSenderTest : public testing::Test {
 protected:
  bool Start(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"smtp", mails_.Path()});
    return Use(std::make_unique<TestServer>(options));
  }
  bool StartBad(const std::string& kind) {
    return Use(std::make_unique<TestServer>(std::vector<std::string>{"bad", kind}));
  }
  bool Use(std::unique_ptr<TestServer> server) {
    server_ = std::move(server);
    to_.host = "localhost";
    to_.port = server_->Port();
    to_.login = kTestLogin;
    to_.password = kTestPassword;
    return to_.port > 0;
  }
  static MailMessage Hello() {
    return {.fromName = "Coach",
            .fromAddress = "coach@example.org",
            .to = {"anna@example.org"},
            .subject = "Hello",
            .body = "Your swing",
            .attachments = {}};
  }
  Outcome Send(const MailMessage& message, ITransferWatch& watch, NetLimits limits = {}) {
    return MakeMailSender(limits)->Send(to_, message, watch, closedCleanly_);
  }
  Outcome Send(const MailMessage& message, NetLimits limits = {}) {
    CountingWatch watch;
    return Send(message, watch, limits);
  }
  std::string Got(const std::string& name) const { return mails_.Get(name); }
  bool NothingCame() const { return mails_.FileCount() == 0; }

  TempFolder mails_, pictures_;
  std::unique_ptr<TestServer> server_;
  MailServer to_;
  bool closedCleanly_ = false;
};

TEST_F(MailSenderTest, ThreePicturesReachAllReadersByteForByte) {
  NEEDS(Start());
  MailMessage message = Hello();
  message.fromName = "Jörg \"the Hook\" Müller, PGA";
  message.to = {"anna@example.org", "ola@żółw.example", "anna@example.org"};
  message.subject = "スイング解析\r\nBcc: spy@example.org\r\n\r\nnot the text: ここまではすべて件名です";
  message.body = "Grüße\n.\n.. dots\r\n" + std::string(3000, 'x') + "\nlast = line";
  std::vector<std::string> bytes;
  const std::string names[] = {"email1.jpg", "スイング写真のとても長い名前、左から見たところ 2026.jpg", "a\"b;c.jpg"};
  for (unsigned i = 0; i < 3; ++i) {
    bytes.push_back(WildBytes(200'001 + i, i));
    message.attachments.push_back({pictures_.Put("p" + std::to_string(i), bytes.back()), names[i]});
  }
  CountingWatch watch;
  const Outcome sent = Send(message, watch);
  ASSERT_TRUE(sent) << sent.Why();
  EXPECT_TRUE(closedCleanly_);
  EXPECT_GT(watch.of, 600'000);
  EXPECT_EQ(Got("1/readers"), "anna@example.org,ola@xn--w-uga1v8h.example");
  EXPECT_EQ(Got("1/subject"), "スイング解析  Bcc: spy@example.org    not the text: ここまではすべて件名です");
  EXPECT_EQ(Got("1/from"), "\"Jörg \\\"the Hook\\\" Müller, PGA\" <coach@example.org>");
  EXPECT_TRUE(Got("1/text") == "Grüße\r\n.\r\n.. dots\r\n" + std::string(3000, 'x') + "\r\nlast = line");
  for (std::size_t i = 0; i < 3; ++i) EXPECT_TRUE(Got("1/files/" + names[i]) == bytes[i]) << names[i];
  const std::string raw = Got("1/raw");
  EXPECT_THAT(raw.substr(0, raw.find("\r\n\r\n")), Not(HasSubstr("\r\nBcc:")));
  for (std::size_t at = 0; at < raw.size(); at = raw.find("\r\n", at) + 2) {
    ASSERT_NE(raw.find("\r\n", at), std::string::npos);
    ASSERT_LE(raw.find("\r\n", at) - at, 80u) << raw.substr(at, 120);
  }
}

TEST_F(MailSenderTest, EncryptedAndLoggedIn) {
  const TestCertificate mine("localhost"), other("mail.example.org");
  ASSERT_TRUE(mine.Made() && other.Made());
  for (const bool first : {true, false}) {
    SCOPED_TRACE(first ? "from the first byte" : "after the greeting");
    to_.security = first ? NetSecurity::Tls : NetSecurity::StartTls;
    to_.loginRequired = true;
    const char* how = first ? "first" : "start";
    NEEDS(Start({"--tls", how, "--cert", mine.Certificate(), "--key", mine.Key(), "--login"}));
    to_.caFile = mine.Certificate();
    const Outcome sent = Send(Hello());
    EXPECT_TRUE(sent) << sent.Why();
    // Nobody has vouched for it: not a byte of the password goes there.
    to_.caFile.clear();
    const Outcome unknown = Send(Hello());
    EXPECT_EQ(unknown.Kind(), Fault::Refused);
    EXPECT_THAT(unknown.Why(), HasSubstr("signed by nobody whom this computer trusts"));
    ASSERT_TRUE(Start({"--tls", how, "--cert", other.Certificate(), "--key", other.Key(), "--login"}));
    to_.caFile = other.Certificate();
    const Outcome wrongName = Send(Hello());
    EXPECT_EQ(wrongName.Kind(), Fault::Refused);
    EXPECT_THAT(wrongName.Why(), HasSubstr("belongs to a server of another name"));
    std::filesystem::remove_all(mails_.Path("1"));
  }
  // Encryption is wanted and not to be had.
  to_.security = NetSecurity::StartTls;
  ASSERT_TRUE(Start());
  const Outcome none = Send(Hello());
  EXPECT_EQ(none.Kind(), Fault::Refused);
  EXPECT_THAT(none.Why(), HasSubstr("offers no encryption"));
  EXPECT_TRUE(NothingCame());
}

TEST_F(MailSenderTest, ARefusedLoginIsToldWithoutThePassword) {
  NEEDS(Start({"--login"}));
  to_.loginRequired = true;
  to_.password = "guess & try";
  const Outcome sent = Send(Hello());
  EXPECT_EQ(sent.Kind(), Fault::Refused);
  EXPECT_THAT(sent.Why(), AllOf(HasSubstr("does not accept the login or the password"), HasSubstr("535"),
                                Not(HasSubstr("guess")), Not(HasSubstr("app password"))));
  to_.loginRequired = false;
  EXPECT_THAT(Send(Hello()).Why(), HasSubstr("wants a login"));
  to_.loginRequired = true;
  to_.password = "x\r\nRCPT TO:<spy@example.org>";
  EXPECT_THAT(Send(Hello()).Why(), HasSubstr("control character"));
  to_.password = kTestPassword;
  const Outcome good = Send(Hello());
  EXPECT_TRUE(good) << good.Why();
}

TEST_F(MailSenderTest, AllReadersOrNone) {
  NEEDS(Start({"--refuse", "gone@example.org", "--most", "100000"}));
  MailMessage message = Hello();
  message.to = {"anna@example.org", "gone@example.org"};
  const Outcome refused = Send(message);
  EXPECT_EQ(refused.Kind(), Fault::Refused);
  EXPECT_THAT(refused.Why(), AllOf(HasSubstr("gone@example.org"), HasSubstr("No such user here")));
  message.to = {"anna@example.org>\r\nRCPT TO:<spy@example.org"};
  EXPECT_THAT(Send(message).Why(), HasSubstr("is no e-mail address"));
  message.to = {};
  EXPECT_FALSE(Send(message));
  message = Hello();
  message.attachments = {{pictures_.Put("large.jpg", WildBytes(150'000, 1)), ""}};
  EXPECT_THAT(Send(message).Why(), HasSubstr("larger than the mail server takes"));
  message.attachments = {{pictures_.Path("gone.jpg"), ""}};
  EXPECT_EQ(Send(message).Kind(), Fault::NotFound);
  EXPECT_TRUE(NothingCame());
}

TEST_F(MailSenderTest, ServersThatFail) {
  for (const auto& [kind, words] : {std::pair("mute", "stopped answering"),
                                    {"hang", "stopped answering"},
                                    {"mailhang", "stopped answering"},
                                    {"busy", "busy"},
                                    {"mailcut", "broke off"}}) {
    SCOPED_TRACE(kind);
    NEEDS(StartBad(kind));
    MailMessage message = Hello();
    message.attachments = {{pictures_.Put("a.jpg", WildBytes(3'000'000, 1)), ""}};
    const Outcome sent = Send(message, ShortLimits());
    EXPECT_EQ(sent.Kind(), Fault::Failed);
    EXPECT_THAT(sent.Why(), HasSubstr(words));
  }
  server_.reset();
  EXPECT_THAT(Send(Hello()).Why(), HasSubstr("takes no calls at this port"));
  to_.host = "no-such-server.invalid";
  EXPECT_THAT(Send(Hello()).Why(), HasSubstr("no-such-server.invalid"));
  to_.host = "example.org/x@y";
  EXPECT_THAT(Send(Hello()).Why(), HasSubstr("in no name"));
}

TEST_F(MailSenderTest, WhatWasTakenIsSentWhateverBecomesOfTheGoodbye) {
  NEEDS(StartBad("quithang"));
  const Outcome sent = Send(Hello(), ShortLimits());
  EXPECT_TRUE(sent) << sent.Why();
  EXPECT_FALSE(closedCleanly_);
  ASSERT_TRUE(StartBad("nobodyin"));
  to_.loginRequired = true;
  EXPECT_THAT(Send(Hello()).Why(), HasSubstr("only with encryption"));
}

TEST_F(MailSenderTest, ACancelNeedsNoAnswer) {
  for (const char* kind : {"mute", "hang", "mailhang"}) {
    SCOPED_TRACE(kind);
    NEEDS(StartBad(kind));
    MailMessage message = Hello();
    message.attachments = {{pictures_.Put("a.jpg", WildBytes(300'000, 1)), ""}};
    CancellingWatch watch(std::string_view(kind) == "mailhang" ? 300'000 : 0);
    EXPECT_EQ(Send(message, watch).Kind(), Fault::Cancelled);
  }
}

TEST(MailTextTest, NothingBreaksOutOfAHeader) {
  EXPECT_EQ(EncodedText("Video Analysis"), "Video Analysis");
  EXPECT_EQ(EncodedText("a\r\nb"), "a  b");
  EXPECT_EQ(EncodedText("=?UTF-8?B?YQ==?="), "=?UTF-8?B?PT9VVEYtOD9CP1lRPT0/PQ==?=");
  EXPECT_EQ(EncodedMailbox("", "a@b.c"), "a@b.c");
  EXPECT_EQ(EncodedMailbox("An \"Na", "a@b.c"), "\"An \\\"Na\"\r\n <a@b.c>");
  EXPECT_EQ(EncodedParameter("filename", "a b.jpg"), ";\r\n filename=\"a b.jpg\"");
  EXPECT_EQ(EncodedParameter("filename", "\xC3\xA9\".jpg"), ";\r\n filename*=UTF-8''%C3%A9%22.jpg");
  EXPECT_EQ(MailLines("a\nb\rc\r\nd\0e"), "a\r\nb\r\nc\r\nd");
  for (const char* good : {"a@b", "first.last+tag@sub.example.org", "ola@żółw.pl"}) EXPECT_TRUE(IsMailAddress(good));
  for (const char* bad : {"", "@", "a@", "@b", "a b@c", "a@b\n", "a@b@c", "<a@b>", "a@b,c@d", "a@b\x7f"})
    EXPECT_FALSE(IsMailAddress(bad)) << bad;
  EXPECT_FALSE(PlainAddress("żółw@example.org"));
}

}  // namespace
}  // namespace kinalyx::test
