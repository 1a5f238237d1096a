#pragma once

#include <optional>
#include <span>

#include "workspace/commands/MenuBar.h"

namespace kinalyx {

/// Which keys a row belongs to.
enum class KeySet { Both, Classic, Editor };

struct KeyRow {
  const char* item;
  KeyStroke key;
  KeySet set = KeySet::Both;
};

constexpr KeyStroke Key(int code, std::optional<int> shift = {}) { return {KeyStroke::Kind::Code, code, shift}; }
constexpr KeyStroke Letter(char capital) { return {KeyStroke::Kind::Letter, capital, {}}; }

/// What each key does, by the name of its command. F1 to F12 and 1 to 8 are the drawing tools and the layouts,
/// in the order of the menus.
std::span<const KeyRow> KeyRows();

}  // namespace kinalyx
