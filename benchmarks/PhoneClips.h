#pragma once

#include <string>

namespace kinalyx::bench {

/// A clip as phones and high-speed cameras make them: a textured picture that moves, one key picture a second
/// at most.
struct PhoneClip {
  std::string encoder;
  int width = 0;
  int height = 0;
  int rate = 60;
  int seconds = 10;

  int Frames() const { return rate * seconds; }
};

inline const PhoneClip kH264p1080{"libx264", 1920, 1080, 60};
inline const PhoneClip kHevc1080{"libx265", 1920, 1080, 60};
inline const PhoneClip kHevc1080At240{"libx265", 1920, 1080, 240};
inline const PhoneClip kHevc2160{"libx265", 3840, 2160, 60};

/// Its path. Making one takes minutes, so each is kept in the build folder. Throws when it cannot be made.
std::string MakePhoneClip(const PhoneClip& clip);

}  // namespace kinalyx::bench
