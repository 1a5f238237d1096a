#include "GolferMesh.h"

#include <vector>

namespace kinalyx::demo {
namespace {

constexpr Colour kShoe = Rgb(238, 240, 242);
constexpr Colour kSole = Rgb(70, 74, 80);
constexpr Colour kGlove = Rgb(244, 244, 240);
constexpr Colour kBelt = Rgb(28, 28, 30);

/// Sizes in metres for a golfer of 1.8 m.
struct Tailor {
  const Pose& pose;
  const GolferLook& look;
  double size;   // height over 1.8
  double width;  // the same with the girth
};

Ring RingAbout(Vec3 centre, const Axes& axes, double side, double front) {
  return {centre, axes.side * side, axes.front * front};
}

Axes Between(const Axes& a, const Axes& b, double t) {
  Axes axes;
  axes.up = Unit(Lerp(a.up, b.up, t));
  axes.side = Across(Lerp(a.side, b.side, t), axes.up);
  axes.front = Cross(axes.side, axes.up);
  return axes;
}

void AddTorso(Mesh& mesh, const Tailor& t) {
  const Pose& p = t.pose;
  // The back bends: it leaves the pelvis along the pelvis and meets the neck along the chest.
  const double spine = Length(p.neck - p.pelvis);
  const Vec3 bow = Lerp(p.pelvis + p.pelvisAxes.up * (spine / 2), p.neck - p.chestAxes.up * (spine / 2), 0.5);
  const auto centre = [&](double s) { return Lerp(Lerp(p.pelvis, bow, s), Lerp(bow, p.neck, s), s); };
  struct Measure {
    double height, side, front, forward;
  };
  static constexpr Measure kShirt[] = {
      {0.14, 0.172, 0.118, 0.000},  {0.20, 0.168, 0.116, 0.002}, {0.30, 0.160, 0.110, 0.004},
      {0.42, 0.158, 0.108, 0.006},  {0.55, 0.168, 0.114, 0.010}, {0.68, 0.178, 0.120, 0.012},
      {0.80, 0.182, 0.116, 0.008},  {0.88, 0.172, 0.100, 0.002}, {0.94, 0.146, 0.082, -0.004},
      {0.99, 0.108, 0.068, -0.004}, {1.03, 0.068, 0.060, 0.002}};
  const auto skin = [&](std::span<const Measure> measures, const Material& material) {
    std::vector<Ring> rings;
    for (const Measure& m : measures) {
      const Axes axes = Between(p.pelvisAxes, p.chestAxes, Smooth(0.05, 0.75, m.height));
      rings.push_back(
          RingAbout(centre(m.height) + axes.front * (m.forward * t.size), axes, m.side * t.width, m.front * t.width));
    }
    mesh.AddSkin(rings, material, 22);
  };
  skin(kShirt, {t.look.shirt});
  static constexpr Measure kCollar[] = {{1.00, 0.070, 0.064, 0.002}, {1.08, 0.062, 0.060, 0.008}};
  skin(kCollar, {t.look.shirt});
  static constexpr Measure kWaist[] = {{0.105, 0.165, 0.116, 0.0}, {0.15, 0.165, 0.116, 0.0}};
  skin(kWaist, {kBelt, 0.3});
  static constexpr Measure kHips[] = {{-0.20, 0.095, 0.080, -0.002}, {-0.14, 0.148, 0.104, -0.006},
                                      {-0.06, 0.166, 0.117, -0.008}, {0.02, 0.168, 0.119, -0.007},
                                      {0.08, 0.165, 0.117, -0.003},  {0.12, 0.162, 0.114, 0.0}};
  skin(kHips, {t.look.trousers});
}

void AddHead(Mesh& mesh, const Tailor& t) {
  const Pose& p = t.pose;
  const Axes& h = p.headAxes;
  const double s = t.size;
  const auto place = [&](double side, double up, double front) {
    return p.head + h.side * (side * s) + h.up * (up * s) + h.front * (front * s);
  };
  const auto ball = [&](Vec3 centre, double side, double up, double front, const Material& material, double from = -1,
                        double to = 1) {
    mesh.AddBall(centre, h, Vec3{side, up, front} * s, material, from, to);
  };
  const Material skin{t.look.skin, 0.08}, hair{t.look.hair, 0.1}, cap{t.look.cap};
  const double neck[] = {0.060 * s, 0.057 * s, 0.056 * s};
  mesh.AddLimb(p.neck - p.chestAxes.up * (0.02 * s), place(0, -0.05, -0.012), neck, skin);
  ball(place(0, 0.012, 0), 0.076, 0.104, 0.094, skin);
  ball(place(0, -0.060, 0.030), 0.054, 0.052, 0.056, skin);  // jaw
  ball(place(0, -0.012, 0.098), 0.014, 0.024, 0.018, skin);  // nose
  for (double side : {-1.0, 1.0}) {
    ball(place(side * 0.076, -0.008, -0.004), 0.011, 0.028, 0.018, skin);
    ball(place(side * 0.030, 0.016, 0.086), 0.014, 0.008, 0.008, {Rgb(38, 32, 30), 0.4});
  }
  ball(place(0, -0.062, 0.083), 0.022, 0.005, 0.006, {Rgb(150, 84, 76)});
  ball(place(0, 0.004, -0.018), 0.080, 0.098, 0.092, hair);
  if (t.look.ponytail) {
    const double tail[] = {0.020 * s, 0.034 * s, 0.032 * s, 0.022 * s, 0.008 * s};
    const Vec3 knot = place(0, 0.02, -0.105);
    mesh.AddLimb(knot, knot + Unit(Vec3{0, -1, 0} - h.front * 0.35) * (0.22 * s), tail, hair);
  }
  ball(place(0, 0.036, -0.006), 0.086, 0.092, 0.104, cap, 0.02, 1);
  ball(place(0, 0.128, -0.006), 0.010, 0.006, 0.010, cap);
  // The peak, a thin shell that slopes down a little.
  Axes peak = h;
  peak.up = Unit(h.up + h.front * 0.22);
  peak.front = Cross(h.side, peak.up);
  mesh.AddBall(place(0, 0.036, 0.092), peak, Vec3{0.072, 0.009, 0.088} * s, cap);
}

void AddLeg(Mesh& mesh, const Tailor& t, const LegPose& leg) {
  const double s = t.width;
  const Material cloth{t.look.trousers};
  const double thigh[] = {0.082 * s, 0.088 * s, 0.083 * s, 0.074 * s, 0.067 * s};
  const double shin[] = {0.066 * s, 0.066 * s, 0.064 * s, 0.059 * s, 0.056 * s};
  mesh.AddLimb(leg.hip, leg.knee, thigh, cloth, 16);
  const Vec3 along = Unit(leg.ankle - leg.knee);
  mesh.AddLimb(leg.knee, leg.ankle - along * (0.01 * s), shin, cloth, 16);

  // The shoe: rings from heel to toe, flat below.
  const double z = t.size;
  const Vec3 forward = Unit(leg.toe - leg.heel);
  const Vec3 toAnkle = leg.ankle - leg.heel;
  const Vec3 up = Across(toAnkle, forward), side = Cross(up, forward);
  struct Measure {
    double along, height, half;
  };
  static constexpr Measure kUpper[] = {{-0.012, 0.040, 0.022}, {0.0, 0.062, 0.034},   {0.05, 0.085, 0.040},
                                       {0.10, 0.088, 0.040},   {0.145, 0.070, 0.043}, {0.20, 0.052, 0.049},
                                       {0.245, 0.042, 0.044},  {0.272, 0.026, 0.026}};
  std::vector<Ring> upper, sole;
  for (const Measure& m : kUpper) {
    const Vec3 base = leg.heel + forward * ((m.along - 0.01) * z);
    upper.push_back({base + up * (m.height * z / 2 + 0.008 * z), side * (m.half * z), up * (m.height * z / 2)});
    sole.push_back({base + up * (0.009 * z), side * ((m.half + 0.003) * z), up * (0.010 * z)});
  }
  mesh.AddSkin(upper, {kShoe, 0.25}, 16);
  mesh.AddSkin(sole, {kSole}, 12);
}

void AddArm(Mesh& mesh, const Tailor& t, const ArmPose& arm, bool glove) {
  const double s = t.width;
  const Material cloth{t.look.shirt}, skin{t.look.skin, 0.08};
  const double upper[] = {0.052 * s, 0.050 * s, 0.047 * s, 0.042 * s};
  const double fore[] = {0.041 * s, 0.045 * s, 0.042 * s, 0.035 * s, 0.028 * s};
  const double sleeve[] = {0.073 * s, 0.069 * s, 0.064 * s, 0.060 * s};
  const Vec3 wrist = Lerp(arm.elbow, arm.hand, 0.80);
  mesh.AddLimb(arm.shoulder, arm.elbow, upper, skin);
  mesh.AddLimb(arm.elbow, wrist, fore, skin);
  const Vec3 root = arm.shoulder - t.pose.chestAxes.up * (0.004 * s);
  mesh.AddLimb(root, Lerp(arm.shoulder, arm.elbow, 0.60), sleeve, cloth, 16);
  const double palm[] = {0.029 * t.size, 0.033 * t.size, 0.036 * t.size};
  mesh.AddLimb(wrist, Lerp(wrist, arm.hand, 0.8), palm, glove ? Material{kGlove, 0.1} : skin);
}

void AddFist(Mesh& mesh, const Tailor& t, Vec3 hand, Vec3 club, Vec3 toe, bool glove) {
  Axes axes;
  axes.up = club;
  axes.front = toe;
  axes.side = Cross(axes.up, axes.front);
  mesh.AddBall(hand, axes, Vec3{0.036, 0.049, 0.038} * t.size,
               glove ? Material{kGlove, 0.1} : Material{t.look.skin, 0.08});
}

}  // namespace

void AddGolfer(Mesh& mesh, const Pose& pose, const GolferLook& look) {
  const double size = look.height / 1.8;
  const Tailor t{pose, look, size, size * look.girth};
  AddTorso(mesh, t);
  AddHead(mesh, t);
  AddLeg(mesh, t, pose.leadLeg);
  AddLeg(mesh, t, pose.trailLeg);
  AddArm(mesh, t, pose.leadArm, true);
  AddArm(mesh, t, pose.trailArm, false);
  const Vec3 club = Unit(pose.clubHead - pose.gripEnd);
  AddFist(mesh, t, pose.leadArm.hand, club, pose.clubToe, true);
  AddFist(mesh, t, pose.trailArm.hand, club, pose.clubToe, false);
}

void AddClub(Mesh& mesh, const Pose& pose, ClubKind kind) {
  const Vec3 club = Unit(pose.clubHead - pose.gripEnd);
  const Vec3 toe = pose.clubToe, face = Cross(toe, club);
  const double grip[] = {0.014, 0.013, 0.0115}, shaft[] = {0.0075, 0.0065, 0.0055};
  mesh.AddLimb(pose.gripEnd, pose.gripEnd + club * 0.27, grip, {Rgb(36, 38, 42)}, 8);
  mesh.AddLimb(pose.gripEnd + club * 0.26, pose.clubHead - club * 0.01, shaft, {Rgb(196, 202, 210), 0.7}, 8);
  Axes axes{face, -club, toe};
  if (kind == ClubKind::Driver) {
    mesh.AddBall(pose.clubHead + toe * 0.035 - face * 0.015, axes, {0.050, 0.030, 0.060}, {Rgb(226, 230, 236), 0.9});
    return;
  }
  // A blade from heel to toe, lofted.
  axes.up = Turned(-club, toe, Radians(-28));
  axes.side = Cross(axes.up, axes.front);
  struct Measure {
    double along, half, thick;
  };
  std::vector<Ring> rings;
  for (const Measure& m : {Measure{-0.012, 0.012, 0.008},
                           {0.01, 0.017, 0.010},
                           {0.04, 0.023, 0.009},
                           {0.066, 0.029, 0.008},
                           {0.078, 0.020, 0.006}})
    rings.push_back(
        {pose.clubHead + toe * m.along + axes.up * (m.half - 0.016), axes.up * m.half, axes.side * m.thick});
  mesh.AddSkin(rings, {Rgb(188, 194, 202), 0.9}, 12);
}

void AddBall(Mesh& mesh, Vec3 from, Vec3 to) {
  const double radii[] = {0.0225, 0.0225};
  mesh.AddLimb(from, Length(to - from) > 0.001 ? to : from + Vec3{0, 0.001, 0}, radii, {Rgb(252, 252, 252), 0.2}, 12);
}

void AddTee(Mesh& mesh, Vec3 ball) {
  const double radii[] = {0.003, 0.004, 0.009};
  mesh.AddLimb({ball.x, 0, ball.z}, {ball.x, ball.y - 0.022, ball.z}, radii, {Rgb(240, 226, 190)}, 8);
}

}  // namespace kinalyx::demo
