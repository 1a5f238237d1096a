#include "platform/host/FileKinds.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <vector>

namespace kinalyx {
namespace {

std::string Lower(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return text;
}

/// ".jpg" and ".jpeg" of "*.jpg; *.jpeg"; none of "*".
std::vector<std::string> Endings(const std::string& patterns) {
  std::vector<std::string> endings;
  std::istringstream list(patterns);
  for (std::string pattern; std::getline(list, pattern, ';');)
    if (const auto star = pattern.find("*."); star != std::string::npos) {
      const std::string ending = pattern.substr(star + 1);
      endings.push_back(Lower(ending.substr(0, ending.find_last_not_of(' ') + 1)));
    }
  return endings;
}

}  // namespace

std::string WithEnding(const std::string& path, const std::string& filter, std::size_t kind) {
  std::string first;
  std::istringstream parts(filter);
  std::string caption, patterns;
  for (std::size_t at = 0; std::getline(parts, caption, '|') && std::getline(parts, patterns, '|'); ++at) {
    const std::vector<std::string> endings = Endings(patterns);
    const auto fits = [&](const std::string& ending) { return Lower(path).ends_with(ending); };
    if (std::ranges::any_of(endings, fits)) return path;
    if (at == kind && !endings.empty()) first = endings.front();
  }
  return path + first;
}

}  // namespace kinalyx
