#include "Bench.h"

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numeric>

namespace kinalyx::bench {
namespace {

std::vector<Benchmark>& Registry() {
  static std::vector<Benchmark> registry;
  return registry;
}

class TemporaryFolder {
 public:
  TemporaryFolder() {
    path_ = (std::filesystem::temp_directory_path() / "kinalyx-bench-XXXXXX").string();
    if (!mkdtemp(path_.data())) path_ = ".";
    owned_ = path_ != ".";
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    if (owned_) std::filesystem::remove_all(path_, ignored);
  }
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
  bool owned_ = false;
};

}  // namespace

Register::Register(Benchmark benchmark) { Registry().push_back(std::move(benchmark)); }

std::vector<Benchmark> Known() {
  std::vector<Benchmark> known = Registry();
  std::ranges::sort(known, {}, &Benchmark::name);
  return known;
}

double MeasureMs(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Percentile(std::vector<double> samples, double part) {
  if (samples.empty()) return 0;
  const double rank = std::ceil(std::clamp(part, 0.0, 1.0) * samples.size());
  const auto nth = samples.begin() + static_cast<std::ptrdiff_t>(std::max(rank, 1.0)) - 1;
  std::nth_element(samples.begin(), nth, samples.end());
  return *nth;
}

double Median(std::vector<double> samples) { return Percentile(std::move(samples), 0.5); }

double Mean(std::span<const double> samples) {
  return samples.empty() ? 0 : std::accumulate(samples.begin(), samples.end(), 0.0) / samples.size();
}

double PeakMemoryMiB() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    if (word == "VmHWM:") {
      double kilobytes = 0;
      status >> kilobytes;
      return kilobytes / 1024;
    }
  }
  return 0;
}

bool ResetPeakMemory() {
  // What earlier benchmarks freed is given back first: it is not this one's.
  malloc_trim(0);
  std::ofstream clear("/proc/self/clear_refs");
  clear << "5" << std::flush;
  return clear.good();
}

const std::string& ScratchFolder() {
  static const TemporaryFolder folder;
  return folder.Path();
}

void Keep(const void* value) { asm volatile("" : : "r"(value) : "memory"); }

}  // namespace kinalyx::bench
