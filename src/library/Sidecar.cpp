#include "library/Sidecar.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <limits>
#include <optional>
#include <vector>

#include "core/Numbers.h"
#include "core/Settings.h"
#include "drawing/ShapeFile.h"
#include "library/VideoNames.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kReserved = 20;
constexpr std::size_t kColourBytes = 4;
constexpr int kLargest16 = 32767;
constexpr std::size_t kFlags = 8;  // the length of a sidecar without anything else
constexpr std::string_view kFullNotesTag = "UTF";

// ---------------------------------------------------------------- reading

/// Takes values off the front of a file. Past its end numbers read as zero and text as blanks; `Even`
/// tells whether everything was there and in its range.
class Reader {
 public:
  /// @param padding  bytes at the end of `bytes` that do not belong to the file
  explicit Reader(std::span<const std::uint8_t> bytes, std::size_t padding = 0) : bytes_(bytes), padding_(padding) {}

  char Character() {
    const char c = AtEnd() ? ' ' : static_cast<char>(bytes_.front());
    Skip(1);
    return c;
  }
  bool Flag(char set) { return Character() == set; }
  void Skip(std::size_t count) {
    if (count > Left()) even_ = false;
    bytes_ = bytes_.subspan(std::min(count, bytes_.size()));
  }
  bool AtEnd() const { return Left() == 0; }
  /// Nothing was missing so far, nothing out of its range.
  bool Even() const { return even_ && bytes_.size() >= padding_; }
  /// What was read cannot be all, or not what was meant.
  void NotEven() { even_ = false; }

  /// 16 bits. The largest texts and windows need all of them, and nothing here is ever negative.
  int Unsigned16() {
    int value = 0;
    for (int shift = 0; shift <= 8; shift += 8) {
      if (!AtEnd()) value |= bytes_.front() << shift;
      Skip(1);
    }
    return value;
  }

  /// A length and as many bytes.
  std::string Text() {
    const auto length = static_cast<std::size_t>(Unsigned16());
    const auto present = bytes_.first(std::min(length, Left()));
    std::string text(present.begin(), present.end());
    text.resize(length, ' ');
    Skip(length);
    return text;
  }

  Shape ShapeRecord() {
    const auto before = bytes_;
    Shape shape = ReadShapeBody(bytes_);
    CheckRecord(before.first(before.size() - bytes_.size()), shape);
    return shape;
  }

  /// The notes in full, which stand behind everything else; nothing when something else stands there.
  std::optional<std::string> FullNotes() {
    const auto rest = bytes_.first(Left());
    constexpr std::size_t kHead = kFullNotesTag.size() + 4;
    if (rest.size() < kHead || !std::equal(kFullNotesTag.begin(), kFullNotesTag.end(), rest.begin()))
      return std::nullopt;
    std::uint32_t length = 0;
    for (std::size_t i = 0; i < 4; ++i) length |= std::uint32_t{rest[kFullNotesTag.size() + i]} << (8 * i);
    std::string text(rest.begin() + kHead, rest.end());
    if (text.size() != length || !IsValidUtf8(text)) return std::nullopt;
    Skip(rest.size());
    return text;
  }

  /// A record of the old layout is the present one without the colour at its end, so that what was read
  /// as the colour belongs to what follows. Needs padding of that size behind the last record.
  Shape OldShapeRecord(std::span<const Colour> toolColours) {
    const auto before = bytes_;
    Shape shape = ReadShapeBody(bytes_);
    const std::size_t taken = before.size() - bytes_.size();
    CheckRecord(before.first(taken), shape);
    bytes_ = before.subspan(taken - std::min(taken, kColourBytes));
    const auto kind = static_cast<std::size_t>(std::max<int>(shape.Kind, 0));
    shape.Colour = kind < toolColours.size() ? toolColours[kind] : Rgb(255, 255, 255);
    return shape;
  }

 private:
  std::size_t Left() const { return bytes_.size() - std::min(padding_, bytes_.size()); }
  /// A sound record is written as it was read.
  void CheckRecord(std::span<const std::uint8_t> read, const Shape& shape) {
    Bytes written;
    WriteShapeBody(shape, written);
    if (!std::ranges::equal(written, read)) even_ = false;
  }

  std::span<const std::uint8_t> bytes_;
  std::size_t padding_;
  bool even_ = true;
};

bool IsCompressor(const VideoInfo& video, std::string_view name) {
  return FoldCase(video.compressor) == FoldCase(name);
}

/// How the fields of a video are shown that has no sidecar to say it; nothing for most kinds.
struct FieldOptions {
  bool ReverseFields = false;
  bool SplitFields = false;
};
std::optional<FieldOptions> DefaultFields(const VideoInfo& video) {
  const bool dvSize = video.width == 720 && (video.height == 480 || video.height == 576);
  if (IsCompressor(video, "dvsd") && dvSize) return FieldOptions{true, true};
  const bool fast = video.scale > 0 && video.rate >= 32 * video.scale;
  if (IsCompressor(video, "IV50") && video.height == 480 && fast) return FieldOptions{false, true};
  return std::nullopt;
}

/// Windows are measured in twips in the file.
int PixelsOfTwips(int twips) { return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel; }

template <typename Read>
void ReadShapes(Reader& reader, SlotData& data, Read readRecord) {
  data.PictureWidth = PixelsOfTwips(reader.Unsigned16());
  data.PictureHeight = PixelsOfTwips(reader.Unsigned16());
  const int count = reader.Unsigned16();
  data.NextShape = reader.Unsigned16();
  int read = 0;
  for (; read < std::min(count, kLargest16) && !reader.AtEnd(); ++read) {
    Shape shape = readRecord();
    // Of a record that is cut off nothing may be left to see.
    if (reader.Even() || shape.NumPts > 0) data.Shapes.Shapes.push_back(std::move(shape));
  }
  if (read < count) reader.NotEven();
  data.Shapes.NumShapes = static_cast<std::int16_t>(data.Shapes.Shapes.size());
}

/// Notes of a length that other programs cannot read are there, but were never theirs to write.
std::string ReadNotes(Reader& reader) {
  std::string notes = reader.Text();
  if (notes.size() > kMaxNotes) reader.NotEven();
  return notes;
}

/// @param flagsAlone  the file ends behind its flags, as that of a video does that was just captured
SlotData ReadPresentFormat(Reader& reader, bool flagsAlone) {
  SlotData data;
  data.Wide = reader.Flag('W');
  data.ReverseFields = reader.Flag('R');
  data.SplitFields = reader.Flag('S');
  const bool shapes = reader.Flag('S');
  const bool notes = reader.Flag('N');
  const bool value = reader.Flag('C');
  const bool rate = reader.Flag('F');
  if (!flagsAlone) reader.Skip(kReserved);
  if (shapes) ReadShapes(reader, data, [&] { return reader.ShapeRecord(); });
  const std::string narrow = notes ? ReadNotes(reader) : std::string();
  if (value) data.CValue = static_cast<float>(ReadNumber(reader.Text()));
  if (rate) data.RealFrameRate = ReadInt32(reader.Text());
  auto full = reader.FullNotes();
  // A program that does not know the full notes may have changed the others; then those count.
  data.Notes = full && ToWindows1252(*full) == narrow ? std::move(*full) : FromWindows1252(narrow);
  data.Unread = !reader.Even() || !reader.AtEnd();
  return data;
}

SlotData ReadOldFormat(Reader& reader, const VideoInfo& video, std::span<const Colour> toolColours) {
  SlotData data;
  const bool reverse = reader.Flag('R');
  const bool split = reader.Flag('X');
  const FieldOptions fields = DefaultFields(video).value_or(FieldOptions{reverse, split});
  data.ReverseFields = fields.ReverseFields;
  data.SplitFields = fields.SplitFields;
  const bool shapes = reader.Flag('S');
  const bool notes = reader.Flag('N');
  if (shapes) ReadShapes(reader, data, [&] { return reader.OldShapeRecord(toolColours); });
  if (notes) data.Notes = FromWindows1252(ReadNotes(reader));
  data.Unread = !reader.Even() || !reader.AtEnd();
  return data;
}

// ---------------------------------------------------------------- writing

void Put16(Bytes& bytes, int value) {
  bytes.push_back(static_cast<std::uint8_t>(value & 0xFF));
  bytes.push_back(static_cast<std::uint8_t>((value >> 8) & 0xFF));
}

void PutText(Bytes& bytes, std::string_view text) {
  Put16(bytes, static_cast<int>(text.size()));
  bytes.insert(bytes.end(), text.begin(), text.end());
}

Bytes Head(bool wide, bool reverseFields, bool splitFields) {
  return {'1', static_cast<std::uint8_t>(wide ? 'W' : 'X'), static_cast<std::uint8_t>(reverseFields ? 'R' : 'X'),
          static_cast<std::uint8_t>(splitFields ? 'S' : 'X')};
}

void PutShapes(Bytes& bytes, const SlotData& data) {
  ShapeList stretched;
  const ShapeList* list = &data.Shapes;
  int width = data.PictureWidth * kTwipsPerPixel;
  int height = data.PictureHeight * kTwipsPerPixel;
  // Other programs read the sizes as signed numbers. Drawings of a window too large for that are stored
  // as those of a smaller one.
  if (const int larger = std::max(width, height); larger > kLargest16) {
    const double scale = static_cast<double>(kMostPictureSide * kTwipsPerPixel) / larger;
    const auto smaller = [&](int pixels) { return std::max(1, static_cast<int>(std::lround(pixels * scale))); };
    width = smaller(data.PictureWidth) * kTwipsPerPixel;
    height = smaller(data.PictureHeight) * kTwipsPerPixel;
    stretched = data.Shapes;
    StretchShapes(stretched, data.PictureWidth, data.PictureHeight, width / kTwipsPerPixel, height / kTwipsPerPixel);
    list = &stretched;
  }
  const auto shapes = ShapesOf(*list);
  Put16(bytes, width);
  Put16(bytes, height);
  Put16(bytes, static_cast<int>(shapes.size()));
  Put16(bytes, std::clamp(data.NextShape, 0, kLargest16));
  for (const Shape& shape : shapes) WriteShapeBody(shape, bytes);
}

void PutFullNotes(Bytes& bytes, std::string_view text) {
  bytes.insert(bytes.end(), kFullNotesTag.begin(), kFullNotesTag.end());
  Put16(bytes, static_cast<int>(text.size() & 0xFFFF));
  Put16(bytes, static_cast<int>(text.size() >> 16));
  bytes.insert(bytes.end(), text.begin(), text.end());
}

Bytes BytesOf(const SlotData& data) {
  const std::string_view text = FittingNotes(data.Notes);
  const std::string notes = ToWindows1252(text);
  const bool shapes = !ShapesOf(data.Shapes).empty();
  Bytes bytes = Head(data.Wide, data.ReverseFields, data.SplitFields);
  bytes.push_back(shapes ? 'S' : 'X');
  bytes.push_back(notes.empty() ? 'X' : 'N');
  bytes.push_back(data.CValue != 0 ? 'C' : 'X');
  bytes.push_back(data.RealFrameRate != 0 ? 'F' : 'X');
  bytes.insert(bytes.end(), kReserved, 'X');
  if (shapes) PutShapes(bytes, data);
  if (!notes.empty()) PutText(bytes, notes);
  const std::string value = fmt::format("{}", data.CValue);
  if (data.CValue != 0) PutText(bytes, value);
  // The block of the rate has always carried the text of the other value, and files rest on it.
  if (data.RealFrameRate != 0) PutText(bytes, value);
  if (IsValidUtf8(text) && FromWindows1252(notes) != text) PutFullNotes(bytes, text);
  return bytes;
}

Outcome WriteFlags(const std::string& path, bool wide, bool reverseFields, bool splitFields) {
  Bytes bytes = Head(wide, reverseFields, splitFields);
  bytes.insert(bytes.end(), 4, 'X');
  return WriteWholeFile(path, bytes);
}

}  // namespace

std::string_view FittingNotes(std::string_view notes) {
  if (NotesLength(notes) <= kMaxNotes) return notes;
  std::size_t characters = 0;
  std::size_t end = 0;
  while (end < notes.size() && characters <= kMaxNotes) {
    const bool first = (static_cast<std::uint8_t>(notes[end]) & 0xC0) != 0x80;
    if (first && ++characters > kMaxNotes) break;
    ++end;
  }
  if (end > 0 && notes[end - 1] == '\r') --end;
  return notes.substr(0, end);
}

std::size_t NotesLength(std::string_view notes) { return ToWindows1252(notes).size(); }

std::string SidecarPath(std::string_view videoPath) {
  const std::string name = SidecarName(videoPath);
  const std::string folder(videoPath.substr(0, videoPath.size() - LastName(videoPath).size()));
  const std::string stem = folder + name.substr(0, name.size() - 3);
  constexpr unsigned kEndings = 8;  // each of the three letters small or large; first all small
  for (unsigned large = 0; large < kEndings; ++large) {
    std::string path = stem + "ved";
    for (unsigned letter = 0; letter < 3; ++letter)
      if (large >> letter & 1) path[stem.size() + letter] = static_cast<char>(path[stem.size() + letter] - 'a' + 'A');
    if (FileExists(path)) return path;
  }
  return stem + "ved";
}

SlotData DefaultVideoData(const VideoInfo& video) {
  SlotData data;
  const FieldOptions fields = DefaultFields(video).value_or(FieldOptions{});
  data.ReverseFields = fields.ReverseFields;
  data.SplitFields = fields.SplitFields;
  return data;
}

SlotData ReadVideoData(const std::string& path, const VideoInfo& video, std::span<const Colour> toolColours) {
  const auto file = ReadWholeFile(path);
  Bytes bytes = file.value_or(Bytes());
  bytes.insert(bytes.end(), kColourBytes, 0);
  Reader reader(bytes, kColourBytes);
  switch (reader.Character()) {
    case '1': return ReadPresentFormat(reader, file->size() == kFlags);
    case 'V': {
      SlotData data = ReadOldFormat(reader, video, toolColours);
      // When this cannot be written the old file stands, and is converted the next time.
      if (!data.Unread) (void)WriteVideoData(path, data);
      return data;
    }
    default: {
      SlotData data = DefaultVideoData(video);
      data.Unread = file ? !file->empty() : FileExists(path);
      return data;
    }
  }
}

Result<std::string> WriteVideoData(const std::string& path, const SlotData& data, IDisk& disk) {
  std::string old;
  if (data.Unread && FileExists(path)) {
    old = KeptPath(path);
    if (disk.Rename(path, old) < 0) return Outcome::FailedBySystem(errno);
  }
  if (Outcome written = WriteWholeFile(path, BytesOf(data), disk); !written) {
    if (!old.empty()) disk.Rename(old, path);
    return written;
  }
  if (FittingNotes(data.Notes).size() == data.Notes.size()) return std::string();
  std::string notice = Tr("The notes are longer than {} characters. What follows was not saved.", kMaxNotes);
  if (!old.empty()) notice += Tr(" What was stored before is kept in {}.", old);
  return notice;
}

Outcome WriteCaptureVideoData(const std::string& path, bool fromCamera, bool wide, const Settings& settings) {
  return fromCamera ? WriteFlags(path, wide, settings.ReverseFields, settings.SplitFields)
                    : WriteFlags(path, wide, settings.HDReverseFields, settings.HDSplitFields);
}

Outcome WriteVideoFlags(const std::string& path, const SlotData& data) {
  return WriteFlags(path, data.Wide, data.ReverseFields, data.SplitFields);
}

Outcome WriteImportedVideoData(const std::string& path, const VideoInfo& video, bool reverseFields) {
  const bool wide = video.height > 0 && 2 * video.width > 3 * video.height;
  const bool dv = IsCompressor(video, "dvsd");
  return WriteFlags(path, wide, dv || reverseFields, dv);
}

SidecarMarks ReadSidecarMarks(const std::string& path) {
  SidecarMarks marks;
  std::ifstream file;
  file.rdbuf()->pubsetbuf(nullptr, 0);  // two bytes are wanted, so two are read
  file.open(path, std::ios::binary);
  char bytes[2];
  file.seekg(4);
  if (file.get(bytes[0])) marks.First = bytes[0];
  if (file.get(bytes[1])) marks.Second = bytes[1];
  return marks;
}

std::string ReadSidecarNotes(const std::string& path) {
  if (!ReadSidecarMarks(path).HasNotes()) return {};
  Bytes bytes = ReadWholeFile(path).value_or(Bytes());
  bytes.insert(bytes.end(), kColourBytes, 0);
  Reader reader(bytes, kColourBytes);
  return reader.Character() == '1' ? ReadPresentFormat(reader, false).Notes : std::string();
}

}  // namespace kinalyx
