#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QXmlStreamReader>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

/// One literal or several in a row, which the compiler joins.
const std::string kLiterals = R"re(((?:"(?:[^"\\\n]|\\.)*"\s*)+))re";

std::string TextOf(const std::string& literals) {
  std::string text;
  bool inside = false;
  for (std::size_t i = 0; i < literals.size(); ++i) {
    const char c = literals[i];
    if (c == '"') {
      inside = !inside;
    } else if (inside && c == '\\' && i + 1 < literals.size()) {
      const char escaped = literals[++i];
      text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
    } else if (inside) {
      text += c;
    }
  }
  return text;
}

struct Source {
  std::string name;
  std::string code;
};

const std::vector<Source>& Sources() {
  static const std::vector<Source> sources = [] {
    std::vector<Source> found;
    for (const auto& entry : fs::recursive_directory_iterator(KINALYX_SOURCES)) {
      const fs::path& path = entry.path();
      if ((path.extension() != ".cpp" && path.extension() != ".h") || path.filename() == "Tr.h") continue;
      std::ifstream file(path);
      found.push_back({fs::relative(path, KINALYX_SOURCES).string(), {std::istreambuf_iterator<char>(file), {}}});
    }
    return found;
  }();
  return sources;
}

/// What a regular expression finds in a source, by its first group.
std::vector<std::string> Found(const Source& source, const std::regex& wanted) {
  std::vector<std::string> found;
  for (auto at = std::sregex_iterator(source.code.begin(), source.code.end(), wanted); at != std::sregex_iterator();
       ++at)
    found.push_back((*at)[1]);
  return found;
}

/// All texts that are marked for translation, and where.
std::map<std::string, std::string> Marked() {
  static const std::regex kMark(R"(\b(?:tr|Tr|TrLater)\(\s*)" + kLiterals);
  std::map<std::string, std::string> marked;
  for (const Source& source : Sources())
    for (const std::string& literals : Found(source, kMark)) marked.emplace(TextOf(literals), source.name);
  return marked;
}

std::map<std::string, std::string> Catalogue(const std::string& language) {
  std::map<std::string, std::string> words;
  QFile file(QString::fromStdString(KINALYX_WORDS "/" + language + ".ts"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  std::string text;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("source")) text = xml.readElementText().toStdString();
    else if (xml.name() == QLatin1String("translation")) words[text] = xml.readElementText().toStdString();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return words;
}

/// The places of a text, sorted: "%1", or "{}" for each of fmt's, which may be numbered to stand in another order.
std::vector<std::string> PlacesOf(const std::string& text) {
  static const std::regex kPlace(R"(%L?(\d)|\{\d*((?::[^{}]*)?)\})");
  std::vector<std::string> places;
  for (auto at = std::sregex_iterator(text.begin(), text.end(), kPlace); at != std::sregex_iterator(); ++at)
    places.push_back((*at)[1].matched ? "%" + (*at)[1].str() : "{" + (*at)[2].str() + "}");
  std::sort(places.begin(), places.end());
  return places;
}

/// Letters, of which some take two bytes and more.
std::size_t Length(const std::string& text) { return static_cast<std::size_t>(QString::fromStdString(text).size()); }

class Words : public ::testing::TestWithParam<const char*> {};

TEST_P(Words, EveryTextOfTheProgramIsSaidAndNoOther) {
  const auto marked = Marked();
  const auto words = Catalogue(GetParam());
  for (const auto& [text, source] : marked) {
    const auto said = words.find(text);
    EXPECT_TRUE(said != words.end() && !said->second.empty()) << source << ": \"" << text << "\"";
  }
  for (const auto& [text, said] : words) EXPECT_TRUE(marked.contains(text)) << "nobody shows \"" << text << "\"";
}

TEST_P(Words, PlacesAreKeptAndNothingIsFarTooLong) {
  // Numbered places and others do not go together.
  static const std::regex kNumbered(R"(\{\d)");
  for (const auto& [text, said] : Catalogue(GetParam())) {
    EXPECT_EQ(PlacesOf(said), PlacesOf(text)) << "\"" << text << "\": \"" << said << "\"";
    EXPECT_LE(Length(said), std::max(Length(text) * 3 / 2 + 6, Length(text) + 10))
        << "\"" << text << "\": \"" << said << "\"";
    EXPECT_FALSE(said.find("{}") != std::string::npos && std::regex_search(said, kNumbered)) << "\"" << said << "\"";
    EXPECT_EQ(text.ends_with(' '), said.ends_with(' ')) << "\"" << text << "\"";
    EXPECT_EQ(text.ends_with("…"), said.ends_with("…")) << "\"" << text << "\"";
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, Words, ::testing::Values("de", "es"));

// A text that goes to the screen without having been asked for in the user's language.
TEST(Marking, NoFormShowsATextThatIsNotMarked) {
  static const std::regex kShown(
      R"re(\b(?:setText|setToolTip|setWindowTitle|setAccessibleName|setAccessibleDescription|setPlaceholderText|setStatusTip|setTitle|addAction|SetHint|ShowFailed)\(\s*)re" +
      kLiterals);
  static const std::regex kWord("[A-Za-z]{2}");
  static const std::regex kAlikeEverywhere(R"((https?://|ftp\.|mail\.).*|Kinalyx *)");
  for (const Source& source : Sources())
    for (const std::string& literals : Found(source, kShown)) {
      const std::string text = TextOf(literals);
      EXPECT_TRUE(!std::regex_search(text, kWord) || std::regex_match(text, kAlikeEverywhere))
          << source.name << ": \"" << text << "\"";
    }
}

}  // namespace
}  // namespace kinalyx
