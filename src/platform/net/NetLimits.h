#pragma once

#include <string>

namespace kinalyx {

/// How long a server is waited for, and where keys of servers are remembered.
struct NetLimits {
  int connectMs = 15'000;       ///< until it has answered the knock
  int silenceMs = 30'000;       ///< without one byte in either direction
  std::string knownHosts = {};  ///< file with the keys of SFTP servers; empty: the program's own
};

}  // namespace kinalyx
