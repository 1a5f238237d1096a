#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

const fs::path kHelp = fs::path(KINALYX_SOURCES) / "../assets/help";

std::string TextOf(const fs::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Found(const std::string& text, const char* wanted) {
  const std::regex pattern(wanted);
  std::vector<std::string> found;
  for (auto at = std::sregex_iterator(text.begin(), text.end(), pattern); at != std::sregex_iterator(); ++at)
    found.push_back((*at)[1]);
  return found;
}

std::set<std::string> PagesIn(const fs::path& folder) {
  std::set<std::string> pages;
  for (const auto& entry : fs::directory_iterator(folder))
    if (entry.path().extension() == ".htm") pages.insert(entry.path().filename().string());
  return pages;
}

/// What makes a page, in order, whatever its language: headings, paragraphs, rows.
std::vector<std::string> BonesOf(const std::string& page) {
  return Found(page, R"(<(h1|h2|ol|ul|li|table|tr|td|img)\b)");
}

class HelpPages : public ::testing::TestWithParam<const char*> {
 protected:
  const fs::path folder = kHelp / GetParam();
};

TEST_P(HelpPages, NoLinkAndNoPictureLeadsNowhere) {
  for (const std::string& page : PagesIn(folder)) {
    const std::string text = TextOf(folder / page);
    for (const std::string& place : Found(text, R"re((?:href|src)="([^":#]+)")re"))
      EXPECT_TRUE(fs::exists(folder / place)) << page << ": " << place;
    for (const std::string& word : Found(text, R"(\{([^}]*)\})"))
      EXPECT_TRUE(std::regex_match(word, std::regex("[Ss]tudents?"))) << page << ": {" << word << "}";
  }
}

TEST_P(HelpPages, EveryPageIsThereWithAllThatTheEnglishOneTells) {
  EXPECT_EQ(PagesIn(folder), PagesIn(kHelp));
  for (const std::string& page : PagesIn(folder)) {
    const std::string said = TextOf(folder / page);
    const std::string english = TextOf(kHelp / page);
    EXPECT_EQ(BonesOf(said), BonesOf(english)) << page;
    const auto links = [](const std::string& text) {
      std::vector<std::string> found = Found(text, R"re(href="([^"]+)")re");
      std::ranges::sort(found);
      return found;
    };
    EXPECT_EQ(links(said), links(english)) << page;
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpPages, ::testing::Values(".", "de", "es"));

}  // namespace
}  // namespace kinalyx
