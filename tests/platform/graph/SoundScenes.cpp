#include "platform/graph/SoundScenes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace kinalyx::test {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

/// Lets through what is near one frequency.
class Resonator {
 public:
  Resonator(double hz, double width, int rate) {
    if (hz > 0.45 * rate) return;
    const double r = std::exp(-std::numbers::pi * width / rate);
    b_ = 2 * r * std::cos(kTurn * hz / rate);
    c_ = -r * r;
    a_ = 1 - b_ - c_;
  }
  double Pass(double x) {
    const double y = a_ * x + b_ * y1_ + c_ * y2_;
    y2_ = y1_;
    y1_ = y;
    return y;
  }

 private:
  double a_ = 1, b_ = 0, c_ = 0, y1_ = 0, y2_ = 0;
};

/// Lets through what is slow.
class Smoother {
 public:
  Smoother(double hz, int rate) : part_(1 - std::exp(-kTurn * hz / rate)) {}
  double Pass(double x) { return y_ += part_ * (x - y_); }

 private:
  double part_;
  double y_ = 0;
};

struct Vowel {
  char letter;
  std::array<double, 3> formants;
};
constexpr std::array kVowels = {Vowel{'a', {730, 1200, 2500}}, Vowel{'e', {530, 1840, 2480}},
                                Vowel{'i', {280, 2250, 2900}}, Vowel{'o', {570, 840, 2410}},
                                Vowel{'u', {310, 870, 2250}}};

/// Of a letter that is a burst: where it lies, and how wide.
struct Stop {
  char letter;
  double hz, width;
  bool breath;  ///< follows
};
constexpr std::array kStops = {Stop{'p', 900, 2500, true},  Stop{'t', 4500, 2500, true},  Stop{'k', 2000, 1200, true},
                               Stop{'b', 800, 2000, false}, Stop{'d', 4000, 2500, false}, Stop{'g', 1900, 1200, false}};

const Vowel* VowelOf(char letter) {
  const auto found = std::ranges::find(kVowels, letter, &Vowel::letter);
  return found == kVowels.end() ? nullptr : &*found;
}

}  // namespace

Sound AtPeak(Sound sound, double decibels) {
  float most = 1e-9F;
  for (const float x : sound) most = std::max(most, std::abs(x));
  const auto factor = static_cast<float>(std::pow(10.0, decibels / 20)) / most;
  for (float& x : sound) x = std::clamp(x * factor, -1.0F, 1.0F);
  return sound;
}

void Mix(Sound& into, const Sound& sound, std::size_t at) {
  into.resize(std::max(into.size(), at + sound.size()));
  for (std::size_t i = 0; i < sound.size(); ++i) into[at + i] = std::clamp(into[at + i] + sound[i], -1.0F, 1.0F);
}

/// About a bell curve.
double SoundMaker::Noise() {
  double sum = 0;
  for (int i = 0; i < 4; ++i) {
    state_ = state_ * 1664525 + 1013904223;
    sum += (state_ >> 8) / 8388608.0 - 1;
  }
  return sum / 2;
}

/// A thing that was hit and rings.
void SoundMaker::Ring(Sound& into, double at, double hz, double decay, double amplitude) const {
  if (hz > 0.45 * rate_) return;
  for (std::size_t i = Samples(at); i < into.size(); ++i) {
    const double t = static_cast<double>(i - Samples(at)) / rate_;
    const double swell = 1 - std::exp(-4 * t * hz);
    into[i] += static_cast<float>(amplitude * swell * std::exp(-t / decay) * std::sin(kTurn * hz * t));
  }
}

/// Noise round a frequency that swells and dies away.
void SoundMaker::Burst(Sound& into, double at, double hz, double width, double rise, double decay, double amplitude) {
  Resonator band(hz, width, rate_);
  Sound burst(Samples(rise + 8 * decay));
  for (std::size_t i = 0; i < burst.size(); ++i) {
    const double t = static_cast<double>(i) / rate_;
    burst[i] = static_cast<float>(band.Pass(Noise()) * (t < rise ? t / rise : std::exp((rise - t) / decay)));
  }
  Mix(into, AtPeak(burst, 20 * std::log10(amplitude)), Samples(at));
}

Sound SoundMaker::Club() {
  Sound sound = Silence(0.06);
  for (const double hz : {1900.0, 3300.0, 4700.0, 6800.0}) Ring(sound, 0, hz, 0.004, 0.2);
  Burst(sound, 0, 5000, 6000, 0.0003, 0.001, 0.5);
  return sound;
}

Sound SoundMaker::Bat() {
  Sound sound = Silence(0.1);
  for (const double hz : {170.0, 580.0, 1200.0, 2300.0}) Ring(sound, 0, hz, 0.01, 0.15);
  Burst(sound, 0, 3000, 5000, 0.0005, 0.003, 0.5);
  return sound;
}

Sound SoundMaker::Racket() {
  Sound sound = Silence(0.12);
  for (const double hz : {140.0, 520.0, 1400.0}) Ring(sound, 0, hz, 0.015, 0.2);
  Burst(sound, 0, 2500, 4000, 0.001, 0.005, 0.4);
  return sound;
}

Sound SoundMaker::Clap() {
  Sound sound = Silence(0.06);
  for (const double at : {0.0, 0.002, 0.0035}) Burst(sound, at, 1700, 2500, 0.0005, 0.004, 0.3);
  return sound;
}

Sound SoundMaker::Landing() {
  Sound sound = Silence(0.3);
  Ring(sound, 0, 75, 0.06, 0.3);
  Ring(sound, 0, 190, 0.04, 0.2);
  Burst(sound, 0, 1500, 4000, 0.002, 0.008, 0.4);
  return sound;
}

Sound SoundMaker::Pistol() {
  Sound sound = Silence(0.1);
  Burst(sound, 0, 800, 8000, 0.0002, 0.006, 1);
  return InRoom(AtPeak(sound, 12), 0.8, 22);
}

Sound SoundMaker::Speech(const std::string& letters, double pitch) {
  Sound sound;
  const auto voice = [&](const Vowel& vowel, double seconds, double breathPart) {
    std::array<Resonator, 3> mouth = {Resonator(vowel.formants[0], 80, rate_), Resonator(vowel.formants[1], 110, rate_),
                                      Resonator(vowel.formants[2], 160, rate_)};
    Smoother glottis(600, rate_);
    Sound said;
    double phase = 1, last = 0;
    for (std::size_t i = 0; i < Samples(seconds); ++i) {
      const double t = static_cast<double>(i) / rate_;
      phase += pitch * (1.1 - 0.4 * t / seconds) * (1 + 0.02 * Noise()) / rate_;
      const double pulse = phase >= 1 ? 1 : 0;
      if (phase >= 1) phase -= 1;
      const double swell = std::min({1.0, t / 0.015, (seconds - t) / 0.04});
      double x = glottis.Pass(pulse * rate_ / 1000.0) * swell * (1 - breathPart) + 0.02 * Noise() * swell +
                 0.25 * Noise() * breathPart * swell;
      for (Resonator& cavity : mouth) x = cavity.Pass(x);
      said.push_back(static_cast<float>(x - 0.9 * last));  // what the lips radiate
      last = x;
    }
    Mix(sound, AtPeak(said, breathPart > 0 ? -20 : 0), sound.size());
  };
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const char letter = letters[i];
    const Vowel* next = i + 1 < letters.size() ? VowelOf(letters[i + 1]) : nullptr;
    if (const Vowel* vowel = VowelOf(letter)) {
      voice(*vowel, 0.17, 0);
    } else if (const auto stop = std::ranges::find(kStops, letter, &Stop::letter); stop != kStops.end()) {
      sound.resize(sound.size() + Samples(0.06));
      const std::size_t at = sound.size();
      Sound burst = Silence(0.02);
      Burst(burst, 0, stop->hz, stop->width, 0.001, 0.006, 0.25);
      // The breath of a "p" hits the microphone.
      if (letter == 'p') Ring(burst, 0, 45, 0.02, 0.8);
      Mix(sound, burst, at);
      if (stop->breath) {
        Burst(sound, static_cast<double>(at) / rate_ + 0.004, stop->hz, stop->width, 0.005, 0.025, 0.12);
        sound.resize(at + Samples(0.05));
      }
      if (!next && stop->breath) sound.resize(sound.size() + Samples(0.06));
    } else if (letter == 's' || letter == 'f') {
      Burst(sound, static_cast<double>(sound.size()) / rate_, letter == 's' ? 6000 : 3000, 3000, 0.03, 0.02, 0.15);
    } else if (letter == 'h') {
      voice(next ? *next : kVowels[0], 0.08, 1);
    } else {
      sound.resize(sound.size() + Samples(0.3));
    }
  }
  return sound;
}

Sound SoundMaker::Wind(double seconds) {
  Sound sound = Silence(seconds);
  Smoother low(60, rate_), rough(900, rate_), gust(0.8, rate_);
  for (float& x : sound) {
    const double strength = std::abs(gust.Pass(Noise())) * 60;
    x = static_cast<float>((low.Pass(Noise()) * 12 + rough.Pass(Noise()) * 0.3) * strength);
  }
  return sound;
}

Sound SoundMaker::Hum(double seconds) {
  Sound sound = Silence(seconds);
  for (int harmonic = 1; harmonic < 20; ++harmonic) Ring(sound, 0, 50.0 * harmonic, 1e9, 0.3 / harmonic);
  return sound;
}

Sound SoundMaker::Music(double seconds) {
  Sound sound = Silence(seconds);
  for (const double hz : {220.0, 277.2, 329.6, 440.0, 554.4}) {
    for (int harmonic = 1; harmonic < 12; ++harmonic) Ring(sound, 0, hz * harmonic, 1e9, 0.03 / harmonic);
  }
  int beat = 0;
  for (double at = 0; at + 0.5 < seconds; at += 0.25, ++beat) {
    Sound drums = Silence(0.4);
    if (beat % 4 == 0) Ring(drums, 0, 60, 0.08, 0.6);
    if (beat % 4 == 2) {
      Ring(drums, 0, 190, 0.05, 0.25);
      Burst(drums, 0, 2500, 5000, 0.001, 0.05, 0.35);
    }
    Burst(drums, 0, 8000, 4000, 0.001, 0.03, 0.08);
    Mix(sound, drums, Samples(at));
  }
  return sound;
}

Sound SoundMaker::Steps(double seconds) {
  Sound sound = Silence(seconds);
  for (double at = 0.1; at + 0.5 < seconds; at += 0.55) {
    Sound step = Silence(0.3);
    Ring(step, 0, 90, 0.03, 0.5);
    Ring(step, 0.005, 240, 0.02, 0.3);
    Burst(step, 0.02, 1200, 1500, 0.02, 0.03, 0.05);
    Mix(sound, step, Samples(at));
  }
  return sound;
}

Sound SoundMaker::Aeroplane(double seconds) {
  Sound sound = Silence(seconds);
  Smoother roar(500, rate_);
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const double t = static_cast<double>(i) / rate_ / seconds;
    const double near = std::pow(std::sin(std::numbers::pi * t), 4);
    const double whine = std::sin(kTurn * 1800 * (1.1 - 0.2 * t) * t * seconds);
    sound[i] = static_cast<float>(near * (roar.Pass(Noise()) * 2 + 0.1 * Noise() + 0.05 * whine));
  }
  return sound;
}

Sound SoundMaker::Hiss(double seconds) {
  Sound sound = Silence(seconds);
  for (float& x : sound) x = static_cast<float>(Noise() / 4);
  return sound;
}

Sound SoundMaker::InRoom(const Sound& sound, double seconds, double decibels) {
  Sound all = sound;
  all.resize(sound.size() + Samples(seconds));
  const double decay = seconds / 6.9;
  float most = 0;
  for (const float x : sound) most = std::max(most, std::abs(x));
  Smoother walls(4000, rate_);
  for (std::size_t i = Samples(0.004); i < all.size(); ++i) {
    const double t = static_cast<double>(i) / rate_;
    all[i] += static_cast<float>(walls.Pass(Noise()) * most * std::pow(10.0, -decibels / 20) * std::exp(-t / decay));
  }
  return all;
}

Sound SoundMaker::WithEcho(const Sound& sound, double seconds, double part) const {
  Sound all = sound;
  Sound echo = sound;
  for (float& x : echo) x *= static_cast<float>(part);
  Mix(all, echo, Samples(seconds));
  return all;
}

}  // namespace kinalyx::test
