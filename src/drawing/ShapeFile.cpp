#include "drawing/ShapeFile.h"

#include <algorithm>
#include <bit>
#include <filesystem>
#include <limits>
#include <string_view>

#include "platform/files/FileStore.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kPointBytes = 8;
constexpr std::string_view kShapeTag = "INF";
constexpr std::string_view kNamesTag = "MNL";
constexpr std::string_view kEndTag = "EOF";
constexpr std::string_view kFullNamesTag = "UTF";

// ---------------------------------------------------------------- reading

/// Takes numbers and text off the front of a view; what is missing reads as zeros.
class Reader {
 public:
  explicit Reader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint8_t Byte() {
    if (bytes_.empty()) return 0;
    const std::uint8_t byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }
  std::int16_t Int16() {
    const unsigned low = Byte();
    return static_cast<std::int16_t>(low | Byte() << 8);
  }
  std::int32_t Int32() {
    const auto low = static_cast<std::uint16_t>(Int16());
    return static_cast<std::int32_t>(low | std::uint32_t{static_cast<std::uint16_t>(Int16())} << 16);
  }
  std::string Text(std::size_t length) {
    length = std::min(length, bytes_.size());
    std::string text(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(length));
    bytes_ = bytes_.subspan(length);
    return text;
  }
  std::span<const std::uint8_t> Rest() const { return bytes_; }
  /// Nothing more can be told apart.
  void GiveUp() { bytes_ = {}; }

 private:
  std::span<const std::uint8_t> bytes_;
};

/// Head of an array block: how many elements are to be read, each of at least `least` bytes.
std::size_t ReadCount(Reader& reader, std::size_t least) {
  const int dimensions = reader.Int16();
  if (dimensions == 0) return 0;
  if (dimensions != 1) {
    reader.GiveUp();
    return 0;
  }
  const std::int32_t count = reader.Int32();
  reader.Int32();  // lower bound, 0 in all files
  const std::size_t room = (reader.Rest().size() + least - 1) / least;
  return std::min(static_cast<std::size_t>(std::max(count, 0)), room);
}

std::vector<POINTAPI> ReadPoints(Reader& reader) {
  std::vector<POINTAPI> points(ReadCount(reader, kPointBytes));
  for (POINTAPI& point : points) {
    point.x = reader.Int32();
    point.y = reader.Int32();
  }
  return points;
}

std::vector<std::string> ReadNames(Reader& reader) {
  std::vector<std::string> names(std::min<std::size_t>(ReadCount(reader, 2), kMostShapeLists));
  for (std::string& name : names) {
    const std::int16_t length = reader.Int16();
    name = reader.Text(static_cast<std::size_t>(std::max<std::int16_t>(length, 0)));
  }
  return names;
}

/// The names of a file and, behind its end, perhaps the same in full. A full name counts when it is that of
/// its place still: a program that does not know of them may have kept them.
std::vector<std::string> ReadAllNames(Reader& reader) {
  std::vector<std::string> names = ReadNames(reader);
  std::vector<std::string> full;
  if (reader.Text(3) == kEndTag && reader.Text(3) == kFullNamesTag) full = ReadNames(reader);
  full.resize(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    const bool counts = IsValidUtf8(full[i]) && ToWindows1252(full[i]) == names[i];
    names[i] = counts ? std::move(full[i]) : FromWindows1252(names[i]);
  }
  return names;
}

// ---------------------------------------------------------------- writing

void PutInt16(Bytes& bytes, int value) {
  bytes.push_back(static_cast<std::uint8_t>(value));
  bytes.push_back(static_cast<std::uint8_t>(value >> 8));
}

void PutInt32(Bytes& bytes, std::int32_t value) {
  PutInt16(bytes, value);
  PutInt16(bytes, value >> 16);
}

void PutText(Bytes& bytes, std::string_view text) {
  for (const char c : text) bytes.push_back(static_cast<std::uint8_t>(c));
}

void PutPoints(Bytes& bytes, const std::vector<POINTAPI>& points) {
  PutInt16(bytes, points.empty() ? 0 : 1);
  if (points.empty()) return;
  PutInt32(bytes, static_cast<std::int32_t>(points.size()));
  PutInt32(bytes, 0);
  // In memory points lie as they do in the file.
  static_assert(std::endian::native == std::endian::little && sizeof(POINTAPI) == kPointBytes);
  const auto* first = reinterpret_cast<const std::uint8_t*>(points.data());
  bytes.insert(bytes.end(), first, first + points.size() * kPointBytes);
}

void PutNames(Bytes& bytes, std::string_view tag, const std::vector<std::string>& names) {
  PutText(bytes, tag);
  PutInt16(bytes, 1);
  PutInt32(bytes, static_cast<std::int32_t>(names.size()));
  PutInt32(bytes, 0);
  for (const std::string& name : names) {
    PutInt16(bytes, static_cast<int>(name.size()));
    PutText(bytes, name);
  }
}

/// The names, the end of the file, and where Windows-1252 lacks a character the names in full: whoever knows
/// nothing of them stops at the end.
void PutAllNames(Bytes& bytes, const std::vector<std::string>& names) {
  constexpr std::size_t kLongest = std::numeric_limits<std::int16_t>::max();
  std::vector<std::string> narrow;
  std::vector<std::string> full;
  bool fits = true;
  for (const std::string& name : names) {
    narrow.push_back(ToWindows1252(name).substr(0, kLongest));
    full.emplace_back(CutUtf8(name, kLongest));
    fits = fits && FromWindows1252(narrow.back()) == name;
  }
  PutNames(bytes, kNamesTag, narrow);
  PutText(bytes, kEndTag);
  if (!fits) PutNames(bytes, kFullNamesTag, full);
}

std::string VideoShapesPath(const std::string& videoPath) {
  return videoPath.substr(0, videoPath.size() - std::min<std::size_t>(4, videoPath.size())) + ".dat";
}

}  // namespace

Shape ReadShapeBody(std::span<const std::uint8_t>& bytes) {
  Reader reader(bytes);
  Shape shape;
  shape.NumBound = reader.Int16();
  shape.NumPts = reader.Int16();
  shape.Kind = reader.Int16();
  shape.Locked = reader.Int16() != 0;
  shape.Pts = ReadPoints(reader);
  shape.SavedPts = ReadPoints(reader);
  shape.Colour = reader.Int32();
  const auto most =
      static_cast<std::int16_t>(std::min<std::size_t>(shape.Pts.size(), std::numeric_limits<std::int16_t>::max()));
  shape.NumPts = std::clamp<std::int16_t>(shape.NumPts, 0, most);
  shape.NumBound = std::clamp<std::int16_t>(shape.NumBound, 0, shape.NumPts);
  bytes = reader.Rest();
  return shape;
}

void WriteShapeBody(const Shape& shape, Bytes& bytes) {
  PutInt16(bytes, shape.NumBound);
  PutInt16(bytes, shape.NumPts);
  PutInt16(bytes, shape.Kind);
  PutInt16(bytes, shape.Locked ? -1 : 0);
  PutPoints(bytes, shape.Pts);
  PutPoints(bytes, shape.SavedPts);
  PutInt32(bytes, shape.Colour);
}

bool ReadShapeFile(std::span<const std::uint8_t> bytes, ScreenTwips screen, ShapeFileContent& content) {
  const auto length = static_cast<std::int16_t>(bytes.size() & 0xFFFF);
  if (length == 0) return false;
  Reader reader(bytes);
  if (reader.Text(2) != "SL") return false;
  content = {};
  content.lowerBound = reader.Int16();
  const int upperBound = reader.Int16();
  const int lists = std::clamp(upperBound - content.lowerBound + 1, 0, kMostShapeLists);
  content.Lists.resize(static_cast<std::size_t>(lists));

  std::string tag;
  do {
    tag = reader.Text(3);
    if (tag == kShapeTag) {
      const int index = reader.Byte() - content.lowerBound;
      auto rest = reader.Rest();
      Shape shape = ReadShapeBody(rest);
      reader = Reader(rest);
      const std::int32_t width = reader.Int32();
      const std::int32_t height = reader.Int32();
      if (index < 0 || index >= lists) continue;
      ShapeList& list = content.Lists[static_cast<std::size_t>(index)];
      if (list.NumShapes == std::numeric_limits<std::int16_t>::max()) continue;
      list.Shapes.push_back(std::move(shape));
      ++list.NumShapes;
      list.CanvasWidth = width != 0 ? width : screen.width / 2;
      list.CanvasHeight = height != 0 ? height : screen.height / 2;
    } else if (tag == kNamesTag) {
      content.Names = ReadAllNames(reader);
      break;
    }
    // The next byte counts from 1, and the length is a signed one: see kShapeFileLimit.
  } while (tag != kEndTag && !reader.Rest().empty() &&
           static_cast<std::int64_t>(bytes.size() - reader.Rest().size() + 1) < length);
  return true;
}

bool ComesOutEven(std::span<const std::uint8_t> bytes) {
  ShapeFileContent content;
  return ReadShapeFile(bytes, {}, content) && std::ranges::equal(WriteShapeFile(content), bytes);
}

Bytes WriteShapeFile(const ShapeFileContent& content) {
  Bytes bytes;
  PutText(bytes, "SL");
  PutInt16(bytes, content.lowerBound);
  PutInt16(bytes, content.lowerBound + static_cast<int>(content.Lists.size()) - 1);
  int number = content.lowerBound;
  for (const ShapeList& list : content.Lists) {
    if (number >= 0 && number < kMostShapeLists) {
      for (const Shape& shape : ShapesOf(list)) {
        PutText(bytes, kShapeTag);
        bytes.push_back(static_cast<std::uint8_t>(number));
        WriteShapeBody(shape, bytes);
        PutInt32(bytes, list.CanvasWidth);
        PutInt32(bytes, list.CanvasHeight);
      }
    }
    ++number;
  }
  if (content.Names.empty()) PutText(bytes, kEndTag);
  else PutAllNames(bytes, content.Names);
  return bytes;
}

Outcome SaveShapeList(const std::string& path, const ShapeLists& lists) {
  ShapeFileContent content{1, {}, {}};
  for (int window = 1; window <= ShapeLists::kWindows; ++window) content.Lists.push_back(lists(window));
  return WriteWholeFile(path, WriteShapeFile(content));
}

bool LoadShapeList(const std::string& path, ScreenTwips screen, ShapeLists& lists) {
  const auto bytes = ReadWholeFile(path);
  ShapeFileContent content;
  if (!bytes || !ReadShapeFile(*bytes, screen, content)) return false;
  for (int window = 1; window <= ShapeLists::kWindows; ++window) {
    const auto index = static_cast<std::size_t>(window - content.lowerBound);
    lists(window) = index < content.Lists.size() ? std::move(content.Lists[index]) : ShapeList{};
  }
  return true;
}

Outcome SaveVideoSL(const std::string& videoPath, const ShapeList& list) {
  const std::string path = VideoShapesPath(videoPath);
  if (!ShapesOf(list).empty()) return WriteWholeFile(path, WriteShapeFile({0, {list}, {}}));
  std::error_code failed;
  std::filesystem::remove(path, failed);
  return failed ? Outcome::Failed(failed.message()) : Outcome();
}

bool LoadVideoSL(const std::string& videoPath, ScreenTwips screen, ShapeList& list) {
  const auto bytes = ReadWholeFile(VideoShapesPath(videoPath));
  ShapeFileContent content;
  if (!bytes || !ReadShapeFile(*bytes, screen, content)) return false;
  list = content.Lists.empty() ? ShapeList{} : std::move(content.Lists.front());
  return true;
}

}  // namespace kinalyx
