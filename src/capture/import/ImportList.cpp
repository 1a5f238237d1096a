#include "capture/import/ImportList.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace kinalyx {

using State = ImportRow::State;

namespace {

/// What is known of a file, brought up to date by another look at it.
ImportRow SeenAgain(ImportRow row, const ImportFile& file) {
  const bool same = row.file.stamp == file.stamp && !file.written;
  const bool atWork = row.state == State::Converting || row.state == State::Queued;
  row.file = file;
  row.stillTicks = same ? row.stillTicks + 1 : 0;
  if (!same && !atWork) {
    row.state = State::Arriving;
    row.remark.clear();
  } else if (same && row.state == State::Arriving) {
    row.state = State::Waiting;
  }
  return row;
}

}  // namespace

const ImportRow* ImportList::Find(const std::string& path) const {
  const auto found = std::ranges::find(
      rows_, path, [](const ImportRow& row) -> auto& { return row.file.path; });
  return found == rows_.end() ? nullptr : &*found;
}

ImportRow* ImportList::Find(const std::string& path) { return const_cast<ImportRow*>(std::as_const(*this).Find(path)); }

void ImportList::TakeFolder(const std::vector<ImportFile>& files) {
  std::unordered_map<std::string, ImportRow> known;
  for (ImportRow& row : rows_) known.emplace(row.file.path, std::move(row));
  rows_.clear();
  rows_.reserve(files.size());
  for (const ImportFile& file : files) {
    const auto found = known.find(file.path);
    if (found == known.end()) {
      rows_.push_back({file, file.written ? State::Arriving : State::Waiting, {}, 0});
      continue;
    }
    rows_.push_back(SeenAgain(std::move(found->second), file));
    known.erase(found);
  }
  for (auto& [path, row] : known)
    if (row.state == State::Converting) rows_.push_back(std::move(row));
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
