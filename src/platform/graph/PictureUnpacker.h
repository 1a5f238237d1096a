#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/graph/IGraph.h"

namespace kinalyx {

/// Makes of a picture that a graph remembers, a JPEG, what a window shows. Each object for one thread.
class PictureUnpacker {
 public:
  /// How it is wanted.
  struct Wish {
    int width = 0;  ///< pixels of the window; the picture keeps its shape in it and is never made larger. 0: as it is
    int height = 0;
    bool mirrored = false;  ///< left and right are changed
    bool operator==(const Wish&) const = default;
  };

  /// @return  null pixels for bytes that are no such picture, and for one that is cut or damaged further down, whose
  ///          place the one before may keep. But where all of them are so for a while, they are taken as they are: some
  ///          cameras never end a picture as it should end.
  LivePicture Unpack(const PackedPicture& picture, const Wish& wish);

 private:
  using Bytes = std::vector<std::uint8_t>;
  struct TurboDeleter {
    void operator()(void* handle) const;
  };

  std::shared_ptr<Bytes> FreeSurface(std::size_t size);

  std::unique_ptr<void, TurboDeleter> turbo_;
  std::vector<std::shared_ptr<Bytes>> surfaces_;  ///< some of them with a window
  Bytes decoded_;
  Bytes scaled_;
  int damaged_ = 0;  ///< the last so many pictures
};

}  // namespace kinalyx
