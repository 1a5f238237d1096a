#pragma once

#include <cstdint>
#include <vector>

#include "platform/host/Host.h"
#include "platform/paint/PixelOps.h"
#include "video/PlayScheduler.h"

namespace kinalyx {

class ISoundOutput;

/// What all players of the program share. Outlives them.
struct PlayerServices {
  IHost& host;
  PlayScheduler& scheduler;
  /// Pictures per second of the file that was loaded last, by any player; 29 counts as 30.
  int VideoFrameRate = 30;
  /// Where a picture is widened before it is scaled. One for all: they scale one after the other, and what is
  /// still in the processor's cache is written over fastest.
  ScaleScratch scratch{};
  std::vector<std::uint8_t> field{};  ///< where a field is rebuilt before it is scaled, shared for the same reason
  ISoundOutput* sound = nullptr;      ///< null: nothing is ever heard
};

}  // namespace kinalyx
