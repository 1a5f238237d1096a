#pragma once

#include "platform/paint/Geometry.h"

namespace kinalyx::demo {

enum class ClubKind { Driver, Iron };

/// What a coach would find to work on; 0 is none, 1 plain to see.
struct SwingFaults {
  double sway = 0;            ///< hips slide away from the target in the backswing, the head with them
  double overTheTop = 0;      ///< the downswing begins with the shoulders; the club comes from outside
  double casting = 0;         ///< the wrists give away their angle early
  double earlyExtension = 0;  ///< hips move towards the ball and the back straightens before impact
  double hangingBack = 0;     ///< the weight stays on the back foot
};

struct GolferLook {
  double height = 1.80;  ///< metres
  double girth = 1.0;    ///< width of body and limbs, 1 is slim and athletic
  bool ponytail = false;
  Colour skin = Rgb(222, 172, 138);
  Colour hair = Rgb(70, 48, 34);
  Colour shirt = Rgb(40, 96, 170);
  Colour trousers = Rgb(44, 50, 62);
  Colour cap = Rgb(240, 242, 245);
};

struct SwingStyle {
  GolferLook look;
  ClubKind club = ClubKind::Driver;
  bool leftHanded = false;
  double tempo = 1;      ///< length of the swing in time, 1 is usual
  double backswing = 1;  ///< length of the backswing, 1 is full
  SwingFaults faults;
};

}  // namespace kinalyx::demo
