// What it costs to take a library to another place and a card into the library, against programs of the system.

#include <unistd.h>

#include <algorithm>
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
#include "library/VideoTransfer.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kVideos = 200;
constexpr int kPerStudent = 20;
constexpr std::size_t kVideoBytes = 5'000'000;
constexpr std::size_t kSidecarBytes = 900;
constexpr int kRounds = 6;
/// What a card brings.
constexpr int kFilms = 8;
constexpr std::size_t kFilmBytes = 60'000'000;
constexpr int kImportRounds = 4;

std::string NoiseBytes(std::size_t count) {
  std::mt19937_64 dice(7);
  std::string bytes(count, '\0');
  for (std::size_t i = 0; i + 8 <= bytes.size(); i += 8) {
    const std::uint64_t value = dice();
    bytes.replace(i, 8, reinterpret_cast<const char*>(&value), 8);
  }
  return bytes;
}

/// 200 videos of ten students, each with its sidecar.
std::vector<VideoTransfer> MakeLibrary(const std::string& from, const std::string& to) {
  std::string bytes = NoiseBytes(kVideoBytes);
  std::vector<VideoTransfer> videos;
  for (int n = 0; n < kVideos; ++n) {
    const std::string student = "/Student " + std::to_string(n / kPerStudent);
    const std::string path = from + student + "/(" + std::to_string(100 + n) + ") DL";
    fs::create_directories(from + student);
    bytes[0] = static_cast<char>(n);
    std::ofstream(path + ".avi", std::ios::binary) << bytes;
    std::ofstream(path + ".ved", std::ios::binary) << bytes.substr(0, kSidecarBytes);
    videos.push_back({path + ".avi", to + student, {}});
  }
  return videos;
}

void RunProgram(const std::string& command) {
  if (std::system(command.c_str()) != 0) throw std::runtime_error("a program of the system failed");
}

double MeasureFresh(const std::string& target, const std::function<void()>& work) {
  fs::remove_all(target);
  ::sync();  // what earlier rounds left to be written is not ours
  return MeasureMs(work);
}

const Register kCopyLibrary({"copy_library", {Target::Of::Ratio, 1.3, 1.0}, [] {
                               const std::string from = ScratchFolder() + "/library";
                               const std::string ours = ScratchFolder() + "/ours";
                               const std::string theirs = ScratchFolder() + "/theirs";
                               const std::vector<VideoTransfer> videos = MakeLibrary(from, ours);
                               const std::string command =
                                   "cp -r --preserve=timestamps '" + from + "' '" + theirs + "'";
                               std::vector<double> our;
                               std::vector<double> their;
                               for (int round = 0; round < kRounds; ++round) {
                                 their.push_back(MeasureFresh(theirs, [&] { RunProgram(command); }));
                                 fs::remove_all(theirs);
                                 our.push_back(MeasureFresh(ours, [&] {
                                   VideoTransferJob job(CopyJob::Kind::Copy, VideoTransferJob::OnClash::AddD, videos);
                                   while (job.Step()) {
                                   }
                                   if (job.VideosDone() != kVideos || job.FilesDone() != 2 * kVideos)
                                     throw std::runtime_error(job.Error());
                                 }));
                                 fs::remove_all(ours);
                               }
                               fs::remove_all(from);
                               // A disk that is still busy with earlier rounds holds up some copies for seconds: the
                               // best of each counts.
                               return Figure{*std::ranges::min_element(our), "ms", *std::ranges::min_element(their)};
                             }});

// What it costs to take the videos of a card into the library and to be sure of the copies, against what a careful
// user would type: copy, write to the disk, and sum up both (the copy from memory, where ours is read from the disk).
const Register kImportCopy({"import_copy", {Target::Of::Ratio, 1.3, 1.0}, [] {
                              const std::string card = ScratchFolder() + "/card";
                              const std::string ours = ScratchFolder() + "/ours";
                              const std::string theirs = ScratchFolder() + "/theirs";
                              fs::create_directories(card);
                              std::vector<VideoTransfer> videos;
                              const std::string bytes = NoiseBytes(kFilmBytes);
                              for (int n = 0; n < kFilms; ++n) {
                                videos.push_back({card + "/" + std::to_string(n) + ".mp4", ours, {}});
                                std::ofstream(videos.back().path, std::ios::binary) << n << bytes;
                              }
                              const std::string command = "cp -r --preserve=timestamps '" + card + "' '" + theirs +
                                                          "' && sync -d '" + theirs + "'/* && sha256sum '" + card +
                                                          "'/* '" + theirs + "'/* >/dev/null";
                              std::vector<double> our;
                              std::vector<double> their;
                              for (int round = 0; round < kImportRounds; ++round) {
                                their.push_back(MeasureFresh(theirs, [&] { RunProgram(command); }));
                                fs::remove_all(theirs);
                                our.push_back(MeasureFresh(ours, [&] {
                                  VideoTransferJob job(CopyJob::Kind::CopyIn, VideoTransferJob::OnClash::AddD, videos);
                                  while (job.Step()) {
                                  }
                                  if (job.VideosDone() != kFilms) throw std::runtime_error(job.Error());
                                }));
                                fs::remove_all(ours);
                              }
                              fs::remove_all(card);
                              return Figure{*std::ranges::min_element(our), "ms", *std::ranges::min_element(their)};
                            }});

}  // namespace
}  // namespace kinalyx::bench
