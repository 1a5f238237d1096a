#include "distribution/web/OrderOf.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {
namespace {

struct OrderTest : testing::Test {
  OrderTest() {
    settings.LoadSettings();
    mail.LoadMailSettings();
    settings.UserName = "Jo Coach";
    settings.CompanyName = "Links";
    files.Add(folder.Put("Swing.avi", "x"), false);
  }
  std::string Missing(SendMode mode) {
    const auto order =
        OrderOf({.mode = mode, .student = "Anna", .addresses = {"anna@example.org"}}, files, settings, mail);
    return order ? PlanSend(*order).Why() : order.Why();
  }

  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path("data"), folder.Path()};
  MailSettings mail{folder.Path("data")};
  FilesToSend files;
};

TEST_F(OrderTest, AccountsAreAskedForBeforeAnythingIsConverted) {
  const std::string fault = std::string(kMailFault) + "\n\n";
  EXPECT_TRUE(Missing(SendMode::Email).starts_with(fault + "No mail server is set yet."));
  mail.Set(&MailSettings::SMTPServer, "mail.example.org");
  EXPECT_TRUE(Missing(SendMode::Email).starts_with(fault + "Your own e-mail address is not set yet."));
  mail.Set(&MailSettings::SenderEmail, "jo@example.org");
  EXPECT_EQ(Missing(SendMode::Email), "");
  EXPECT_TRUE(Missing(SendMode::Web).starts_with("Enter the web address and the FTP address"));
  mail.Set(&MailSettings::FTPAddress, "ftp.example.org");
  mail.Set(&MailSettings::WebAddress, "www.example.org");
  EXPECT_EQ(Missing(SendMode::Web), "");
  mail.Set(&MailSettings::FTPAddress, "gopher://x");
  EXPECT_NE(Missing(SendMode::Web), "");
}

TEST_F(OrderTest, TakesNamesLogoAndAccountFromTheSettings) {
  mail.Set(&MailSettings::FTPAddress, "ftps://ftp.example.org/pages");
  mail.Set(&MailSettings::WebAddress, "www.example.org");
  mail.Set(&MailSettings::WLogin, "jo");
  mail.Set(&MailSettings::Subject, "Your lesson");
  settings.PrimaryName = {"Golfer", "golfer", "golfers"};
  settings.LogoName = "/logo.png";
  for (const bool logo : {true, false}) {
    settings.Logo = logo;
    const auto order = OrderOf({.mode = SendMode::Web, .student = "Anna", .addresses = {}}, files, settings, mail);
    ASSERT_TRUE(order) << order.Why();
    EXPECT_EQ(order->logo, logo ? "/logo.png" : "");
    EXPECT_EQ(order->coach + order->company + order->noun, "Jo CoachLinksgolfer");
    EXPECT_EQ(order->space.login, "jo");
    EXPECT_EQ(order->space.address.folder, "pages");
    EXPECT_EQ(order->message.subject, "Your lesson");
    EXPECT_EQ(order->workFolder, folder.Path("data/capture/WMVTemp"));
    EXPECT_EQ(order->today.size(), 10U);
  }
}

}  // namespace
}  // namespace kinalyx::test
