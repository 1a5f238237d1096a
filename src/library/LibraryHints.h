#pragma once

#include <string>

#include "core/Vocabulary.h"
#include "library/LibraryBrowser.h"

namespace kinalyx {

/// What the lists say where they are empty; "" where there is nothing to say.
struct LibraryHints {
  std::string students;
  std::string videos;
};

/// @param gone  the library's folder cannot be reached
LibraryHints HintsOf(const LibraryBrowser& browser, const Vocabulary& words, bool gone);

}  // namespace kinalyx
