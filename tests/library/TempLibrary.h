#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "core/Settings.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {

/// A data folder with an empty library in a place of its own; both go with the object.
class TempLibrary {
 public:
  TempLibrary() : settings(host, place_.Path("data"), place_.Path("program")) {
    settings.LoadSettings();
    std::filesystem::create_directories(Root());
  }

  const std::string& Root() const { return settings.LibraryPath; }
  std::string Data(const std::string& name) const { return place_.Path("data/" + name); }
  std::string Path(const std::string& name) const { return Root() + "/" + name; }

  /// Makes a folder under the library root and gives its path.
  std::string Folder(const std::string& name) {
    std::filesystem::create_directories(Path(name));
    return Path(name);
  }
  /// Makes a file under the library root and gives its path.
  std::string File(const std::string& name, const std::string& bytes = "") {
    std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
  }

  static std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  TempFolder place_;

 public:
  TestHost host;
  Settings settings;
};

}  // namespace kinalyx::test
