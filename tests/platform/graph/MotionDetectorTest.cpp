#include "platform/graph/MotionDetector.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <numbers>
#include <random>
#include <thread>

#include "capture/templates/CaptureTemplates.h"
#include "platform/graph/DeviceSources.h"
#include "platform/graph/LiveGraph.h"
#include "platform/graph/MotionFace.h"
#include "platform/host/Post.h"

namespace kinalyx::test {
namespace {

using std::numbers::pi;

/// What a camera sees of a practice ground: pictures of brightness, made one after the other.
class Ground {
 public:
  Ground(int width, int height) : width_(width), height_(height), scale_(height / 480.0) {
    std::mt19937 random(7);
    still_.resize(Size());
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) {
        const double grass = std::sin(x * 0.31 / scale_) * std::cos(y * 0.23 / scale_) * 18;
        still_[At(x, y)] = static_cast<float>(96 + 40.0 * x / width - 24.0 * y / height + grass);
      }
    // As good as any other noise, and quickly had.
    std::normal_distribution<float> level(0, 1);
    noise_.resize(65'536);
    for (float& each : noise_) each = level(random);
    picture_.resize(Size());
  }

  void Begin() { now_ = still_; }
  /// A dark or bright box with soft edges; its place and size in pixels of a picture of 640 x 480.
  void Box(double x, double y, double width, double height, double level, double part = 1) {
    const double left = x * scale_, right = (x + width) * scale_, top = y * scale_, bottom = (y + height) * scale_;
    for (int row = std::max(0, static_cast<int>(top)); row < std::min<double>(height_, bottom); ++row)
      for (int column = std::max(0, static_cast<int>(left)); column < std::min<double>(width_, right); ++column) {
        const double across = std::min(column + 1.0, right) - std::max<double>(column, left);
        const double down = std::min(row + 1.0, bottom) - std::max<double>(row, top);
        float& now = now_[At(column, row)];
        now += static_cast<float>(part * std::clamp(across, 0.0, 1.0) * std::clamp(down, 0.0, 1.0) * (level - now));
      }
  }
  /// Every level becomes another one, by itself and its place.
  template <typename How>
  void Change(How how) {
    for (int y = 0; y < height_; ++y)
      for (int x = 0; x < width_; ++x) now_[At(x, y)] = static_cast<float>(how(now_[At(x, y)], x / scale_, y / scale_));
  }
  LumaPicture End(double seconds, float noise = 4) {
    std::size_t from = (++number_ * 7919) % noise_.size();
    for (std::size_t i = 0; i < picture_.size(); ++i) {
      picture_[i] = static_cast<std::uint8_t>(std::clamp(now_[i] + noise * noise_[from], 0.0F, 255.0F));
      if (++from == noise_.size()) from = 0;
    }
    return {picture_.data(), width_, height_, width_, static_cast<std::int64_t>(seconds * 1e9)};
  }

 private:
  std::size_t Size() const { return static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_); }
  std::size_t At(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  double scale_;
  std::vector<float> still_, now_;
  std::vector<float> noise_;
  std::vector<std::uint8_t> picture_;
  std::size_t number_ = 0;
};

/// The zone that lies in the middle of the ground: 200 x 160 pixels at (220, 160).
constexpr MotionRect kZone{220 / 640.0, 160 / 480.0, 200 / 640.0, 160 / 480.0};

struct Camera {
  int width = 640;
  int height = 480;
  double rate = 30;
};

/// What happens on the ground, `seconds` after it has been looked at for a second in peace.
using Happening = std::function<void(Ground& ground, double seconds)>;

/// In how many pictures the zone moves, of the seconds that follow.
int PicturesOfMotion(const Camera& camera, const Happening& happens, double seconds = 4, int sensitivity = 50,
                     float noise = 4) {
  // The pictures are as wide as their camera; what happens is told for four by three, at the left.
  Ground ground(camera.width, camera.height);
  MotionDetector detector;
  const double part = 4.0 * camera.height / (3.0 * camera.width);
  const MotionRegion region{1, {kZone.left * part, kZone.top, kZone.width * part, kZone.height}};
  detector.SetRegions(std::span(&region, 1));
  detector.SetSensitivity(sensitivity);
  int moving = 0;
  constexpr double kPeace = 1;
  for (double t = 0; t < kPeace + seconds; t += 1 / camera.rate) {
    ground.Begin();
    happens(ground, t - kPeace);
    const auto& moves = detector.Look(ground.End(t, noise));
    if (t < kPeace) {
      // At more than the usual sensitivity the wind alone may move it.
      if (sensitivity <= IMotionDetectionFilter::kUsualSensitivity) {
        EXPECT_TRUE(moves.empty()) << "in peace, at " << t;
      }
    } else if (!moves.empty()) {
      ++moving;
    }
  }
  return moving;
}

constexpr Camera kCameras[] = {{640, 480, 30}, {640, 480, 60}, {1280, 720, 60}, {320, 240, 30}};

/// A club head of 12 pixels, smeared by the way that it makes while the shutter is open, in the zone from t = 0.
Happening Club(double pixelsASecond, double rate, double level) {
  return [=](Ground& ground, double t) {
    if (t < 0) return;
    const double x = 200 + pixelsASecond * t;
    if (x > 460) return;
    const double open = pixelsASecond / rate / 2;
    ground.Box(x, 240, 12 + open, 12, level, 12 / (12 + open) + 0.25);
    // And the shaft, of which there is hardly anything to be seen.
    ground.Box(x - 10, 120, 4 + open, 120, level, 4 / (4 + open));
  };
}

void Person(Ground& ground, double x) {
  ground.Box(x, 60, 90, 400, 60);
  ground.Box(x + 25, 20, 40, 50, 190);
}

TEST(MotionDetection, AClubAHandAndAPersonFire) {
  for (const Camera& camera : kCameras) {
    SCOPED_TRACE(testing::Message() << camera.width << " x " << camera.height << " at " << camera.rate);
    for (const double speed : {700.0, 3000.0})
      for (const double level : {20.0, 235.0})
        EXPECT_GT(PicturesOfMotion(camera, Club(speed, camera.rate, level), 0.5), 0)
            << "club at " << speed << ", " << level;
    const auto hand = [](Ground& ground, double t) {
      if (t >= 0) ground.Box(160 + 120 * t, 200, 60, 70, 175);
    };
    EXPECT_GT(PicturesOfMotion(camera, hand, 2), 2);
    const auto person = [](Ground& ground, double t) { Person(ground, t < 0 ? 60 : 60 + 80 * t); };
    EXPECT_GT(PicturesOfMotion(camera, person, 3), 5);
  }
}

/// A hip that drifts out of its place is what a zone beside it is for.
TEST(MotionDetection, WhoDriftsIntoAZoneFires) {
  const auto drifts = [](Ground& ground, double t) { Person(ground, t < 0 ? 120 : 120 + 30 * t); };
  EXPECT_GT(PicturesOfMotion({}, drifts, 3), 3);
}

TEST(MotionDetection, OnceStillItIsPartOfTheGround) {
  const auto stays = [](Ground& ground, double t) { Person(ground, std::clamp(t * 300, 0.0, 250.0)); };
  const int moving = PicturesOfMotion({}, stays, 6);
  EXPECT_GT(moving, 5);
  EXPECT_LT(moving, 3 * 30);
}

TEST(MotionDetection, LeavesLightAndNoiseDoNot) {
  const auto leaf = [](Ground& ground, double t) {
    const double sway = 8 * std::sin(2 * pi * 1.2 * t);
    ground.Box(300 + sway, 220 + sway / 3, 20, 14, 190);
  };
  const auto twig = [](Ground& ground, double t) {
    for (int i = 0; i < 12; ++i) {
      const double sway = 6 * std::sin(2 * pi * (0.8 + 0.05 * i) * t + i);
      ground.Box(225 + 45 * (i % 4) + sway, 165 + 45 * (i / 4) + sway / 2, 16, 12, i % 2 ? 40 : 185);
    }
  };
  const auto dusk = [](Ground& ground, double t) {
    ground.Change([t](double level, double, double) { return level * (1 - 0.05 * std::max(0.0, t)); });
  };
  // The shadow of a cloud, whose edge is a meter wide, comes over the ground.
  const auto cloud = [](Ground& ground, double t) {
    ground.Change(
        [t](double level, double x, double) { return level * (1 - 0.35 * std::clamp((t * 150 - x) / 250, 0.0, 1.0)); });
  };
  const auto exposure = [](Ground& ground, double t) {
    ground.Change([t](double level, double, double) { return t < 1 ? level : t < 2 ? level * 1.45 : level * 0.7 + 6; });
  };
  // Lamps and the camera do not agree: bands run through the picture.
  const auto bands = [](Ground& ground, double t) {
    ground.Change([t](double level, double, double y) { return level * (1 + 0.05 * std::sin(y / 40 + 9 * t)); });
  };
  const auto nothing = [](Ground&, double) {};
  for (const Camera& camera : {Camera{640, 480, 30}, Camera{320, 240, 60}}) {
    SCOPED_TRACE(testing::Message() << camera.width << " x " << camera.height << " at " << camera.rate);
    // One that begins to sway, and one that has always swayed.
    EXPECT_EQ(PicturesOfMotion(camera, [&](Ground& ground, double t) { leaf(ground, std::max(0.0, t)); }), 0);
    EXPECT_EQ(PicturesOfMotion(camera, leaf), 0);
    EXPECT_EQ(PicturesOfMotion(camera, [&](Ground& ground, double t) { twig(ground, std::max(0.0, t)); }), 0);
    EXPECT_EQ(PicturesOfMotion(camera, dusk), 0);
    EXPECT_EQ(PicturesOfMotion(camera, cloud), 0);
    EXPECT_EQ(PicturesOfMotion(camera, exposure), 0);
    EXPECT_EQ(PicturesOfMotion(camera, bands), 0);
    EXPECT_EQ(PicturesOfMotion(camera, nothing, 4, 50, 9), 0);
  }
}

/// Who wants the leaf has it.
TEST(MotionDetection, AtFullSensitivityALeafFires) {
  const auto leaf = [](Ground& ground, double t) { ground.Box(300 + 8 * std::sin(7.5 * t), 220, 20, 14, 190); };
  EXPECT_GT(PicturesOfMotion({}, leaf, 2, 100), 0);
}

/// An exposure that follows what has come into the picture hides it from nobody.
TEST(MotionDetection, AChangeOfLightHidesNoClub) {
  const auto both = [](Ground& ground, double t) {
    Club(1500, 30, 20)(ground, t);
    ground.Change([t](double level, double, double) { return level * (t < 0 ? 1 : 1 + std::min(0.3, t * 2)); });
  };
  EXPECT_GT(PicturesOfMotion({}, both, 1), 0);
}

TEST(MotionDetection, SensitivityIsWhatItTakes) {
  const auto finger = [](Ground& ground, double t) {
    if (t >= 0) ground.Box(200 + 60 * t, 230, 40, 10, 150);
  };
  EXPECT_EQ(PicturesOfMotion({}, finger, 2, 20), 0);
  EXPECT_GT(PicturesOfMotion({}, finger, 2, 85), 0);
  const auto club = Club(1500, 30, 150);
  EXPECT_EQ(PicturesOfMotion({}, club, 1, 0), 0);
}

TEST(MotionDetection, ARegionCanLieAnywhereAndBeOfAnySize) {
  Ground ground(640, 480);
  MotionDetector detector;
  const std::vector<MotionRegion> regions{{1, {-0.5, -0.5, 0.2, 0.2}}, {2, {0.9, 0.9, 5, 5}},
                                          {3, {0.5, 0.5, 0, 0}},       {4, {0.5, 0.5, 0.001, 0.5}},
                                          {5, {0.4, 0.4, 0.03, 0.04}}, {6, {0, 0, 1, 1}}};
  detector.SetRegions(regions);
  std::vector<int> moved;
  for (int i = 0; i < 90; ++i) {
    ground.Begin();
    if (i > 60) ground.Box(20.0 * (i - 60), 150, 60, 80, 30);
    for (const int number : detector.Look(ground.End(i / 30.0)))
      if (std::ranges::find(moved, number) == moved.end()) moved.push_back(number);
  }
  std::ranges::sort(moved);
  EXPECT_EQ(moved, (std::vector<int>{5, 6}));
  // Another size of pictures, as after a change of cameras, is no motion.
  Ground other(320, 240);
  other.Begin();
  EXPECT_TRUE(detector.Look(other.End(4)).empty());
}

/// Motion that goes on is told again after a while, not with each picture; what has gone tells nothing.
TEST(MotionDetection, ARegionFiresWhereMotionBegins) {
  MotionFace face;
  const int left = face.AddRegion({0, 0, 0.5, 1});
  const int right = face.AddRegion({0.5, 0, 0.5, 1});
  constexpr std::int64_t kPicture = 33'000'000;
  std::int64_t ns = 5'000'000'000;
  face.Tell({left}, ns);
  EXPECT_EQ(face.TakeFired(), std::vector<int>{left});
  EXPECT_TRUE(face.TakeFired().empty());
  for (int i = 0; i < 20; ++i) face.Tell({left}, ns += kPicture);
  EXPECT_TRUE(face.TakeFired().empty());
  EXPECT_EQ(face.Moving(), std::vector<int>{left});
  for (int i = 0; i < 15; ++i) face.Tell({left}, ns += kPicture);
  EXPECT_EQ(face.TakeFired(), std::vector<int>{left});
  for (int i = 0; i < 12; ++i) face.Tell({}, ns += kPicture);
  EXPECT_TRUE(face.Moving().empty());
  face.Tell({left, right}, ns += kPicture);
  face.DeleteRegion(left);
  EXPECT_EQ(face.TakeFired(), std::vector<int>{right});
  face.Tell({left, right}, ns += kPicture);
  EXPECT_EQ(face.Moving(), std::vector<int>{right});
}

/// The club of the Test Camera swings through the middle of the picture; in a mirror it comes from the other side.
class MotionGraph : public testing::Test, protected IGraphEvents {
 protected:
  void PictureCame(const std::string&) override {
    ++pictures_;
    if (auto* renderer = graph_.GraphFilterByLabel<IRendererFilter>("Video Renderer")) latest_ = renderer->Latest();
  }
  void SourceFailed(const std::string&, const std::string& why) override { ADD_FAILURE() << why; }
  void SinkFailed(const std::string&, const std::string&) override {}
  void EndOfStream() override {}

  static std::shared_ptr<DeviceSources> Sources() {
    auto sources = std::make_shared<DeviceSources>();
    FoundDevice camera;
    camera.device.name = "Test Camera";
    camera.device.origin = Device::Origin::Test;
    sources->Replace({camera});
    return sources;
  }

  /// Runs until it is so, or too much time has gone.
  bool RunUntil(const std::function<bool()>& done) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!done() && std::chrono::steady_clock::now() < end) {
      QCoreApplication::processEvents();
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return done();
  }

  LiveGraph graph_{*this, Sources(), MakeQtPost()};
  LivePicture latest_;
  int pictures_ = 0;
};

TEST_F(MotionGraph, ZonesFireOverALivePicture) {
  int argc = 0;
  const QCoreApplication application(argc, nullptr);
  for (const std::string_view text : {MVMotionDraw, MVMotionDraw2}) {
    ASSERT_TRUE(graph_.GraphXmlLoad(text));
    ASSERT_TRUE(graph_.GraphSetDevice("VideoSource", "Test Camera"));
    ASSERT_TRUE(graph_.GraphSetVideoFormat("VideoSource", 640, 480, "YUY2"));
    auto* motion = graph_.GraphFilterByLabel<IMotionDetectionFilter>("MV Motion Detection");
    ASSERT_NE(motion, nullptr);
    EXPECT_EQ(graph_.GraphFilterByLabel<IMotionDetectionFilter>("MV Mirror"), nullptr);
    const int middle = motion->AddRegion({0.3, 0.2, 0.4, 0.5});
    motion->AddRegion({0, 0, 0.05, 0.1});
    pictures_ = 0;
    ASSERT_TRUE(graph_.GraphRun());
    std::vector<int> fired;
    EXPECT_TRUE(RunUntil([&] {
      for (const int region : motion->TakeFired()) fired.push_back(region);
      return !fired.empty() && pictures_ > 5;
    }));
    EXPECT_EQ(fired.empty() ? 0 : fired.front(), middle);
    EXPECT_EQ(latest_.width, 640);
    ASSERT_TRUE(graph_.GraphStop());
  }
}

}  // namespace
}  // namespace kinalyx::test
