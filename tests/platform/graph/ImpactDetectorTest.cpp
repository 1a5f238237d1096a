#include "platform/graph/ImpactDetector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "platform/graph/SoundScenes.h"

namespace kinalyx::test {
namespace {

constexpr std::int64_t kBegin = 7'000'000'000'000;  // of the stream, on the machine's clock
constexpr double kLead = 0.8;                       // seconds of quiet before what is heard
constexpr double kExact = 0.002;                    // seconds by which a told time may be off

/// The seconds from the begin of a sound at which impacts were told.
std::vector<double> Heard(ImpactDetector& detector, const Sound& sound, int rate, std::size_t block = 480) {
  std::vector<double> times;
  for (std::size_t at = 0; at < sound.size(); at += block) {
    const std::int64_t ns = kBegin + static_cast<std::int64_t>(static_cast<double>(at) / rate * 1e9);
    for (const std::int64_t found : detector.Hear({sound.data() + at, std::min(block, sound.size() - at)}, rate, ns))
      times.push_back(static_cast<double>(found - kBegin) / 1e9);
  }
  return times;
}

/// A sound in a quiet place: what the microphone hisses before it, behind it and with it.
Sound Quietly(SoundMaker& maker, const Sound& sound) {
  Sound scene = AtPeak(maker.Hiss(kLead + static_cast<double>(sound.size()) / maker.Rate() + 0.4), -62);
  Mix(scene, sound, maker.Samples(kLead));
  return scene;
}

struct Kind {
  const char* name;
  Sound (SoundMaker::*make)();
};
constexpr Kind kKinds[] = {{"club", &SoundMaker::Club},       {"bat", &SoundMaker::Bat},
                           {"racket", &SoundMaker::Racket},   {"clap", &SoundMaker::Clap},
                           {"landing", &SoundMaker::Landing}, {"pistol", &SoundMaker::Pistol}};

TEST(ImpactDetector, HearsEachImpactOnceAndWhenItWas) {
  for (const int rate : {8000, 11025, 44100, 48000, 192000}) {
    SoundMaker maker(rate);
    const Sound windy = AtPeak(maker.Wind(2.5), -14);
    const Sound spoken = AtPeak(maker.Speech("baka oegu hada bega"), -15);
    const Sound humming = AtPeak(maker.Hum(2.5), -12);
    for (const Kind& kind : kKinds) {
      const Sound near = (maker.*kind.make)();
      const auto once = [&](const char* how, Sound scene) {
        ImpactDetector detector;
        const auto times = Heard(detector, scene, rate);
        ASSERT_EQ(times.size(), 1u) << kind.name << ' ' << how << " at " << rate;
        EXPECT_NEAR(times[0], kLead, kExact) << kind.name << ' ' << how << " at " << rate;
      };
      const auto over = [&](Sound scene, double decibels) {
        Mix(scene, AtPeak(near, decibels), maker.Samples(kLead));
        return scene;
      };
      once("loud and near", Quietly(maker, AtPeak(near, 0)));
      once("too loud for the microphone", Quietly(maker, AtPeak(near, 10)));
      once("soft and far", Quietly(maker, AtPeak(near, -18)));
      once("in a hall", Quietly(maker, AtPeak(maker.InRoom(near, 1.2, 20), -8)));
      once("in a driving bay", Quietly(maker, AtPeak(maker.WithEcho(maker.WithEcho(near, 0.05, 0.5), 0.13, 0.5), -8)));
      once("in the wind", over(windy, -6));
      once("under speech", over(spoken, -3));
      once("with a hum", over(humming, -6));
    }
  }
}

TEST(ImpactDetector, HearsNothingElse) {
  SoundMaker maker;
  std::vector<std::pair<std::string, Sound>> others;
  for (const char* words : {"papa tata kaka", "take it bak", "hit", "stop", "put it up", "pet it", "ok go", "hi sit up",
                            "baba dada gaga", "pa", "ta", "ka", "at", "ip", "uk", "top hit it"}) {
    for (const double pitch : {95.0, 210.0})
      others.emplace_back("\"" + std::string(words) + "\" at " + std::to_string(pitch), maker.Speech(words, pitch));
  }
  others.emplace_back("wind", maker.Wind(15));
  others.emplace_back("hum", maker.Hum(4));
  others.emplace_back("music", maker.Music(8));
  others.emplace_back("steps", maker.Steps(8));
  others.emplace_back("an aeroplane", maker.Aeroplane(8));
  others.emplace_back("hiss", maker.Hiss(4));
  for (const auto& [name, sound] : others) {
    for (const double decibels : {6.0, -4.0, -16.0}) {
      ImpactDetector detector;
      EXPECT_TRUE(Heard(detector, Quietly(maker, AtPeak(sound, decibels)), maker.Rate()).empty())
          << name << " at " << decibels;
    }
  }
}

TEST(ImpactDetector, HoldsWhatTheMeterShowsAgainstTheThreshold) {
  SoundMaker maker;
  const auto heard = [&](double decibels, double threshold, double gain = 1) {
    ImpactDetector detector;
    detector.SetThreshold(threshold);
    detector.SetGain(gain);
    return !Heard(detector, Quietly(maker, AtPeak(maker.Club(), decibels)), maker.Rate()).empty();
  };
  // A soft one from far away is under the default, and heard by who asks for more.
  EXPECT_FALSE(heard(-34, ImpactDetector::kDefaultThreshold));
  EXPECT_TRUE(heard(-34, 0.25));
  EXPECT_TRUE(heard(-34, ImpactDetector::kDefaultThreshold, 4));
  EXPECT_FALSE(heard(-12, 0.9));
  EXPECT_TRUE(heard(-1, 0.9));
  EXPECT_FALSE(heard(-12, ImpactDetector::kDefaultThreshold, 0.2));
  EXPECT_FALSE(heard(10, 1));
  EXPECT_FALSE(heard(10, 1, 10));
  EXPECT_FALSE(heard(10, 7));
  EXPECT_TRUE(heard(-12, std::numeric_limits<double>::quiet_NaN())) << "stays as it was";

  // The peak that the meter shows is what was compared: a line just under it fires, one just above does not.
  for (const double decibels : {-3.0, -15.0, -27.0}) {
    const Sound scene = Quietly(maker, AtPeak(maker.Bat(), decibels));
    ImpactDetector meter;
    double most = 0;
    for (std::size_t at = 0; at + 48 < scene.size(); at += 48) {
      meter.Hear({scene.data() + at, 48}, 48000, kBegin + static_cast<std::int64_t>(at) * 1'000'000 / 48);
      most = std::max(most, meter.Level());
    }
    EXPECT_NEAR(ImpactDetector::AmplitudeOf(most), std::pow(10, decibels / 20), 0.3 * std::pow(10, decibels / 20));
    EXPECT_TRUE(heard(-40, 0) && meter.Level() < most) << "it falls";
    for (const double off : {-0.01, 0.01}) {
      ImpactDetector detector;
      detector.SetThreshold(most + off);
      EXPECT_EQ(Heard(detector, scene, 48000).size(), off < 0 ? 1u : 0u) << decibels;
    }
  }
}

TEST(ImpactDetector, SaysTheSameHoweverTheSamplesAreCut) {
  for (const int rate : {44100, 48000}) {
    SoundMaker maker(rate);
    Sound scene = AtPeak(maker.Wind(6), -20);
    Mix(scene, AtPeak(maker.Speech("hit it baka uto"), -14), maker.Samples(0.3));
    double at = 1;
    for (const Kind& kind : kKinds) Mix(scene, AtPeak((maker.*kind.make)(), -3), maker.Samples(at += 0.71));
    ImpactDetector whole;
    const auto once = Heard(whole, scene, rate, scene.size());
    EXPECT_EQ(once.size(), std::size(kKinds));
    for (const std::size_t block : {1, 64, 480, 4801}) {
      ImpactDetector detector;
      const auto cut = Heard(detector, scene, rate, block);
      ASSERT_EQ(cut.size(), once.size()) << block;
      for (std::size_t i = 0; i < cut.size(); ++i) EXPECT_NEAR(cut[i], once[i], 1e-8) << block;
      EXPECT_DOUBLE_EQ(detector.Level(), whole.Level()) << block;
    }
  }
}

TEST(ImpactDetector, TakesWhatMicrophonesGive) {
  SoundMaker maker;
  const Sound club = AtPeak(maker.Club(), -6);
  const Sound scene = Quietly(maker, club);
  {
    SCOPED_TRACE("an offset");
    Sound lifted = scene;
    for (float& x : lifted) x += 0.3F;
    ImpactDetector detector;
    EXPECT_EQ(Heard(detector, lifted, 48000).size(), 1u);
    EXPECT_LT(detector.Level(), 0.9);
  }
  {
    SCOPED_TRACE("digital silence, before and after");
    Sound still = maker.Silence(kLead);
    Mix(still, club, maker.Samples(kLead));
    Mix(still, maker.Silence(3), still.size());
    ImpactDetector detector;
    EXPECT_EQ(Heard(detector, still, 48000).size(), 1u);
    EXPECT_EQ(detector.Level(), 0);
  }
  {
    SCOPED_TRACE("what is no number");
    Sound broken = scene;
    broken[maker.Samples(0.3)] = std::numeric_limits<float>::quiet_NaN();
    broken[maker.Samples(0.31)] = std::numeric_limits<float>::infinity();
    broken[maker.Samples(0.32)] = -std::numeric_limits<float>::max();
    ImpactDetector detector;
    detector.SetThreshold(0.3);
    const auto times = Heard(detector, broken, 48000);
    ASSERT_FALSE(times.empty());
    EXPECT_NEAR(times.back(), kLead, kExact);
  }
  {
    SCOPED_TRACE("a microphone that begins in the middle of a noise, and one that pauses");
    const Sound roar = AtPeak(maker.Hiss(2), -3);
    ImpactDetector detector;
    EXPECT_TRUE(Heard(detector, roar, 48000).empty());
    EXPECT_TRUE(detector.Hear(club, 48000, kBegin + 60'000'000'000).empty()) << "nobody knows what was before";
    const std::int64_t later = kBegin + 90'000'000'000;
    const auto found = detector.Hear(scene, 48000, later);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_NEAR(static_cast<double>(found[0] - later) / 1e9, kLead, kExact) << "by the clock of the new part";
  }
  {
    SCOPED_TRACE("another rate in the middle, none at all, and no samples");
    ImpactDetector detector;
    EXPECT_TRUE(detector.Hear(scene, 0, kBegin).empty());
    EXPECT_TRUE(detector.Hear(scene, 4000, kBegin).empty());
    EXPECT_TRUE(detector.Hear(scene, -48000, kBegin).empty());
    EXPECT_TRUE(detector.Hear({}, 48000, kBegin).empty());
    EXPECT_EQ(Heard(detector, scene, 48000).size(), 1u);
    SoundMaker slow(16000);
    EXPECT_EQ(Heard(detector, Quietly(slow, slow.Clap()), 16000).size(), 1u);
  }
}

TEST(ImpactDetector, TellsHitsApartAndNotTheirEchoes) {
  SoundMaker maker;
  Sound scene = AtPeak(maker.Hiss(6), -62);
  for (const double at : {1.0, 1.4, 2.0, 3.0, 3.15, 4.5}) Mix(scene, AtPeak(maker.Bat(), -6), maker.Samples(at));
  ImpactDetector detector;
  const auto times = Heard(detector, scene, 48000);
  ASSERT_EQ(times.size(), 5u) << "the one after 150 ms might as well be a wall's answer";
  EXPECT_NEAR(times[1], 1.4, kExact);
  EXPECT_NEAR(times[4], 4.5, kExact);
}

}  // namespace
}  // namespace kinalyx::test
