#include "platform/media/SoundInStep.h"

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/mathematics.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <cstddef>

namespace kinalyx {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr double kLeast = 0.005;    // seconds out of step that are left alone: stamps tremble so much
constexpr double kGap = 0.1;        // from which on it is no wrong clock but a gap
constexpr double kStretch = 0.002;  // of the speed, at most

}  // namespace

void SoundInStep::Deleter::operator()(SwrContext* context) const { swr_free(&context); }

SoundInStep::SoundInStep(int rate) : rate_(rate) {
  SwrContext* made = nullptr;
  AVChannelLayout mono = AV_CHANNEL_LAYOUT_MONO;
  if (swr_alloc_set_opts2(&made, &mono, AV_SAMPLE_FMT_S16, rate, &mono, AV_SAMPLE_FMT_S16, rate, 0, nullptr) < 0)
    return;
  context_.reset(made);
  av_opt_set_int(made, "flags", SWR_FLAG_RESAMPLE, 0);
  av_opt_set_int(made, "first_pts", 0, 0);
  av_opt_set_double(made, "min_comp", kLeast, 0);
  av_opt_set_double(made, "min_hard_comp", kGap, 0);
  av_opt_set_double(made, "comp_duration", 1, 0);
  av_opt_set_double(made, "max_soft_comp", kStretch, 0);
  if (swr_init(made) < 0) context_.reset();
}

SoundInStep::~SoundInStep() = default;

void SoundInStep::Take(std::span<const std::int16_t> samples, std::int64_t ns) {
  if (!context_ || samples.empty()) return;
  const std::int64_t unit = std::int64_t{rate_} * rate_;
  swr_next_pts(context_.get(), av_rescale(ns, unit, kSecond));
  Convert(reinterpret_cast<const std::uint8_t*>(samples.data()), static_cast<int>(samples.size()));
}

void SoundInStep::Convert(const std::uint8_t* samples, int count) {
  const int room = swr_get_out_samples(context_.get(), count);
  if (room <= 0) return;
  const std::size_t before = ready_.size();
  ready_.resize(before + static_cast<std::size_t>(room));
  auto* out = reinterpret_cast<std::uint8_t*>(ready_.data() + before);
  const int made = swr_convert(context_.get(), &out, room, samples ? &samples : nullptr, count);
  ready_.resize(before + static_cast<std::size_t>(std::max(made, 0)));
  given_ += std::max(made, 0);
}

void SoundInStep::End(std::int64_t ns) {
  if (context_) Convert(nullptr, 0);
  const std::int64_t wanted = av_rescale(ns, rate_, kSecond);
  if (given_ < wanted) ready_.insert(ready_.end(), static_cast<std::size_t>(wanted - given_), 0);
  given_ = std::max(given_, wanted);
}

}  // namespace kinalyx
