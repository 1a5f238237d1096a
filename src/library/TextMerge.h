#pragma once

#include <string>
#include <string_view>

namespace kinalyx {

/// A three-way merge of texts, line by line. Lines that one of the two did not touch follow
/// the other; where both have written in the same place, the lines of both stand there, each once and mine
/// first. A line that one has removed and the other has changed stays as it was changed.
///
/// Lines may end in CR LF, LF or CR, which makes no difference between them. Unless one text is the answer as it
/// stands, those of the result end as in `mine`, also whether the last one is ended.
/// @param base    the text from which both began
/// @param theirs  what stands in the file by now
std::string MergeTexts(std::string_view base, std::string_view mine, std::string_view theirs);

}  // namespace kinalyx
