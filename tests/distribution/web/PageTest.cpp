#include <algorithm>

#include "distribution/web/PlayerPage.h"
#include "distribution/web/Playlist.h"
#include "distribution/web/WebNames.h"

namespace kinalyx {
namespace {

TEST(WebNames, AreCleanedForEveryServer) {
  const struct {
    const char* text;
    const char* clean;
  } kNames[] = {
      {"Driver FO May", "DriverFOMay"},
      {"a\\b/c:d*e?f<g>h|i!j@k#l$m%n^o&p+q=r{s}t[u]v~w`x;y'z", "abcdefghijklmnopqrstuvwxyz"},
      {"(003) FO, driver-2_x.y", "(003)FO,driver-2_x.y"},
      {"Łódź Żak", "ŁódźŻak"},
      {"田中\u3000太郎", "田中太郎"},
      {"..hidden", "hidden"},
      {"one\r\ntwo\x7f", "onetwo"},
      {"##!!", ""},
      {"..", ""},
      {"", ""},
  };
  for (const auto& [text, clean] : kNames) EXPECT_EQ(CleanWebName(text), clean) << text;
  EXPECT_LE(CleanWebName(std::string(400, 'x')).size(), 200U);
  EXPECT_EQ(CleanWebName("caf\xE9"), "café") << "a name of an old disk";
}

TEST(WebNames, TravelInAddressesAndTextsAndComeBack) {
  for (const std::string text : {"plain", "100% <b> \"&amp;\" 'x'", "スイング (2)", "a%2Fb"}) {
    EXPECT_EQ(DecodePath(EncodePath(text)), text);
    EXPECT_EQ(UnescapeText(EscapeText(text)), text);
    EXPECT_EQ(EscapeText(text).find_first_of("<>\"'"), std::string::npos);
  }
  EXPECT_EQ(EncodePath("Łódź/a b.wmv"), "%C5%81%C3%B3d%C5%BA/a%20b.wmv");
  EXPECT_EQ(DecodePath("100%"), "100%");
  EXPECT_EQ(DecodePath("%zz%4"), "%zz%4");
  EXPECT_EQ(EscapeText("a\r\nb\tc"), "a  b c");
  for (const char* name : {"", ".", "..", "a/b", "a\\b", "a\nb", "\xFF"}) EXPECT_FALSE(IsPlainName(name)) << name;
  EXPECT_TRUE(IsPlainName("スイング.wmv"));
}

/// Tags that are opened and not closed, in their order; the script and the style are passed over.
std::vector<std::string> OpenTags(std::string_view page) {
  std::vector<std::string> open;
  std::size_t at = 0;
  while ((at = page.find('<', at)) != std::string_view::npos) {
    const std::size_t end = page.find('>', at);
    if (end == std::string_view::npos) return {"cut"};
    const std::string_view tag = page.substr(at + 1, end - at - 1);
    const std::string name(tag.substr(tag.starts_with('/') ? 1 : 0, tag.find_first_of(" /", 1) - 0));
    at = end;
    if (tag.starts_with('!') || tag.ends_with('/')) continue;
    if (!tag.starts_with('/')) {
      open.push_back(std::string(tag.substr(0, tag.find(' '))));
    } else {
      if (open.empty() || open.back() != tag.substr(1)) return {"crossed " + std::string(tag)};
      open.pop_back();
    }
  }
  return open;
}

PlayerPage SomePage() {
  PlayerPage page;
  page.coach = "Jo <script>alert(1)</script> \"&\"";
  page.company = "Łódź Golf & Co";
  page.student = "Anna </p> Żak";
  page.logo = "logo.jpg";
  page.playlist = "/ŁódźGolfCo/AnnaŻak/videos/playlist.wvx";
  page.videos = {{"videos/one.wmv", "one 100% & </option> <so>", "2026-11-26", 1 / 30.0, false, ""},
                 {"videos/スイング.wmv", "スイング", "2026-11-25", 0.02, true, ""},
                 {"videos/old.wmv", "old", "", 0, false, ""}};
  return page;
}

TEST(PlayerPage, IsWellFormedAndHoldsWhatPlayersOfOldLookFor) {
  const std::string text = WritePlayerPage(SomePage());
  EXPECT_TRUE(text.starts_with("<!DOCTYPE html>"));
  EXPECT_EQ(OpenTags(text), std::vector<std::string>());
  EXPECT_EQ(text.find("<script>alert"), std::string::npos);
  EXPECT_NE(text.find("<span class=\"style4\">Video Lessons by Jo &lt;script&gt;alert(1)&lt;/script&gt; "
                      "&quot;&amp;&quot;</span></p>"),
            std::string::npos);
  EXPECT_NE(text.find("<option value=\"videos/one.wmv\"> one 100% &amp; &lt;/option&gt; &lt;so&gt; </option>\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("<option value=\"videos/%E3%82%B9%E3%82%A4%E3%83%B3%E3%82%B0.wmv\"> スイング </option>\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("<a href=\"/%C5%81%C3%B3d%C5%BAGolfCo/Anna%C5%BBak/videos/playlist.wvx\"><span"),
            std::string::npos);
  for (const char* elsewhere : {"http:", "https:", "//cdn", "@import"})
    EXPECT_EQ(text.find(elsewhere), std::string::npos) << elsewhere;
}

TEST(PlayerPage, IsReadBack) {
  const PlayerPage page = SomePage();
  const PlayerPage read = ReadPlayerPage(WritePlayerPage(page));
  EXPECT_EQ(read.student, page.student);
  ASSERT_EQ(read.videos.size(), page.videos.size());
  for (std::size_t i = 0; i < page.videos.size(); ++i) {
    EXPECT_EQ(read.videos[i].file, page.videos[i].file);
    EXPECT_EQ(read.videos[i].title, page.videos[i].title);
    EXPECT_EQ(read.videos[i].date, page.videos[i].date);
    EXPECT_EQ(read.videos[i].lesson, page.videos[i].lesson);
    EXPECT_NEAR(read.videos[i].frameSeconds, page.videos[i].frameSeconds, 1e-6);
  }
}

TEST(PlayerPage, GroupsOnADiscAreClosed) {
  PlayerPage page;
  page.coach = "Jo";
  page.videos = {{"Lessons/a.mp4", "a", "", 0, true, "Lessons"}, {"Videos/b.mp4", "b", "", 0, false, "Videos"}};
  const std::string text = WritePlayerPage(page);
  EXPECT_EQ(OpenTags(text), std::vector<std::string>());
  EXPECT_NE(text.find("<optgroup label=\"Videos\">"), std::string::npos);
  EXPECT_EQ(text.find("playlist.wvx"), std::string::npos);
}

TEST(PlayerPage, OfAStrangerNothingIsTakenThatLeadsElsewhere) {
  const auto files = [](const std::string& text) {
    std::vector<std::string> found;
    for (const PageVideo& video : ReadPlayerPage(text).videos) found.push_back(video.file);
    return found;
  };
  EXPECT_EQ(files("<OPTION>\n<option value=\"videos/x.wmv\"> x </option>\n<option value=\"videos/x.wmv\"> again "
                  "</option>\n<option value=\"videos/../x.wmv\"> y </option>\n<option value=\"videos/%2E%2E%2Fz.wmv\"> "
                  "z </option>\n<option value=\"videos/..\"> z </option>\n<option value=\"http://a/b.wmv\"> b "
                  "</option>\n<option value=\"videos/cut.wmv\"> cut"),
            std::vector<std::string>{"videos/x.wmv"});
  std::string many;
  for (int i = 0; i < 5000; ++i) many += "<option value=\"videos/" + std::to_string(i) + ".wmv\"> t </option>\n";
  EXPECT_EQ(files(many).size(), 2000U);
}

TEST(Playlist, IsWrittenAsPlayersWantItAndReadBack) {
  const std::vector<std::string> addresses{"http://www.example.org/A/B/videos/one.wmv",
                                           "http://www.example.org/A/B/videos/%C5%81%20%26.wmv"};
  const std::string text = WritePlaylist(addresses);
  EXPECT_EQ(text,
            "<ASX version =\"3.0\">\r\n<Entry>\r\n<Ref href=\"http://www.example.org/A/B/videos/one.wmv\"/>\r\n"
            "</Entry>\r\n<Entry>\r\n<Ref href=\"http://www.example.org/A/B/videos/%C5%81%20%26.wmv\"/>\r\n</Entry>\r\n"
            "</ASX>\r\n");
  const auto read = ReadPlaylist(text);
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0].address, addresses[0]);
  EXPECT_EQ(read[1].name, "Ł &.wmv");
  EXPECT_EQ(ReadPlaylist("<ASX><ENTRY><REF HREF=\"HTTP/x.WMV\"></ENTRY>").size(), 1U) << "of another program";
  for (const char* bad :
       {"", "<Entry><Ref href=\"javascript://x/a.wmv\"/></Entry>", "<Entry><Ref href=\"a.wmv\"/>",
        "<Entry><Ref href=\"http://h/a.exe\"/></Entry>", "<Entry><Ref href=\"http://h/.wmv\"/></Entry>",
        "<Entry><Ref href=\"http://h/a%2Fb.wmv\"/></Entry>", "<Entry></Entry>"})
    EXPECT_TRUE(ReadPlaylist(bad).empty()) << bad;
}

}  // namespace
}  // namespace kinalyx
