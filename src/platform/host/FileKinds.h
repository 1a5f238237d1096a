#pragma once

#include <string>

namespace kinalyx {

/// The path of a new file with an ending: one that ends like any kind of `filter` stays as it is, every other gets the
/// first ending of its kind. A dot within the name is no ending.
/// @param filter  as in FileDialog
/// @param kind    which of its kinds was chosen, from 0
std::string WithEnding(const std::string& path, const std::string& filter, std::size_t kind = 0);

}  // namespace kinalyx
