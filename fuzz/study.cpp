// Reads any bytes as a study; what was read must survive being written and read again.

#include "InputFile.h"
#include "library/Study.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  static const fuzz::InputFolder folder;
  SlotData bare;
  bare.PictureWidth = 640;
  bare.PictureHeight = 480;
  for (const int x : {20, 90}) {
    Shape line;
    line.NumBound = line.NumPts = 2;
    line.Kind = kLine;
    line.Locked = true;
    line.Colour = 0x332211;
    line.Pts = {{x, 10}, {x + 50, 90}, {0, 0}};
    bare.Shapes.Shapes.push_back(line);
  }
  bare.Shapes.NumShapes = 2;

  const std::string path = folder.Write("x.study", bytes, count);
  SlotData first = bare;
  ReadStudy(path, first);
  first.Study.Unread = false;  // or each would be kept beside
  fuzz::Require(static_cast<bool>(WriteStudy(path, first)));
  SlotData again = bare;
  ReadStudy(path, again);
  fuzz::Require(again.Study == first.Study && again.Shapes == first.Shapes);
  fuzz::Require(static_cast<bool>(TrimStudy(path, 3, 50)));
  return 0;
}
