#include "demo/Skeleton.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace kinalyx::demo {
namespace {

struct Golfer {
  std::string name;
  SwingStyle style;
};

/// Sound swings, each fault at its worst, all of them together, and bodies of other sizes.
std::vector<Golfer> Golfers() {
  std::vector<Golfer> golfers;
  for (const ClubKind club : {ClubKind::Driver, ClubKind::Iron}) {
    const std::string kind = club == ClubKind::Driver ? "driver" : "iron";
    const auto add = [&](const std::string& name, const auto& change) {
      SwingStyle style;
      style.club = club;
      change(style);
      golfers.push_back({kind + ", " + name, style});
    };
    add("sound", [](SwingStyle&) {});
    add("small", [](SwingStyle& s) { s.look.height = 1.62; });
    add("tall", [](SwingStyle& s) { s.look.height = 1.95; });
    add("short and slow", [](SwingStyle& s) { s.backswing = 0.7, s.tempo = 1.3; });
    add("sway", [](SwingStyle& s) { s.faults.sway = 1; });
    add("over the top", [](SwingStyle& s) { s.faults.overTheTop = 1; });
    add("casting", [](SwingStyle& s) { s.faults.casting = 1; });
    add("early extension", [](SwingStyle& s) { s.faults.earlyExtension = 1; });
    add("hanging back", [](SwingStyle& s) { s.faults.hangingBack = 1; });
    add("everything wrong", [](SwingStyle& s) { s.faults = {1, 1, 1, 1, 1}; });
  }
  return golfers;
}

std::vector<Vec3> JointsOf(const Pose& p) {
  return {p.pelvis,         p.neck,           p.head,          p.leadLeg.hip,      p.leadLeg.knee,  p.trailLeg.hip,
          p.trailLeg.knee,  p.trailLeg.ankle, p.trailLeg.heel, p.leadArm.shoulder, p.leadArm.elbow, p.trailArm.shoulder,
          p.trailArm.elbow, p.leadArm.hand,   p.trailArm.hand};
}

/// Calls `look` for the whole film in steps of a thousandth of a second.
template <typename Look>
void Film(const Skeleton& skeleton, const Look& look) {
  const double end = skeleton.PhaseTime(SwingPhase::Finish) + 0.4;
  for (double time = -1.2; time < end; time += 0.001) look(time, skeleton.At(time));
}

TEST(Skeleton, BonesKeepTheirLengthAndHandsTheirPlaceOnTheGrip) {
  for (const Golfer& golfer : Golfers()) {
    SCOPED_TRACE(golfer.name);
    const Skeleton skeleton(golfer.style);
    const Bones& b = skeleton.Lengths();
    double worst = 0, offGrip = 0;
    Film(skeleton, [&](double, const Pose& p) {
      const auto bone = [&worst](Vec3 from, Vec3 to, double length) {
        worst = std::max(worst, std::abs(Length(to - from) - length));
      };
      bone(p.pelvis, p.neck, b.spine);
      bone(p.neck, p.head, b.neckToHead);
      for (const LegPose* leg : {&p.leadLeg, &p.trailLeg}) {
        bone(leg->hip, leg->knee, b.thigh);
        bone(leg->knee, leg->ankle, b.shin);
        bone(leg->heel, leg->toe, b.foot);
        bone(p.pelvis, leg->hip, b.hipHalf);
      }
      for (const ArmPose* arm : {&p.leadArm, &p.trailArm}) {
        bone(arm->shoulder, arm->elbow, b.upperArm);
        bone(arm->elbow, arm->hand, b.foreArm);
      }
      bone(p.gripEnd, p.clubHead, skeleton.ClubLength());
      const Vec3 club = Unit(p.clubHead - p.gripEnd);
      for (const ArmPose* arm : {&p.leadArm, &p.trailArm}) {
        const Vec3 along = arm->hand - p.gripEnd;
        offGrip = std::max(offGrip, Length(along - club * Dot(along, club)));
        EXPECT_GT(Dot(along, club), 0);
        EXPECT_LT(Dot(along, club), 0.25);
      }
      EXPECT_GT(Dot(p.trailArm.hand - p.leadArm.hand, club), 0.05);
    });
    EXPECT_LT(worst, 0.002);
    EXPECT_LT(offGrip, 1e-6);
  }
}

TEST(Skeleton, NothingJumps) {
  for (const Golfer& golfer : Golfers()) {
    SCOPED_TRACE(golfer.name);
    const Skeleton skeleton(golfer.style);
    std::vector<Vec3> last;
    Vec3 lastHead;
    double fastest = 0, fastestHead = 0, when = 0;
    Film(skeleton, [&](double time, const Pose& p) {
      const std::vector<Vec3> joints = JointsOf(p);
      for (std::size_t i = 0; i < last.size(); ++i)
        if (const double way = Length(joints[i] - last[i]); way > fastest) fastest = way, when = time;
      if (!last.empty()) fastestHead = std::max(fastestHead, Length(p.clubHead - lastHead));
      last = joints;
      lastHead = p.clubHead;
    });
    EXPECT_LT(fastest, 0.018) << "metres in a thousandth of a second, at " << when;
    EXPECT_LT(fastestHead, 0.065);
    EXPECT_GT(fastestHead, 0.025) << "hardly a swing";
  }
}

TEST(Skeleton, ClubMeetsTheBallAndStaysAboveTheGround) {
  for (const Golfer& golfer : Golfers()) {
    SCOPED_TRACE(golfer.name);
    const Skeleton skeleton(golfer.style);
    const Vec3 ball = skeleton.BallAt(-1);
    for (const SwingPhase phase : {SwingPhase::Address, SwingPhase::Impact}) {
      const Vec3 head = skeleton.At(skeleton.PhaseTime(phase)).clubHead;
      EXPECT_NEAR(head.x, ball.x, 0.09) << static_cast<int>(phase);
      EXPECT_NEAR(head.z, ball.z, 0.05) << static_cast<int>(phase);
      EXPECT_LT(head.y, 0.06) << static_cast<int>(phase);
    }
    double lowest = 1;
    const Vec3 planted = skeleton.At(0).leadLeg.ankle;
    Film(skeleton, [&](double, const Pose& p) {
      lowest = std::min({lowest, p.clubHead.y, p.trailLeg.heel.y, p.trailLeg.toe.y});
      EXPECT_LT(Length(p.leadLeg.ankle - planted), 1e-9);
    });
    EXPECT_GT(lowest, -0.015);
    EXPECT_GT(skeleton.BallAt(skeleton.PhaseTime(SwingPhase::Impact) + 0.1).x, ball.x + 3);
  }
}

TEST(Skeleton, ACoachFindsThePositions) {
  SwingStyle style;
  const Skeleton skeleton(style);
  const auto at = [&](SwingPhase phase) { return skeleton.At(skeleton.PhaseTime(phase)); };
  const auto club = [](const Pose& p) { return Unit(p.clubHead - p.gripEnd); };
  for (const SwingPhase level : {SwingPhase::TakeAway, SwingPhase::Delivery, SwingPhase::Release})
    EXPECT_LT(std::abs(club(at(level)).y), 0.08) << static_cast<int>(level);
  for (const SwingPhase level : {SwingPhase::LeadArmLevel, SwingPhase::Downswing}) {
    const ArmPose arm = at(level).leadArm;
    EXPECT_LT(std::abs(Unit(arm.hand - arm.shoulder).y), 0.08) << static_cast<int>(level);
  }
  const Pose address = at(SwingPhase::Address), top = at(SwingPhase::Top), impact = at(SwingPhase::Impact),
             finish = at(SwingPhase::Finish);
  EXPECT_GT(top.leadArm.hand.y, top.neck.y);
  EXPECT_GT(club(top).x, 0.9) << "the club points to the target";
  EXPECT_GT(impact.pelvis.x, address.pelvis.x + 0.05) << "weight on the front foot";
  EXPECT_LT(Length(impact.head - address.head), 0.08) << "a quiet head";
  EXPECT_GT(finish.trailLeg.heel.y, 0.15) << "the back heel is up";
  EXPECT_GT(finish.chestAxes.front.x, 0.85) << "the chest faces the target";
  // From the top the hips go first.
  const double start = skeleton.PhaseTime(SwingPhase::Top);
  const Pose early = skeleton.At(start + 0.03);
  EXPECT_GT(Length(early.pelvisAxes.side - top.pelvisAxes.side), 2 * Length(early.chestAxes.side - top.chestAxes.side));
}

}  // namespace
}  // namespace kinalyx::demo
