#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// One line of the list of mounts.
struct Mount {
  std::string source;  ///< "/dev/sdb1"
  std::string path;
  std::string type;  ///< "vfat"

  /// A drive or a share, and no file system that the kernel makes up.
  bool HoldsFiles() const;
};

/// The text of a list of mounts, in its order. Lines that make no sense give empty fields.
std::vector<Mount> MountsIn(std::string_view text);

/// The list of this machine. It comes from the kernel and touches no drive.
std::string MountsText();

}  // namespace kinalyx
