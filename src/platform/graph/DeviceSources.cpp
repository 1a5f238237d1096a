#include "platform/graph/DeviceSources.h"

#include <algorithm>
#include <utility>

#include "platform/graph/PictureModes.h"
#include "platform/graph/TestCamera.h"

namespace kinalyx {

void DeviceSources::Replace(std::vector<Entry> entries) {
  const std::lock_guard lock(mutex_);
  entries_ = std::move(entries);
}

std::optional<DeviceSources::Entry> DeviceSources::Find(const std::string& name, Device::Kind kind) const {
  const std::lock_guard lock(mutex_);
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return entry.device.kind == kind && entry.device.name == name;
  });
  return found == entries_.end() ? std::nullopt : std::optional(*found);
}

GstElement* DeviceSources::MakeCameraSource(const std::string& name, const PictureMode* wanted) const {
  const auto entry = Find(name, Device::Kind::Camera);
  if (!entry) return nullptr;
  const auto mode = NearestMode(entry->device.modes, wanted);
  switch (entry->device.origin) {
    case Device::Origin::Test: return mode ? MakeTestCamera(*mode) : nullptr;
    case Device::Origin::Network:
    case Device::Origin::Local:
    case Device::Origin::FireWire: return nullptr;
  }
  return nullptr;
}

GstElement* DeviceSources::MakeMicrophoneSource(const std::string& name) const {
  const auto entry = Find(name, Device::Kind::Microphone);
  return entry && entry->local ? gst_device_create_element(entry->local.get(), nullptr) : nullptr;
}

}  // namespace kinalyx
