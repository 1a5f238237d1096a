#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kinalyx {

/// What a filter does in a live graph.
enum class FilterRole {
  Camera,
  Microphone,
  FileSource,
  AudioTrigger,  ///< hears a microphone of its own
  Trigger,       ///< a source, or a copier, of triggers: no picture goes through it
  Block,         ///< remembers pictures, for a trigger to have them written
  Gate,
  Tee,
  Element,  ///< one picture in, one picture out
  Motion,   ///< the same, and looks at it
  Mux,
  Writer,
  Renderer,
};

/// In which form an element takes pictures.
enum class FilterEntry {
  AsTheyCome,
  Raw,   ///< decoded, if they are not
  Jpeg,  ///< as JPEG, which they may be already
};

/// One class of filters: what it becomes here.
struct FilterRow {
  std::string_view classId;  ///< in braces, in capitals
  std::string_view code;     ///< four letters in the state that tell rows of one class apart; mostly empty
  FilterRole role = FilterRole::Element;
  std::array<std::string_view, 4> inputs;
  std::array<std::string_view, 2> outputs;
  FilterEntry entry = FilterEntry::AsTheyCome;
  /// Of an element, and of what looks at pictures: as the library for graphs describes a bin, in which {0}, {1} are
  /// words of the state.
  std::string_view bin = {};

  bool HasInput(std::string_view pin) const;
  bool HasOutput(std::string_view pin) const;
};

/// The row of a class; null when it is not known.
/// @param state  words that the filter saved, without the header
const FilterRow* FindFilterRow(std::string_view classId, const std::vector<std::uint32_t>& state);

}  // namespace kinalyx
