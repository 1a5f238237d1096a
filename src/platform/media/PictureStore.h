#pragma once

#include <cstddef>
#include <map>

#include "platform/media/AvHandles.h"

namespace kinalyx {

/// The decoded pictures that one open file keeps, as the decoder made them (4:2:0 and the like are half
/// the size of rows). Not for several threads at once.
class PictureStore {
 public:
  bool Has(int picture) const { return pictures_.contains(picture); }
  /// Another hold on a picture; null when it is not here.
  FrameHandle Get(int picture) const;
  /// The number of the picture nearest to this one; -1 when there is none.
  int Nearest(int picture) const;
  void Put(int picture, FrameHandle frame);
  /// How many pictures of the kind that was put in last fit into so many bytes; at least `least`.
  int Fitting(std::size_t bytes, int least) const;
  /// Gives up what lies farthest from `focus`, until the rest fits; pictures above the focus count
  /// `weightAbove` times as far as those below. The focus itself stays.
  void Trim(std::size_t bytes, int focus, int weightAbove);
  std::size_t Bytes() const { return bytes_; }
  /// Of the picture that was put in last; 0 before.
  std::size_t PictureBytes() const { return pictureBytes_; }
  int Count() const { return static_cast<int>(pictures_.size()); }

 private:
  struct Kept {
    FrameHandle frame;
    std::size_t bytes = 0;
  };
  void Drop(std::map<int, Kept>::iterator picture);

  std::map<int, Kept> pictures_;
  std::size_t bytes_ = 0;
  std::size_t pictureBytes_ = 0;
};

}  // namespace kinalyx
