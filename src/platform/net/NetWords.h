#pragma once

#include <string>

#include "platform/files/Result.h"
#include "platform/net/CurlSession.h"

namespace kinalyx {

/// With whom somebody has talked.
struct NetParty {
  std::string host;
  std::string kind;  ///< "mail server"
  std::string password;
  NetSecurity security = NetSecurity::None;
};

/// The failures that are the same for all servers, in words for the user: nobody there, silence, a certificate, a login
/// that is refused, a connection that breaks, and for whatever is left the library's own words.
/// @param end  one that has not gone well
Outcome ExplainEnd(const CurlEnd& end, const NetParty& party);

/// What the server said, as the end of a sentence: ` The server says: "550 No such file."`; empty where it said
/// nothing.
std::string SaidBy(const CurlEnd& end, const NetParty& party);

/// Whether a text can stand for the name of a server where an address is made of it.
bool IsHostName(const std::string& host);
bool HasControls(const std::string& text);

}  // namespace kinalyx
