// Makes the program's own sounds, assets/pictures/*.wav: kinalyx-sounds assets/pictures
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 44100;

/// One tone of a sound. Seconds and hertz.
struct Tone {
  double at = 0;
  double hz = 0;
  double seconds = 0;
  double loudness = 1;  ///< part of full scale
  double decay = 0;     ///< in which it sinks to a third; 0: it stays
  double bright = 0.3;  ///< of the second overtone; those above have less. Outdoors they are what is heard
};

struct Sound {
  const char* file;
  std::vector<Tone> tones;
};

const std::vector<Sound> kSounds = {
    // A soft tick for each second of a countdown, and a clearer one when it comes to its end.
    {"typing1.wav", {{.hz = 1175, .seconds = 0.09, .loudness = 0.32, .decay = 0.014, .bright = 0.5}}},
    {"countdown.wav", {{.hz = 880, .seconds = 0.16, .loudness = 0.5, .decay = 0.09}}},
    // Go, and over: up and bright, down and round.
    {"startbeep.wav", {{.hz = 1760, .seconds = 0.42, .loudness = 0.6, .decay = 0.6, .bright = 0.35}}},
    {"endbeep.wav",
     {{.hz = 1175, .seconds = 0.17, .loudness = 0.55, .decay = 0.3},
      {.at = 0.19, .hz = 784, .seconds = 0.34, .loudness = 0.55, .decay = 0.25}}},
    // Something moves where nothing should.
    {"beep.wav", {{.hz = 1480, .seconds = 0.11, .loudness = 0.5, .decay = 0.2}}},
    // The shutter of a camera: it opens, and closes again.
    {"camera.wav",
     {{.hz = 2350, .seconds = 0.05, .loudness = 0.4, .decay = 0.007, .bright = 0.8},
      {.hz = 910, .seconds = 0.06, .loudness = 0.25, .decay = 0.012, .bright = 0.6},
      {.at = 0.085, .hz = 1870, .seconds = 0.06, .loudness = 0.4, .decay = 0.009, .bright = 0.8},
      {.at = 0.085, .hz = 640, .seconds = 0.08, .loudness = 0.3, .decay = 0.016, .bright = 0.6}}},
};

/// From silence to 1 and back to silence, without a corner that would click.
double Swell(double t, double seconds) {
  constexpr double kAttack = 0.004;
  const double release = std::min(0.04, seconds / 3);
  const double part = std::clamp(std::min(t / kAttack, (seconds - t) / release), 0.0, 1.0);
  return (1 - std::cos(std::numbers::pi * part)) / 2;
}

std::vector<std::int16_t> Samples(const Sound& sound) {
  std::vector<double> sum;
  for (const Tone& tone : sound.tones) {
    const auto first = static_cast<std::size_t>(tone.at * kRate);
    const auto count = static_cast<std::size_t>(tone.seconds * kRate) + 1;
    sum.resize(std::max(sum.size(), first + count));
    for (std::size_t i = 0; i < count; ++i) {
      const double t = static_cast<double>(i) / kRate;
      const double turn = 2 * std::numbers::pi * tone.hz * t;
      const double wave = std::sin(turn) + tone.bright * std::sin(2 * turn) + tone.bright / 3 * std::sin(3 * turn);
      const double fall = tone.decay > 0 ? std::exp(-t / tone.decay) : 1;
      sum[first + i] += tone.loudness * wave / (1 + tone.bright) * fall * Swell(t, tone.seconds);
    }
  }
  std::vector<std::int16_t> samples;
  for (const double x : sum)
    samples.push_back(static_cast<std::int16_t>(std::lround(std::clamp(x, -1.0, 1.0) * 32767)));
  return samples;
}

/// The numbers of a WAV file, which has the lowest byte first.
void Put(std::ofstream& file, std::uint32_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) file.put(static_cast<char>(number >> (8 * i)));
}

bool Write(const std::string& path, const std::vector<std::int16_t>& samples) {
  std::ofstream file(path, std::ios::binary);
  const auto bytes = static_cast<std::uint32_t>(samples.size() * 2);
  file << "RIFF";
  Put(file, 36 + bytes, 4);
  file << "WAVEfmt ";
  Put(file, 16, 4);
  Put(file, 1, 2);  // as they are
  Put(file, 1, 2);  // of one channel
  Put(file, kRate, 4);
  Put(file, kRate * 2, 4);
  Put(file, 2, 2);
  Put(file, 16, 2);
  file << "data";
  Put(file, bytes, 4);
  for (const std::int16_t sample : samples) Put(file, static_cast<std::uint16_t>(sample), 2);
  return static_cast<bool>(file.flush());
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() != 1) {
    std::cerr << "usage: kinalyx-sounds FOLDER\n";
    return 2;
  }
  for (const Sound& sound : kSounds) {
    const std::string path = arguments[0] + "/" + sound.file;
    if (!Write(path, Samples(sound))) {
      std::cerr << "cannot write " << path << "\n";
      return 1;
    }
  }
  return 0;
}
