#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

std::string FileOfProject(const std::string& path) {
  std::ifstream file(fs::path(KINALYX_SOURCES) / ".." / path);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The first that a pattern finds in a file of the project, by its first group.
std::string FirstIn(const std::string& path, const char* pattern) {
  const std::string text = FileOfProject(path);
  std::smatch found;
  return std::regex_search(text, found, std::regex(pattern)) ? found[1].str() : "nothing in " + path;
}

TEST(Project, TellsTheSameVersionEverywhere) {
  const std::string version = FirstIn("CMakeLists.txt", R"(project\(Kinalyx VERSION ([0-9.]+))");
  EXPECT_EQ(FirstIn("debian/changelog", R"(kinalyx \(([0-9.]+)\))"), version);
  EXPECT_EQ(FirstIn("packaging/org.kinalyx.Kinalyx.metainfo.xml", R"re(<release version="([0-9.]+)")re"), version);
  EXPECT_EQ(FirstIn("CHANGELOG.md", R"(## ([0-9.]+))"), version);
}

TEST(Project, IntroducesItselfToTheDesktopInEveryLanguage) {
  const std::string entry = FileOfProject("packaging/org.kinalyx.Kinalyx.desktop");
  const std::string metainfo = FileOfProject("packaging/org.kinalyx.Kinalyx.metainfo.xml");
  const std::string kinds = FileOfProject("packaging/org.kinalyx.Kinalyx.mime.xml");
  const std::regex picture(R"(https://[^<]*/pictures/([^<]*)</image>)");
  for (auto at = std::sregex_iterator(metainfo.begin(), metainfo.end(), picture); at != std::sregex_iterator(); ++at)
    EXPECT_FALSE(FileOfProject("docs/pictures/" + (*at)[1].str()).empty()) << (*at)[1];
  for (const auto& words : fs::directory_iterator(fs::path(KINALYX_SOURCES) / "../assets/words")) {
    if (words.path().extension() != ".ts") continue;
    const std::string language = words.path().stem().string();
    for (const char* key : {"GenericName", "Comment", "Keywords"})
      EXPECT_NE(entry.find("\n" + std::string(key) + "[" + language + "]="), std::string::npos) << key << language;
    for (const char* tag : {"summary", "p", "li", "caption"})
      EXPECT_NE(metainfo.find("<" + std::string(tag) + " xml:lang=\"" + language + "\">"), std::string::npos) << tag;
    EXPECT_NE(kinds.find("<comment xml:lang=\"" + language + "\">"), std::string::npos) << language;
  }
}

}  // namespace
}  // namespace kinalyx
