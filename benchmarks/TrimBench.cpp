// What a cut costs that copies its pictures, against the bare library doing the same.

extern "C" {
#include <libavformat/avformat.h>
}

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "platform/media/VideoTrim.h"
#include "support/TestVideos.h"

namespace kinalyx::bench {
namespace {

constexpr int kFrames = 900;
constexpr int kFirst = 100;
constexpr int kLast = 799;
constexpr int kRounds = 7;

void Check(int result) {
  if (result < 0) throw std::runtime_error("the library refuses the cut");
}

/// The library's own way: seek to the first frame, copy packets until the last.
void BareCut(const std::string& from, const std::string& to) {
  AVFormatContext* input = nullptr;
  Check(avformat_open_input(&input, ("file:" + from).c_str(), nullptr, nullptr));
  Check(avformat_find_stream_info(input, nullptr));
  AVFormatContext* output = nullptr;
  Check(avformat_alloc_output_context2(&output, nullptr, "avi", nullptr));
  AVStream* target = avformat_new_stream(output, nullptr);
  const AVStream* source = input->streams[0];
  Check(avcodec_parameters_copy(target->codecpar, source->codecpar));
  target->time_base = source->time_base;
  Check(avio_open(&output->pb, ("file:" + to).c_str(), AVIO_FLAG_WRITE));
  Check(avformat_write_header(output, nullptr));
  Check(av_seek_frame(input, 0, kFirst, AVSEEK_FLAG_BACKWARD));
  AVPacket* packet = av_packet_alloc();
  int written = 0;
  while (av_read_frame(input, packet) >= 0 && packet->dts <= kLast) {
    packet->pts = packet->dts = packet->dts - kFirst;
    av_packet_rescale_ts(packet, source->time_base, target->time_base);
    Check(av_interleaved_write_frame(output, packet));
    ++written;
  }
  av_packet_free(&packet);
  Check(av_write_trailer(output));
  avio_closep(&output->pb);
  avformat_free_context(output);
  avformat_close_input(&input);
  if (written != kLast - kFirst + 1) throw std::runtime_error("the library cut another stretch");
}

const Register kTrimCopy(
    {"trim_copy", {Target::Of::Ratio, 1.3, 1.0}, [] {
       // About 120 KB a frame, as from a camera's tape.
       const std::string source = test::MakeTestVideo(test::DvVideo(kFrames));
       const std::string target = ScratchFolder() + "/cut.avi";
       std::vector<double> our;
       std::vector<double> their;
       for (int round = 0; round < kRounds; ++round) {
         their.push_back(MeasureMs([&] { BareCut(source, target); }));
         std::remove(target.c_str());
         our.push_back(MeasureMs([&] {
           const auto cut = TrimVideo({source, target, kFirst, kLast, 30, TrimRequest::Mode::Copy});
           if (!cut || !cut->copied || cut->frames != kLast - kFirst + 1) throw std::runtime_error(cut.Why());
         }));
         std::remove(target.c_str());
       }
       return Figure{Median(our), "ms", Median(their)};
     }});

}  // namespace
}  // namespace kinalyx::bench
