#include "capture/import/ImportList.h"

#include <algorithm>
#include <utility>

namespace kinalyx {

using State = ImportRow::State;

const ImportRow* ImportList::Find(const std::string& path) const {
  const auto found = std::ranges::find(
      rows_, path, [](const ImportRow& row) -> auto& { return row.file.path; });
  return found == rows_.end() ? nullptr : &*found;
}

ImportRow* ImportList::Find(const std::string& path) { return const_cast<ImportRow*>(std::as_const(*this).Find(path)); }

void ImportList::TakeFolder(const std::vector<ImportFile>& files) {
  std::vector<ImportRow> rows;
  rows.reserve(files.size());
  for (const ImportFile& file : files) {
    const ImportRow* known = Find(file.path);
    ImportRow row = known ? *known : ImportRow{};
    const bool same = known && known->file.stamp == file.stamp && !file.written;
    const bool atWork = row.state == State::Converting || row.state == State::Queued;
    row.file = file;
    row.stillTicks = same ? row.stillTicks + 1 : 0;
    if (!same && !atWork) {
      row.state = file.written || known ? State::Arriving : State::Waiting;
      row.remark.clear();
    } else if (row.state == State::Arriving && row.stillTicks > 0) {
      row.state = State::Waiting;
    }
    rows.push_back(std::move(row));
  }
  for (const ImportRow& row : rows_) {
    const bool gone =
        std::ranges::none_of(rows, [&](const ImportRow& other) { return other.file.path == row.file.path; });
    if (gone && row.state == State::Converting) rows.push_back(row);
  }
  rows_ = std::move(rows);
}

void ImportList::Add(const std::vector<ImportFile>& files) {
  for (const ImportFile& file : files) {
    ImportRow* known = Find(file.path);
    if (known && (known->state == State::Converting || known->state == State::Queued)) continue;
    if (known) *known = {file, State::Waiting, {}, 0};
    else rows_.push_back({file, State::Waiting, {}, 0});
  }
}

void ImportList::Clear() { rows_.clear(); }

void ImportList::Remove(const std::string& path) {
  std::erase_if(rows_, [&](const ImportRow& row) { return row.file.path == path && row.state != State::Converting; });
}

std::size_t ImportList::Count(State state) const {
  return static_cast<std::size_t>(std::ranges::count(rows_, state, &ImportRow::state));
}

}  // namespace kinalyx
