#pragma once

#include <fmt/format.h>

#include <string>

namespace kinalyx {

/// Marks a text of a table that somebody shows later by `Tr`, so that the tests find it in every language. The
/// text stays English, and so may be compared, kept in settings and written to files.
constexpr const char* TrLater(const char* english) { return english; }

/// A text in the language of the user; in English where the language has none for it. Any thread may ask.
std::string Tr(const char* english);
inline std::string Tr(const std::string& english) { return Tr(english.c_str()); }

/// The same with places, `{}` as in fmt::format. Where a language's text does not take these values, the English
/// text does: a slip in a translation costs nobody a message.
std::string TrWith(const char* english, fmt::format_args values);

template <class First, class... More>
std::string Tr(const char* english, const First& first, const More&... more) {
  return TrWith(english, fmt::make_format_args(first, more...));
}

}  // namespace kinalyx
