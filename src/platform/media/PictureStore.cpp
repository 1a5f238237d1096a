#include "platform/media/PictureStore.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace kinalyx {
namespace {

std::size_t BytesOf(const AVFrame& frame) {
  std::size_t bytes = 0;
  for (const AVBufferRef* buffer : frame.buf) bytes += buffer ? buffer->size : 0;
  return bytes;
}

}  // namespace

FrameHandle PictureStore::Get(int picture) const {
  const auto found = pictures_.find(picture);
  return FrameHandle(found == pictures_.end() ? nullptr : av_frame_clone(found->second.frame.get()));
}

int PictureStore::Nearest(int picture) const {
  if (pictures_.empty()) return -1;
  const auto above = pictures_.lower_bound(picture);
  if (above == pictures_.begin()) return above->first;
  const int below = std::prev(above)->first;
  return above != pictures_.end() && above->first - picture < picture - below ? above->first : below;
}

void PictureStore::Put(int picture, FrameHandle frame) {
  if (const auto old = pictures_.find(picture); old != pictures_.end()) Drop(old);
  pictureBytes_ = BytesOf(*frame);
  bytes_ += pictureBytes_;
  pictures_[picture] = {std::move(frame), pictureBytes_};
}

void PictureStore::Drop(std::map<int, Kept>::iterator picture) {
  bytes_ -= picture->second.bytes;
  pictures_.erase(picture);
}

int PictureStore::Fitting(std::size_t bytes, int least) const {
  if (pictureBytes_ == 0) return least;
  return static_cast<int>(std::clamp<std::size_t>(bytes / pictureBytes_, static_cast<std::size_t>(least), 1 << 20));
}

void PictureStore::Trim(std::size_t bytes, int focus, int weightAbove) {
  while (bytes_ > bytes && pictures_.size() > 1) {
    const auto lowest = pictures_.begin();
    const auto highest = std::prev(pictures_.end());
    const std::int64_t below = focus - lowest->first;
    const std::int64_t above = (std::int64_t{highest->first} - focus) * weightAbove;
    Drop(above >= below ? highest : lowest);
  }
}

}  // namespace kinalyx
