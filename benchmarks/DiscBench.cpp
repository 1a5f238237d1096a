// What it costs to write a disc, against the program that comes with the libraries.

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "platform/disc/DiscDrives.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kVideos = 60;
constexpr std::size_t kVideoBytes = 10'000'000;
constexpr int kRounds = 4;

/// A disc full of videos that no two blocks share.
DiscTree MakeVideos(const std::string& folder) {
  fs::create_directories(folder + "/Videos");
  fs::create_directories(folder + "/Lessons");
  std::mt19937_64 dice(7);
  std::vector<std::uint64_t> noise(kVideoBytes / sizeof(std::uint64_t));
  for (std::uint64_t& value : noise) value = dice();
  DiscTree tree{.Label = "BENCH", .Folders = {"Lessons", "Videos"}, .Files = {}};
  for (int n = 0; n < kVideos; ++n) {
    noise[0] = static_cast<std::uint64_t>(n);
    const std::string name = "Videos/Swing " + std::to_string(n) + ".avi";
    std::ofstream(folder + "/" + name, std::ios::binary)
        .write(reinterpret_cast<const char*>(noise.data()), static_cast<std::streamsize>(kVideoBytes));
    tree.Files.push_back({folder + "/" + name, name});
  }
  return tree;
}

void Burn(const DiscTree& tree, const std::string& path) {
  const auto run = DriveAt(AddressOfImage(path))->Burn(tree, {.Speed = 0, .Erase = false, .Check = false});
  while (run->Step()) {
  }
  if (!run->How()) throw std::runtime_error(run->How().Why());
}

double MeasureFresh(const std::string& image, const std::function<void()>& work) {
  fs::remove(image);
  ::sync();  // what earlier rounds left to be written is not ours
  return MeasureMs(work);
}

const Register kBurnImage({"burn_image", {Target::Of::Ratio, 1.3, 1.0}, [] {
                             const std::string folder = ScratchFolder() + "/disc";
                             const std::string ours = ScratchFolder() + "/ours.iso";
                             const std::string theirs = ScratchFolder() + "/theirs.iso";
                             const DiscTree tree = MakeVideos(folder);
                             const std::string command = "xorriso -outdev 'stdio:" + theirs + "' -joliet on -map '" +
                                                         folder + "' / >/dev/null 2>&1";
                             std::vector<double> our;
                             std::vector<double> their;
                             for (int round = 0; round < kRounds; ++round) {
                               their.push_back(MeasureFresh(theirs, [&] {
                                 if (std::system(command.c_str()) != 0)
                                   throw std::runtime_error("xorriso is not installed, or failed");
                               }));
                               our.push_back(MeasureFresh(ours, [&] { Burn(tree, ours); }));
                             }
                             fs::remove_all(folder);
                             fs::remove(ours);
                             fs::remove(theirs);
                             return Figure{Median(our), "ms", Median(their)};
                           }});

}  // namespace
}  // namespace kinalyx::bench
