#include "drawing/ShapeFile.h"

#include <random>

#include "DrawingSupport.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Bytes from hexadecimal digits; blanks and text in single quotes are allowed.
Bytes Hex(std::string_view text) {
  Bytes bytes;
  std::string digits;
  bool quoted = false;
  for (const char c : text) {
    if (c == '\'') {
      quoted = !quoted;
    } else if (quoted) {
      bytes.push_back(static_cast<std::uint8_t>(c));
    } else if (c != ' ') {
      digits += c;
      if (digits.size() == 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(digits, nullptr, 16)));
        digits.clear();
      }
    }
  }
  return bytes;
}

// A line from (1, 2) to (-1, 256), three slots, never turned, colour 0x0000FF.
const std::string kLineBody =
    "0200 0200 0300 FFFF "
    "0100 03000000 00000000 01000000 02000000 FFFFFFFF 00010000 00000000 00000000 "
    "0000 "
    "FF000000 ";

TEST(ShapeFile, AShapeBodyIsReadAndWrittenByteForByte) {
  const Bytes bytes = Hex(kLineBody + "AABB");
  std::span<const std::uint8_t> rest = bytes;
  const Shape line = ReadShapeBody(rest);
  EXPECT_EQ(line, Finished(kLine, {{1, 2}, {-1, 256}}));
  EXPECT_EQ(rest.size(), 2u);
  Bytes written;
  WriteShapeBody(line, written);
  EXPECT_EQ(written, Hex(kLineBody));

  // Once turned, the saved points leave one element behind; a clock keeps its rotation in the spare slot.
  Shape clock = Finished(kClock, {{1, 2}, {3, 4}}, 5);
  clock.Pts[2].x = 15;
  clock.SavedPts.resize(1);
  written.clear();
  WriteShapeBody(clock, written);
  EXPECT_EQ(written,
            Hex("0200 0200 0900 FFFF 0100 03000000 00000000 01000000 02000000 03000000 04000000 0F000000 00000000 "
                "0100 01000000 00000000 00000000 00000000 05000000"));
  rest = written;
  EXPECT_EQ(ReadShapeBody(rest), clock);
}

TEST(ShapeFile, ACountBeyondTheFileTakesNoMemory) {
  // Two thousand million points in a file of thirty bytes, and a negative count.
  for (const char* count : {"FFFFFF7F", "FFFFFFFF"}) {
    const Bytes bytes = Hex("FF7F FF7F 0000 FFFF 0100 " + std::string(count) + " 00000000 01000000 01000000");
    std::span<const std::uint8_t> rest = bytes;
    EXPECT_LE(ReadShapeBody(rest).Pts.size(), 1u);
  }
}

TEST(ShapeFile, AContainerIsReadFromHandWrittenBytes) {
  const Bytes bytes = Hex("'SL' 0000 0100 'INF' 01 " + kLineBody +
                          "00000000 E0100000 'MNL' 0100 02000000 00000000 0300 '" + "One' 0200 'Z' FC 'EOF'");
  ShapeFileContent content;
  ASSERT_TRUE(ReadShapeFile(bytes, {28800, 16200}, content));
  ASSERT_EQ(content.Lists.size(), 2u);
  EXPECT_EQ(content.Lists[0].CurShape, -1);
  ASSERT_EQ(content.Lists[1].NumShapes, 1);
  EXPECT_EQ(content.Lists[1].CanvasWidth, 14400) << "half the screen where nothing is stored";
  EXPECT_EQ(content.Lists[1].CanvasHeight, 4320);
  EXPECT_EQ(content.Names, (std::vector<std::string>{"One", "Zü"}));
  content.Lists[1].CanvasWidth = 0;
  EXPECT_EQ(WriteShapeFile(content), bytes);

  ASSERT_TRUE(ReadShapeFile(Hex("'SL' 0100 0800 'EOF'"), {}, content));
  EXPECT_FALSE(ReadShapeFile(Hex("'XL' 0100 0200 'EOF'"), {}, content));
  EXPECT_FALSE(ReadShapeFile({}, {}, content));
  EXPECT_EQ(content.Lists.size(), 8u) << "untouched";
}

TEST(ShapeFile, NamesInAllLettersStandBehindTheEnd) {
  // Whoever stops at the end reads the names as far as they fit into one byte a character.
  const Bytes old = Hex("'SL' 0000 0100 'MNL' 0100 02000000 00000000 0300 '?a?' 0200 'Z' FC 'EOF'");
  Bytes bytes = old;
  const Bytes full = Hex("'UTF' 0100 02000000 00000000 0600 C581 61 E3818B 0300 'Z' C3BC");
  bytes.insert(bytes.end(), full.begin(), full.end());
  ShapeFileContent content{0, {{}, {}}, {"Łaか", "Zü"}};
  EXPECT_EQ(WriteShapeFile(content), bytes);
  EXPECT_TRUE(ReadShapeFile(bytes, {}, content) && ComesOutEven(bytes));
  EXPECT_EQ(content.Names, (std::vector<std::string>{"Łaか", "Zü"}));
  ASSERT_TRUE(ReadShapeFile(old, {}, content) && ComesOutEven(old));
  EXPECT_EQ(content.Names, (std::vector<std::string>{"?a?", "Zü"}));
  // Another program has changed a name and left the rest standing; or the rest is no UTF-8.
  const std::pair<std::size_t, const char*> cases[] = {{old.size() - 5, "bü"}, {bytes.size() - 1, "Zü"}};
  for (const auto& [changed, name] : cases) {
    Bytes odd = bytes;
    odd[changed] = 'b';
    ASSERT_TRUE(ReadShapeFile(odd, {}, content));
    EXPECT_EQ(content.Names, (std::vector<std::string>{"Łaか", name}));
    EXPECT_FALSE(ComesOutEven(odd));
  }
}

TEST(ShapeFile, AFileBeyondTheLimitIsReadAsItsLengthWraps) {
  const auto file = [](std::size_t size) {
    ShapeList list;
    for (int i = 0; i < 300; ++i) Add(list, Finished(kFreehand, {{i, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}}));
    while (WriteShapeFile({0, {list}, {}}).size() < size) Add(list, Finished(kFlag, {{1, 1}}));
    Bytes bytes = WriteShapeFile({0, {list}, {}});
    bytes.resize(size);
    return bytes;
  };
  const auto shapes = [&](std::size_t size) {
    ShapeFileContent content;
    return ReadShapeFile(file(size), {}, content) ? content.Lists[0].NumShapes : -1;
  };
  EXPECT_GT(shapes(kShapeFileLimit), 300);
  EXPECT_EQ(shapes(40000), 1);
  EXPECT_EQ(shapes(65536), -1) << "empty";
  EXPECT_EQ(shapes(65536 + 200), 3) << "as if it had 200 bytes";
}

TEST(ShapeFile, NoBytesBringTheReaderDown) {
  std::mt19937 random(7);
  ShapeList list;
  for (int kind = 0; kind < kShapeKinds; ++kind) Add(list, Finished(kind, {{1, 2}, {3, 4}, {5, 6}}));
  const Bytes whole = WriteShapeFile({0, {list, list}, {"a", "b"}});
  for (int i = 0; i < 3000; ++i) {
    Bytes bytes = whole;
    for (int change = 0; change < 6; ++change) bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
    bytes.resize(random() % bytes.size());
    ShapeFileContent content;
    ReadShapeFile(bytes, {100, 100}, content);
    for (const ShapeList& read : content.Lists)
      for (const Shape& shape : ShapesOf(read)) {
        ASSERT_LE(shape.Pts.size(), bytes.size());
        ASSERT_LE(shape.NumBound, shape.NumPts);
        ASSERT_LE(static_cast<std::size_t>(shape.NumPts), shape.Pts.size());
      }
  }
}

TEST(ShapeFile, ListsAreStoredUnderANameAndBesideAVideo) {
  TempFolder folder;
  ShapeLists lists, read;
  Add(lists(3), Finished(kLine, {{1, 2}, {3, 4}}));
  lists(3).CanvasWidth = lists(3).CanvasHeight = 900;
  Add(read(1), Finished(kFlag, {{9, 9}}));
  ASSERT_TRUE(SaveShapeList(folder.Path("all"), lists) && LoadShapeList(folder.Path("all"), {}, read));
  EXPECT_EQ(read(3), lists(3));
  EXPECT_EQ(read(1).NumShapes, 0);

  const std::string video = folder.Path("swing.avi");
  ShapeList list;
  ASSERT_TRUE(SaveVideoSL(video, lists(3)) && LoadVideoSL(video, {}, list));
  EXPECT_EQ(list, lists(3));
  ASSERT_TRUE(SaveVideoSL(video, {}));
  EXPECT_EQ(folder.FileCount(), 1u) << "without drawings there is no file beside the video";
  EXPECT_FALSE(LoadVideoSL(video, {}, list));
  EXPECT_EQ(list, lists(3));
}

}  // namespace
}  // namespace kinalyx::test
