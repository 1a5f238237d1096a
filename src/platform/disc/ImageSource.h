#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/disc/IDiscDrive.h"
#include "platform/files/Checksum.h"
#include "platform/files/Result.h"

namespace burn {
struct burn_source;
}

namespace kinalyx {

/// The image of a disc: ISO 9660 with Rock Ridge for the long names of Unix and Joliet for those of Windows. Its bytes
/// are made while they are fetched, and summed up on the way.
class ImageSource {
 public:
  /// Looks at the files of the tree and lays the image out. Fails with the first that cannot be read.
  /// @param sizeOnly  no byte of it will be fetched
  static Result<std::unique_ptr<ImageSource>> Make(const DiscTree& tree, bool sizeOnly = false);
  ~ImageSource();
  ImageSource(const ImageSource&) = delete;
  ImageSource& operator=(const ImageSource&) = delete;

  std::int64_t Bytes() const { return bytes_; }
  /// For a track of libburn; it stays with this.
  burn::burn_source* Get() const { return outer_.get(); }
  /// Of all bytes that have been fetched.
  Checksum::Value Sum() const { return sum_.Sum(); }
  std::int64_t Fetched() const { return fetched_; }

 private:
  ImageSource();
  static int Read(burn::burn_source* source, unsigned char* buffer, int size);

  std::unique_ptr<burn::burn_source> outer_;
  burn::burn_source* inner_ = nullptr;  ///< of libisofs
  std::int64_t bytes_ = 0;
  std::int64_t fetched_ = 0;
  Checksum sum_;
};

}  // namespace kinalyx
