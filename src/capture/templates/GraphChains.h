#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string_view>

#include "capture/templates/FilterKinds.h"

namespace kinalyx::templates {

/// A graph as chains of labels:
///
///     VideoSource > Smart Tee[Preview] > Color Space Converter > Video Renderer; Audio Trigger > [Control]MV Block ...
///
/// In square brackets stands a pin, before the label that of the input, behind it that of the output, where it is not
/// the usual one of the kind; in braces, once behind a label, the first words of its state, where these are not the
/// usual ones. A label alone is a filter without a link. What does not make sense does not compile.
struct Graph {
  std::array<std::string_view, 5> chains;  ///< read as one text
  std::string_view written = R"(C:\windows\video.avi)";
  const FilterKind* reader = &kFileReader;  ///< of a source file
  std::string_view read = {};
};

/// Reads the chains of a graph; filters are numbered as they are first named.
class ChainReader {
 public:
  struct Filter {
    std::string_view label;
    const FilterKind* kind = nullptr;
    std::array<std::uint32_t, 8> words{};
    std::size_t worded = 0;  ///< words that are not the usual ones
  };
  struct Link {
    std::size_t from = 0, to = 0;
    std::string_view out, in;
  };

  constexpr explicit ChainReader(Graph graph) : graph_(graph) {
    for (const std::string_view piece : graph.chains) ReadPiece(piece);
    EndChain();
  }

  constexpr std::span<const Filter> Filters() const { return {filter_.data(), filters_}; }
  constexpr std::span<const Link> Links() const { return {link_.data(), links_}; }

 private:
  /// A filter as it stands in a chain.
  struct Mention {
    std::size_t filter = 0;
    std::string_view in, out;
  };

  /// A piece may begin and end within a chain, but not within a filter.
  constexpr void ReadPiece(std::string_view piece) {
    while (!piece.empty()) {
      const std::size_t end = std::min(piece.find_first_of(">;"), piece.size());
      if (const std::string_view mention = Trimmed(piece.substr(0, end)); !mention.empty())
        Follow(ReadMention(mention));
      if (end < piece.size() && piece[end] == ';') EndChain();
      piece.remove_prefix(std::min(end + 1, piece.size()));
    }
  }

  constexpr void Follow(const Mention& mention) {
    if (inChain_) link_.at(links_++) = {before_.filter, mention.filter, before_.out, mention.in};
    before_ = mention;
    inChain_ = true;
  }

  constexpr void EndChain() { inChain_ = false; }

  constexpr Mention ReadMention(std::string_view text) {
    const std::string_view in = Taken(text, '[', ']', true);
    const std::string_view out = Taken(text, '[', ']', false);
    const std::string_view words = Taken(text, '{', '}', false);
    Mention mention{FilterOf(text), in, out};
    const FilterKind& kind = *filter_[mention.filter].kind;
    if (in.empty()) mention.in = kind.in;
    if (out.empty()) mention.out = kind.out;
    if (!words.empty()) ReadWords(words, filter_[mention.filter]);
    return mention;
  }

  constexpr std::size_t FilterOf(std::string_view label) {
    for (std::size_t i = 0; i < filters_; ++i)
      if (filter_[i].label == label) return i;
    filter_.at(filters_) = {label, KindOf(label)};
    return filters_++;
  }

  constexpr const FilterKind* KindOf(std::string_view label) const {
    if (label == graph_.reader->label) return graph_.reader;
    for (const FilterKind& kind : kFilterKinds)
      if (label.starts_with(kind.label)) return &kind;
    throw std::invalid_argument("no filter is called so");
  }

  static constexpr std::string_view Trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
  }

  /// Takes what stands in brackets at one end of a text.
  static constexpr std::string_view Taken(std::string_view& text, char open, char close, bool front) {
    if (front ? !text.starts_with(open) : !text.ends_with(close)) return {};
    const std::size_t begin = text.find(open), end = text.find(close);
    const std::string_view inside = text.substr(begin + 1, end - begin - 1);
    text = front ? text.substr(end + 1) : text.substr(0, begin);
    return inside;
  }

  static constexpr void ReadWords(std::string_view text, Filter& filter) {
    for (bool inside = false; const char c : text) {
      if (c == ' ') inside = false;
      else {
        if (!inside) filter.words.at(filter.worded++) = 0;
        inside = true;
        std::uint32_t& word = filter.words[filter.worded - 1];
        word = word * 10 + static_cast<std::uint32_t>(c - '0');
      }
    }
  }

  Graph graph_;
  Mention before_;  ///< in the chain that is being read
  bool inChain_ = false;
  std::array<Filter, 20> filter_{};
  std::size_t filters_ = 0;
  std::array<Link, 20> link_{};
  std::size_t links_ = 0;
};

}  // namespace kinalyx::templates
