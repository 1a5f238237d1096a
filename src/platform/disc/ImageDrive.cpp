#include "platform/disc/ImageDrive.h"

#include <unistd.h>

#include "platform/disc/BurnRun.h"
#include "platform/files/Disk.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

/// Writes to a hidden file beside, and gives it its name in the end.
class ImageRun final : public IBurnRun {
 public:
  ImageRun(const std::string& path, const DiscTree& tree, const BurnWish& wish)
      : path_(path), part_(PartNameBeside(path)), run_("stdio:" + part_, tree, wish) {}
  ~ImageRun() override { KillFile(part_); }

  bool Step() override {
    if (over_) return false;
    if (run_.Step()) return true;
    over_ = true;
    how_ = run_.How();
    if (how_ && RealDisk().Rename(part_, path_) < 0)
      how_ = Outcome(Fault::Unwritable, Tr("The image could not be given its name."));
    if (how_) RealDisk().FlushFolder(FolderOf(path_));
    else KillFile(part_);
    return false;
  }
  void Cancel() override { run_.Cancel(); }
  DriveState State() const override { return run_.State(); }
  std::int64_t BytesDone() const override { return run_.BytesDone(); }
  std::int64_t BytesTotal() const override { return run_.BytesTotal(); }
  bool Written() const override { return over_ && how_; }
  const Outcome& How() const override { return how_; }

 private:
  std::string path_;
  std::string part_;
  BurnRun run_;
  bool over_ = false;
  Outcome how_;
};

}  // namespace

Result<DriveReport> ImageDrive::TestUnitReady() {
  const std::string folder = FolderOf(path_);
  if (!dirExists(folder)) return Outcome(Fault::NotFound, Tr("The folder of the image file is not there."));
  if (access(folder.c_str(), W_OK) != 0)
    return Outcome(Fault::Unwritable, Tr("The folder of the image file cannot be written to."));
  DriveReport report;
  report.Medium = Medium::Blank;
  report.Kind = Tr("Image file");
  report.FreeBytes = FreeBytes(folder);
  return report;
}

Outcome ImageDrive::Eject() { return Outcome(Fault::Refused, Tr("An image file has no tray.")); }

std::unique_ptr<IBurnRun> ImageDrive::Burn(const DiscTree& tree, const BurnWish& wish) {
  RemoveDeadParts(FolderOf(path_));
  return std::make_unique<ImageRun>(path_, tree, wish);
}

}  // namespace kinalyx
