#pragma once

#include <string>

namespace kinalyx {

/// The desktop's trash, from which the user can take back what was deleted. Any thread may call it; it touches the
/// drive.
class ITrash {
 public:
  virtual ~ITrash() = default;
  /// True when the drive of a file or folder has a trash, or can be given one.
  virtual bool Has(const std::string& path) const = 0;
  /// Moves a file, or a folder with all that is in it, to the trash of its drive; false, with nothing changed, when
  /// that cannot be. Nothing is ever copied for it.
  virtual bool Take(const std::string& path) = 0;
};

ITrash& DesktopTrash();

}  // namespace kinalyx
