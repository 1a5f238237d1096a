#include "library/DeviceWatch.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kinalyx {

namespace {

constexpr int kLookMs = 2000;
/// A telephone shows nothing before its user has allowed it: an empty device is read again after so many looks.
constexpr int kLooksBetweenReadings = 5;

bool Holds(const std::vector<DevicePlace>& places, const std::string& path) {
  return std::ranges::find(places, path, &DevicePlace::path) != places.end();
}

}  // namespace

std::size_t OfferedDevice::Fresh() const {
  return static_cast<std::size_t>(std::ranges::count(videos, false, &DeviceVideo::inLibrary));
}

DeviceWatch::DeviceWatch(IHost& host, const Settings& settings, std::function<void()> changed, Environment environment)
    : host_(host), settings_(settings), changed_(std::move(changed)), environment_(std::move(environment)) {}

void DeviceWatch::Start() {
  timer_ = HostTimer(host_, kLookMs, true, [this] { Look(); });
}
void DeviceWatch::Stop() { timer_.Stop(); }

void DeviceWatch::Look() {
  const std::vector<DevicePlace> places = Places();
  std::erase_if(known_, [&](const Known& known) { return !Holds(places, known.device.place.path); });
  for (const DevicePlace& place : places) {
    if (!Find(place.path)) known_.emplace_back().device.place = place;
  }
  for (Known& known : known_) {
    if (!known.errand && known.looksToReading >= 0 && known.looksToReading-- == 0) Read(known);
    if (known.errand && known.errand->Over(0)) Take(known);
  }
  TellIfChanged();
}

/// The devices that are there, but for one that holds the library itself.
std::vector<DevicePlace> DeviceWatch::Places() {
  std::vector<DevicePlace> places;
  bool telephones = false;
  for (const DevicePlace& place : environment_.devices()) {
    if (!place.name.empty()) {
      places.push_back(place);
    } else if (!std::exchange(telephones, true)) {
      LookForTelephones(place.path);
      std::ranges::copy(telephones_, std::back_inserter(places));
    }
  }
  std::erase_if(places, [&](const DevicePlace& place) { return settings_.LibraryPath.starts_with(place.path + "/"); });
  return places;
}

/// What shows the telephones may hang with one of them, so it is asked as a device is.
void DeviceWatch::LookForTelephones(const std::string& folder) {
  if (!telephonesErrand_) {
    const auto found = telephonesFound_ = std::make_shared<std::vector<DevicePlace>>();
    telephonesErrand_ = environment_.send([found, folder] { *found = TelephonesBelow(folder); });
  }
  if (!telephonesErrand_->Over(0)) return;
  telephones_ = *telephonesFound_;
  telephonesErrand_.reset();
}

void DeviceWatch::Read(Known& known) {
  const auto found = known.found = std::make_shared<std::vector<DeviceVideo>>();
  known.errand = environment_.send([found, place = known.device.place.path, root = settings_.LibraryPath] {
    *found = FindDeviceVideos(place, root);
  });
}

void DeviceWatch::Take(Known& known) {
  known.errand.reset();
  known.device.videos = std::move(*known.found);
  known.looksToReading = known.device.videos.empty() ? kLooksBetweenReadings : -1;
}

void DeviceWatch::TellIfChanged() {
  const OfferedDevice* device = Offered();
  const std::string words =
      device ? device->place.path + DeviceText(device->place.name, device->videos.size(), device->Fresh())
             : std::string();
  if (std::exchange(told_, words) != words) changed_();
}

const OfferedDevice* DeviceWatch::Offered() const {
  const auto isOffered = [](const Known& known) { return !known.putAside && known.device.Fresh() > 0; };
  const auto found = std::ranges::find_if(known_, isOffered);
  return found == known_.end() ? nullptr : &found->device;
}

DeviceWatch::Known* DeviceWatch::Find(const std::string& place) {
  const auto found = std::ranges::find_if(known_, [&](const Known& known) { return known.device.place.path == place; });
  return found == known_.end() ? nullptr : &*found;
}

bool DeviceWatch::IsThere(const std::string& place) const {
  return std::ranges::any_of(known_, [&](const Known& known) { return known.device.place.path == place; });
}

void DeviceWatch::PutAside(const std::string& place) {
  if (Known* known = Find(place)) known->putAside = true;
  TellIfChanged();
}

void DeviceWatch::LookAgain(const std::string& place) {
  if (Known* known = Find(place)) Read(*known);
}

}  // namespace kinalyx
