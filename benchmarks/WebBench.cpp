// What it costs to make the files of a web page from a telephone's video, against FFmpeg's own tool making the same two
// in one go.

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "PhoneClips.h"
#include "platform/host/ChildProcess.h"
#include "platform/media/WebConversion.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 3;
constexpr int kPatienceMs = 20;

void ByTool(const WebRequest& wish) {
  auto tool = ChildProcess::Start("/usr/bin/env", {"ffmpeg",
                                                   "-nostdin",
                                                   "-loglevel",
                                                   "error",
                                                   "-y",
                                                   "-i",
                                                   wish.source,
                                                   "-filter_complex",
                                                   "[0:v]scale=1280:720:flags=area,split[a][b]",
                                                   "-map",
                                                   "[a]",
                                                   "-c:v",
                                                   "libx264",
                                                   "-preset",
                                                   "veryfast",
                                                   "-crf",
                                                   "23",
                                                   "-profile:v",
                                                   "main",
                                                   "-g",
                                                   "120",
                                                   "-movflags",
                                                   "+faststart",
                                                   wish.mp4,
                                                   "-map",
                                                   "[b]",
                                                   "-c:v",
                                                   "wmv2",
                                                   "-b:v",
                                                   "2764800",
                                                   "-qmin",
                                                   "2",
                                                   "-qmax",
                                                   "16",
                                                   "-g",
                                                   "120",
                                                   "-f",
                                                   "asf",
                                                   wish.wmv});
  if (!tool) throw std::runtime_error(tool.Why());
  while ((*tool)->Poll(kPatienceMs, {})) {
  }
  if ((*tool)->ExitCode() != 0) throw std::runtime_error("ffmpeg: " + (*tool)->Errors());
}

void ByUs(const WebRequest& wish) {
  auto conversion = WebConversion::Open(wish);
  if (!conversion) throw std::runtime_error(conversion.Why());
  while ((*conversion)->Step() == WebConversion::State::Running) {
  }
  if (!(*conversion)->Error().empty()) throw std::runtime_error((*conversion)->Error());
}

const Register kWebConvert({"web_convert", {Target::Of::Ratio, 1.3, 1.0}, [] {
                              const std::string folder = ScratchFolder() + "/web";
                              fs::create_directories(folder);
                              const WebRequest wish{.source = MakePhoneClip(kH264p1080),
                                                    .wmv = folder + "/made.wmv",
                                                    .mp4 = folder + "/made.mp4"};
                              std::vector<double> our;
                              std::vector<double> their;
                              for (int round = 0; round < kRounds; ++round) {
                                their.push_back(MeasureMs([&] { ByTool(wish); }));
                                our.push_back(MeasureMs([&] { ByUs(wish); }));
                              }
                              fs::remove_all(folder);
                              return Figure{Median(our), "ms", Median(their)};
                            }});

}  // namespace
}  // namespace kinalyx::bench
