#include "platform/media/EditList.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string_view>
#include <vector>

namespace kinalyx {
namespace {

/// A stretch of the file: the content of a box.
struct Box {
  std::int64_t begin = 0;
  std::int64_t end = 0;
};

class BoxFile {
 public:
  explicit BoxFile(const std::string& path) : file_(path, std::ios::in | std::ios::out | std::ios::binary) {
    file_.seekg(0, std::ios::end);
    whole_ = {0, static_cast<std::int64_t>(file_.tellg())};
  }

  explicit operator bool() const { return static_cast<bool>(file_); }
  Box Whole() const { return whole_; }

  std::uint64_t Number(std::int64_t place, int bytes) {
    std::uint64_t value = 0;
    file_.seekg(place);
    for (int i = 0; i < bytes; ++i) value = value << 8 | static_cast<std::uint8_t>(file_.get());
    return value;
  }

  bool SetNumber(std::int64_t place, std::uint64_t value, int bytes) {
    file_.seekp(place);
    for (int i = bytes - 1; i >= 0; --i) file_.put(static_cast<char>(value >> 8 * i));
    file_.flush();
    return static_cast<bool>(file_);
  }

  /// All boxes of a name that lie directly in another.
  std::vector<Box> In(Box outer, std::string_view name) {
    std::vector<Box> found;
    for (std::int64_t at = outer.begin; at + 8 <= outer.end && file_;) {
      auto size = static_cast<std::int64_t>(Number(at, 4));
      std::int64_t head = 8;
      std::string own(4, '\0');
      file_.read(own.data(), 4);
      if (size == 1) {
        size = static_cast<std::int64_t>(Number(at + 8, 8));
        head = 16;
      }
      if (size < head || size > outer.end - at) break;
      if (own == name) found.push_back({at + head, at + size});
      at += size;
    }
    return found;
  }

  std::optional<Box> First(std::optional<Box> outer, std::string_view name) {
    if (!outer) return std::nullopt;
    const std::vector<Box> found = In(*outer, name);
    return found.empty() ? std::nullopt : std::optional(found.front());
  }

 private:
  std::fstream file_;
  Box whole_;
};

bool ShowsPictures(BoxFile& file, Box track) {
  constexpr std::uint64_t kVideo = 0x76696465;  // "vide"
  const auto handler = file.First(file.First(track, "mdia"), "hdlr");
  return handler && file.Number(handler->begin + 8, 4) == kVideo;
}

}  // namespace

bool EndEditAt(const std::string& path, double seconds) {
  BoxFile file(path);
  if (!file) return false;
  const auto movie = file.First(file.Whole(), "moov");
  const auto head = file.First(movie, "mvhd");
  if (!head) return false;
  const bool longHead = file.Number(head->begin, 1) == 1;
  const auto unitsPerSecond = static_cast<double>(file.Number(head->begin + (longHead ? 20 : 12), 4));
  for (const Box& track : file.In(*movie, "trak")) {
    if (!ShowsPictures(file, track)) continue;
    const auto edits = file.First(file.First(track, "edts"), "elst");
    if (!edits) return false;
    const bool longEdits = file.Number(edits->begin, 1) == 1;
    const auto count = static_cast<std::int64_t>(file.Number(edits->begin + 4, 4));
    const std::int64_t editBytes = longEdits ? 20 : 12;
    const std::int64_t last = edits->begin + 8 + (count - 1) * editBytes;
    if (count < 1 || last + editBytes > edits->end) return false;
    return file.SetNumber(last, static_cast<std::uint64_t>(std::llround(seconds * unitsPerSecond)), longEdits ? 8 : 4);
  }
  return false;
}

}  // namespace kinalyx
