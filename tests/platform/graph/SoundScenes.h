#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kinalyx::test {

/// Samples of one channel; full scale is 1.
using Sound = std::vector<float>;

/// Makes sounds as a microphone would hear them, the same ones each time. None is louder than full scale.
class SoundMaker {
 public:
  explicit SoundMaker(int rate = 48000) : rate_(rate) {}

  int Rate() const { return rate_; }
  std::size_t Samples(double seconds) const { return static_cast<std::size_t>(seconds * rate_); }
  Sound Silence(double seconds) const { return Sound(Samples(seconds)); }

  // What is to be heard. The first sample is the onset.
  Sound Club();     ///< of metal, at a golf ball
  Sound Bat();      ///< of wood
  Sound Racket();   ///< strings and a soft ball
  Sound Clap();     ///< of hands, in several pieces
  Sound Landing();  ///< of a gymnast on a mat: a thud, and a slap
  Sound Pistol();   ///< that starts a race, too loud for the microphone

  // What is not.
  /// Letters: a e i o u, p t k with their breath, b d g, s f h; a blank is a pause.
  Sound Speech(const std::string& letters, double pitch = 120);
  Sound Wind(double seconds);
  Sound Hum(double seconds);
  Sound Music(double seconds);  ///< with a beat: drums, a bass and a chord
  Sound Steps(double seconds);
  Sound Aeroplane(double seconds);  ///< that passes
  Sound Hiss(double seconds);

  /// What the walls of a room make of it: a tail that takes `seconds` to die away, and is `decibels` below it at first.
  Sound InRoom(const Sound& sound, double seconds, double decibels);
  /// A wall that answers.
  Sound WithEcho(const Sound& sound, double seconds, double part) const;

 private:
  double Noise();
  void Ring(Sound& into, double at, double hz, double decay, double amplitude) const;
  void Burst(Sound& into, double at, double hz, double width, double rise, double decay, double amplitude);

  const int rate_;
  std::uint32_t state_ = 12345;
};

/// As loud as that: its loudest sample comes to so many decibels below full scale; above it, it is clipped.
Sound AtPeak(Sound sound, double decibels);
/// Lays one over another, which grows where it has to.
void Mix(Sound& into, const Sound& sound, std::size_t at);

}  // namespace kinalyx::test
