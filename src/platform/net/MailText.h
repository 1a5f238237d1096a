#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files/Result.h"

namespace kinalyx {

/// The texts of a message as they travel. Whatever goes in, what comes out is printable ASCII in which a line end is
/// always followed by a blank: no header or command of its own can begin in it.

/// A text for people: as it stands where that is short and plain, else in encoded words of at most 75 letters.
std::string EncodedText(std::string_view text);
/// "Name <address>"; the address alone where there is no name.
/// @param address  one that PlainAddress has made
std::string EncodedMailbox(std::string_view name, const std::string& address);
/// A parameter of a header, with what divides it from the one before: `; filename="a.jpg"`, or encoded and in pieces.
std::string EncodedParameter(std::string_view name, std::string_view value);
/// The address as servers take it: letters of other alphabets in the server's name become those of the name system.
/// Fails in words for the user where a text is no address, and for such letters before the "@".
Result<std::string> PlainAddress(const std::string& address);
/// "Thu, 26 Nov 2026 10:15:00 +0100"
/// @param time  seconds since 1970
std::string MailDate(std::int64_t time);
/// What names a message among all others, in its brackets.
/// @param address  of the sender
std::string NewMessageId(const std::string& address);
/// The kind of a file by its name, as a Content-Type.
std::string_view ContentTypeOf(std::string_view name);
/// All line ends as mail has them, and no other control character but the tab.
std::string MailLines(std::string_view text);

}  // namespace kinalyx
