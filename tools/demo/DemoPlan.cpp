#include "DemoPlan.h"

namespace kinalyx::demo {
namespace {

SwingStyle With(GolferLook look, ClubKind club, SwingFaults faults = {}) {
  SwingStyle style;
  style.look = look;
  style.club = club;
  style.faults = faults;
  return style;
}

DemoStudent Clara() {
  GolferLook look;
  look.height = 1.70;
  look.girth = 0.92;
  look.ponytail = true;
  look.hair = Rgb(150, 96, 52);
  look.shirt = Rgb(196, 62, 84);
  look.trousers = Rgb(232, 230, 224);
  DemoStudent student;
  student.profile = {"Clara Weiss",
                     "14 Mill Lane",
                     "Ashford, 02144",
                     "555-0114",
                     "clara.weiss@example.com",
                     "3",
                     "34",
                     "170 cm",
                     "R",
                     "",
                     "Balance, tempo",
                     "Slides off the ball",
                     "Turn around a quiet head",
                     "Single-figure handicap",
                     "6",
                     "4",
                     "Club championship in September",
                     "None",
                     "None",
                     "None"};
  student.notes =
      "12 May: hips slide away from the target in the takeaway and the head goes with them.\n"
      "Drill: stick in the ground outside the right hip, ten slow swings without touching it.\n"
      "9 June: much better. Compare both videos, lock them at impact.";
  const SwingFaults slide{.sway = 1, .casting = 0.5, .hangingBack = 0.35};
  student.videos = {
      {"Driver FO May", DemoFormat::DvInterlaced, View::FaceOn, With(look, ClubKind::Driver, slide), 3,
       "Head moves with the hips until the top."},
      {"Driver FO June", DemoFormat::DvInterlaced, View::FaceOn, With(look, ClubKind::Driver, {.sway = 0.15}), 3, ""},
      {"Driver DTL June", DemoFormat::Mjpeg, View::DownTheLine, With(look, ClubKind::Driver, {.sway = 0.15}), 3, ""},
  };
  return student;
}

DemoStudent Daniel() {
  GolferLook look;
  look.height = 1.84;
  look.girth = 1.04;
  look.skin = Rgb(196, 140, 104);
  look.hair = Rgb(34, 28, 26);
  look.shirt = Rgb(238, 240, 242);
  look.trousers = Rgb(92, 82, 68);
  look.cap = Rgb(30, 40, 60);
  DemoStudent student;
  student.profile = {"Daniel Ortega",
                     "8 Harbour Road",
                     "Westport, 06880",
                     "555-0172",
                     "d.ortega@example.com",
                     "8",
                     "41",
                     "184 cm",
                     "R",
                     "",
                     "Strong, good speed",
                     "Over the top, slices",
                     "Start down with the hips",
                     "Draw with the driver",
                     "8",
                     "6",
                     "Member-guest in July",
                     "Left knee, 2019",
                     "None",
                     "None"};
  student.notes =
      "May: shoulders start the downswing, the club comes from outside the hand path.\n"
      "June: path is nearly neutral, keep the trail elbow in front of the hip.";
  student.videos = {
      {"Iron DTL May", DemoFormat::Mjpeg, View::DownTheLine,
       With(look, ClubKind::Iron, {.overTheTop = 1, .casting = 0.3}), 5,
       "Club above the plane when the lead arm is level in the downswing."},
      {"Iron DTL June", DemoFormat::Mjpeg, View::DownTheLine, With(look, ClubKind::Iron, {.overTheTop = 0.15}), 5, ""},
      {"Iron FO June", DemoFormat::H264, View::FaceOn, With(look, ClubKind::Iron, {.overTheTop = 0.15}), 5, ""},
  };
  return student;
}

DemoStudent Jonas() {
  GolferLook look;
  look.height = 1.88;
  look.hair = Rgb(176, 140, 84);
  look.shirt = Rgb(226, 116, 52);
  look.trousers = Rgb(40, 42, 50);
  look.cap = Rgb(244, 244, 242);
  SwingStyle style = With(look, ClubKind::Driver, {.earlyExtension = 0.25});
  style.leftHanded = true;
  DemoStudent student;
  student.profile = {"Jonas Müller",
                     "Gartenstraße 5",
                     "Freiburg",
                     "555-0136",
                     "jonas@example.com",
                     "12",
                     "27",
                     "188 cm",
                     "L",
                     "",
                     "Length off the tee",
                     "Wedges",
                     "Three wedge distances",
                     "State team",
                     "16",
                     "12",
                     "Regional qualifier",
                     "Back, 2021",
                     "None",
                     "None"};
  student.notes = "Left-handed. Use the mirror to compare him with the models.";
  student.videos = {
      {"Driver FO", DemoFormat::DvInterlaced, View::FaceOn, style, 8, ""},
      {"Driver DTL", DemoFormat::H264, View::DownTheLine, style, 8, ""},
  };
  return student;
}

DemoStudent Grace() {
  GolferLook look;
  look.height = 1.66;
  look.girth = 0.94;
  look.ponytail = true;
  look.skin = Rgb(122, 80, 56);
  look.hair = Rgb(28, 22, 22);
  look.shirt = Rgb(246, 196, 66);
  look.trousers = Rgb(34, 52, 84);
  DemoStudent student;
  student.profile = {"Grace Okafor",
                     "22 Station Street",
                     "Milton, 02186",
                     "555-0190",
                     "grace.okafor@example.com",
                     "5",
                     "29",
                     "166 cm",
                     "R",
                     "",
                     "Short game",
                     "Stands up through the ball",
                     "Keep the bend at impact",
                     "Play to 10",
                     "10",
                     "5",
                     "",
                     "None",
                     "None",
                     "None"};
  student.notes = "Hips move to the ball from the top. Chair drill, five minutes a day.";
  const SwingFaults stand{.earlyExtension = 1};
  student.videos = {
      {"Iron DTL", DemoFormat::DvInterlaced, View::DownTheLine, With(look, ClubKind::Iron, stand), 6, ""},
      {"Iron FO", DemoFormat::Mjpeg, View::FaceOn, With(look, ClubKind::Iron, stand), 6, ""},
  };
  return student;
}

DemoStudent Walter() {
  GolferLook look;
  look.height = 1.74;
  look.girth = 1.18;
  look.hair = Rgb(196, 196, 194);
  look.shirt = Rgb(150, 172, 196);
  look.trousers = Rgb(120, 108, 92);
  look.cap = Rgb(150, 40, 44);
  SwingStyle style = With(look, ClubKind::Driver, {.casting = 0.5, .hangingBack = 0.9});
  style.backswing = 0.78;
  style.tempo = 1.12;
  DemoStudent student;
  student.profile = {"Walter Finch",
                     "3 Orchard Close",
                     "Ashford, 02144",
                     "555-0158",
                     "w.finch@example.com",
                     "31",
                     "68",
                     "174 cm",
                     "R",
                     "",
                     "Straight, patient",
                     "Weight stays on the back foot",
                     "Finish on the left side",
                     "Enjoy the game",
                     "4",
                     "8",
                     "Seniors' league",
                     "Right hip, 2020",
                     "None",
                     "No deep knee bends"};
  student.notes = "Short backswing is fine for him. Step-through drill to get to the front foot.";
  student.videos = {{"Driver FO", DemoFormat::Mjpeg, View::FaceOn, style, 9, ""}};
  return student;
}

GolferLook ModelLook() {
  GolferLook look;
  look.height = 1.82;
  return look;
}

DemoStudent Models() {
  DemoStudent student;
  student.profile[kNameField] = "Model Swings";
  student.notes = "Sound swings to compare with.";
  const GolferLook look = ModelLook();
  student.videos = {
      {"Driver FO", DemoFormat::H264Large, View::FaceOn, With(look, ClubKind::Driver), 2, ""},
      {"Driver DTL", DemoFormat::H264Large, View::DownTheLine, With(look, ClubKind::Driver), 2, ""},
      {"Iron FO", DemoFormat::Mjpeg, View::FaceOn, With(look, ClubKind::Iron), 2, ""},
      {"Iron DTL", DemoFormat::Mjpeg, View::DownTheLine, With(look, ClubKind::Iron), 2, ""},
  };
  return student;
}

}  // namespace

std::vector<DemoInstructor> PlanDemo() {
  std::vector<DemoInstructor> plan;
  plan.push_back({"Anna Lindqvist", {Clara(), Daniel(), Jonas()}, {}});
  plan.push_back({"Ben Carter", {Grace(), Models(), Walter()}, {}});
  const SwingStyle model = With(ModelLook(), ClubKind::Driver);
  plan.push_back({"Quick Launch", {}, {{"Model Driver FO", DemoFormat::Uncompressed, View::FaceOn, model, 2, ""}}});
  return plan;
}

}  // namespace kinalyx::demo
