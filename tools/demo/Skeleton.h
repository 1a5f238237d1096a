#pragma once

#include <array>
#include <vector>

#include "KeyCurve.h"
#include "SwingStyle.h"
#include "Vec3.h"

namespace kinalyx::demo {

/// The positions by which coaches speak of a swing, P1 to P10.
enum class SwingPhase {
  Address,
  TakeAway,  ///< shaft level
  LeadArmLevel,
  Top,
  Downswing,  ///< lead arm level again
  Delivery,   ///< shaft level again
  Impact,
  Release,  ///< shaft level beyond the ball
  TrailArmLevel,
  Finish,
};
constexpr int kPhaseCount = 10;

struct LegPose {
  Vec3 hip;
  Vec3 knee;
  Vec3 ankle;
  Vec3 heel;
  Vec3 toe;
};

struct ArmPose {
  Vec3 shoulder;
  Vec3 elbow;
  Vec3 hand;  ///< the middle of the fist, on the grip
};

/// Where everything is at one moment. Lead is the side towards the target: left for a right-hander.
struct Pose {
  Vec3 pelvis;
  Vec3 neck;
  Vec3 head;
  Axes pelvisAxes;
  Axes chestAxes;
  Axes headAxes;
  LegPose leadLeg;
  LegPose trailLeg;
  ArmPose leadArm;
  ArmPose trailArm;
  Vec3 gripEnd;   ///< the butt of the club
  Vec3 clubHead;  ///< the middle of the club head, at the end of the shaft
  Vec3 clubToe;   ///< unit vector across the shaft to the toe of the head; the face is square to the swing plane
};

/// Lengths of the bones in metres.
struct Bones {
  explicit Bones(double height);

  double thigh, shin, ankleHeight, foot;
  double upperArm, foreArm;  ///< the fore arm with the hand, to the middle of the fist
  double spine, shoulderHalf, hipHalf, neckToHead;
};

/// One golfer's swing: the pose at any time, in seconds from the moment the club is drawn back. Before
/// that he stands at address with a small waggle, after the finish he rests. Every length of the body
/// stays what it is, both hands keep their place on the grip, and nothing jumps.
class Skeleton {
 public:
  explicit Skeleton(const SwingStyle& style);

  Pose At(double time) const;
  /// Where the ball lies; from the moment of impact on it flies.
  Vec3 BallAt(double time) const;
  double PhaseTime(SwingPhase phase) const { return times_[static_cast<int>(phase)]; }
  const Bones& Lengths() const { return bones_; }
  double ClubLength() const { return clubLength_; }

 private:
  /// The values that are keyed, one curve each: metres for a golfer of 1.8 m, degrees, and shares of a
  /// whole leg or arm.
  enum Channel {
    PelvisX,
    PelvisY,
    PelvisZ,
    PelvisTurn,
    ChestTurn,
    Bend,
    SideBend,
    HeadTurn,
    HeadLift,
    LeadAngle,
    LeadPlane,
    LeadReach,  // the lead arm as a pendulum about its shoulder
    TrailAngle,
    TrailPlane,
    TrailReach,  // the trail arm likewise, leading after impact
    TrailLeads,
    ClubAngle,
    ClubPlane,
    HeelLift,
    FootTurn,
    kChannels
  };
  using Row = std::array<double, kPhaseCount>;
  struct Torso;

  void SetTimes();
  std::array<Row, kChannels> KeyValues() const;
  void MeetBall(std::array<Row, kChannels>& rows);
  double Value(Channel channel, double time) const { return curves_[channel].At(time); }
  Torso TorsoAt(double time) const;
  Vec3 ClubDirection(double time) const;
  Vec3 GripAt(const Torso& torso, Vec3 club, double time) const;
  LegPose LeadLeg(const Torso& torso) const;
  LegPose TrailLeg(const Torso& torso, double time) const;

  SwingStyle style_;
  Bones bones_;
  double clubLength_;
  Row times_{};
  std::array<KeyCurve, kChannels> curves_;
  Vec3 ball_;
};

}  // namespace kinalyx::demo
