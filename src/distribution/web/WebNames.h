#pragma once

#include <string>
#include <string_view>

namespace kinalyx {

/// A name for a folder or a file on a web server: without blanks, control characters and \ / : * ? " < > | ! @ # $ % ^
/// & + = { } [ ] ~ ` ; ' and without dots in front, which would hide it; at most 200 bytes. Letters of all alphabets
/// stay. Empty where nothing is left.
std::string CleanWebName(std::string_view text);

/// A path, or a part of one, as it stands in an address: slashes and plain letters as they are, every other byte of its
/// UTF-8 as %XX.
std::string EncodePath(std::string_view path);
/// The reverse; nothing else is changed, and a broken %XX stays as it is.
std::string DecodePath(std::string_view text);

/// A text for a page or a playlist, in an element or between quotes: nothing in it is taken for a tag, line ends and
/// other control characters become blanks, bytes that are no UTF-8 are taken as Windows-1252.
std::string EscapeText(std::string_view text);
/// The reverse for what EscapeText writes; every other entity stays as it is.
std::string UnescapeText(std::string_view text);

/// True for a name that is one part of a path: not empty, "." or "..", valid UTF-8, without slash, backslash, control
/// character or more than 255 bytes. For names that come from a server.
bool IsPlainName(std::string_view name);

}  // namespace kinalyx
