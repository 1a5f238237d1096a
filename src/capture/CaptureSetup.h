#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "capture/CaptureState.h"
#include "platform/graph/IDevices.h"

namespace kinalyx {

class Settings;

/// What is told of the choices.
class ICaptureSetupEvents {
 public:
  virtual ~ICaptureSetupEvents() = default;
  /// Another kind, number of cameras, camera, size, format or microphone: what runs is to be built anew.
  virtual void CaptureChoiceChanged() = 0;
  /// The lists of devices are others.
  virtual void CaptureDevicesChanged() = 0;
};

/// What a camera is set to.
struct CameraChoice {
  std::string name;    ///< empty: none
  std::string size;    ///< "640 x 480"; empty: the camera's own
  std::string format;  ///< "MJPG, 30 a second"; empty: the best
  std::string input;   ///< of a tuner card
  bool operator==(const CameraChoice&) const = default;
};

/// What the user may be told of a saved camera, a label of the setup.
struct CameraStatus {
  std::string text;
  bool present = false;  ///< on green ground
};

/// The size in a text of the list of sizes; nothing for another text.
struct PictureSize {
  int width = 0;
  int height = 0;
};
std::optional<PictureSize> SizeOf(std::string_view text);
/// The sizes of a camera, the largest first, each once.
std::vector<std::string> SizesOf(const Device& camera);
/// How it gives pictures of one size: "MJPG, 60 a second".
std::vector<std::string> FormatsOf(const Device& camera, std::string_view size);
/// "MJPG" of "MJPG, 60 a second".
std::string FormatCode(std::string_view format);
/// 60 of "MJPG, 60 a second"; 0 when it does not tell.
double FormatRate(std::string_view format);

/// The choices of the capture page: from which kind of source, with which cameras, how and under what names. Every one
/// is written to its key at once. Cameras count from 0 here; their keys and captions count from 1.
class CaptureSetup : private IDevicesEvents {
 public:
  /// Both outlive this.
  CaptureSetup(Settings& settings, IDevices& devices);
  ~CaptureSetup() override;

  /// Null for nobody.
  void SetEvents(ICaptureSetupEvents* events) { events_ = events; }
  /// Somebody else who is told too, until he says that he has heard enough.
  void Listen(ICaptureSetupEvents& events) { listeners_.push_back(&events); }
  void StopListening(ICaptureSetupEvents& events) { std::erase(listeners_, &events); }

  // --- choices with keys in config10.ini

  SourceKind Kind() const;
  bool DVMode() const;
  /// Three keys that belong together.
  void ChooseKind(SourceKind kind);
  CaptureMethod Method() const;
  void ChooseMethod(CaptureMethod method);
  bool SingleCamera() const;
  /// Nothing while the controls are being filled.
  void ChooseCameraCount(bool single);
  /// Which camera works where one does: 0 or 1.
  void ChooseCamera(int camera);
  CameraUse Use() const;
  /// One of nine check boxes `CapChoice`, three for each way of taking video.
  bool Check(int index) const;
  void SetCheck(int index, bool on);
  /// The folder of this kind of import, with a slash at its end.
  const std::string& ImportFolder() const;
  void SetImportFolder(std::string_view folder);

  // --- devices

  const std::vector<Device>& Cameras() const { return devices_.Cameras(); }
  const std::vector<Device>& Microphones() const { return devices_.Microphones(); }
  IDevices& Devices() { return devices_; }
  /// What the lists of one camera show.
  const CameraChoice& Shown(int camera) const { return shown_[static_cast<std::size_t>(camera)]; }
  /// The camera that they show, or null while it is not there.
  const Device* ShownDevice(int camera) const;
  void ChooseSource(int camera, const std::string& name);
  /// Stored too, where the camera that is shown is the saved one.
  void ChooseSize(int camera, const std::string& size);
  void ChooseFormat(int camera, const std::string& format);
  void ChooseInput(int camera, const std::string& input);
  /// `CamConfig_Camera` 3 and 4: what is shown is what the program starts with from now on.
  void StoreCamera(int camera);
  CameraStatus ShowCameraStatus(int camera) const;
  /// A saved camera that is at work by the choices and is not there; nothing before the devices are known.
  std::optional<int> MissingCamera() const;
  void ChooseMicrophone(const std::string& name);
  /// The saved one, or the first that there is.
  std::string Microphone() const;
  /// What can be plugged into it, and which of these is heard; mostly there is no choice. Its key keeps the index.
  std::vector<std::string> MicrophoneLines() const;
  std::string MicrophoneLine() const;
  void ChooseMicrophoneLine(int index);

  /// Addresses of cameras on the network, one a line of the setup.
  std::vector<std::string> NetworkCameras() const;
  void SetNetworkCamera(int index, const std::string& address);

 private:
  void DevicesChanged() override;
  void TakeDevices();
  void TakeSaved(int camera);
  void TakeSavedLine();
  void FitChoice(CameraChoice& choice, const Device& device) const;
  bool IsSaved(int camera) const;
  void Changed();
  void Tell(void (ICaptureSetupEvents::*what)());

  Settings& settings_;
  IDevices& devices_;
  ICaptureSetupEvents* events_ = nullptr;
  std::vector<ICaptureSetupEvents*> listeners_;
  std::array<CameraChoice, 2> shown_;
  std::string lineTaken_;  ///< the microphone whose saved line has been asked for
};

}  // namespace kinalyx
