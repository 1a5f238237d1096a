#include "platform/media/TrimCommand.h"

#include <fmt/format.h>

#include <charconv>

#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

constexpr char kEnd = '*';

/// Cuts the last field off a text; nothing when it is no number from 0.
std::optional<int> TakeNumber(std::string_view& text) {
  if (!text.ends_with(kEnd)) return std::nullopt;
  text.remove_suffix(1);
  const std::size_t before = text.rfind(kEnd);
  if (before == std::string_view::npos) return std::nullopt;
  std::string_view field = text.substr(before + 1);
  while (field.starts_with(' ')) field.remove_prefix(1);
  while (field.ends_with(' ')) field.remove_suffix(1);
  int number = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  if (error != std::errc() || end != field.data() + field.size() || number < 0) return std::nullopt;
  text.remove_suffix(text.size() - before - 1);
  return number;
}

}  // namespace

std::string FormatTrimCommand(const TrimRequest& request) {
  return fmt::format("{}*{}*{}*{}*{}*{}*", request.source, request.destination, request.firstFrame, request.lastFrame,
                     request.rate, request.mode == TrimRequest::Mode::Copy ? 0 : 2);
}

std::optional<TrimRequest> ParseTrimCommand(std::string_view text) {
  const auto mode = TakeNumber(text);
  const auto rate = mode ? TakeNumber(text) : std::nullopt;
  const auto last = rate ? TakeNumber(text) : std::nullopt;
  const auto first = last ? TakeNumber(text) : std::nullopt;
  if (!first || (*mode != 0 && *mode != 2)) return std::nullopt;
  text.remove_suffix(1);  // the end of the destination

  std::optional<TrimRequest> request;
  for (std::size_t at = text.find(kEnd); at != std::string_view::npos; at = text.find(kEnd, at + 1)) {
    const std::string source(text.substr(0, at));
    const std::string destination(text.substr(at + 1));
    if (source.empty() || destination.empty()) continue;
    const bool exists = FileExists(source);
    if (request && !exists) continue;
    request = {source, destination, *first,
               *last,  *rate,       *mode == 0 ? TrimRequest::Mode::Copy : TrimRequest::Mode::Recompress};
    if (exists) break;
  }
  return request;
}

}  // namespace kinalyx
