#include "distribution/disc/BurnBoard.h"

#include <cmath>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

/// "#,##0.00" megabytes.
std::string Megabytes(std::int64_t bytes) {
  constexpr double kMegabyte = 1 << 20;
  const long long hundredths = std::llround(static_cast<double>(bytes) / kMegabyte * 100);
  std::string whole = std::to_string(hundredths / 100);
  for (auto at = static_cast<std::ptrdiff_t>(whole.size()) - 3; at > 0; at -= 3)
    whole.insert(static_cast<std::size_t>(at), ",");
  const std::string part = std::to_string(hundredths % 100);
  return whole + "." + (part.size() < 2 ? "0" : "") + part;
}

}  // namespace

const char* StateText(DriveState state) {
  switch (state) {
    case DriveState::Idle: return TrLater("IDLE");
    case DriveState::Writing: return TrLater("WRITING");
    case DriveState::Erasing: return TrLater("ERASING");
    case DriveState::Formatting: return TrLater("BACKGROUND FORMAT");
    case DriveState::ClosingTrack: return TrLater("CLOSING TRACK");
    case DriveState::Preparing: return TrLater("PREPARING");
    case DriveState::AbortingByUser: return TrLater("ABORTING (USER)");
    case DriveState::ImportingSession: return TrLater("IMPORTING SESSION");
    case DriveState::AbortingByError: return TrLater("ABORTING (BURN ERROR)");
    case DriveState::Checking: return TrLater("CHECKING");
  }
  return "";
}

std::string ProgressText(std::int64_t done, std::int64_t total) {
  return Megabytes(done) + " / " + Megabytes(total) + "MB";
}

}  // namespace kinalyx
