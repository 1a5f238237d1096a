#include "platform/media/PictureFitter.h"

namespace kinalyx {

const AVFrame* PictureFitter::Fit(const AVFrame& picture) {
  if (picture.format == format_ && picture.width == width_ && picture.height == height_) return &picture;
  // Pictures may change in mid-stream; the library keeps its context while they do not.
  scaler_.reset(sws_getCachedContext(scaler_.release(), picture.width, picture.height,
                                     static_cast<AVPixelFormat>(picture.format), width_, height_, format_,
                                     SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
  fitted_ = NewFrame();
  fitted_->format = format_;
  fitted_->width = width_;
  fitted_->height = height_;
  if (!scaler_ || av_frame_get_buffer(fitted_.get(), 0) < 0) return nullptr;
  sws_scale(scaler_.get(), picture.data, picture.linesize, 0, picture.height, fitted_->data, fitted_->linesize);
  fitted_->interlaced_frame = picture.interlaced_frame;
  fitted_->top_field_first = picture.top_field_first;
  return fitted_.get();
}

}  // namespace kinalyx
