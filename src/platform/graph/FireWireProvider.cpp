#include "platform/graph/FireWireProvider.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <utility>

#include <fmt/format.h>

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr auto kLook = 2s;
constexpr std::uint64_t kAudioVideo = 0x00a02d;  // who wrote the rules by which a unit speaks: those of camcorders
constexpr std::uint64_t kTapeRules = 0x010001;

std::string Line(const fs::path& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

std::uint64_t Number(const fs::path& path) { return std::strtoull(Line(path).c_str(), nullptr, 16); }

}  // namespace

FireWireProvider::FireWireProvider(std::string bus) : bus_(std::move(bus)) {}

std::optional<std::vector<FoundDevice>> FireWireProvider::Next() {
  if (told_) {
    std::unique_lock lock(mutex_);
    woken_.wait_for(lock, kLook, [this] { return wake_; });
    if (std::exchange(wake_, false)) return std::nullopt;
  }
  std::vector<FoundDevice> found = List();
  std::vector<std::uint64_t> here;
  for (const FoundDevice& device : found) here.push_back(device.guid);
  if (std::exchange(told_, here) == here) return std::nullopt;
  return found;
}

void FireWireProvider::Wake() {
  const std::lock_guard lock(mutex_);
  wake_ = true;
  woken_.notify_all();
}

/// A device is a folder ("fw1"), and each of its units one more ("fw1.0").
std::vector<FoundDevice> FireWireProvider::List() const {
  std::vector<FoundDevice> found;
  std::error_code error;
  for (fs::directory_iterator unit(bus_, error), end; !error && unit != end; unit.increment(error)) {
    const std::string name = unit->path().filename();
    const fs::path device = fs::path(bus_) / name.substr(0, name.find('.'));
    if (Number(unit->path() / "specifier_id") != kAudioVideo || Number(unit->path() / "version") != kTapeRules)
      continue;
    FoundDevice camera;
    camera.guid = Number(device / "guid");
    if (camera.guid == 0) continue;
    const std::string vendor = Line(device / "vendor_name");
    const std::string model = Line(device / "model_name");
    camera.device.name = vendor.empty() || model.empty() ? vendor + model : vendor + " " + model;
    if (camera.device.name.empty()) camera.device.name = "DV Camcorder";
    camera.device.origin = Device::Origin::FireWire;
    camera.key = camera.twin = fmt::format("{:016x}", camera.guid);
    found.push_back(std::move(camera));
  }
  std::sort(found.begin(), found.end(), [](const FoundDevice& a, const FoundDevice& b) { return a.key < b.key; });
  return found;
}

}  // namespace kinalyx
