#include "platform/files/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Folders.h"

namespace kinalyx {

namespace {

/// The folder in which the drive of a path hangs.
std::string TopOfDrive(const std::string& path, dev_t device) {
  std::string top = path;
  struct stat above {};
  while (top != "/" && top != "." && ::stat(FolderOf(top).c_str(), &above) == 0 && above.st_dev == device)
    top = FolderOf(top);
  return top;
}

class FreedesktopTrash final : public ITrash {
 public:
  bool Has(const std::string& path) const override {
    struct stat entry {};
    struct stat home {};
    if (::lstat(path.c_str(), &entry) != 0) return false;
    if (::stat(QDir::homePath().toStdString().c_str(), &home) == 0 && home.st_dev == entry.st_dev) return true;
    // Every other drive has its own, in its topmost folder.
    const std::string top = TopOfDrive(path, entry.st_dev);
    const std::string own = JoinPath(top, ".Trash-" + std::to_string(::getuid()));
    return ::access((dirExists(own) ? own : top).c_str(), W_OK) == 0;
  }
  bool Take(const std::string& path) override {
    // Where the folder of the user's data is missing, Qt takes the present folder for the trash.
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!QDir::isAbsolutePath(data) || !QDir().mkpath(data)) return false;
    return QFile::moveToTrash(QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())));
  }
};

}  // namespace

ITrash& DesktopTrash() {
  static FreedesktopTrash trash;
  return trash;
}

}  // namespace kinalyx
