// Reads any bytes as what a server says of a folder: no name may lead out of it, whatever form the server chose.

#include <string_view>

#include "InputFile.h"
#include "platform/net/ListingReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  const std::string_view text(reinterpret_cast<const char*>(bytes), count);
  for (const ListingForm form : {ListingForm::Facts, ListingForm::Long, ListingForm::Names}) {
    const Listing listing = ReadListing(form, text);
    fuzz::Require(listing.entries.size() <= kMostEntries);
    fuzz::Require(listing.understood || listing.entries.empty());
    for (const ServerEntry& entry : listing.entries) {
      fuzz::Require(!entry.name.empty() && entry.name != "." && entry.name != "..");
      fuzz::Require(entry.name.find_first_of(std::string_view("/\r\n\0", 4)) == std::string::npos);
      fuzz::Require(entry.bytes >= -1 && (!entry.folder || entry.bytes == -1));
    }
  }
  return 0;
}
