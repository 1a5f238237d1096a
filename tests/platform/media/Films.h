#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/media/AvHandles.h"

namespace kinalyx::test {

/// Videos as cameras and other programs make them: other containers, codecs, timings, shapes, with sound.
struct Film {
  std::string name;  ///< the extension chooses the container
  std::string encoder;
  int frames = 60;
  int gop = 25;
  int bFrames = 2;
  std::string options = "";                         ///< of the encoder, as key=value:key=value
  bool sound = false;                               ///< plain samples, 8000 a second
  std::function<std::int64_t(int)> time = nullptr;  ///< of a frame, in ms; empty: 40 each
  int width = 320;
  int height = 240;
  AVPixelFormat format = AV_PIX_FMT_YUV420P;
  std::vector<std::int32_t> matrix = {};  ///< of display, 9 numbers; empty: none
  AVRational pixel{0, 1};                 ///< its shape; 0: not told
  bool tellsPixel = true;                 ///< also in the container
  std::function<void(AVCodecContext&)> tune = nullptr;
  std::function<void(AVFrame&, int)> paint = nullptr;  ///< empty: the picture carries its number (320 x 240 only)
  std::map<std::string, std::string> metadata = {};
  std::string muxing = "";                          ///< options of the container, as key=value:key=value
  std::function<void(AVPacket&)> mangle = nullptr;  ///< of every packet, before it is stored
};

std::ostream& operator<<(std::ostream& out, const Film& film);

constexpr int kFilmSamplesPerFrame = 320;

/// Sample n of a film's sound, so that each tells where it belongs.
std::int16_t FilmSample(int n);

/// All sound of a file as the bare library decodes it, in plain samples of 16 bits.
std::vector<std::int16_t> SoundOf(const std::string& path);

/// Writes the film. Skips the test where this machine has no such encoder.
void MakeFilm(const Film& film, const std::string& path);

/// All pictures of a file as the bare library decodes them from its start, in the order in which they come.
std::vector<FrameHandle> DecodeStraight(const std::string& path);

/// True when both have the same samples.
bool SamePicture(const AVFrame& one, const AVFrame& other);

}  // namespace kinalyx::test
