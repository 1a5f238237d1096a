#include "distribution/send/SendWish.h"

#include <algorithm>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {

const char* TitleOf(SendMode mode) {
  switch (mode) {
    case SendMode::Email: return TrLater("Send Email with Lessons and Videos");
    case SendMode::Web: return TrLater("Create a new Video Web Page");
    case SendMode::Disc: return TrLater("Burn Lessons and Videos to CD");
  }
  return "";
}

const char* ButtonOf(SendMode mode) {
  switch (mode) {
    case SendMode::Email: return TrLater("Send Email(s)");
    case SendMode::Web: return TrLater("Send to Web");
    case SendMode::Disc: return TrLater("Create CD");
  }
  return "";
}

std::string CheckWish(SendWish& wish, const FilesToSend& files, const std::vector<std::string>& addresses,
                      const std::string& noun) {
  if (files.Empty()) return Tr("You must add a video before continuing.");
  wish.addresses.clear();
  for (const std::string& typed : addresses) {
    const std::string address(Trimmed(typed, " \t"));
    if (!address.empty() && std::ranges::find(wish.addresses, address) == wish.addresses.end())
      wish.addresses.push_back(address);
  }
  if (wish.addresses.empty()) return Tr("You must add a email address before continuing.");
  for (const std::string& address : wish.addresses)
    if (!IsMailAddress(address)) return Tr("\"{}\" is not an email address.", address);
  if (wish.student.empty()) return Tr("You must select a {} before continuing.", noun);
  return {};
}

}  // namespace kinalyx
