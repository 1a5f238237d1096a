#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "library/GlanceStore.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// What is known of a video without opening it, and what a glance at it has shown.
struct VideoFacts {
  FileStamp stamp;
  bool seen = false;  ///< the glance has been taken
  VideoGlance glance;

  std::int64_t WrittenSeconds() const { return stamp.written / 1'000'000'000; }
};

/// What a reader of glances tells.
class IGlanceEvents {
 public:
  virtual ~IGlanceEvents() = default;
  /// Something is known of these videos now.
  virtual void FactsCame(const std::vector<std::string>& paths) = 0;
  /// All that was wanted is known.
  virtual void AllFactsCame() = 0;
};

/// Looks at the videos of a list, one after the other, on a worker for which nobody waits: a drive that does not
/// answer leaves the list as it is. What has been seen stays in memory, and in the store, for as long as the file
/// is the same. All calls and events on the user-interface thread.
class GlanceReader {
 public:
  /// All that is passed outlives it.
  /// @param send  how work gets to the drive
  GlanceReader(IHost& host, DriveWatch::Send send, IGlanceEvents& events, GlanceStore store);
  GlanceReader(const GlanceReader&) = delete;
  GlanceReader& operator=(const GlanceReader&) = delete;
  ~GlanceReader() { Stop(); }

  /// Wants these and nothing else, in their order: dates and sizes of all first, then the glances.
  void Want(const std::vector<std::string>& paths);
  /// Wants nothing more.
  void Stop();
  /// What is known of a video, as long as Want has not found another state of it; null for nothing.
  const VideoFacts* Known(const std::string& path) const;

 private:
  struct Shared;
  static void Work(const std::shared_ptr<Shared>& shared, const GlanceStore& store);
  void Poll();

  IHost& host_;
  DriveWatch::Send send_;
  IGlanceEvents& events_;
  GlanceStore store_;
  std::map<std::string, VideoFacts> known_;
  std::shared_ptr<Shared> shared_;
  std::shared_ptr<IErrand> errand_;
  HostTimer timer_;
  std::int64_t heard_ = 0;
  bool tidied_ = false;
};

}  // namespace kinalyx
