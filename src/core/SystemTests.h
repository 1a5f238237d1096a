#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/Settings.h"
#include "platform/host/Host.h"

namespace kinalyx {

constexpr std::int32_t kGaugeRed = 192;  ///< red + 256 * green + 65536 * blue
constexpr std::int32_t kGaugeGreen = 32768;

/// One row of the system test: what was measured, and a filled bar.
struct SystemTestRow {
  std::string title;  ///< "Video Colors" and so on
  std::string text;   ///< of `Label1`
  std::int32_t colour = kGaugeRed;
  int percent = 0;  ///< of `FloodPanel`; 0 when the machine does not tell
};

/// What the machine was found to have.
struct MachineFigures {
  SystemInfo system;
  std::int64_t freeBytes = -1;  ///< of the library's drive; negative unknown
  int neededWidth = 1024;       ///< pixels
  int neededHeight = 768;
};

/// The five rows for given figures: colours, disk space, screen, processor, memory.
std::array<SystemTestRow, 5> RateMachine(const MachineFigures& figures);

/// Measures this machine and rates it. The screen must hold the window mode that is chosen.
std::array<SystemTestRow, 5> SystemTests(IHost& host, const Settings& settings);

}  // namespace kinalyx
