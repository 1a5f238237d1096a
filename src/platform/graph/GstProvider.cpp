#include "platform/graph/GstProvider.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/graph/PictureModes.h"
#include "platform/graph/SoundLines.h"
#include "platform/graph/V4l2Controls.h"

namespace kinalyx {
namespace {

constexpr auto kTryAgain = std::chrono::seconds(5);  // where a server is not there
constexpr GstClockTime kLook = 2 * GST_SECOND;       // between two looks whether a server is still there
constexpr GstClockTime kSettle = 100 * GST_MSECOND;  // what is plugged in tells several things at once

std::string Taken(gchar* text) {
  std::string taken = text ? text : "";
  g_free(text);
  return taken;
}

std::string Field(const GstStructure* properties, const char* name) {
  const gchar* text = properties ? gst_structure_get_string(properties, name) : nullptr;
  return text ? text : "";
}

std::string FirstOf(std::string a, std::string b) { return a.empty() ? std::move(b) : std::move(a); }

/// The name by which the sound server knows a source: PipeWire's too, where it plays that server.
std::string InternalName(GstDevice* device) {
  if (!g_object_class_find_property(G_OBJECT_GET_CLASS(device), "internal-name")) return {};
  gchar* name = nullptr;
  g_object_get(device, "internal-name", &name, nullptr);
  return Taken(name);
}

FoundDevice Describe(GstDevice* device, Device::Kind kind) {
  FoundDevice found;
  found.local = std::shared_ptr<GstDevice>(GST_DEVICE(gst_object_ref(device)), GstUnref());
  found.device.kind = kind;
  found.device.name = Taken(gst_device_get_display_name(device));
  GstStructure* properties = gst_device_get_properties(device);
  found.path = FirstOf(Field(properties, "device.path"), Field(properties, "api.v4l2.path"));
  found.echo = Field(properties, "device.class") == "monitor";
  const std::string node = FirstOf(Field(properties, "node.name"), InternalName(device));
  if (kind == Device::Kind::Camera) {
    found.twin = found.path;
    // The port comes first: the numbers of the files change from one start to the next.
    found.key = Field(properties, "v4l2.device.bus_info") + node + found.path;
    // What a program offers has no port, and two of its kind have the same name.
    if (found.path.empty()) found.key += "#" + Field(properties, "object.serial");
  } else {
    found.twin = found.key = node;
  }
  if (properties) gst_structure_free(properties);
  if (kind == Device::Kind::Camera) {
    const GstCapsRef caps(gst_device_get_caps(device));
    if (caps) found.device.modes = ModesOf(*caps);
    if (!found.path.empty()) {
      if (const auto file = OpenControlDevice(found.path)) found.device.inputs = ReadInputs(*file);
    }
  }
  return found;
}

/// The lines of the microphones among what was found.
void AddLines(std::vector<FoundDevice>& found) {
  const auto isMicrophone = [](const FoundDevice& one) { return one.device.kind == Device::Kind::Microphone; };
  if (std::ranges::none_of(found, isMicrophone)) return;
  const auto lines = ReadSoundLines();
  for (FoundDevice& one : found) {
    const auto known = isMicrophone(one) ? lines.find(one.key) : lines.end();
    if (known == lines.end()) continue;
    one.device.inputs = known->second.titles;
    one.device.line = known->second.active;
  }
}

}  // namespace

GstProvider::GstProvider(std::string name, std::string socket) : name_(std::move(name)), server_(std::move(socket)) {}

GstProvider::~GstProvider() { LetGo(); }

bool GstProvider::Begin() {
  // PipeWire's provider takes itself for begun without its server.
  if (!server_.Open() || !GstBegun()) return false;
  if (!provider_) {
    provider_.reset(gst_device_provider_factory_get_by_name(name_.c_str()));
    if (!provider_) return false;
    // That one is there for the whole program, and may have begun with a server that has gone since.
    if (server_.Watches()) {
      provider_.reset(GST_DEVICE_PROVIDER(gst_object_ref_sink(g_object_new(G_OBJECT_TYPE(provider_.get()), nullptr))));
    }
    const std::lock_guard lock(mutex_);
    bus_.reset(gst_device_provider_get_bus(provider_.get()));
  }
  begun_ = gst_device_provider_start(provider_.get());
  return begun_;
}

void GstProvider::LetGo() {
  begun_ = listed_ = false;
  static_cast<void>(provider_.release());
}

std::optional<std::vector<FoundDevice>> GstProvider::Next() {
  if (!begun_ && Begin()) listed_ = false;
  if (!std::exchange(listed_, true)) return List();
  if (!begun_) {
    std::unique_lock lock(mutex_);
    woken_.wait_for(lock, kTryAgain, [this] { return wake_; });
    return std::nullopt;
  }
  GstBus* bus = bus_.get();
  GstMessage* message = gst_bus_timed_pop(bus, server_.Watches() ? kLook : GST_CLOCK_TIME_NONE);
  if (server_.Gone()) {
    if (message) gst_message_unref(message);
    gst_device_provider_stop(provider_.get());  // nobody comes and goes there any more
    LetGo();
    return std::nullopt;
  }
  bool changed = false;
  for (; message; message = gst_bus_timed_pop(bus, kSettle)) {
    const GstMessageType type = GST_MESSAGE_TYPE(message);
    changed |=
        type == GST_MESSAGE_DEVICE_ADDED || type == GST_MESSAGE_DEVICE_REMOVED || type == GST_MESSAGE_DEVICE_CHANGED;
    gst_message_unref(message);
    if (type == GST_MESSAGE_APPLICATION) break;
  }
  if (!changed) return std::nullopt;
  return List();
}

std::vector<FoundDevice> GstProvider::List() {
  std::vector<FoundDevice> found;
  if (!begun_) return found;
  GList* devices = gst_device_provider_get_devices(provider_.get());
  for (GList* item = devices; item; item = item->next) {
    GstDevice* device = GST_DEVICE(item->data);
    if (gst_device_has_classes(device, "Video/Source")) found.push_back(Describe(device, Device::Kind::Camera));
    if (gst_device_has_classes(device, "Audio/Source")) found.push_back(Describe(device, Device::Kind::Microphone));
  }
  g_list_free_full(devices, gst_object_unref);
  AddLines(found);
  return found;
}

void GstProvider::Wake() {
  const std::lock_guard lock(mutex_);
  wake_ = true;
  woken_.notify_all();
  if (bus_) gst_bus_post(bus_.get(), gst_message_new_application(nullptr, gst_structure_new_empty("wake")));
}

}  // namespace kinalyx
