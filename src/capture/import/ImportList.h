#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "capture/import/ImportFiles.h"

namespace kinalyx {

/// A row of `List1`.
struct ImportRow {
  enum class State {
    Waiting,
    Arriving,  ///< somebody is still writing it
    Queued,    ///< its turn comes
    Converting,
    Saved,
    Failed,
    Stopped,  ///< by the user
  };

  ImportFile file;
  State state = State::Waiting;
  std::string remark;  ///< why it failed, or the name under which it was saved
  int stillTicks = 0;  ///< looks at the folder since the file has changed last
};

/// `List1`: the files that may be imported, and what has become of them.
class ImportList {
 public:
  const std::vector<ImportRow>& Rows() const { return rows_; }
  const ImportRow* Find(const std::string& path) const;
  ImportRow* Find(const std::string& path);

  /// The files that a folder holds now, in their order. What is known of one stays as long as the file is the same;
  /// what has gone leaves the list, unless it is being converted. Counts the looks for which a file has not changed.
  void TakeFolder(const std::vector<ImportFile>& files);
  /// Adds files that were picked by hand, each once; one that was there already waits again.
  void Add(const std::vector<ImportFile>& files);
  void Clear();
  void Remove(const std::string& path);

  /// Rows in that state.
  std::size_t Count(ImportRow::State state) const;

 private:
  std::vector<ImportRow> rows_;
};

}  // namespace kinalyx
