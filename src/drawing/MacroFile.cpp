#include "drawing/MacroFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fmt/format.h>

#include "platform/files/FileLock.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

std::vector<std::uint8_t> BytesOf(const std::vector<NamedMacro>& all) {
  ShapeFileContent content;
  for (const NamedMacro& macro : all) {
    content.Lists.push_back(macro.list);
    content.Names.push_back(macro.name);
  }
  return WriteShapeFile(content);
}

}  // namespace

/// False when there is more in the bytes than was understood.
bool MacroFile::Parse(const std::vector<std::uint8_t>& bytes) {
  all_.clear();
  ShapeFileContent content;
  if (!ReadShapeFile(bytes, screen_, content)) return bytes.empty();
  const bool even = content.Names.size() == content.Lists.size() && ComesOutEven(bytes);
  content.Names.resize(content.Lists.size());
  for (std::size_t i = 0; i < content.Lists.size(); ++i)
    all_.push_back({std::move(content.Names[i]), std::move(content.Lists[i])});
  return even;
}

void MacroFile::Read(ScreenTwips screen) {
  screen_ = screen;
  const auto stamp = StampOf(path_);
  if (stamp && stamp == stamp_) return;
  stamp_ = stamp;
  state_ = State::Whole;
  all_.clear();
  if (!stamp) return;
  const auto bytes = ReadWholeFile(path_);
  if (!bytes) {
    // Removed in this moment, or it keeps what it has to itself.
    if (!StampOf(path_)) return;
    state_ = State::Unreadable;
    notice_ = Tr("The macros in \"{}\" cannot be read.", path_);
  } else if (!Parse(*bytes)) {
    state_ = State::Uneven;
    notice_ =
        Tr("The macros in \"{}\" could not all be read: the file is damaged, too long, or of another program. "
           "It will be kept under another name before anything is changed in it.",
           path_);
  }
}

Outcome MacroFile::Add(const NamedMacro& macro) {
  const auto add = [&](std::vector<NamedMacro>& all) { all.push_back(macro); };
  return Change(add);
}

Outcome MacroFile::Remove(const NamedMacro& macro, bool every) {
  const auto remove = [&](std::vector<NamedMacro>& all) {
    if (every) std::erase(all, macro);
    else if (const auto found = std::ranges::find(all, macro); found != all.end()) all.erase(found);
  };
  return Change(remove);
}

Outcome MacroFile::Change(const std::function<void(std::vector<NamedMacro>&)>& edit) {
  const FileLock lock(path_);
  if (lock.Busy())
    return {Fault::Refused, Tr("Another window or workstation is writing to the file of the macros. Try again.")};
  Read(screen_);
  auto all = all_;
  edit(all);
  if (all == all_) return {};
  if (all.size() > kMostShapeLists)
    return {Fault::Refused, Tr("There can be no more than {} macros.", kMostShapeLists)};
  return Store(all);
}

Outcome MacroFile::Store(const std::vector<NamedMacro>& all) {
  const auto bytes = BytesOf(all);
  if (bytes.size() > kShapeFileLimit && all.size() > all_.size()) {
    return {
        Fault::Refused,
        Tr("The file of the macros would need {} bytes. Beyond {} it could not be read whole. Remove a macro first.",
           bytes.size(), kShapeFileLimit)};
  }
  if (state_ == State::Unreadable) return {Fault::Unwritable, Tr("It cannot be read.")};
  if (state_ == State::Uneven) {
    const auto old = ReadWholeFile(path_);
    const std::string kept = KeptPath(path_);
    if (!old) return {Fault::Unwritable, std::strerror(errno)};
    if (const Outcome saved = WriteWholeFile(kept, *old, disk_); !saved) return {Fault::Unwritable, saved.Why()};
    notice_ = Tr("What could not all be read is kept as \"{}\".", kept);
  }
  if (const Outcome saved = WriteWholeFile(path_, bytes, disk_); !saved) return {Fault::Unwritable, saved.Why()};
  // Where the disk does not let it go, a file without macros stays.
  if (all.empty()) disk_.Remove(path_);
  Parse(bytes);  // as the next reader will have it
  state_ = State::Whole;
  stamp_ = StampOf(path_);
  return {};
}

}  // namespace kinalyx
