#include "platform/graph/DeviceList.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/CameraKnobs.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/FireWireProvider.h"
#include "platform/graph/GstProvider.h"
#include "platform/graph/NetworkCamera.h"
#include "platform/graph/SoundLines.h"
#include "platform/graph/V4l2Controls.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/Post.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;

constexpr int kPatienceMs = 3000;  // after which a way that has not answered is not waited for
constexpr auto kEndPatience = 300ms;

std::vector<std::unique_ptr<IDeviceProvider>> AllProviders() {
  std::vector<std::unique_ptr<IDeviceProvider>> providers;
  // The shortest way comes first: a camera by the system, a microphone by the sound server.
  providers.push_back(std::make_unique<GstProvider>("v4l2deviceprovider"));
  providers.push_back(std::make_unique<GstProvider>("pulsedeviceprovider"));
  providers.push_back(std::make_unique<GstProvider>("pipewiredeviceprovider", PipeWireSocket()));
  providers.push_back(std::make_unique<FireWireProvider>());
  return providers;
}

std::vector<FoundDevice> NetworkCameras(const std::vector<std::string>& addresses) {
  std::vector<FoundDevice> cameras;
  for (const std::string& text : addresses) {
    const auto read = ReadNetworkAddress(text);
    const bool twice = read && std::any_of(cameras.begin(), cameras.end(), [&](const FoundDevice& camera) {
                         return camera.device.address == read->address;
                       });
    if (!read || twice) continue;
    FoundDevice camera;
    camera.device.name = read->name;
    camera.device.origin = Device::Origin::Network;
    camera.device.address = read->address;
    camera.key = read->name + " " + read->address;
    cameras.push_back(std::move(camera));
  }
  return cameras;
}

}  // namespace

/// What is known of devices. Only the user-interface thread touches it.
struct DeviceList::Table final : CameraKnobs::IEvents, std::enable_shared_from_this<Table> {
  Table(std::shared_ptr<IPost> way, std::size_t ways) : post(std::move(way)), found(ways) {}

  void Take(std::size_t way, std::vector<FoundDevice> devices) {
    found[way] = std::move(devices);
    known = known || std::all_of(found.begin(), found.end(), [](const auto& one) { return one.has_value(); });
    MakeAnew();
  }

  void MakeAnew() {
    std::vector<std::vector<FoundDevice>> all;
    for (const auto& one : found) all.push_back(one.value_or(std::vector<FoundDevice>()));
    all.push_back(network);
    std::vector<FoundDevice> called = roll.Call(all);
    std::vector<Device> newCameras;
    std::vector<Device> newMicrophones;
    std::vector<std::string> files;
    for (const FoundDevice& one : called) {
      files.push_back(one.path);
      if (one.device.kind == Device::Kind::Camera) {
        // Others may still be coming.
        if (known || one.device.origin != Device::Origin::Test) newCameras.push_back(one.device);
      } else if (!one.echo || newMicrophones.empty() || hearsEchoes) {
        hearsEchoes = one.echo;
        newMicrophones.push_back(one.device);
      }
    }
    knobs->KeepOnly(files);
    sources->Replace(std::move(called));
    const bool other = newCameras != cameras || newMicrophones != microphones || known != toldKnown;
    cameras = std::move(newCameras);
    microphones = std::move(newMicrophones);
    toldKnown = known;
    if (other) Tell();
  }

  /// Once for all that changes before the event loop turns.
  void Tell() {
    if (std::exchange(telling, true)) return;
    post->Post([still = weak_from_this()] {
      const auto table = still.lock();
      if (!table) return;
      table->telling = false;
      if (table->events) table->events->DevicesChanged();
    });
  }

  /// A microphone hears that line now.
  void LineIs(const std::string& key, const std::string& line) {
    for (auto& way : found) {
      if (!way) continue;
      for (FoundDevice& one : *way)
        if (one.device.kind == Device::Kind::Microphone && one.key == key) one.device.line = line;
    }
    MakeAnew();
  }

  void KnobsChanged() override { Tell(); }

  std::shared_ptr<IPost> post;
  IDevicesEvents* events = nullptr;
  std::vector<std::optional<std::vector<FoundDevice>>> found;  ///< by each way
  std::vector<FoundDevice> network;
  DeviceRoll roll;
  std::vector<Device> cameras;
  std::vector<Device> microphones;
  bool known = false;
  bool toldKnown = false;
  bool hearsEchoes = false;  ///< the microphones are what the machine plays, for there is no other
  bool telling = false;
  std::shared_ptr<CameraKnobs> knobs;
  const std::shared_ptr<DeviceSources> sources = std::make_shared<DeviceSources>();
};

/// One way to devices and the thread that waits on it; they go on together when the list has gone.
struct DeviceList::Watch {
  static void Run(std::shared_ptr<Watch> watch, std::size_t way, std::weak_ptr<Table> table,
                  std::shared_ptr<IPost> post) {
    while (!watch->Quits()) {
      auto found = watch->provider->Next();
      if (!found || watch->Quits()) continue;
      post->Post([table, way, found = std::move(*found)]() mutable {
        if (const auto still = table.lock()) still->Take(way, std::move(found));
      });
    }
    std::unique_lock lock(watch->mutex);
    auto ended = std::move(watch->provider);
    lock.unlock();
    ended.reset();
    lock.lock();
    watch->over = true;
    watch->changed.notify_all();
  }

  bool Quits() {
    const std::lock_guard lock(mutex);
    return quit;
  }

  std::unique_ptr<IDeviceProvider> provider;
  std::mutex mutex;
  std::condition_variable changed;
  bool quit = false;
  bool over = false;
};

DeviceList::DeviceList(IHost& host, std::shared_ptr<IPost> post)
    : DeviceList(host, std::move(post), AllProviders(), OpenControlDevice, SetSoundLine) {}

DeviceList::DeviceList(IHost& host, std::shared_ptr<IPost> post,
                       std::vector<std::unique_ptr<IDeviceProvider>> providers, Open open, SetLine setLine)
    : table_(std::make_shared<Table>(post, providers.size())), setLine_(std::move(setLine)) {
  table_->knobs = std::make_shared<CameraKnobs>(post, *table_, std::move(open));
  for (std::size_t way = 0; way < providers.size(); ++way) {
    auto watch = std::make_shared<Watch>();
    watch->provider = std::move(providers[way]);
    watches_.push_back(watch);
    std::thread(Watch::Run, watch, way, std::weak_ptr(table_), post).detach();
  }
  patience_ = HostTimer(host, kPatienceMs, false, [this] {
    table_->known = true;
    table_->MakeAnew();
  });
}

DeviceList::~DeviceList() {
  for (const auto& watch : watches_) {
    const std::lock_guard lock(watch->mutex);
    watch->quit = true;
    if (watch->provider) watch->provider->Wake();
  }
  const auto until = std::chrono::steady_clock::now() + kEndPatience;
  for (const auto& watch : watches_) {
    std::unique_lock lock(watch->mutex);
    watch->changed.wait_until(lock, until, [&] { return watch->over; });
  }
}

void DeviceList::SetEvents(IDevicesEvents* events) { table_->events = events; }
const std::vector<Device>& DeviceList::Cameras() const { return table_->cameras; }
const std::vector<Device>& DeviceList::Microphones() const { return table_->microphones; }
bool DeviceList::Known() const { return table_->known; }
std::shared_ptr<DeviceSources> DeviceList::Sources() const { return table_->sources; }

void DeviceList::SetNetworkCameras(const std::vector<std::string>& addresses) {
  table_->network = NetworkCameras(addresses);
  table_->MakeAnew();
}

std::vector<CameraControl> DeviceList::Controls(const std::string& camera) {
  const std::string path = table_->sources->PathOf(camera);
  return path.empty() ? std::vector<CameraControl>() : table_->knobs->Of(path);
}

Outcome DeviceList::SetControl(const std::string& camera, std::uint32_t id, int value) {
  const std::string path = table_->sources->PathOf(camera);
  if (path.empty()) return {Fault::NotFound, Tr("The camera has no controls.")};
  return table_->knobs->Set(path, id, value);
}

Outcome DeviceList::ChooseLine(const std::string& microphone, const std::string& line) {
  const auto found = table_->sources->Find(microphone, Device::Kind::Microphone);
  if (!found || std::ranges::find(found->device.inputs, line) == found->device.inputs.end())
    return {Fault::NotFound, Tr("The microphone has no such line.")};
  // The server may be long in answering.
  DriveWatch::SendWorker([key = found->key, line, set = setLine_, post = table_->post, table = std::weak_ptr(table_)] {
    if (!set(key, line)) return;
    post->Post([key, line, table] {
      if (const auto still = table.lock()) still->LineIs(key, line);
    });
  });
  return {};
}

}  // namespace kinalyx
