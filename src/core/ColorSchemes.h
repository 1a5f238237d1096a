#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace kinalyx {

/// Four colours, red + 256 * green + 65536 * blue: 0 buttons and headings, 1 panels, 2 text on buttons,
/// 3 the backdrop of forms.
using SchemeColorArray = std::array<std::int32_t, 4>;

constexpr int kBlueWhite = 0;
constexpr int kDarkRoom = 8;

struct ColorScheme {
  std::string_view caption;  ///< of its `optLayout` choice
  SchemeColorArray colours;
};

/// The colours that the program wears at present.
class ColorSchemes {
 public:
  /// The nine schemes; the last is dark, with no colour of its own beside that of the film. The index is the setting
  /// `Design`.
  static std::span<const ColorScheme> All();

  /// Fills the present colours from the setting `Design`. Any value but "0" to "8" leaves them as they
  /// are and gives false; before the first call they are those of scheme 0.
  bool ApplyDesign(std::string_view design);

  const SchemeColorArray& Colours() const { return colours_; }
  /// Index of the scheme in use.
  int Design() const { return design_; }

 private:
  int design_ = 0;
  SchemeColorArray colours_ = All()[0].colours;
};

}  // namespace kinalyx
