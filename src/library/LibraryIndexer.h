#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "library/LibraryIndex.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// What an indexer tells.
class IIndexEvents {
 public:
  virtual ~IIndexEvents() = default;
  /// There is a new index, or more is known of the one that is being read.
  virtual void IndexCame() = 0;
};

/// Keeps an index of the library, read by a worker for which nobody waits. All calls and events on the
/// user-interface thread.
class LibraryIndexer {
 public:
  /// All that is passed outlives it.
  /// @param send  how work gets to the library's drive
  LibraryIndexer(IHost& host, DriveWatch::Send send, const std::string& root, const ProfileFields& fields,
                 IIndexEvents& events);
  LibraryIndexer(const LibraryIndexer&) = delete;
  LibraryIndexer& operator=(const LibraryIndexer&) = delete;
  ~LibraryIndexer() { Stop(); }

  /// Reads what has changed since the last reading, unless that is under way or has just ended.
  void Refresh();
  /// Gives up the reading under way.
  void Stop();
  /// Null before the first reading has ended.
  const LibraryIndex* Index() const { return index_.get(); }
  bool Reading() const { return errand_ != nullptr; }
  /// Folders that the reading under way has come by.
  int FoldersRead() const { return task_ ? task_->progress.folders.load() : 0; }
  /// The reading under way has not come on for long: the drive does not answer.
  bool Silent() const { return silent_; }

 private:
  /// Shared with the worker.
  struct Task {
    IndexProgress progress;
    std::shared_ptr<const LibraryIndex> made;
  };

  void Poll();

  IHost& host_;
  DriveWatch::Send send_;
  const std::string& root_;
  const ProfileFields& fields_;
  IIndexEvents& events_;
  std::string indexedRoot_;
  std::shared_ptr<const LibraryIndex> index_;
  std::shared_ptr<Task> task_;
  std::shared_ptr<IErrand> errand_;
  HostTimer timer_;
  std::int64_t ended_ = 0;
  std::int64_t heard_ = 0;
  int told_ = 0;
  bool silent_ = false;
};

}  // namespace kinalyx
