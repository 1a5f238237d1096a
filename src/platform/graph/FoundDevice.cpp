#include "platform/graph/FoundDevice.h"

#include <algorithm>
#include <set>
#include <tuple>

#include <fmt/format.h>

#include "platform/graph/TestCamera.h"

namespace kinalyx {
namespace {

std::string NameKey(const FoundDevice& found) {
  return (found.device.kind == Device::Kind::Camera ? "camera " : "microphone ") + found.key;
}

/// USB cameras say their name twice, the second time cut: "HD Webcam: HD Web".
std::string Shown(const std::string& name) {
  const auto colon = name.find(": ");
  if (colon != std::string::npos && name.starts_with(name.substr(colon + 2))) return name.substr(0, colon);
  return name.empty() ? "Unnamed" : name;
}

}  // namespace

std::vector<FoundDevice> DeviceRoll::Call(const std::vector<std::vector<FoundDevice>>& found) {
  std::vector<FoundDevice> devices;
  std::set<std::pair<Device::Kind, std::string>> met;
  for (const auto& way : found) {
    std::set<std::pair<Device::Kind, std::string>> here;
    for (const FoundDevice& device : way) {
      const std::pair twin(device.device.kind, device.twin);
      if (!device.twin.empty() && met.contains(twin)) continue;
      here.insert(twin);
      devices.push_back(device);
    }
    met.merge(here);
  }
  const auto isCamera = [](const FoundDevice& device) { return device.device.kind == Device::Kind::Camera; };
  if (std::none_of(devices.begin(), devices.end(), isCamera)) {
    FoundDevice test;
    test.device.name = "Test Camera";
    test.device.origin = Device::Origin::Test;
    test.device.modes = TestCameraModes();
    test.key = "test";
    devices.push_back(std::move(test));
  }
  std::stable_sort(devices.begin(), devices.end(), [](const FoundDevice& a, const FoundDevice& b) {
    const auto rank = [](const FoundDevice& one) { return std::tie(one.device.kind, one.echo, one.device.origin); };
    if (rank(a) != rank(b)) return rank(a) < rank(b);
    return a.device.origin != Device::Origin::Network && a.key < b.key;  // those in the order of the user
  });
  Name(devices);
  return devices;
}

void DeviceRoll::Name(std::vector<FoundDevice>& devices) {
  std::set<std::pair<Device::Kind, std::string>> taken;
  std::vector<FoundDevice*> strangers;
  for (FoundDevice& found : devices) {
    const auto known = names_.find(NameKey(found));
    if (known != names_.end() && taken.emplace(found.device.kind, known->second).second) {
      found.device.name = known->second;
    } else {
      strangers.push_back(&found);
    }
  }
  for (FoundDevice* found : strangers) {
    const std::string shown = Shown(found->device.name);
    std::string name = shown;
    for (int i = 2; !taken.emplace(found->device.kind, name).second; ++i) name = fmt::format("{} {}", shown, i);
    found->device.name = names_[NameKey(*found)] = name;
  }
}

}  // namespace kinalyx
