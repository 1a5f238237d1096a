#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/files/Result.h"

namespace kinalyx {

/// A way in which a camera can give its pictures.
struct PictureMode {
  int width = 0;
  int height = 0;
  double rate = 0;     ///< pictures a second, the highest that it promises at this size; 0 when it does not tell
  std::string format;  ///< "MJPG", "YUY2", "NV12", "RGB3", "dvsd", "H264": the code by which people know it
  bool operator==(const PictureMode&) const = default;
};

/// A camera or a microphone, as a list shows it.
struct Device {
  enum class Kind { Camera, Microphone };
  enum class Origin { Local, FireWire, Network, Test };

  std::string name;  ///< unique in its list; what settings keep
  Kind kind = Kind::Camera;
  Origin origin = Origin::Local;
  std::string address;              ///< of a network camera
  std::vector<PictureMode> modes;   ///< of a camera; may be empty when it does not tell before it runs
  std::vector<std::string> inputs;  ///< lines of a microphone, inputs of a tuner card; mostly empty
  std::string line;                 ///< the one of its lines that a microphone hears
  bool operator==(const Device&) const = default;
};

/// One knob of a camera: exposure, gain, focus, white balance, power-line frequency.
struct CameraControl {
  std::uint32_t id = 0;
  std::string name;
  enum class Kind { Number, Switch, Choice } kind = Kind::Number;
  int low = 0;
  int high = 0;
  int step = 1;
  int standard = 0;
  int value = 0;
  std::vector<std::string> choices;  ///< of a choice: value 0 is the first; an empty text is no choice
  bool active = true;                ///< false while an automatic has it in hand
  bool operator==(const CameraControl&) const = default;
};

/// The `id` of a control that chooses what is plugged into a tuner card.
constexpr std::uint32_t kInputControl = 0;

/// What is told of devices, from the event loop of the user interface.
class IDevicesEvents {
 public:
  virtual ~IDevicesEvents() = default;
  /// One was plugged in or out, or told more of itself.
  virtual void DevicesChanged() = 0;
};

/// The cameras and microphones of this machine, with those on the network that the user has named and, where there
/// is no other camera, the Test Camera. Lives on the user-interface thread; nothing here waits for a device.
class IDevices {
 public:
  virtual ~IDevices() = default;
  /// Who is told of changes; null for nobody. Must outlive this or take itself out.
  virtual void SetEvents(IDevicesEvents* events) = 0;
  virtual const std::vector<Device>& Cameras() const = 0;
  virtual const std::vector<Device>& Microphones() const = 0;
  /// False until the machine has been asked once: a saved camera that is not in the list is not missing yet.
  virtual bool Known() const = 0;

  /// Replaces the network cameras. An address is `rtsp://...` or `http://...` (MJPEG); its name is the text before
  /// a blank and the address, or made of the host.
  virtual void SetNetworkCameras(const std::vector<std::string>& addresses) = 0;

  /// The knobs of a local camera, as far as it has told; empty where it has none. Each call has the camera asked anew,
  /// and DevicesChanged is told when the answer is another.
  virtual std::vector<CameraControl> Controls(const std::string& camera) = 0;
  /// Refused where there is no such knob, or it is out of its limits or not active. What the camera itself refuses
  /// jumps back.
  virtual Outcome SetControl(const std::string& camera, std::uint32_t id, int value) = 0;

  /// Has a microphone hear one of its lines, for all programs. Refused where it has no such line; what the sound server
  /// makes of it is seen in the list.
  virtual Outcome ChooseLine(const std::string& microphone, const std::string& line) = 0;
};

}  // namespace kinalyx
