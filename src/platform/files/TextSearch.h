#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// A text as it is searched: small letters without accents, in all alphabets; every run of blanks and line ends is one
/// blank. "Łukasz  Müller" is "lukasz muller", and so is what the user types for him.
std::string Findable(std::string_view text);

/// The words of what the user has typed, findable.
std::vector<std::string> SearchWords(std::string_view typed);

/// A piece of a text around the place where a word was found.
struct FoundText {
  std::string text;        ///< one line, with "…" where something was left out
  std::size_t at = 0;      ///< the word in it, in bytes
  std::size_t length = 0;  ///< 0 when it is not there
};
/// @param word    findable
/// @param around  characters before and behind it, about
FoundText TextAround(std::string_view text, std::string_view word, int around);

}  // namespace kinalyx
