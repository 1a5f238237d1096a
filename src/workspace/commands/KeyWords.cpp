#include "workspace/commands/KeyWords.h"

#include <string_view>

#include "workspace/commands/MenuBar.h"

namespace kinalyx {
namespace {

std::string FirstKey(const Command& command) {
  return command.keys.empty() ? std::string() : KeyText(command.keys.front());
}

/// "P - Play / Pause Toggle", "Main Menu - End key" and "Ctrl+Z - Undo" do.
bool NamesItsKey(std::string_view caption) { return caption.find(" - ") != std::string_view::npos; }

}  // namespace

std::string CaptionWithKey(const Command& command) {
  const std::string key = FirstKey(command);
  return key.empty() || NamesItsKey(command.caption) ? command.caption : command.caption + '\t' + key;
}

std::string TipWithKey(const Command& command) {
  const std::string key = FirstKey(command);
  const bool named = key.empty() || command.tip.empty() || command.tip.ends_with('(' + key + ')');
  return named ? command.tip : command.tip + " (" + key + ')';
}

}  // namespace kinalyx
