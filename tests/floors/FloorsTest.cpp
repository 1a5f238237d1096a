#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace kinalyx {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

struct Room {
  Names shows;
  Names uses;
  Names libraries;
};

struct House {
  std::map<std::string, Room> rooms;
  std::map<std::string, Names> foreign;  ///< by library: the folders ("x/") and headers that are its own
};

/// Reads what the build has noted of the declarations in src/CMakeLists.txt.
House ReadHouse(std::istream& file) {
  House house;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string kind, name, word;
    words >> kind >> name;
    Names* list = kind == "foreign" ? &house.foreign[name] : nullptr;
    while (words >> word) {
      if (word == "SHOWS") list = &house.rooms[name].shows;
      else if (word == "USES") list = &house.rooms[name].uses;
      else if (word == "LIBS") list = &house.rooms[name].libraries;
      else if (list) list->insert(word);
    }
  }
  return house;
}

/// A file of a room and what it includes, as it is written: "a/B.h" or <c>.
struct Source {
  std::string room;
  std::string name;
  std::vector<std::string> includes;

  bool IsHeader() const { return name.ends_with(".h"); }
};

std::vector<std::string> IncludesOf(std::istream& file) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s*(<[^>]*>|"[^"]*"|.*))re");
  std::vector<std::string> includes;
  std::smatch found;
  for (std::string line; std::getline(file, line);) {
    if (line.find("#") != std::string::npos && std::regex_search(line, found, kInclude)) includes.push_back(found[1]);
  }
  return includes;
}

std::vector<Source> ReadSources(const fs::path& root) {
  std::vector<Source> sources;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string ending = entry.path().extension();
    if (ending != ".cpp" && ending != ".h") continue;
    std::ifstream file(entry.path());
    sources.push_back({fs::relative(entry.path().parent_path(), root), entry.path().filename(), IncludesOf(file)});
  }
  return sources;
}

/// The library whose header this is: the name after LIBS, "Qt6", or nothing for the language's, the system's
/// and the text library, which everybody may see. A header that nobody has declared is its own library.
std::string LibraryOf(const std::string& header, const House& house) {
  static const std::regex kFree(R"(fmt/\w+\.h|(?:netinet|sys|linux)/\w+\.h|\w+|(\w+)\.h)");
  static const Names kSystem{"dirent",   "fcntl",   "langinfo", "locale", "malloc", "poll",  "dlfcn",
                             "execinfo", "pthread", "pwd",      "sched",  "signal", "spawn", "unistd"};
  static const std::regex kQt("(Qt[A-Z]\\w*/)?Q[A-Za-z]\\w*");
  if (std::regex_match(header, kQt)) return "Qt6";
  for (const auto& [library, own] : house.foreign) {
    for (const std::string& prefix : own)
      if (prefix.ends_with('/') ? header.starts_with(prefix) : header == prefix) return library;
  }
  std::smatch parts;
  if (!std::regex_match(header, parts, kFree)) return header;
  return !parts[1].matched || kSystem.contains(parts[1]) ? "" : header;
}

bool MaySee(const Room& room, const std::string& library) {
  if (library.empty()) return true;
  if (library != "Qt6") return room.libraries.contains(library);
  return std::ranges::any_of(room.libraries, [](const std::string& name) { return name.starts_with("Qt6::"); });
}

bool HasWindows(const std::string& room) {
  return room.ends_with("/forms") || room == "platform/widgets" || room == "app";
}

/// Everything that is against the declarations, one sentence each.
std::vector<std::string> Faults(const House& house, const std::vector<Source>& sources) {
  std::vector<std::string> faults;
  Names inner;  // headers that show a foreign type, which must stay in their room
  std::map<std::string, Names> shown, used;
  for (const Source& source : sources) {
    for (const std::string& include : source.includes) {
      const std::string name = include.substr(1, include.size() - 2);
      const bool foreign = include.front() == '<' && !LibraryOf(name, house).empty();
      if (source.IsHeader() && foreign && !HasWindows(source.room)) inner.insert(source.room + "/" + source.name);
    }
  }
  for (const Source& source : sources) {
    const auto fault = [&](const std::string& text) { faults.push_back(source.room + "/" + source.name + " " + text); };
    const auto found = house.rooms.find(source.room);
    if (found == house.rooms.end()) {
      fault("lies in no room");
      continue;
    }
    const Room& room = found->second;
    for (const std::string& include : source.includes) {
      const std::string name = include.substr(1, include.size() - 2);
      if (include.front() == '<') {
        if (!MaySee(room, LibraryOf(name, house))) fault("sees " + include);
        continue;
      }
      const std::string other = name.substr(0, std::min(name.rfind('/'), name.size()));
      if (other == source.room) continue;
      (source.IsHeader() ? shown : used)[source.room].insert(other);
      if (!room.shows.contains(other) && !room.uses.contains(other)) fault("includes " + include + ", an unnamed room");
      else if (source.IsHeader() && !room.shows.contains(other))
        fault("shows " + include + ", a room named after USES");
      if (inner.contains(name)) fault("includes " + include + ", which shows a foreign library");
    }
  }
  for (const auto& [name, room] : house.rooms) {
    for (const std::string& other : room.shows)
      if (!shown[name].contains(other)) faults.push_back(name + " SHOWS " + other + ", which no header includes");
    for (const std::string& other : room.uses)
      if (!used[name].contains(other)) faults.push_back(name + " USES " + other + ", which no file includes");
  }
  return faults;
}

TEST(Floors, EveryFileIncludesWhatItsRoomNames) {
  std::ifstream file(KINALYX_ROOMS);
  const House house = ReadHouse(file);
  const std::vector<Source> sources = ReadSources(KINALYX_SOURCES);
  ASSERT_GT(house.rooms.size(), 10u);
  ASSERT_GT(sources.size(), 300u);
  EXPECT_THAT(Faults(house, sources), testing::IsEmpty());
}

TEST(Floors, WrongIncludesAreFound) {
  std::istringstream declared(
      "foreign av libavutil/ libyuv.h\n"
      "room low SHOWS USES LIBS av\nroom mid SHOWS low USES LIBS Qt6::Core\nroom high SHOWS USES mid LIBS\n");
  const House house = ReadHouse(declared);
  const Source low{"low", "Low.h", {"<string>", "<sys/stat.h>", "<fmt/format.h>"}};
  const Source mid{"mid", "Mid.h", {"\"low/Low.h\""}};
  const Source high{"high", "High.cpp", {"\"mid/Mid.h\"", "\"high/High.h\""}};
  EXPECT_THAT(Faults(house, {low, mid, high}), testing::IsEmpty());

  const struct {
    Source source;
    const char* fault;
  } kWrong[] = {
      {{"high", "A.cpp", {"\"low/Low.h\""}}, "high/A.cpp includes \"low/Low.h\", an unnamed room"},
      {{"high", "A.h", {"\"mid/Mid.h\""}}, "high/A.h shows \"mid/Mid.h\", a room named after USES"},
      {{"low", "A.cpp", {"\"high/High.h\""}}, "low/A.cpp includes \"high/High.h\", an unnamed room"},
      {{"high", "A.cpp", {"<libavutil/rational.h>"}}, "high/A.cpp sees <libavutil/rational.h>"},
      {{"mid", "A.cpp", {"<libyuv.h>"}}, "mid/A.cpp sees <libyuv.h>"},
      {{"high", "A.cpp", {"<QtCore/QString>"}}, "high/A.cpp sees <QtCore/QString>"},
      {{"high", "A.cpp", {"<gst/gst.h>"}}, "high/A.cpp sees <gst/gst.h>"},
      {{"high", "A.cpp", {"<zlib.h>"}}, "high/A.cpp sees <zlib.h>"},
      {{"attic", "A.cpp", {}}, "attic/A.cpp lies in no room"},
  };
  for (const auto& wrong : kWrong)
    EXPECT_THAT(Faults(house, {low, mid, high, wrong.source}), testing::ElementsAre(wrong.fault));

  const Source shows{"low", "Inner.h", {"<libavutil/rational.h>"}};
  const Source takes{"mid", "A.cpp", {"\"low/Inner.h\""}};
  EXPECT_THAT(Faults(house, {low, mid, high, shows, takes}),
              testing::ElementsAre("mid/A.cpp includes \"low/Inner.h\", which shows a foreign library"));
  EXPECT_THAT(Faults(house, {low, mid}), testing::ElementsAre("high USES mid, which no file includes"));
}

}  // namespace
}  // namespace kinalyx
