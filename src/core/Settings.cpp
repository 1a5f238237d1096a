#include "core/Settings.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>
#include <utility>

#include "core/Numbers.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "platform/files/Tr.h"
#include "platform/host/Host.h"

namespace kinalyx {

namespace {

/// Values are read into a buffer of 150 characters; the last is its end.
constexpr int kValueCapacity = 150;
constexpr int kPathDownButton = 17;

std::string TextOf(const std::string& value) { return value; }
std::string TextOf(bool value) { return value ? "True" : "False"; }
template <typename Number>
std::string TextOf(Number value) {
  return fmt::format("{}", value);
}

/// Hears nothing, and keeps nothing.
ISettingsEvents& Nobody() {
  static class final : public ISettingsEvents {
    void SettingsReloaded() override {}
  } nobody;
  return nobody;
}

}  // namespace

Settings::Settings(IHost& host, std::string dataPath, std::string appPath, ISettingsEvents& events)
    : DataPath(std::move(dataPath)), AppPath(std::move(appPath)), host_(host), events_(events) {}

Settings::Settings(IHost& host, std::string dataPath, std::string appPath)
    : Settings(host, std::move(dataPath), std::move(appPath), Nobody()) {}

std::string Settings::UserDataPath() { return JoinPath(DocumentsFolder(), "Kinalyx"); }

std::string Settings::ConfigFile() const { return JoinPath(DataPath, "config10.ini"); }
std::string Settings::CaptureFile() const { return JoinPath(DataPath, "capture.ini"); }

std::int16_t Settings::ScreenModeNumber() const { return ReadInt16(ScreenMode); }

bool Settings::LoadSettings() {
  const auto keys = ConfigKeys();
  const std::string file = ConfigFile();
  const bool created = !FileExists(file);
  if (created && !MakeFile(keys, file)) return false;
  ReadKeys(keys, file);
  LogEnabled =
      ReadBoolean(ProfileReader(file).String("Analysis", "LogEnabled", "False", kValueCapacity)).value_or(false);
  ScreenMode = TextOf(ReadInt16(ScreenMode));
  if (created) MigrateOldConfig();
  return true;
}

void Settings::MigrateOldConfig() {
  const std::string old = JoinPath(DataPath, "config.ini");
  if (!FileExists(old)) return;
  const ProfileReader reader(old);
  const auto value = [&](const char* key) { return reader.String("General", key, old, kValueCapacity); };
  Set(UserName, value("UserName"));
  Set(CompanyName, value("UserCourse"));
  if (const auto network = ReadBoolean(value("Network"))) {
    Set(UseNetwork, *network);
  } else {
    const Key key{"General", "Network", TextOf(UseNetwork), &UseNetwork};
    TellBadBooleans({&key}, old, 0);
  }
  Set(LibraryPath, value("NetPath"));
}

bool Settings::WriteConfigKey(const std::string& section, const std::string& key, const std::string& value) {
  if (!FileExists(ConfigFile())) {
    LoadSettings();
    events_.SettingsReloaded();
    return false;
  }
  return WriteTo(ConfigFile(), section, key, value);
}

bool Settings::LoadCaptureSettings() {
  const auto keys = CaptureKeys();
  const std::string file = CaptureFile();
  const bool loaded = FileExists(file) || MakeFile(keys, file);
  if (loaded) ReadKeys(keys, file);
  CurrentCamera = Camera;
  return loaded;
}

bool Settings::WriteCaptureKey(const std::string& section, const std::string& key, const std::string& value) {
  if (!FileExists(CaptureFile())) {
    LoadCaptureSettings();
    return false;
  }
  return WriteTo(CaptureFile(), section, key, value);
}

bool Settings::WriteTo(const std::string& file, const std::string& section, const std::string& key,
                       const std::string& value) {
  if (WritePrivateProfileString(section, key, value, file)) return true;
  host_.Note(MessageKind::Warning, "a setting could not be saved");
  if (std::exchange(toldUnwritable_, true)) return false;
  // Told when the click that changed the setting is over, so that no slider is left dragging.
  host_.StartTimer(0, false,
                   [&host = host_, text = Tr("The settings cannot be saved in {}, so changes last "
                                             "until the program closes.",
                                             DataPath)] { host.Message(MessageKind::Warning, "", text); });
  return false;
}

bool Settings::Holds(std::string_view text) {
  // Characters, of which the bytes that go on with one are none.
  return std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }) <
         kValueCapacity;
}

std::string Settings::TooLongText(const std::string& path) {
  return Tr(
      "The path {} is longer than the 149 characters that the settings can hold. Choose a place with a shorter path.",
      path);
}

bool Settings::SetNewColor(int index, std::int32_t colour) {
  if (index == kPathDownButton) {
    // The loader does not know this key: the colour lasts until the program ends.
    PathDownColor = colour;
    return WriteConfigKey("Analysis", fmt::format("NewColor{}", index), TextOf(colour));
  }
  if (index < 0 || index >= static_cast<int>(NewColors.size())) return false;
  return Set(NewColors[static_cast<std::size_t>(index)], colour);
}

void Settings::StoreWindowPlace(std::int32_t top, std::int32_t left, std::int32_t width, std::int32_t height) {
  Set(WindowInfo[0], top);
  Set(WindowInfo[1], left);
  Set(WindowInfo[2], width);
  Set(WindowInfo[3], height);
}

bool Settings::WriteMember(const Member& member) {
  const auto write = [&](const std::vector<Key>& keys, bool capture) -> std::optional<bool> {
    const auto key = std::find_if(keys.begin(), keys.end(), [&](const Key& k) { return k.member == member; });
    if (key == keys.end()) return std::nullopt;
    const std::string text = std::visit([](const auto* value) { return TextOf(*value); }, member);
    return capture ? WriteCaptureKey(key->section, key->name, text) : WriteConfigKey(key->section, key->name, text);
  };
  if (const auto written = write(ConfigKeys(), false)) return *written;
  return write(CaptureKeys(), true).value_or(false);
}

bool Settings::MakeFile(const std::vector<Key>& keys, const std::string& path) {
  std::vector<ProfileEntry> entries;
  for (const Key& key : keys) entries.push_back({key.section, key.name, key.firstRun});
  if (MakeFolder(DataPath) && WriteProfileEntries(entries, path)) return true;
  for (const Key& key : keys) Take(key, key.firstRun);
  host_.Note(MessageKind::Warning, "the settings could not be made");
  if (!toldUnwritable_) {
    toldUnwritable_ = true;
    host_.Message(MessageKind::Warning, "",
                  Tr("The settings cannot be saved in {}. The program works with its first settings, and "
                     "changes last until it closes.",
                     DataPath));
  }
  return false;
}

bool Settings::Take(const Key& key, const std::string& text) {
  struct {
    const std::string& text;
    bool operator()(std::string* held) const {
      *held = text;
      return true;
    }
    bool operator()(std::int16_t* held) const {
      *held = ReadInt16(text);
      return true;
    }
    bool operator()(std::int32_t* held) const {
      *held = ReadInt32(text);
      return true;
    }
    bool operator()(float* held) const {
      *held = static_cast<float>(ReadNumber(text));
      return true;
    }
    bool operator()(bool* held) const {
      const auto value = ReadBoolean(text);
      *held = value.value_or(*held);
      return value.has_value();
    }
  } const into{text};
  return std::visit(into, key.member);
}

void Settings::ReadKeys(const std::vector<Key>& keys, const std::string& path) {
  const ProfileReader reader(path);
  const std::string asMissing = path.substr(0, kValueCapacity - 1);
  std::vector<const Key*> bad;
  std::size_t missing = 0;
  for (const Key& key : keys) {
    // A missing key reads as the path of the file; nothing mends it.
    const std::string text = reader.String(key.section, key.name, path, kValueCapacity);
    if (Take(key, text)) {
      missing += text == asMissing;
      continue;
    }
    Take(key, key.firstRun);
    bad.push_back(&key);
  }
  TellBadBooleans(bad, path, missing);
}

void Settings::TellBadBooleans(const std::vector<const Key*>& bad, const std::string& path, std::size_t missing) {
  constexpr std::size_t kNamed = 3;
  std::string names;
  std::size_t count = 0;
  for (const Key* key : bad) {
    const std::string place = fmt::format("{} [{}] {}", path, key->section, key->name);
    if (std::find(toldKeys_.begin(), toldKeys_.end(), place) != toldKeys_.end()) continue;
    toldKeys_.push_back(place);
    if (count++ < kNamed) names += (names.empty() ? "" : ", ") + key->name;
  }
  if (count == 0) return;
  if (count > kNamed) names += Tr(" and {} more", count - kNamed);
  std::string text =
      count == 1
          ? Tr("1 setting in {} could not be read ({}), so its first value holds for this run", path, names)
          : Tr("{} settings in {} could not be read ({}), so their first values hold for this run", count, path, names);
  if (missing > 0)
    text += missing == 1 ? Tr(", and 1 other is missing and has no usable value until it is set again")
                         : Tr(", and {} others are missing and have no usable value until they are set again", missing);
  host_.Message(MessageKind::Warning, "", text + ".");
}

}  // namespace kinalyx
