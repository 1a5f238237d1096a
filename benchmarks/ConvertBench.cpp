// What it costs to convert a telephone's video for frame by frame work, against FFmpeg's own tool doing the same.

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "PhoneClips.h"
#include "platform/host/ChildProcess.h"
#include "platform/media/Conversion.h"

namespace kinalyx::bench {
namespace {

constexpr int kRounds = 3;
constexpr int kPatienceMs = 100;

void ByTool(const std::string& from, const std::string& to) {
  auto tool = ChildProcess::Start("/usr/bin/env", {"ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-i", from, "-c:v",
                                                   "mjpeg", "-q:v", "2", "-an", to});
  if (!tool) throw std::runtime_error(tool.Why());
  while ((*tool)->Poll(kPatienceMs, {})) {
  }
  if ((*tool)->ExitCode() != 0) throw std::runtime_error("ffmpeg: " + (*tool)->Errors());
}

void ByUs(const std::string& from, const std::string& to) {
  auto conversion = Conversion::Open({from, to});
  if (!conversion) throw std::runtime_error(conversion.Why());
  while ((*conversion)->Step() == Conversion::State::Running) {
  }
  if (!(*conversion)->Error().empty()) throw std::runtime_error((*conversion)->Error());
}

const Register kConvertMjpeg({"convert_mjpeg", {Target::Of::Ratio, 1.3, 1.0}, [] {
                                const std::string source = MakePhoneClip(kH264p1080);
                                const std::string target = ScratchFolder() + "/made.avi";
                                std::vector<double> our;
                                std::vector<double> their;
                                for (int round = 0; round < kRounds; ++round) {
                                  their.push_back(MeasureMs([&] { ByTool(source, target); }));
                                  std::remove(target.c_str());
                                  our.push_back(MeasureMs([&] { ByUs(source, target); }));
                                  std::remove(target.c_str());
                                }
                                return Figure{Median(our), "ms", Median(their)};
                              }});

}  // namespace
}  // namespace kinalyx::bench
