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

double OffLength(Vec3 from, Vec3 to, double length) { return std::abs(Length(to - from) - length); }

/// How far the worst bone is from its length.
double WorstBone(const Pose& p, const Skeleton& skeleton) {
  const Bones& b = skeleton.Lengths();
  double worst = std::max({OffLength(p.pelvis, p.neck, b.spine), OffLength(p.neck, p.head, b.neckToHead),
                           OffLength(p.gripEnd, p.clubHead, skeleton.ClubLength())});
  for (const LegPose* leg : {&p.leadLeg, &p.trailLeg})
    worst = std::max({worst, OffLength(leg->hip, leg->knee, b.thigh), OffLength(leg->knee, leg->ankle, b.shin),
                      OffLength(leg->heel, leg->toe, b.foot), OffLength(p.pelvis, leg->hip, b.hipHalf)});
  for (const ArmPose* arm : {&p.leadArm, &p.trailArm})
    worst = std::max(
        {worst, OffLength(arm->shoulder, arm->elbow, b.upperArm), OffLength(arm->elbow, arm->hand, b.foreArm)});
  return worst;
}

void ExpectHandsOnTheGrip(const Pose& p) {
  const Vec3 club = Unit(p.clubHead - p.gripEnd);
  for (const ArmPose* arm : {&p.leadArm, &p.trailArm}) {
    const Vec3 along = arm->hand - p.gripEnd;
    EXPECT_LT(Length(along - club * Dot(along, club)), 1e-6);
    EXPECT_GT(Dot(along, club), 0);
    EXPECT_LT(Dot(along, club), 0.25);
  }
  EXPECT_GT(Dot(p.trailArm.hand - p.leadArm.hand, club), 0.05);
}

TEST(Skeleton, BonesKeepTheirLengthAndNothingJumpsOrSinks) {
  for (const Golfer& golfer : Golfers()) {
    SCOPED_TRACE(golfer.name);
    const Skeleton skeleton(golfer.style);
    const Vec3 planted = skeleton.At(0).leadLeg.ankle;
    Pose last = skeleton.At(-1.2);
    double worst = 0, fastest = 0, fastestHead = 0, lowest = 1;
    // The whole film in steps of a thousandth of a second.
    const double end = skeleton.PhaseTime(SwingPhase::Finish) + 0.4;
    for (double time = -1.2; time < end; time += 0.001) {
      const Pose p = skeleton.At(time);
      worst = std::max(worst, WorstBone(p, skeleton));
      ExpectHandsOnTheGrip(p);
      const auto joints = JointsOf(p), before = JointsOf(last);
      for (std::size_t i = 0; i < joints.size(); ++i) fastest = std::max(fastest, Length(joints[i] - before[i]));
      fastestHead = std::max(fastestHead, Length(p.clubHead - last.clubHead));
      lowest = std::min({lowest, p.clubHead.y, p.trailLeg.heel.y, p.trailLeg.toe.y});
      EXPECT_LT(Length(p.leadLeg.ankle - planted), 1e-9);
      last = p;
    }
    EXPECT_LT(worst, 0.002);
    EXPECT_LT(fastest, 0.018) << "metres in a thousandth of a second";
    EXPECT_LT(fastestHead, 0.065);
    EXPECT_GT(fastestHead, 0.025) << "hardly a swing";
    EXPECT_GT(lowest, -0.015);
  }
}

TEST(Skeleton, ClubMeetsTheBall) {
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
