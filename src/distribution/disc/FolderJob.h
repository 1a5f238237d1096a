#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "distribution/disc/BurnBoard.h"
#include "distribution/disc/DiscMaker.h"
#include "library/JobRunner.h"
#include "platform/files/FileCopy.h"

namespace kinalyx {

/// What the file system of a folder does not take.
struct FolderLimits {
  std::int64_t MostBytes = 0;  ///< of one file; 0 for no limit
  std::string Kind;            ///< "FAT32"; empty where there is nothing to tell
};
FolderLimits LimitsOf(const std::string& folder);

/// Copies what a disc would hold to a folder or a stick. All of it arrives, or nothing does; what is there already
/// under these names is replaced only where that is wanted, and then each file at the very end. Everything is on the
/// drive when it is done.
class FolderJob final : public IJob {
 public:
  /// @param folder   exists
  /// @param replace  files of these names may go; else the job ends as Refused, and Existing names them
  FolderJob(DiscOrder order, std::string folder, bool replace, std::shared_ptr<BurnBoard> board,
            std::optional<FolderLimits> limits = std::nullopt, IDisk& disk = RealDisk());
  ~FolderJob() override;

  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;
  const Outcome& How() const { return how_; }
  /// What is in the way, as "Videos/Swing.avi".
  const std::vector<std::string>& Existing() const { return existing_; }

 private:
  /// A file that takes the place of another one when all have arrived.
  struct Replacement {
    std::string part;
    std::string to;
  };

  Outcome LookAtTarget();
  bool BeginCopy();
  bool CopyOn();
  Outcome Replace();
  bool End(Outcome how);

  DiscOrder order_;
  std::string folder_;
  bool replace_;
  std::shared_ptr<BurnBoard> board_;
  std::optional<FolderLimits> limits_;
  IDisk& disk_;
  std::unique_ptr<DiscMaker> maker_;
  std::unique_ptr<CopyJob> copy_;
  std::vector<Replacement> replacements_;
  std::vector<std::string> existing_;
  bool looked_ = false;
  bool over_ = false;
  Outcome how_;
};

}  // namespace kinalyx
