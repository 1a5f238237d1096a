#pragma once

#include <string>
#include <utility>

#include "library/JobRunner.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Trash.h"

namespace kinalyx {

/// Moves a student's folder.
class StudentMoveJob final : public IJob {
 public:
  StudentMoveJob(const std::string& from, const std::string& to, IDisk& disk);
  bool Step() override;
  void Cancel() override { copy_.Cancel(); }
  JobProgress Progress() const override;
  const CopyJob& Copy() const { return copy_; }

 private:
  std::string target_;
  IDisk& disk_;
  bool begun_ = false;
  CopyJob copy_;
};

/// Moves a student's folder to the trash, in one step.
class StudentTrashJob final : public IJob {
 public:
  StudentTrashJob(std::string folder, ITrash& trash) : folder_(std::move(folder)), trash_(trash) {}
  bool Step() override;
  void Cancel() override {}
  JobProgress Progress() const override;
  bool Taken() const { return taken_; }

 private:
  std::string folder_;
  ITrash& trash_;
  bool taken_ = false;
};

/// Removes a student's folder. First it is hidden under another name, so that no half of a student is
/// ever shown; what cannot be removed appears again. Once it is hidden, a cancel comes too late. What a
/// killed removal leaves hidden is swept up with the dead parts of copies.
class StudentRemovalJob final : public IJob {
 public:
  StudentRemovalJob(std::string folder, IDisk& disk) : folder_(std::move(folder)), disk_(disk) {}
  bool Step() override;
  void Cancel() override;
  JobProgress Progress() const override;
  bool Removed() const { return removed_; }
  const std::string& Error() const { return error_; }

 private:
  std::string folder_;
  IDisk& disk_;
  std::string hidden_;
  bool removed_ = false;
  std::string error_;
};

}  // namespace kinalyx
