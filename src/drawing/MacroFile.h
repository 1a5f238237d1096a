#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "drawing/Shape.h"
#include "drawing/ShapeFile.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"

namespace kinalyx {

/// A drawing under a name.
struct NamedMacro {
  std::string name;
  ShapeList list;

  friend bool operator==(const NamedMacro&, const NamedMacro&) = default;
};

/// One file of macros. Others may write to it at any moment, so a change is made to what stands in it at that
/// time, never to what was read before: what others added or removed meanwhile stays so.
class MacroFile {
 public:
  MacroFile(std::string path, IDisk& disk) : path_(std::move(path)), disk_(disk) {}

  const std::string& Path() const { return path_; }
  const std::vector<NamedMacro>& All() const { return all_; }

  /// Reads it, unless it is as it was read or written last. A missing one holds nothing; of a damaged one
  /// those macros that can be read are taken.
  void Read(ScreenTwips screen);

  /// Puts one behind the others. `Refused` when the file's form has no room or somebody else is at it,
  /// `Unwritable` when the disk does not take it here; so with every change.
  Outcome Add(const NamedMacro& macro);
  /// Removes the first that is just the same, or every one; none is no failure. The last one takes the file
  /// with it.
  Outcome Remove(const NamedMacro& macro, bool every);

  /// What the user should know of the file and was not told yet; empty when there is nothing.
  std::string TakeNotice() { return std::exchange(notice_, {}); }

 private:
  enum class State { Whole, Uneven, Unreadable };

  bool Parse(const std::vector<std::uint8_t>& bytes);
  Outcome Change(const std::function<void(std::vector<NamedMacro>&)>& edit);
  Outcome Store(const std::vector<NamedMacro>& all);

  std::string path_;
  IDisk& disk_;
  ScreenTwips screen_;
  std::optional<FileStamp> stamp_;  // of the file that was read or written last
  State state_ = State::Whole;
  std::vector<NamedMacro> all_;
  std::string notice_;
};

}  // namespace kinalyx
