#include "Skeleton.h"

#include <algorithm>

namespace kinalyx::demo {
namespace {

constexpr double kLeadFist = 0.05;  // from the butt of the club to the middle of the upper fist
constexpr double kTrailFist = 0.118;
constexpr double kShoulderGive = 0.045;  // how far a shoulder follows its hand
constexpr double kFullReach = 0.995;     // an arm is never quite straight
constexpr double kHeadMiddle = 0.022;    // the club head's middle above the ground at address

/// Direction of a pendulum that hangs in a plane tilted by `plane` degrees from the ground: at 0 it
/// points down and to the ball, at 90 away from the target, at 180 up the plane.
Vec3 PendulumDirection(double angle, double plane) {
  const double a = Radians(angle), p = Radians(plane);
  return {-std::sin(a), -std::cos(a) * std::sin(p), std::cos(a) * std::cos(p)};
}

struct PendulumPosition {
  double angle, plane, length;
};

/// The pendulum that reaches from its hub by `reach`; for directions in the lower half.
PendulumPosition PendulumTo(Vec3 reach) {
  const Vec3 d = Unit(reach);
  return {std::asin(-d.x) * 180 / kPi, std::atan2(-d.y, d.z) * 180 / kPi, Length(reach)};
}

/// The joint between two bones of these lengths from `from` to `to`, bent towards `pole`.
Vec3 MiddleJoint(Vec3 from, Vec3 to, double first, double second, Vec3 pole) {
  const Vec3 way = to - from;
  const double distance = std::max(Length(way), 1e-6);
  const Vec3 direction = way * (1 / distance);
  const double along = (distance * distance + first * first - second * second) / (2 * distance);
  const double aside = std::sqrt(std::max(0.0, first * first - along * along));
  return from + direction * along + Across(pole, direction) * aside;
}

/// Moves `point` into the ball of radius `reach` about `hub`.
Vec3 PulledInto(Vec3 point, Vec3 hub, double reach) {
  const double distance = Length(point - hub);
  return distance <= reach ? point : hub + (point - hub) * (reach / distance);
}

}  // namespace

Bones::Bones(double height)
    : thigh(0.245 * height),
      shin(0.242 * height),
      ankleHeight(0.045 * height),
      foot(0.145 * height),
      upperArm(0.166 * height),
      foreArm(0.186 * height),
      spine(0.295 * height),
      shoulderHalf(0.104 * height),
      hipHalf(0.052 * height),
      neckToHead(0.100 * height) {}

struct Skeleton::Torso {
  Vec3 pelvis, spine, neck;
  Axes pelvisAxes, chestAxes;
  Vec3 leadShoulder, trailShoulder, leadHip, trailHip;
};

Skeleton::Skeleton(const SwingStyle& style)
    : style_(style), bones_(style.look.height), clubLength_(style.club == ClubKind::Driver ? 1.12 : 0.93) {
  SetTimes();
  std::array<Row, kChannels> rows = KeyValues();
  MeetBall(rows);
  for (int c = 0; c < kChannels; ++c) curves_[c] = KeyCurve(times_, rows[c]);
}

void Skeleton::SetTimes() {
  times_ = {0, 0.33, 0.53, 0.82, 0.95, 1.015, 1.07, 1.125, 1.215, 1.77};
  for (double& time : times_) time *= style_.tempo;
}

std::array<Skeleton::Row, Skeleton::kChannels> Skeleton::KeyValues() const {
  const bool driver = style_.club == ClubKind::Driver;
  const SwingFaults& f = style_.faults;
  std::array<Row, kChannels> rows;
  // A sound swing with a driver. What brings the club to the ball at address and impact is found later.
  // clang-format off
  //                       P1      P2      P3      P4      P5      P6      P7      P8      P9     P10
  rows[PelvisX] =     {  0.02,   0.00, -0.015,  -0.01,   0.04,   0.07,   0.09,  0.105,   0.13,   0.17};
  rows[PelvisY] =     { 0.945,  0.945,  0.943,   0.94,  0.925,  0.945,  0.968,  0.980,  0.985,  0.988};
  rows[PelvisZ] =     { -0.13,  -0.13,  -0.13, -0.125, -0.125,  -0.12,  -0.11,  -0.10,  -0.06,  -0.01};
  rows[PelvisTurn] =  {     0,      9,     24,     45,     18,    -14,    -36,    -50,    -72,    -96};
  rows[ChestTurn] =   {     0,     26,     58,     92,     60,     18,    -16,    -40,    -72,   -112};
  rows[Bend] =        {    35,     35,     35,     34,     36,   34.5,   30.5,     26,     16,      1};
  rows[SideBend] =    {     8,    6.5,      5,    4.5,      9,     13,     16,     17,     13,      4};
  rows[HeadTurn] =    {     0,      3,      9,     16,     12,      8,      5,      0,    -45,    -88};
  rows[HeadLift] =    {     0,      0,      0,      0,      0,      0,      0,    0.1,    0.5,      1};
  rows[LeadAngle] =   {     5,     36,     90,    140,     90,     38,      5,    -28,    -30,    -30};
  rows[LeadPlane] =   {    76,     70,     62,     46,     60,     68,     72,     72,     72,     72};
  rows[LeadReach] =   {  0.97,  0.985,   0.99,  0.975,   0.99,   0.99,   0.99,   0.98,   0.98,   0.98};
  rows[TrailAngle] =  {     0,      0,      0,      0,      0,      0,      0,    -54,    -92,   -182};
  rows[TrailPlane] =  {    60,     60,     60,     60,     60,     60,     60,     60,     58,     44};
  rows[TrailReach] =  {   0.9,    0.9,    0.9,    0.9,    0.9,    0.9,    0.9,  0.985,   0.97,   0.68};
  rows[TrailLeads] =  {     0,      0,      0,      0,      0,      0,      0,      1,      1,      1};
  rows[ClubAngle] =   {     3,     90,    178,    258,    192,     92,      3,    -88,   -182,   -320};
  rows[ClubPlane] =   {    50,     54,     58,     58,     50,     50,     54,     52,     50,     30};
  rows[HeelLift] =    {     0,      0,      0,      0,      2,     10,     18,     28,     48,     72};
  rows[FootTurn] =    {     0,      0,      0,      0,      0,      3,      8,     14,     32,     58};
  // clang-format on

  if (!driver) {
    for (double& bend : rows[Bend]) bend *= 1.12;
    rows[SideBend][0] = 6;
    rows[LeadAngle][3] = 132;
    rows[ClubAngle][0] = 6;
    rows[ClubAngle][3] = 246;
    rows[ClubAngle][6] = 9;
  }
  rows[LeadAngle][3] = 90 + (rows[LeadAngle][3] - 90) * style_.backswing;
  rows[ClubAngle][3] = 178 + (rows[ClubAngle][3] - 178) * style_.backswing;
  rows[ChestTurn][3] *= 0.5 + 0.5 * style_.backswing;

  const auto add = [&rows](Channel channel, std::initializer_list<double> from, int first, double share) {
    for (double value : from) rows[channel][first++] += value * share;
  };
  add(PelvisX, {-0.06, -0.11, -0.135, -0.05}, 1, f.sway);
  add(SideBend, {-1, -3, -4, -2}, 1, f.sway);
  add(ChestTurn, {-26, -16, -10}, 4, f.overTheTop);
  add(LeadPlane, {-16, -10}, 4, f.overTheTop);
  add(ClubPlane, {18, 8}, 4, f.overTheTop);
  add(SideBend, {-7, -6, -4}, 4, f.overTheTop);
  add(ClubAngle, {-48}, 4, f.casting);
  add(LeadAngle, {12}, 5, f.casting);
  add(PelvisZ, {0.02, 0.055, 0.08, 0.08, 0.05}, 4, f.earlyExtension);
  add(Bend, {-2, -6, -9, -7}, 4, f.earlyExtension);
  add(PelvisX, {-0.05, -0.075, -0.085, -0.09, -0.10, -0.11}, 4, f.hangingBack);
  add(SideBend, {2, 4, 5, 6, 8, 9}, 4, f.hangingBack);
  add(HeelLift, {-2, -9, -15, -22, -32, -40}, 4, f.hangingBack);
  add(PelvisTurn, {4, 8, 12, 16, 22, 26}, 4, f.hangingBack);
  return rows;
}

/// The ball lies where the club is put down at address; at impact the hands are where the club head is
/// back at that place.
void Skeleton::MeetBall(std::array<Row, kChannels>& rows) {
  for (int c = 0; c < kChannels; ++c) curves_[c] = KeyCurve(times_, rows[c]);
  const double shaft = clubLength_ - kLeadFist, between = kTrailFist - kLeadFist;
  const double arm = bones_.upperArm + bones_.foreArm + kShoulderGive;
  const auto keep = [&rows, arm](Channel first, int phase, const PendulumPosition& position) {
    rows[first][phase] = position.angle;
    rows[first + 1][phase] = position.plane;
    rows[first + 2][phase] = position.length / arm;
  };

  // The shaft slopes as the height of the hands wants it, and the hands give way to the slope.
  const Torso address = TorsoAt(PhaseTime(SwingPhase::Address));
  const double angle = rows[ClubAngle][0];
  Vec3 club = PendulumDirection(angle, rows[ClubPlane][0]);
  Vec3 hand;
  for (int i = 0; i < 12; ++i) {
    hand = GripAt(address, club, PhaseTime(SwingPhase::Address)) + club * kLeadFist;
    const double slope = std::clamp((hand.y - kHeadMiddle) / (shaft * std::cos(Radians(angle))), 0.1, 0.99);
    rows[ClubPlane][0] = std::asin(slope) * 180 / kPi;
    club = PendulumDirection(angle, rows[ClubPlane][0]);
  }
  keep(LeadAngle, 0, PendulumTo(hand - address.leadShoulder));
  const Vec3 head = hand + club * shaft;
  const bool driver = style_.club == ClubKind::Driver;
  ball_ = head + (driver ? Vec3{0.07, 0, 0.02} : Vec3{0.035, 0, 0.02});
  ball_.y = driver ? 0.05 : 0.021;

  // At impact the handle is a little higher, as much as the arms need.
  const int impact = static_cast<int>(SwingPhase::Impact);
  const Torso meeting = TorsoAt(PhaseTime(SwingPhase::Impact));
  PendulumPosition lead, trail;
  for (double rise = -2; rise < 16; rise += 0.5) {
    rows[ClubPlane][impact] = rows[ClubPlane][0] + rise;
    club = PendulumDirection(rows[ClubAngle][impact], rows[ClubPlane][impact]);
    const Vec3 met = head - club * shaft;
    lead = PendulumTo(met - meeting.leadShoulder);
    trail = PendulumTo(met + club * between - meeting.trailShoulder);
    if (std::max(lead.length, trail.length) < arm * kFullReach) break;
  }
  for (int i = 0; i < kPhaseCount; ++i) {
    if (i >= impact) keep(LeadAngle, i, lead);
    if (i <= impact) keep(TrailAngle, i, trail);
  }
}

Skeleton::Torso Skeleton::TorsoAt(double time) const {
  Torso t;
  const Bones& b = bones_;
  // The hips are ahead of the shoulders when the direction changes at the top.
  const double hips = time + 0.05 * style_.tempo * Smooth(0.6, 0.85, time / style_.tempo) *
                                 (1 - Smooth(0.95, 1.06, time / style_.tempo));
  const double scale = style_.look.height / 1.8;
  t.pelvis = {Value(PelvisX, hips) * scale, b.ankleHeight + Value(PelvisY, hips) * (b.thigh + b.shin),
              Value(PelvisZ, hips) * scale};
  const double bend = Radians(Value(Bend, time)), lean = Radians(Value(SideBend, time));
  t.spine = {-std::sin(lean), std::cos(lean) * std::cos(bend), std::cos(lean) * std::sin(bend)};
  t.pelvisAxes.up = Unit(Lerp({0, 1, 0}, t.spine, 0.68));
  const auto turned = [](Vec3 up, double turn) {
    Axes axes;
    axes.up = up;
    axes.side = Turned(Across({1, 0, 0}, up), up, -Radians(turn));
    axes.front = Cross(axes.side, axes.up);
    return axes;
  };
  t.pelvisAxes = turned(t.pelvisAxes.up, Value(PelvisTurn, hips));
  t.chestAxes = turned(t.spine, Value(ChestTurn, time));
  t.neck = t.pelvis + t.spine * b.spine;
  const Vec3 girdle = t.neck - t.spine * (0.042 * style_.look.height);
  t.leadShoulder = girdle + t.chestAxes.side * b.shoulderHalf;
  t.trailShoulder = girdle - t.chestAxes.side * b.shoulderHalf;
  t.leadHip = t.pelvis + t.pelvisAxes.side * b.hipHalf;
  t.trailHip = t.pelvis - t.pelvisAxes.side * b.hipHalf;
  return t;
}

Vec3 Skeleton::ClubDirection(double time) const {
  // A small waggle before the start.
  const double start = -1.05, end = -0.4;
  const double waggle = time > start && time < end ? std::sin(kPi * (time - start) / (end - start)) : 0;
  return PendulumDirection(Value(ClubAngle, time) + 7 * waggle * waggle, Value(ClubPlane, time));
}

/// The butt of the club.
Vec3 Skeleton::GripAt(const Torso& torso, Vec3 club, double time) const {
  const double arm = bones_.upperArm + bones_.foreArm + kShoulderGive;
  const double between = kTrailFist - kLeadFist;
  const Vec3 byLead = torso.leadShoulder + PendulumDirection(Value(LeadAngle, time), Value(LeadPlane, time)) *
                                               (arm * Value(LeadReach, time));
  const Vec3 byTrail =
      torso.trailShoulder +
      PendulumDirection(Value(TrailAngle, time), Value(TrailPlane, time)) * (arm * Value(TrailReach, time)) -
      club * between;
  Vec3 hand = Lerp(byLead, byTrail, Value(TrailLeads, time));
  // Neither arm can grow: the hands come in until both reach them.
  for (int i = 0; i < 24; ++i) {
    hand = PulledInto(hand, torso.leadShoulder, arm * kFullReach);
    hand = PulledInto(hand + club * between, torso.trailShoulder, arm * kFullReach) - club * between;
  }
  return hand - club * kLeadFist;
}

LegPose Skeleton::LeadLeg(const Torso& torso) const {
  const double stance = (style_.club == ClubKind::Driver ? 0.142 : 0.118) * style_.look.height;
  const Vec3 along = Turned({0, 0, 1}, {0, 1, 0}, Radians(22));
  LegPose leg;
  leg.hip = torso.leadHip;
  leg.ankle = {stance, bones_.ankleHeight, 0};
  leg.heel = Vec3{stance, 0, 0} - along * (bones_.foot * 0.3);
  leg.toe = Vec3{stance, 0, 0} + along * (bones_.foot * 0.7);
  leg.knee = MiddleJoint(leg.hip, leg.ankle, bones_.thigh, bones_.shin, Unit(along + torso.pelvisAxes.front * 0.4));
  return leg;
}

LegPose Skeleton::TrailLeg(const Torso& torso, double time) const {
  const double stance = (style_.club == ClubKind::Driver ? 0.142 : 0.118) * style_.look.height;
  const Vec3 start = Turned({0, 0, 1}, {0, 1, 0}, Radians(-8));
  const Vec3 toe = Vec3{-stance, 0, 0} + start * (bones_.foot * 0.7);
  // The foot rolls up and turns over its toes.
  const Vec3 along = Turned(start, {0, 1, 0}, Radians(Value(FootTurn, time)));
  const Vec3 side = Cross({0, 1, 0}, along);
  const double lift = Radians(Value(HeelLift, time));
  LegPose leg;
  leg.hip = torso.trailHip;
  leg.toe = toe;
  leg.heel = toe + Turned(along * -bones_.foot, side, lift);
  leg.ankle = toe + Turned(along * (-0.7 * bones_.foot) + Vec3{0, bones_.ankleHeight, 0}, side, lift);
  leg.knee = MiddleJoint(leg.hip, leg.ankle, bones_.thigh, bones_.shin, Unit(along + torso.pelvisAxes.front * 0.6));
  return leg;
}

Pose Skeleton::At(double time) const {
  const Bones& b = bones_;
  Torso torso = TorsoAt(time);
  // The hips are never higher than the legs allow.
  for (int i = 0; i < 2; ++i) {
    const LegPose lead = LeadLeg(torso), trail = TrailLeg(torso, time);
    double sink = 0;
    for (const LegPose* leg : {&lead, &trail}) {
      const Vec3 way = leg->hip - leg->ankle;
      const double reach = (b.thigh + b.shin) * 0.998, level = std::hypot(way.x, way.z);
      sink = std::max(sink, way.y - std::sqrt(std::max(0.0, reach * reach - level * level)));
    }
    for (Vec3* point :
         {&torso.pelvis, &torso.neck, &torso.leadShoulder, &torso.trailShoulder, &torso.leadHip, &torso.trailHip})
      point->y -= sink;
  }

  Pose pose;
  pose.pelvis = torso.pelvis;
  pose.neck = torso.neck;
  pose.pelvisAxes = torso.pelvisAxes;
  pose.chestAxes = torso.chestAxes;
  pose.leadLeg = LeadLeg(torso);
  pose.trailLeg = TrailLeg(torso, time);

  const double nod = Radians(38 * (1 - Value(HeadLift, time))), turn = -Radians(Value(HeadTurn, time));
  pose.headAxes.front = Turned({0, -std::sin(nod), std::cos(nod)}, {0, 1, 0}, turn);
  pose.headAxes.up = Turned({0, std::cos(nod), std::sin(nod)}, {0, 1, 0}, turn);
  pose.headAxes.side = Cross(pose.headAxes.up, pose.headAxes.front);
  pose.head = pose.neck + Unit(pose.chestAxes.up * 0.6 + pose.headAxes.up * 0.4) * b.neckToHead;

  const Vec3 club = ClubDirection(time);
  pose.gripEnd = GripAt(torso, club, time);
  pose.clubHead = pose.gripEnd + club * clubLength_;
  const double slope = Radians(Value(ClubPlane, time));
  pose.clubToe = {0, std::cos(slope), std::sin(slope)};

  const auto arm = [&](Vec3 shoulder, Vec3 hand, Vec3 outward) {
    ArmPose result;
    result.hand = hand;
    result.shoulder = shoulder + Unit(hand - shoulder) * kShoulderGive;
    // Elbows point down, to the back on the way up, and stay before the chest in the follow-through.
    const Vec3 pole = Vec3{0, -1, 0} + torso.chestAxes.front * (0.6 * Value(TrailLeads, time) - 0.35) + outward * 0.15;
    result.elbow = MiddleJoint(result.shoulder, hand, b.upperArm, b.foreArm, pole);
    return result;
  };
  pose.leadArm = arm(torso.leadShoulder, pose.gripEnd + club * kLeadFist, torso.chestAxes.side);
  pose.trailArm = arm(torso.trailShoulder, pose.gripEnd + club * kTrailFist, -torso.chestAxes.side);
  return pose;
}

Vec3 Skeleton::BallAt(double time) const {
  const double flown = time - PhaseTime(SwingPhase::Impact);
  if (flown <= 0) return ball_;
  const bool driver = style_.club == ClubKind::Driver;
  const double speed = driver ? 62 : 48, launch = Radians(driver ? 12 : 19);
  // Air slows the ball; its spin carries it.
  const double way = speed * flown / (1 + 0.25 * flown);
  const double push = Radians(4) * style_.faults.overTheTop;
  return ball_ + Vec3{way * std::cos(launch), way * std::sin(launch) - 2.5 * flown * flown, -way * std::sin(push)};
}

}  // namespace kinalyx::demo
