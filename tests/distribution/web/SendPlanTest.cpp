#include "distribution/web/SendPlan.h"

#include "WebFakes.h"

namespace kinalyx {
namespace {

SendOrder Order() { return test::OrderFor("Anna Żak", "/nowhere"); }

FileToSend Video(const std::string& name) { return {"/library/Jo/Anna Żak/" + name, false, 1}; }
FileToSend Lesson(const std::string& name) { return {"/library/Jo/Anna Żak/Lessons/" + name, true, 1}; }

std::vector<std::string> Names(const SendPlan& plan) {
  std::vector<std::string> names;
  for (const SendItem& item : plan.items) names.push_back(item.name);
  return names;
}

TEST(SendPlan, SaysWhatIsMissing) {
  const struct {
    void (*spoil)(SendOrder&);
    const char* words;
  } kCases[] = {
      {[](SendOrder& order) { order.coach = " "; },
       "You must fill in your name and Company name in Program Setup to use this feature."},
      {[](SendOrder& order) { order.company = "Company Name"; },
       "You must fill in your name and Company name in Program Setup to use this feature."},
      {[](SendOrder& order) { order.company = "##"; },
       "There was a problem creating the company name for the web page."},
      {[](SendOrder& order) { order.student = "..", order.noun = "golfer"; },
       "There was a problem creating the golfer name for the web page."},
      {[](SendOrder& order) { order.mailMissing = "No mail server."; },
       "Error sending email. Check your email settings in the Program Setup section.\n\nNo mail server."},
      {[](SendOrder& order) { order.space.address.host.clear(); },
       "Enter the web address and the FTP address of your web space in Program Setup first."},
  };
  for (const auto& [spoil, words] : kCases) {
    SendOrder order = Order();
    spoil(order);
    EXPECT_EQ(PlanSend(order).Why(), words);
  }
  SendOrder mail = Order();
  mail.mode = SendOrder::Mode::Email;
  mail.space = {};
  EXPECT_TRUE(PlanSend(mail)) << "mail needs no web space";
}

TEST(SendPlan, NamesNeverMeet) {
  SendOrder order = Order();
  order.files = {Video("Driver FO.avi"), Lesson("Driver FO.avi"), Video("driverfo.mp4"), Video("###.avi")};
  const auto plan = PlanSend(order);
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->Videos(), "ŁódźGolfCo/AnnaŻak/videos");
  EXPECT_EQ(Names(*plan), (std::vector<std::string>{"DriverFO", "DriverFO-2", "driverfo-3", "Video"}));
  EXPECT_EQ(plan->items[1].title, "Driver FO");
}

TEST(SendPlan, OldEntriesStayAndTheSameVideoTakesItsOwnPlace) {
  SendOrder order = Order();
  order.files = {Video("Swing.avi"), Lesson("Swing.avi")};
  const auto first = PlanSend(order);
  ASSERT_TRUE(first);
  OldContent old = ReadOldContent(PageText(order, *first, {}, std::vector<double>{0.04, 0.02}, "logo.jpg"),
                                  PlaylistText(order, *first, {}));
  EXPECT_EQ(old.student, "Anna Żak");
  ASSERT_EQ(old.videos.size(), 2U);
  EXPECT_FALSE(IsOfAnother(old, order));
  order.student = "AnnaŻak";
  EXPECT_TRUE(IsOfAnother(old, order));
  order.student = "Anna Żak";

  // The lesson alone once more, a month later, and another video.
  order.today = "2026-12-26";
  order.files = {Lesson("Swing.avi"), Video("Putt.avi")};
  auto next = PlanSend(order);
  ASSERT_TRUE(next);
  AvoidOldNames(*next, old);
  EXPECT_EQ(Names(*next), (std::vector<std::string>{"Swing-2", "Putt"}));
  const OldContent merged = ReadOldContent(PageText(order, *next, old, {}, ""), PlaylistText(order, *next, old));
  std::vector<std::string> shown;
  for (const PageVideo& video : merged.videos) shown.push_back(video.file + " " + video.date);
  EXPECT_EQ(shown, (std::vector<std::string>{"videos/Swing-2.wmv 2026-12-26", "videos/Putt.wmv 2026-12-26",
                                             "videos/Swing.wmv 2026-11-26"}));
  EXPECT_DOUBLE_EQ(merged.videos[2].frameSeconds, 0.04);
  EXPECT_EQ(merged.playlist.size(), 3U);

  // A lesson must not take the place of a video that is on the page alone.
  order.files = {Lesson("Putt.avi")};
  next = PlanSend(order);
  AvoidOldNames(*next, merged);
  EXPECT_EQ(Names(*next), std::vector<std::string>{"Putt-2"});
}

TEST(SendPlan, APageOfAnOlderProgramKeepsItsEntries) {
  const std::string list =
      "<ASX version =\"3.0\">\r\n<Entry>\r\n<Ref href=\"http://old.example.org/G/A/videos/Chip.wmv\"/>\r\n</Entry>\r\n"
      "</ASX>";
  SendOrder order = Order();
  order.files = {Video("Swing.avi")};
  const auto plan = PlanSend(order);
  ASSERT_TRUE(plan);
  const OldContent old = ReadOldContent("", list);
  EXPECT_NE(PageText(order, *plan, old, {}, "").find("<option value=\"videos/Chip.wmv\"> Chip </option>\r\n"),
            std::string::npos);
  EXPECT_NE(PlaylistText(order, *plan, old).find("<Ref href=\"http://old.example.org/G/A/videos/Chip.wmv\"/>"),
            std::string::npos);
}

TEST(SendPlan, LinksLeadToThePage) {
  SendOrder order = Order();
  const auto plan = PlanSend(order);
  ASSERT_TRUE(plan);
  const std::string path = "/%C5%81%C3%B3d%C5%BAGolfCo/Anna%C5%BBak/index.html";
  const char* const kAddresses[][2] = {{"www.example.org", "http://www.example.org"},
                                       {" https://example.org/~jo/ ", "https://example.org/~jo"}};
  for (const auto& [typed, root] : kAddresses) {
    order.webAddress = typed;
    EXPECT_EQ(LinkMail(order, *plan), "Click the link below to view your video lesson.\r\n" + (root + path));
  }
  EXPECT_NE(PageText(order, *plan, {}, {}, "").find("<a href=\"/~jo/%C5%81%C3%B3d%C5%BAGolfCo/"), std::string::npos);
}

}  // namespace
}  // namespace kinalyx
