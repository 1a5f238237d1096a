#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Result.h"
#include "platform/graph/FilterTable.h"

namespace kinalyx {

/// What is to be built: filters, and who is connected with whom.
struct GraphPlan {
  struct Filter {
    std::string label;
    const FilterRow* row = nullptr;
    std::vector<std::uint32_t> state;  ///< words that were saved with it
  };
  struct Link {
    std::size_t from = 0;  ///< filters by their place
    std::size_t to = 0;
    std::string out;  ///< pins
    std::string in;
  };

  std::vector<Filter> filters;
  std::vector<Link> links;

  std::optional<std::size_t> Find(std::string_view label) const;
  /// The first filter of a role that is reached along the links.
  std::optional<std::size_t> Downstream(std::size_t from, FilterRole role) const;
  /// All filters of a role that are reached so, with none of it between.
  std::vector<std::size_t> AllDownstream(std::size_t from, FilterRole role) const;
  /// Whether pictures or sound go over a link, and not triggers alone.
  bool Flows(const Link& link) const;
};

/// Reads the text of a template. It fails, and names what is wrong, where the text is cut or no template, a class is
/// not known, a label is there twice, or a connection names a filter or a pin that does not exist. Media types are
/// not read: links find out by themselves what goes over them.
Result<GraphPlan> ReadTemplate(std::string_view text);

}  // namespace kinalyx
