#include "capture/CaptureSetup.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "core/Settings.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

std::string SizeText(const PictureMode& mode) { return fmt::format("{} x {}", mode.width, mode.height); }

std::string FormatText(const PictureMode& mode) {
  if (mode.rate <= 0) return mode.format;
  const double rate = std::round(mode.rate * 100) / 100;
  return Tr("{}, {} a second", mode.format, rate);
}

bool Holds(const std::vector<std::string>& texts, std::string_view text) {
  return std::ranges::find(texts, text) != texts.end();
}

const Device* FindDevice(const std::vector<Device>& devices, std::string_view name) {
  const auto found = std::ranges::find(devices, name, &Device::name);
  return found == devices.end() ? nullptr : &*found;
}

/// The text of a key that is not in the file is the path of the file: no device and no size is called so.
bool IsChoice(const std::string& text) { return !text.empty() && text != "-1" && text.find('/') == std::string::npos; }

}  // namespace

std::optional<PictureSize> SizeOf(std::string_view text) {
  const std::size_t by = text.find(" x ");
  if (by == std::string_view::npos) return std::nullopt;
  PictureSize size;
  const std::string_view height = text.substr(by + 3);
  std::from_chars(text.data(), text.data() + by, size.width);
  std::from_chars(height.data(), height.data() + height.size(), size.height);
  if (size.width <= 0 || size.height <= 0) return std::nullopt;
  return size;
}

std::vector<std::string> SizesOf(const Device& camera) {
  std::vector<PictureMode> modes = camera.modes;
  std::ranges::stable_sort(modes, [](const PictureMode& a, const PictureMode& b) {
    return a.width * a.height != b.width * b.height ? a.width * a.height > b.width * b.height : a.width > b.width;
  });
  std::vector<std::string> sizes;
  for (const PictureMode& mode : modes) {
    const std::string text = SizeText(mode);
    if (!Holds(sizes, text)) sizes.push_back(text);
  }
  return sizes;
}

std::vector<std::string> FormatsOf(const Device& camera, std::string_view size) {
  std::vector<PictureMode> modes;
  for (const PictureMode& mode : camera.modes)
    if (SizeText(mode) == size) modes.push_back(mode);
  std::ranges::stable_sort(modes, [](const PictureMode& a, const PictureMode& b) { return a.rate > b.rate; });
  std::vector<std::string> formats;
  for (const PictureMode& mode : modes) {
    const std::string text = FormatText(mode);
    if (!Holds(formats, text)) formats.push_back(text);
  }
  return formats;
}

std::string FormatCode(std::string_view format) { return std::string(format.substr(0, format.find(','))); }

double FormatRate(std::string_view format) {
  const std::size_t comma = format.find(", ");
  if (comma == std::string_view::npos) return 0;
  double rate = 0;
  std::from_chars(format.data() + comma + 2, format.data() + format.size(), rate);
  return rate;
}

CaptureSetup::CaptureSetup(Settings& settings, IDevices& devices) : settings_(settings), devices_(devices) {
  devices_.SetNetworkCameras(NetworkCameras());
  devices_.SetEvents(this);
  TakeDevices();
}

CaptureSetup::~CaptureSetup() { devices_.SetEvents(nullptr); }

SourceKind CaptureSetup::Kind() const { return static_cast<SourceKind>(settings_.VideoInSource); }
bool CaptureSetup::DVMode() const { return settings_.DVMode; }

void CaptureSetup::ChooseKind(SourceKind kind) {
  settings_.ImportCaptureMode = IsImport(kind);
  settings_.DVMode = kind == SourceKind::Firewire;
  settings_.VideoInSource = static_cast<std::int32_t>(kind);
  settings_.Write(settings_.ImportCaptureMode);
  settings_.Write(settings_.DVMode);
  settings_.Write(settings_.VideoInSource);
  Changed();
}

CaptureMethod CaptureSetup::Method() const {
  const std::int32_t method = settings_.CapMode;
  return method >= 1 && method <= 4 ? static_cast<CaptureMethod>(method) : CaptureMethod::StartStop;
}

void CaptureSetup::ChooseMethod(CaptureMethod method) {
  settings_.Set(settings_.CapMode, static_cast<std::int32_t>(method));
  Changed();
}

bool CaptureSetup::SingleCamera() const { return settings_.OneCam; }

void CaptureSetup::ChooseCameraCount(bool single) {
  if (settings_.Loading || single == settings_.OneCam) return;
  settings_.Set(settings_.OneCam, single);
  TakeDevices();
  Changed();
}

void CaptureSetup::ChooseCamera(int camera) {
  if (settings_.CameraSelect == camera) return;
  settings_.Set(settings_.CameraSelect, camera);
  Changed();
}

CameraUse CaptureSetup::Use() const {
  if (!settings_.OneCam) return CameraUse::Both;
  return settings_.CameraSelect == 1 ? CameraUse::Second : CameraUse::First;
}

namespace {
using CheckMember = bool Settings::*;
constexpr std::array<CheckMember, 9> kChecks{
    &Settings::ReverseFields,     &Settings::SplitFields,     &Settings::Recompress,
    &Settings::HDReverseFields,   &Settings::HDSplitFields,   &Settings::HDRecompress,
    &Settings::AutoReverseFields, &Settings::AutoSplitFields, &Settings::AutoRecompress};
}  // namespace

bool CaptureSetup::Check(int index) const { return settings_.*kChecks.at(static_cast<std::size_t>(index)); }

void CaptureSetup::SetCheck(int index, bool on) {
  settings_.Set(settings_.*kChecks.at(static_cast<std::size_t>(index)), on);
}

const std::string& CaptureSetup::ImportFolder() const {
  return Kind() == SourceKind::HighDefImport ? settings_.ImportFolder : settings_.AutoImportFolder;
}

void CaptureSetup::SetImportFolder(std::string_view folder) {
  std::string path(folder);
  if (!path.empty() && path.back() != '/') path += '/';
  settings_.Set(Kind() == SourceKind::HighDefImport ? settings_.ImportFolder : settings_.AutoImportFolder, path);
  Changed();
}

// ---------------------------------------------------------------- devices

const Device* CaptureSetup::ShownDevice(int camera) const { return FindDevice(devices_.Cameras(), Shown(camera).name); }

void CaptureSetup::ChooseSource(int camera, const std::string& name) {
  CameraChoice& choice = shown_[static_cast<std::size_t>(camera)];
  if (choice.name == name) return;
  choice = {.name = name, .size = {}, .format = {}, .input = {}};
  if (IsSaved(camera)) TakeSaved(camera);
  if (const Device* device = FindDevice(devices_.Cameras(), name)) FitChoice(choice, *device);
  settings_.CurrentCamera[static_cast<std::size_t>(camera)] = name;
  Changed();
}

void CaptureSetup::ChooseSize(int camera, const std::string& size) {
  if (settings_.Loading) return;
  const auto index = static_cast<std::size_t>(camera);
  shown_[index].size = size;
  if (const Device* device = ShownDevice(camera)) FitChoice(shown_[index], *device);
  if (IsSaved(camera)) settings_.Set(settings_.CameraSize[index], size);
  Changed();
}

void CaptureSetup::ChooseFormat(int camera, const std::string& format) {
  if (settings_.Loading) return;
  const auto index = static_cast<std::size_t>(camera);
  shown_[index].format = format;
  if (IsSaved(camera)) settings_.Set(settings_.CameraFormat[index], format);
  Changed();
}

void CaptureSetup::ChooseInput(int camera, const std::string& input) {
  if (settings_.Loading) return;
  const auto index = static_cast<std::size_t>(camera);
  shown_[index].input = input;
  if (IsSaved(camera)) settings_.Set(settings_.CameraInput[index], input);
  Changed();
}

void CaptureSetup::StoreCamera(int camera) {
  const auto index = static_cast<std::size_t>(camera);
  const CameraChoice& choice = shown_[index];
  settings_.Set(settings_.Camera[index], choice.name);
  settings_.Set(settings_.CameraSize[index], choice.size);
  settings_.Set(settings_.CameraInput[index], choice.input);
  settings_.Set(settings_.CameraFormat[index], choice.format);
  Tell(&ICaptureSetupEvents::CaptureDevicesChanged);
}

CameraStatus CaptureSetup::ShowCameraStatus(int camera) const {
  const int number = camera + 1;
  if (camera == 1 && SingleCamera()) return {Tr("Not in use"), false};
  const std::string& saved = settings_.Camera[static_cast<std::size_t>(camera)];
  if (!IsChoice(saved)) return {Tr("No Camera {} Saved", number), false};
  if (saved == Shown(camera).name && ShownDevice(camera)) return {Tr("Default Camera {}", number), true};
  return {Tr("Default Camera {} not selected", number), false};
}

std::optional<int> CaptureSetup::MissingCamera() const {
  if (IsImport(Kind()) || !devices_.Known()) return std::nullopt;
  for (int camera = 0; camera < 2; ++camera) {
    const bool used = Use() == CameraUse::Both || static_cast<int>(Use()) == camera;
    const std::string& saved = settings_.Camera[static_cast<std::size_t>(camera)];
    if (used && IsChoice(saved) && !FindDevice(devices_.Cameras(), saved)) return camera;
  }
  return std::nullopt;
}

void CaptureSetup::ChooseMicrophone(const std::string& name) {
  if (settings_.Loading) return;
  settings_.Set(settings_.SoundCardSource, name);
  settings_.Set(settings_.SoundCardInput, std::string());  // it was a line of the other one
  Changed();
}

std::string CaptureSetup::Microphone() const {
  if (FindDevice(devices_.Microphones(), settings_.SoundCardSource)) return settings_.SoundCardSource;
  return devices_.Microphones().empty() ? std::string() : devices_.Microphones().front().name;
}

std::vector<std::string> CaptureSetup::MicrophoneLines() const {
  const Device* microphone = FindDevice(devices_.Microphones(), Microphone());
  return microphone ? microphone->inputs : std::vector<std::string>();
}

std::string CaptureSetup::MicrophoneLine() const {
  const Device* microphone = FindDevice(devices_.Microphones(), Microphone());
  return microphone ? microphone->line : std::string();
}

void CaptureSetup::ChooseMicrophoneLine(int index) {
  const std::vector<std::string> lines = MicrophoneLines();
  if (settings_.Loading || index < 0 || index >= static_cast<int>(lines.size())) return;
  settings_.Set(settings_.SoundCardSource, Microphone());
  settings_.Set(settings_.SoundCardInput, std::to_string(index));
  (void)devices_.ChooseLine(Microphone(), lines[static_cast<std::size_t>(index)]);
}

/// The line that was chosen here is heard again where the microphone has come back with another one.
void CaptureSetup::TakeSavedLine() {
  const std::string& text = settings_.SoundCardInput;
  std::size_t index = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), index).ptr != text.data() + text.size()) return;
  const std::vector<std::string> lines = MicrophoneLines();
  const bool saved = Microphone() == settings_.SoundCardSource && !text.empty() && index < lines.size();
  // Asked once: who plugs something in while the program runs may have another one be heard.
  if (saved && std::exchange(lineTaken_, Microphone()) != Microphone() && lines[index] != MicrophoneLine())
    (void)devices_.ChooseLine(Microphone(), lines[index]);
  if (lines.empty()) lineTaken_.clear();
}

std::vector<std::string> CaptureSetup::NetworkCameras() const {
  std::vector<std::string> addresses;
  for (const std::string& address : settings_.NetworkCamera)
    if (address.find("://") != std::string::npos) addresses.push_back(address);
  return addresses;
}

void CaptureSetup::SetNetworkCamera(int index, const std::string& address) {
  settings_.Set(settings_.NetworkCamera.at(static_cast<std::size_t>(index)), address);
  devices_.SetNetworkCameras(NetworkCameras());
}

void CaptureSetup::DevicesChanged() {
  const std::array<CameraChoice, 2> before = shown_;
  TakeDevices();
  Tell(&ICaptureSetupEvents::CaptureDevicesChanged);
  const auto same = [](const CameraChoice& a, const CameraChoice& b) {
    return a.name == b.name && a.size == b.size && a.format == b.format;
  };
  if (!std::ranges::equal(before, shown_, same)) Changed();
}

/// The saved cameras where they are there, else the first ones that nobody else shows. A camera that was chosen and
/// has gone keeps its place: it may come back.
void CaptureSetup::TakeDevices() {
  for (int camera = 0; camera < 2; ++camera) {
    const auto index = static_cast<std::size_t>(camera);
    CameraChoice& choice = shown_[index];
    const bool stands = !choice.name.empty() && ShownDevice(camera);
    if (!stands && FindDevice(devices_.Cameras(), settings_.Camera[index]) &&
        shown_[1 - index].name != settings_.Camera[index]) {
      choice = {.name = settings_.Camera[index], .size = {}, .format = {}, .input = {}};
      TakeSaved(camera);
    } else if (!stands) {
      const bool waits = IsChoice(settings_.Camera[index]) && settings_.Camera[index] == choice.name;
      const auto free = std::ranges::find_if(devices_.Cameras(), [&](const Device& device) {
        return device.name != shown_[1 - index].name && (camera == 0 || device.name != settings_.Camera[0]);
      });
      // Cameras that need no looking for would take the places of those that are still being looked for; and where the
      // only camera was pulled out, nobody wants to see a drawn one instead.
      const bool drawn = free != devices_.Cameras().end() && free->origin == Device::Origin::Test;
      if (devices_.Known() && !waits && free != devices_.Cameras().end() && (!drawn || choice.name.empty()))
        choice = {.name = free->name, .size = {}, .format = {}, .input = {}};
    }
    if (const Device* device = ShownDevice(camera)) FitChoice(choice, *device);
    settings_.CurrentCamera[index] = choice.name;
  }
  TakeSavedLine();
}

void CaptureSetup::TakeSaved(int camera) {
  const auto index = static_cast<std::size_t>(camera);
  CameraChoice& choice = shown_[index];
  if (SizeOf(settings_.CameraSize[index])) choice.size = settings_.CameraSize[index];
  if (IsChoice(settings_.CameraFormat[index])) choice.format = settings_.CameraFormat[index];
  if (IsChoice(settings_.CameraInput[index])) choice.input = settings_.CameraInput[index];
}

/// A size and a format that the camera has: where none was chosen, the one of most pictures up to full high definition.
void CaptureSetup::FitChoice(CameraChoice& choice, const Device& device) const {
  const std::vector<std::string> sizes = SizesOf(device);
  if (!sizes.empty() && !Holds(sizes, choice.size)) {
    const auto best = std::ranges::max_element(device.modes, {}, [](const PictureMode& mode) {
      const bool fits = mode.width <= 1920 && mode.height <= 1080;
      return std::tuple(fits, fits ? std::min(mode.rate, 60.0) : -mode.rate, mode.width * mode.height);
    });
    choice.size = SizeText(*best);
  }
  const std::vector<std::string> formats = FormatsOf(device, choice.size);
  if (!Holds(formats, choice.format)) choice.format = formats.empty() ? std::string() : formats.front();
  if (!Holds(device.inputs, choice.input)) choice.input = device.inputs.empty() ? std::string() : device.inputs.front();
}

bool CaptureSetup::IsSaved(int camera) const {
  const auto index = static_cast<std::size_t>(camera);
  return IsChoice(settings_.Camera[index]) && settings_.Camera[index] == shown_[index].name;
}

void CaptureSetup::Changed() { Tell(&ICaptureSetupEvents::CaptureChoiceChanged); }

void CaptureSetup::Tell(void (ICaptureSetupEvents::*what)()) {
  if (events_) (events_->*what)();
  for (ICaptureSetupEvents* listener : std::vector(listeners_)) (listener->*what)();
}

}  // namespace kinalyx
