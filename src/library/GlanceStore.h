#pragma once

#include <optional>
#include <string>

#include "library/VideoGlance.h"
#include "platform/files/Folders.h"

namespace kinalyx {

/// Glances at videos in the user's cache folder, kept from one run to the next: one small file for each state of a
/// video. They may be cut, damaged or deleted at any time; what cannot be read is not there. For any thread.
class GlanceStore {
 public:
  /// Pictures are kept at most so large, in pixels.
  static constexpr int kWidth = 96;
  static constexpr int kHeight = 60;

  /// @param folder  made when missing; empty: nothing is kept
  /// @param most    files; beyond that the oldest go
  explicit GlanceStore(std::string folder, int most = 3000) : folder_(std::move(folder)), most_(most) {}
  /// The store of the user who runs the program.
  static GlanceStore OfUser();

  std::optional<VideoGlance> Load(const FileStamp& video) const;
  void Save(const FileStamp& video, const VideoGlance& glance) const;
  /// Removes what is too much.
  void Tidy() const;

 private:
  std::string PathOf(const FileStamp& video) const;

  std::string folder_;
  int most_;
};

}  // namespace kinalyx
