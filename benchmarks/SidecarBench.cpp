// Saving the work on a video: a sidecar with two hundred drawings, beside the bare calls for the same bytes.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "library/Sidecar.h"
#include "platform/files/FileStore.h"

namespace kinalyx::bench {
namespace {

constexpr int kRounds = 200;

SlotData TwoHundredShapes() {
  SlotData data;
  data.Notes = "Hold the angle until the hands are in front of the ball.\r\n";
  for (int i = 0; i < 200; ++i) {
    Shape shape;
    shape.Kind = static_cast<std::int16_t>(i % 11);
    const int points = shape.Kind == 0 || shape.Kind == 6 ? 60 : 3;
    for (int p = 0; p < points; ++p) shape.Pts.push_back({5 * p, i});
    shape.NumPts = shape.NumBound = static_cast<std::int16_t>(points);
    shape.Locked = true;
    data.Shapes.Shapes.push_back(shape);
  }
  data.Shapes.NumShapes = 200;
  data.PictureWidth = 640;
  data.PictureHeight = 480;
  return data;
}

/// The same bytes by the system's own calls: write beside, flush, rename.
void SaveBare(const std::string& path, const std::vector<std::uint8_t>& bytes) {
  const std::string beside = path + ".bare";
  const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  const bool good = file >= 0 && ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
                    ::fsync(file) == 0 && ::close(file) == 0 && std::rename(beside.c_str(), path.c_str()) == 0;
  if (!good) throw std::runtime_error("the disk refuses");
}

Figure SaveTwoHundredShapes() {
  const std::string path = ScratchFolder() + "/swing.ved";
  const SlotData data = TwoHundredShapes();
  if (!WriteVideoData(path, data)) throw std::runtime_error("the sidecar cannot be written");
  const auto bytes = ReadWholeFile(path);
  if (!bytes) throw std::runtime_error("the sidecar cannot be read");
  // One beside the other, so that a disk that grows busy slows both.
  std::vector<double> ours;
  std::vector<double> bare;
  for (int round = 0; round < kRounds; ++round) {
    ours.push_back(MeasureMs([&] { (void)WriteVideoData(path, data); }));
    bare.push_back(MeasureMs([&] { SaveBare(path + "2", *bytes); }));
  }
  return {Median(ours), "ms", Median(bare)};
}

const Register kSidecarSave({"sidecar_save_200_shapes", {Target::Of::Ratio, 1.5, 1.1}, SaveTwoHundredShapes});

}  // namespace
}  // namespace kinalyx::bench
