#include "workspace/commands/KeyWords.h"

#include <string_view>

#include "workspace/commands/MenuBar.h"

namespace kinalyx {
namespace {

std::string FirstKey(const Command& command) {
  return command.keys.empty() ? std::string() : KeyText(command.keys.front());
}

/// A caption that names its key, taken apart: "P - Play / Pause Toggle", "Main Menu - End key", "Esc - Close All
/// Videos".
struct Parts {
  std::string words;
  std::string key;  ///< empty where none is named
};

Parts PartsOf(const std::string& caption) {
  constexpr std::string_view kBetween = " - ", kBehind = " key";
  const auto between = caption.find(kBetween);
  if (between == std::string::npos) return {caption, ""};
  std::string first = caption.substr(0, between), second = caption.substr(between + kBetween.size());
  if (!second.ends_with(kBehind)) return {second, first};
  second.resize(second.size() - kBehind.size());
  return {first, second};
}

}  // namespace

std::string CaptionInColumns(const Command& command) {
  const Parts parts = PartsOf(command.caption);
  const std::string key = command.keys.empty() ? parts.key : FirstKey(command);
  return key.empty() ? parts.words : parts.words + '\t' + key;
}

std::string CaptionWithKey(const Command& command) {
  const bool named = !PartsOf(command.caption).key.empty();
  return named && !command.keyInColumn ? command.caption : CaptionInColumns(command);
}

std::string TipWithKey(const Command& command) {
  const std::string key = FirstKey(command);
  const bool named = key.empty() || command.tip.empty() || command.tip.ends_with('(' + key + ')');
  const std::string tip = named ? command.tip : command.tip + " (" + key + ')';
  return command.how.empty() ? tip : tip + ": " + command.how;
}

}  // namespace kinalyx
