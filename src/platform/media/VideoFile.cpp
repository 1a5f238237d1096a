#include "platform/media/VideoFile.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "platform/media/Demuxer.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/PictureSource.h"
#include "platform/media/RowConverter.h"

namespace kinalyx {

struct VideoFile::Engine {
  Engine(std::unique_ptr<PictureDecoder> decoder)
      : info(decoder->Source().Describe()), times(decoder->Source().Times()), index(decoder->Index()),
        converter(decoder->Source().Shape()), pictures(std::move(decoder)) {}

  VideoInfo info;
  FrameTimes times;
  const PictureIndex& index;
  RowConverter converter;
  PictureSource pictures;

  std::vector<std::uint8_t> bits;  ///< the rows handed out last
  FrameRows rows;
  int rowsPicture = -1;
};

VideoFile::VideoFile(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
VideoFile::~VideoFile() = default;

VideoFile::Result VideoFile::Open(const std::string& path) {
  Result result;
  auto demuxer = Demuxer::Open(path, result.fault, result.message);
  if (!demuxer) return result;
  auto decoder = PictureDecoder::Open(std::move(demuxer), result.message);
  if (!decoder) {
    result.fault = OpenFault::NoMedia;
    return result;
  }
  result.file.reset(new VideoFile(std::make_unique<Engine>(std::move(decoder))));
  return result;
}

const VideoInfo& VideoFile::Info() const { return engine_->info; }

double VideoFile::SampleToTime(int n) const { return engine_->times.Of(n, engine_->index); }

int VideoFile::FrameAtTime(double ms) const { return engine_->times.FrameAt(ms, engine_->index); }

FrameRows VideoFile::Frame(int n, int bitCount) {
  Engine& engine = *engine_;
  if (n < 0 || n >= engine.info.frameCount || (bitCount != 24 && bitCount != 32)) return {};
  const int picture = engine.index.PictureOfFrame(n);
  if (engine.rows && engine.rowsPicture == picture && engine.rows.bitCount == bitCount) return engine.rows;

  engine.rows = {};
  const FrameHandle frame = engine.pictures.Picture(picture);
  if (!frame) return {};
  engine.rowsPicture = picture;
  engine.rows = engine.converter.Convert(*frame, bitCount, engine.bits);
  return engine.rows;
}

std::unique_ptr<VideoInfo> ReadVideoInfo(const std::string& path) {
  OpenFault fault = OpenFault::None;
  std::string message;
  const auto demuxer = Demuxer::Open(path, fault, message);
  return demuxer ? std::make_unique<VideoInfo>(demuxer->Describe()) : nullptr;
}

}  // namespace kinalyx
