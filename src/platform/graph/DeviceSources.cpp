#include "platform/graph/DeviceSources.h"

#include <algorithm>
#include <utility>

#include "platform/graph/NetworkCamera.h"
#include "platform/graph/PictureModes.h"
#include "platform/graph/ScreenSource.h"
#include "platform/graph/TestCamera.h"

namespace kinalyx {
namespace {

/// A bin of a source and what it shall give.
GstElement* Behind(GstElement* source, GstCapsRef caps) {
  if (!source || !caps) return source;
  GstElement* filter = gst_element_factory_make("capsfilter", nullptr);
  g_object_set(filter, "caps", caps.get(), nullptr);
  GstElement* bin = gst_bin_new(nullptr);
  gst_bin_add_many(GST_BIN(bin), source, filter, nullptr);
  gst_element_link(source, filter);
  const GstRef<GstPad> pad(gst_element_get_static_pad(filter, "src"));
  gst_element_add_pad(bin, gst_ghost_pad_new("src", pad.get()));
  return bin;
}

GstElement* MakeLocal(const FoundDevice& camera, const PictureMode* wanted) {
  GstElement* source = gst_device_create_element(camera.local.get(), nullptr);
  // Where the camera itself does not stamp its pictures, they count as taken when they come.
  if (source && g_object_class_find_property(G_OBJECT_GET_CLASS(source), "do-timestamp")) {
    g_object_set(source, "do-timestamp", TRUE, nullptr);
  }
  // PipeWire takes its memory back when a camera goes, whoever may still be looking at a picture in it.
  if (source && g_object_class_find_property(G_OBJECT_GET_CLASS(source), "always-copy")) {
    g_object_set(source, "always-copy", TRUE, nullptr);
  }
  const auto mode = NearestMode(camera.device.modes, wanted);
  const GstCapsRef caps(gst_device_get_caps(camera.local.get()));
  if (!mode || !caps) return source;
  return Behind(source, CapsFor(*caps, *mode, wanted ? wanted->rate : 0));
}

GstElement* MakeFireWire(const FoundDevice& camera) {
  GstElement* source = GstBegun() ? gst_element_factory_make("dv1394src", nullptr) : nullptr;
  if (source) g_object_set(source, "guid", static_cast<guint64>(camera.guid), nullptr);
  return source;
}

}  // namespace

void DeviceSources::Replace(std::vector<FoundDevice> devices) {
  const std::lock_guard lock(mutex_);
  devices_ = std::move(devices);
}

std::optional<FoundDevice> DeviceSources::Find(const std::string& name, Device::Kind kind) const {
  const std::lock_guard lock(mutex_);
  const auto found = std::find_if(devices_.begin(), devices_.end(), [&](const FoundDevice& one) {
    return one.device.kind == kind && one.device.name == name;
  });
  return found == devices_.end() ? std::nullopt : std::optional(*found);
}

GstElement* DeviceSources::MakeCameraSource(const std::string& name, const PictureMode* wanted) const {
  if (IsScreenName(name)) return MakeScreenSource(name);
  const auto camera = Find(name, Device::Kind::Camera);
  if (!camera) return nullptr;
  switch (camera->device.origin) {
    case Device::Origin::Local: return camera->local ? MakeLocal(*camera, wanted) : nullptr;
    case Device::Origin::FireWire: return MakeFireWire(*camera);
    case Device::Origin::Network: return MakeNetworkSource(camera->device.address);
    case Device::Origin::Test: return MakeTestCamera(*NearestMode(TestCameraModes(), wanted));
  }
  return nullptr;
}

GstElement* DeviceSources::MakeMicrophoneSource(const std::string& name) const {
  const auto microphone = Find(name, Device::Kind::Microphone);
  return microphone && microphone->local ? gst_device_create_element(microphone->local.get(), nullptr) : nullptr;
}

std::string DeviceSources::PathOf(const std::string& camera) const {
  const auto found = Find(camera, Device::Kind::Camera);
  return found ? found->path : std::string();
}

}  // namespace kinalyx
