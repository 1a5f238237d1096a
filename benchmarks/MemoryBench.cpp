#include <memory>
#include <vector>

#include "Bench.h"
#include "BenchPlayer.h"

namespace kinalyx::bench {
namespace {

/// Eight videos open side by side, of all kinds, each walked from its end to its start.
Figure EightUp() {
  std::vector<test::TestVideo> videos(8, BenchMjpeg());
  videos[1] = videos[5] = BenchDv();
  videos[2] = videos[6] = BenchH264();
  for (const auto& video : videos) MakeTestVideo(video);
  ResetPeakMemory();
  std::vector<std::unique_ptr<BenchPlayer>> players;
  for (const auto& video : videos) {
    players.push_back(std::make_unique<BenchPlayer>(476, 440));
    players.back()->Load(MakeTestVideo(video));
  }
  for (auto& player : players)
    for (int n = (*player)->VideoLength() - 1; n >= 0; --n) (*player)->DrawFrame(n);
  return {PeakMemoryMiB(), "MiB"};
}

const Register kMemory({"memory_eight_up", {Target::Of::AtMost, 900, 500}, EightUp});

}  // namespace
}  // namespace kinalyx::bench
