#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace kinalyx {

/// A version of the program.
struct ProductVersion {
  int major = 0;
  int minor = 0;
  int build = 0;
  friend auto operator<=>(const ProductVersion&, const ProductVersion&) = default;
  std::string Text() const;  ///< "2.0.1"
};

/// "2.0.1", or as the server has it, "2:0:1"; what is missing is 0. Nothing where there is no number.
std::optional<ProductVersion> ReadVersion(std::string_view text, char between);
/// The record of this product in the server's text: the tag "KNX1", one character, three numbers with colons between.
std::optional<ProductVersion> ReadVersions(std::string_view text);

}  // namespace kinalyx
