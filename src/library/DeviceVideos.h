#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

// What a telephone, a camera or a memory card has brought. Everything here but the list of mounts touches a drive
// that may not answer, so a worker calls it; see DeviceWatch.

/// Where a device stands in the folder tree.
struct DevicePlace {
  std::string path;
  std::string name;  ///< as the user knows it: "SAMSUNG"

  friend bool operator==(const DevicePlace&, const DevicePlace&) = default;
};

struct DeviceVideo {
  std::string path;
  std::int64_t bytes = 0;
  std::int64_t written = 0;  ///< seconds since 1970
  bool inLibrary = false;    ///< a video of its name and size lies somewhere in the library

  friend bool operator==(const DeviceVideo&, const DeviceVideo&) = default;
};

/// The devices in the text of a list of mounts, without touching them: sticks and cards where the desktop mounts
/// what is plugged in, and the folder below which it shows telephones; that one has no name.
std::vector<DevicePlace> DevicesIn(std::string_view mounts);
/// Those of this machine, now.
std::vector<DevicePlace> DevicesNow();
/// The telephones and cameras below the folder that DevicesIn gives without a name.
std::vector<DevicePlace> TelephonesBelow(const std::string& folder);
/// "SAMSUNG" of "mtp:host=SAMSUNG_SAMSUNG_Android_R58N12": each word once, without the number of the device.
std::string TelephoneName(std::string_view folder);

/// The folders of a device in which cameras keep what they take, by their usual names, at its top or one folder
/// below: a telephone shows its memory and its card there. None for any other stick.
std::vector<std::string> CameraFolders(const std::string& device);
/// All videos in the camera folders of a device, newest first, marked where the library at `root` has them. A
/// device that goes meanwhile gives what was found till then.
std::vector<DeviceVideo> FindDeviceVideos(const std::string& device, const std::string& root);

/// "24 videos on "SAMSUNG", 6 of them new"; at least one is.
std::string DeviceText(const std::string& device, std::size_t videos, std::size_t fresh);

}  // namespace kinalyx
