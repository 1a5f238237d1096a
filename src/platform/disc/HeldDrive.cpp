#include "platform/disc/HeldDrive.h"

#include <array>
#include <chrono>
#include <mutex>

#include <libburn/libburn.h>
#include <libisofs/libisofs.h>
#include <unistd.h>

#include "platform/files/Tr.h"

using namespace burn;  // libburn's own, around all that it declares

namespace kinalyx {
namespace {

/// libburn keeps one list of drives for the process, which only one thread may change at a time.
std::timed_mutex& DriveList() {
  static std::timed_mutex list;
  return list;
}

constexpr auto kPatience = std::chrono::seconds(5);
constexpr int kMessageRoom = 4096;

const char* const kSilent = TrLater("Another disc drive has not answered yet. Please try again later.");

}  // namespace

bool DiscLibraries() {
  static const bool ready = [] {
    if (!burn_initialize() || iso_init() < 0) return false;
    // Both complain into queues, and not on the terminal.
    char warning[] = "WARNING";
    char never[] = "NEVER";
    char prefix[] = "";
    burn_msgs_set_severities(warning, never, prefix);
    iso_set_msgs_severities(warning, never, prefix);
    // A file that cannot be read any more is no zeros on the disc, but a failure.
    char sorry[] = "SORRY";
    iso_set_abort_severity(sorry);
    // A drive that is shown by another program is not taken from it.
    burn_preset_device_open(1, 0, 0);
    return true;
  }();
  return ready;
}

std::string DiscComplaint() {
  std::string first;
  char least[] = "SORRY";
  std::array<char, BURN_MSGS_MESSAGE_LEN> text{};
  std::array<char, 80> severity{};
  int code = 0;
  int reason = 0;
  while (burn_msgs_obtain(least, &code, text.data(), &reason, severity.data()) > 0)
    if (first.empty()) first = text.data();
  std::array<char, kMessageRoom> words{};
  int image = 0;
  while (iso_obtain_msgs(least, &code, &image, words.data(), severity.data()) > 0)
    if (first.empty()) first = words.data();
  return first;
}

Result<std::unique_ptr<HeldDrive>> HeldDrive::Hold(const std::string& address, bool load) {
  if (!DiscLibraries()) return Outcome::Failed(Tr("The disc libraries could not be started."));
  if (address.starts_with('/')) {
    if (access(address.c_str(), F_OK) != 0) return Outcome(Fault::NotFound, Tr("The drive has gone."));
    if (access(address.c_str(), R_OK | W_OK) != 0)
      return Outcome(Fault::Refused,
                     Tr("You may not use this drive. Ask whoever looks after the computer to add you to the group "
                        "\"cdrom\", and log in again."));
  }
  const std::unique_lock list(DriveList(), kPatience);
  if (!list) return Outcome(Fault::Refused, Tr(kSilent));
  DiscComplaint();
  burn_drive_info* infos = nullptr;
  std::string name = address;
  if (burn_drive_scan_and_grab(&infos, name.data(), load ? 1 : 0) != 1) {
    const std::string why = DiscComplaint();
    return Outcome(Fault::Refused, Tr("The drive could not be opened. Perhaps another program uses it or shows its "
                                      "disc: close that, and try again.") +
                                       (why.empty() ? "" : " (" + why + ")"));
  }
  return std::unique_ptr<HeldDrive>(new HeldDrive(infos));
}

burn_drive* HeldDrive::Get() const { return infos_[0].drive; }

HeldDrive::~HeldDrive() {
  // Without the lock where another drive hangs: to keep this one held for ever would be worse.
  std::unique_lock list(DriveList(), kPatience);
  burn_drive_release(infos_[0].drive, eject_ ? 1 : 0);
  burn_drive_info_forget(infos_, 1);
  burn_drive_info_free(infos_);
}

}  // namespace kinalyx
