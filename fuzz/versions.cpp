// Reads any bytes as the list of versions of a server: what is found must be a version, and read back as the same.

#include <string>
#include <string_view>

#include "InputFile.h"
#include "distribution/updates/VersionsReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  const std::string_view text(reinterpret_cast<const char*>(bytes), count);
  const auto version = ReadVersions(text);
  if (!version) return 0;
  fuzz::Require(version->major >= 0 && version->minor >= 0 && version->build >= 0);
  fuzz::Require(ReadVersion(version->Text(), '.') == version);
  std::string record = version->Text();
  for (char& letter : record)
    if (letter == '.') letter = ':';
  fuzz::Require(ReadVersions("OTHER 9:9:9\nKNX1 " + record + "\nKNX1 1:1:1") == version);
  return 0;
}
