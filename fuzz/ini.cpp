// Reads and rewrites any bytes as an INI file: a value that was written must read back.

#include <algorithm>

#include "InputFile.h"
#include "platform/files/IniFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  static const fuzz::InputFolder folder;
  const std::string path = folder.Write("x.ini", bytes, count);
  const std::string before = GetPrivateProfileString("General", "LibraryPath", path, 150, path);
  // Characters count, not their bytes.
  const auto characters = std::count_if(before.begin(), before.end(), [](char c) { return (c & 0xC0) != 0x80; });
  fuzz::Require(characters < 150);
  (void)ReadProfileValue("Profile", "Name", path);
  if (!WritePrivateProfileString("General", "Key", "value", path)) return 0;
  fuzz::Require(ReadProfileValue("general", "KEY", path) == "value");
  fuzz::Require(GetPrivateProfileString("General", "LibraryPath", path, 150, path) == before);
  fuzz::Require(DeleteProfileKey("General", "Key", path));
  return 0;
}
