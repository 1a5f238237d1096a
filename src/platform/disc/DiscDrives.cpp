#include "platform/disc/DiscDrives.h"

#include <algorithm>
#include <string_view>

#include "platform/disc/BurningDrive.h"
#include "platform/disc/ImageDrive.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::string_view kImage = "stdio:";
constexpr std::int64_t kSystemText = 4096;
/// SCSI's number for drives with optical discs.
constexpr std::string_view kOpticalDrive = "5";

std::string SystemText(const std::string& path) {
  std::string text = ReadTextFile(path, kSystemText).value_or("");
  const auto blank = [](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\0'; };
  while (!text.empty() && blank(text.back())) text.pop_back();
  text.erase(text.begin(), std::ranges::find_if_not(text, blank));
  return text;
}

}  // namespace

std::vector<DriveName> DiscDrives(const std::string& system, const std::string& devices) {
  std::vector<DriveName> drives;
  const std::string blocks = JoinPath(system, "class/block");
  for (const std::string& name : ListFolders(blocks)) {
    if (!name.starts_with("sr")) continue;
    const std::string device = JoinPath(JoinPath(blocks, name), "device");
    if (SystemText(JoinPath(device, "type")) != kOpticalDrive) continue;
    std::string words = SystemText(JoinPath(device, "vendor"));
    const std::string model = SystemText(JoinPath(device, "model"));
    if (!words.empty() && !model.empty()) words += ' ';
    words += model;
    if (words.empty()) words = Tr("Disc drive");
    drives.push_back({JoinPath(devices, name), words + " (" + name + ")"});
  }
  return drives;
}

std::string AddressOfImage(const std::string& path) { return std::string(kImage) + path; }

std::string ImageOfAddress(const std::string& address) {
  return address.starts_with(kImage) ? address.substr(kImage.size()) : std::string();
}

std::unique_ptr<IDiscDrive> DriveAt(const std::string& address) {
  if (const std::string image = ImageOfAddress(address); !image.empty()) return std::make_unique<ImageDrive>(image);
  return std::make_unique<BurningDrive>(address);
}

}  // namespace kinalyx
