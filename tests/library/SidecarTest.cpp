#include "library/Sidecar.h"

#include <array>

#include "library/TempLibrary.h"
#include "support/TestDisks.h"

namespace kinalyx {
namespace {

using test::TempLibrary;

constexpr std::array<Colour, 13> kToolColours{1, 2, 3, 0x0000FF, 5, 6, 7, 8, 9, 10, 11, 12, 13};
const std::string kReserved(20, 'X');

std::string Int16(int value) { return {static_cast<char>(value & 0xFF), static_cast<char>((value >> 8) & 0xFF)}; }
std::string Int32(int value) { return Int16(value & 0xFFFF) + Int16((value >> 16) & 0xFFFF); }

/// A finished line from (1, 2) to (300, -4) as other programs store it, without its colour.
std::string LineRecord() {
  return Int16(2) + Int16(2) + Int16(3) + Int16(-1)  // counts, kind, locked
         + Int16(1) + Int32(3) + Int32(0) + Int32(1) + Int32(2) + Int32(300) + Int32(-4) + Int32(0) + Int32(0)  // Pts
         + Int16(0);  // SavedPts
}

Shape Line() {
  Shape line;
  line.NumBound = line.NumPts = 2;
  line.Kind = kLine;
  line.Locked = true;
  line.Pts = {{1, 2}, {300, -4}, {0, 0}};
  line.Colour = 0xFF;
  return line;
}

VideoInfo Video(const char* compressor, int width, int height, int rate) {
  VideoInfo video;
  video.compressor = compressor;
  video.width = width;
  video.height = height;
  video.rate = rate * 1000;
  video.scale = 1000;
  return video;
}

class SidecarTest : public ::testing::Test {
 protected:
  SlotData Read(const std::string& bytes, const VideoInfo& video = Video("MJPG", 640, 480, 30)) {
    library.File("x.ved", bytes);
    return ReadVideoData(path, video, kToolColours);
  }
  std::string Written(const SlotData& data) {
    const auto written = WriteVideoData(path, data);
    EXPECT_TRUE(written && written->empty());
    return TempLibrary::Read(path);
  }

  TempLibrary library;
  const std::string path = library.Path("x.ved");
};

TEST_F(SidecarTest, ReadsAndWritesEveryBlockByteForByte) {
  const std::string bytes = "1WRSSNCF" + kReserved + Int16(9600) + Int16(7200) + Int16(1) + Int16(7) + LineRecord() +
                            Int32(0xFF) + Int16(11) +
                            "Gr\xFC\xDF"
                            "e\r\n50\x80"
                            "!" +
                            Int16(4) + "29.5" + Int16(4) + "29.5";
  const SlotData data = Read(bytes);
  EXPECT_TRUE(data.Wide && data.ReverseFields && data.SplitFields);
  EXPECT_EQ(data.PictureWidth, 640);
  EXPECT_EQ(data.PictureHeight, 480);
  EXPECT_EQ(data.NextShape, 7);
  ASSERT_EQ(data.Shapes.NumShapes, 1);
  EXPECT_EQ(data.Shapes.Shapes[0], Line());
  EXPECT_EQ(data.Notes, "Grüße\r\n50€!");
  EXPECT_EQ(data.CValue, 29.5f);
  EXPECT_FALSE(data.Unread);
  EXPECT_EQ(data.RealFrameRate, 30);  // the rate's block holds the other value, rounded to even
  EXPECT_EQ(Written(data), bytes);
}

TEST_F(SidecarTest, BlocksThatAreNotThereTakeNoRoom) {
  SlotData data;
  EXPECT_EQ(Written(data), "1XXXXXXX" + kReserved);
  data.Notes = "only notes";
  EXPECT_EQ(Written(data), "1XXXXNXX" + kReserved + Int16(10) + "only notes");
  data.Shapes.Shapes = {Line()};
  data.Shapes.NumShapes = 1;
  EXPECT_EQ(Written(data)[4], 'S');
  data.Shapes.NumShapes = 0;  // the last one deleted; its stale slot stays in memory
  EXPECT_EQ(Written(data)[4], 'X');
  data = {};
  data.RealFrameRate = 60;
  EXPECT_EQ(Written(data), "1XXXXXXF" + kReserved + Int16(1) + "0");
}

TEST_F(SidecarTest, WithoutOneTheVideoDecidesHowItsFieldsAreShown) {
  const struct {
    VideoInfo video;
    bool reverse, split;
  } kinds[] = {
      {Video("dvsd", 720, 480, 30), true, true},   {Video("DVSD", 720, 576, 25), true, true},
      {Video("dvsd", 640, 480, 30), false, false}, {Video("IV50", 640, 480, 32), false, true},
      {Video("IV50", 640, 480, 31), false, false}, {Video("MJPG", 720, 480, 60), false, false},
  };
  for (const auto& kind : kinds) {
    for (const char* foreign : {"", "2WRS", "RIFFxxxx"}) {
      const SlotData data = Read(foreign, kind.video);
      EXPECT_EQ(data.ReverseFields, kind.reverse) << kind.video.compressor << foreign;
      EXPECT_EQ(data.SplitFields, kind.split) << kind.video.compressor << foreign;
      EXPECT_FALSE(data.Wide);
    }
  }
  std::filesystem::remove(path);
  EXPECT_TRUE(ReadVideoData(path, Video("dvsd", 720, 480, 30), kToolColours).SplitFields);
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(SidecarTest, ConvertsOldFilesOnSight) {
  const std::string old =
      "VRXSN" + Int16(4800) + Int16(3600) + Int16(2) + Int16(5) + LineRecord() + LineRecord() + Int16(3) + "old";
  const SlotData data = Read(old);
  EXPECT_TRUE(data.ReverseFields && data.SplitFields);
  EXPECT_EQ(data.PictureWidth, 320);
  ASSERT_EQ(data.Shapes.NumShapes, 2);
  EXPECT_EQ(data.Shapes.Shapes[1], Line());  // the colour is the line tool's
  EXPECT_EQ(data.Notes, "old");

  const std::string now = TempLibrary::Read(path);
  EXPECT_EQ(now, "1XRSSNXX" + kReserved + Int16(4800) + Int16(3600) + Int16(2) + Int16(5) + LineRecord() + Int32(0xFF) +
                     LineRecord() + Int32(0xFF) + Int16(3) + "old");
  EXPECT_EQ(ReadVideoData(path, {}, kToolColours).Shapes, data.Shapes);

  // What the picture demands goes before what the file says; the last record may end the file.
  const SlotData dv =
      Read("V--SX" + Int16(0) + Int16(0) + Int16(1) + Int16(1) + LineRecord(), Video("dvsd", 720, 480, 30));
  EXPECT_TRUE(dv.ReverseFields && dv.SplitFields);
  EXPECT_EQ(dv.Shapes.Shapes[0], Line());
}

TEST_F(SidecarTest, AFileCutShortGivesWhatItHoldsAndNothingInvented) {
  const std::string whole = "1XXXSNXX" + kReserved + Int16(9600) + Int16(7200) + Int16(2) + Int16(2) + LineRecord() +
                            Int32(0xFF) + LineRecord() + Int32(0xFF) + Int16(5) + "notes";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const SlotData data = Read(whole.substr(0, length));
    EXPECT_LE(data.Shapes.NumShapes, 2);
    EXPECT_EQ(data.Unread, length != 0 && length != whole.size()) << length;
    for (const Shape& shape : ShapesOf(data.Shapes))
      EXPECT_LE(static_cast<std::size_t>(shape.NumPts), shape.Pts.size());
  }
  EXPECT_FALSE(Read(whole).Unread);
  EXPECT_EQ(Read(whole.substr(0, whole.size() - 2)).Notes, "not  ");
  EXPECT_EQ(Read(whole.substr(0, whole.size() - 7)).Notes, "");
  EXPECT_EQ(Read("1XXXSXXX" + kReserved + Int16(1) + Int16(1) + Int16(-1)).Shapes.NumShapes, 0);
  const SlotData capture = Read("1WXSXXXX");
  EXPECT_FALSE(capture.Unread);
  EXPECT_TRUE(capture.Wide && capture.SplitFields && !capture.ReverseFields);
  EXPECT_EQ(capture.Notes, "");
}

TEST_F(SidecarTest, WhatDoesNotComeOutEvenIsUnreadAndNotConverted) {
  const std::string drawing = LineRecord() + Int32(0xFF);
  const std::string head = "1XXXSNXX" + kReserved + Int16(9600) + Int16(7200) + Int16(1) + Int16(1);
  const std::string tail = Int16(5) + "notes";
  ASSERT_FALSE(Read(head + drawing + tail).Unread);
  const std::string dimensions = std::string(drawing).replace(8, 1, "\2"),
                    points = std::string(drawing).replace(11, 1, "\1"),
                    bound = std::string(drawing).replace(0, 1, "\4"), lower = std::string(drawing).replace(14, 1, "\1");
  for (const std::string& bytes :
       {head + dimensions + tail, head + points + tail, head + bound + tail, head + lower + tail,      // one byte
        head + drawing + tail + "X", "1XXXTNXX" + head.substr(8) + drawing + tail,                     // left over
        "1XXXSXXX" + kReserved + Int16(1) + Int16(1) + Int16(-1) + Int16(1), std::string("1XXXXNXX"),  // missing
        "VRXSN" + head.substr(28) + LineRecord() + tail + "X"}) {
    EXPECT_TRUE(Read(bytes).Unread);
    EXPECT_EQ(TempLibrary::Read(path), bytes);
  }
  EXPECT_EQ(Read(head + bound + tail).Notes, "notes") << "what can be read is there";
}

TEST_F(SidecarTest, NotesInAnyLettersComeBackAndOtherProgramsReadWhatTheyCan) {
  const std::string text = "\u0141ukasz: nogi \u017C\u00F3\u0142wia\r\n\u304B", narrow = "?ukasz: nogi ?\xF3?wia\r\n?";
  SlotData data;
  data.Notes = text;
  const std::string bytes = Written(data);
  EXPECT_EQ(bytes,
            "1XXXXNXX" + kReserved + Int16(int(narrow.size())) + narrow + "UTF" + Int32(int(text.size())) + text);
  EXPECT_EQ(Read(bytes).Notes, text);
  EXPECT_FALSE(Read(bytes).Unread);
  // A program that knows nothing of them has changed the notes since.
  std::string edited = bytes;
  edited.replace(edited.find("nogi"), 4, "legs");
  EXPECT_EQ(Read(edited).Notes, "?ukasz: legs ?\u00F3?wia\r\n?");
  for (const std::string& damaged :
       {bytes.substr(0, bytes.size() - 1), bytes + "X", bytes.substr(0, bytes.size() - 1) + "\xFF"}) {
    EXPECT_TRUE(Read(damaged).Unread);
    EXPECT_EQ(Read(damaged).Notes.substr(0, 6), "?ukasz");
  }
}

TEST_F(SidecarTest, LongNotesAndLargeWindowsNeverBreakTheFile) {
  SlotData data;
  data.CValue = 1.25f;  // stands behind the notes
  std::string notice;
  const auto back = [&] {
    const auto written = WriteVideoData(path, data);
    EXPECT_TRUE(written);
    notice = *written;
    const SlotData read = ReadVideoData(path, {}, kToolColours);
    EXPECT_EQ(read.CValue, 1.25f);
    return read;
  };
  for (int i = 0; i < 5461; ++i) data.Notes += "F\u00FC\u03BBe\r\n";
  EXPECT_EQ(back().Notes, data.Notes);
  EXPECT_EQ(notice, "");
  data.Notes = std::string(kMaxNotes - 1, 'x') + "\r\nlost";
  EXPECT_EQ(back().Notes, std::string(kMaxNotes - 1, 'x'));
  EXPECT_NE(notice, "");
  // Longer ones were written once; they are there, and kept when something else takes their place.
  const SlotData longer = Read("1XXXXNXX" + kReserved + Int16(40000) + std::string(40000, 'y'));
  EXPECT_EQ(longer.Notes.size(), 40000u);
  EXPECT_TRUE(longer.Unread);

  data.Shapes.Shapes = {Line()};
  data.Shapes.Shapes[0].Pts[1] = {3839, 2159};
  data.Shapes.NumShapes = 1;
  data.PictureWidth = 3840;
  data.PictureHeight = 2160;
  const SlotData large = back();
  EXPECT_LE(large.PictureWidth * kTwipsPerPixel, 32767);
  EXPECT_NEAR(large.Shapes.Shapes[0].Pts[1].x * 3840.0 / large.PictureWidth, 3839, 1);
  EXPECT_NEAR(large.Shapes.Shapes[0].Pts[1].y * 2160.0 / large.PictureHeight, 2159, 1);
}

TEST_F(SidecarTest, ASaveThatFailsLeavesTheOldFileAndTellsWhy) {
  class FullDisk final : public test::PassingDisk {
   public:
    long Write(int, const void*, std::size_t) override {
      errno = ENOSPC;
      return -1;
    }
  } disk;
  library.File("x.ved", "1WRSXXXX");
  EXPECT_NE(WriteVideoData(path, {}, disk).Why(), "");
  EXPECT_EQ(TempLibrary::Read(path), "1WRSXXXX");
  EXPECT_FALSE(WriteVideoData("/nowhere/x.ved", {}));

  // What nobody could read makes way for a save that succeeds, and takes the place of nothing.
  SlotData unread = Read("2 of another program");
  ASSERT_TRUE(unread.Unread);
  EXPECT_FALSE(WriteVideoData(path, unread, disk));
  EXPECT_EQ(TempLibrary::Read(path), "2 of another program");
  library.File("x.ved.old", "drawings of long ago");
  EXPECT_TRUE(WriteVideoData(path, unread));
  EXPECT_EQ(TempLibrary::Read(path + ".old"), "drawings of long ago");
  EXPECT_EQ(TempLibrary::Read(path + ".old2"), "2 of another program");
}

TEST_F(SidecarTest, FirstSidecarsAreEightBytes) {
  library.settings.ReverseFields = false;
  library.settings.SplitFields = true;
  library.settings.HDReverseFields = true;
  library.settings.HDSplitFields = false;
  EXPECT_TRUE(WriteCaptureVideoData(path, true, true, library.settings));
  EXPECT_EQ(TempLibrary::Read(path), "1WXSXXXX");
  EXPECT_TRUE(WriteCaptureVideoData(path, false, false, library.settings));
  EXPECT_EQ(TempLibrary::Read(path), "1XRXXXXX");

  const auto imported = [&](const VideoInfo& video, bool reverseFields) {
    EXPECT_TRUE(WriteImportedVideoData(path, video, reverseFields));
    return TempLibrary::Read(path);
  };
  EXPECT_EQ(imported(Video("MJPG", 640, 480, 30), true), "1XRXXXXX");
  EXPECT_EQ(imported(Video("MJPG", 720, 480, 30), false), "1XXXXXXX") << "a width of exactly 1.5 heights is not wide";
  EXPECT_EQ(imported(Video("H264", 1280, 720, 60), false), "1WXXXXXX");
  EXPECT_EQ(imported(Video("DVSD", 720, 480, 30), false), "1XRSXXXX");
  EXPECT_EQ(imported({}, false), "1XXXXXXX");
}

TEST_F(SidecarTest, IsFoundInLettersOfAnyCase) {
  const std::string video = library.Path("y.avi");
  EXPECT_EQ(SidecarPath(video), library.Path("y.ved"));
  for (const char* name : {"y.VED", "y.Ved", "y.ved"}) {
    std::filesystem::remove(library.Path("y.VED"));
    library.File(name, "1WXXXXXX");
    EXPECT_EQ(SidecarPath(video), library.Path(name));
  }
}

TEST_F(SidecarTest, BrowsersReadTheTwoMarks) {
  for (const char* bytes : {"1XXXSNXX", "1XXXXNXX", "1XXXS", ""}) {
    library.File("x.ved", bytes);
    const SidecarMarks marks = ReadSidecarMarks(path);
    const std::string_view file = bytes;
    EXPECT_EQ(marks.HasDrawings(), file.find('S') == 4) << file;
    EXPECT_EQ(marks.HasNotes(), file.find('N') == 5) << file;
  }
}

}  // namespace
}  // namespace kinalyx
