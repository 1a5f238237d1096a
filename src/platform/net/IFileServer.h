#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/files/Disk.h"
#include "platform/files/Result.h"
#include "platform/net/ITransferWatch.h"
#include "platform/net/NetLimits.h"
#include "platform/net/ServerAddress.h"

namespace kinalyx {

struct ServerLogin {
  ServerAddress address;
  std::string login;  ///< empty: as a guest
  std::string password;
  bool passive = true;
  std::string caFile = {};  ///< whose signatures count; empty: those that the system trusts
};

/// An entry of a server's folder. Names come from outside: whoever makes a path of one checks it first.
struct ServerEntry {
  std::string name;  ///< one part of a path: never empty, ".", "..", and without slash or control character
  bool folder = false;
  std::int64_t bytes = -1;  ///< -1 unknown
  bool operator==(const ServerEntry&) const = default;
};

/// One connection. Paths are relative to the folder of the address, parts divided by "/"; a part that is empty, "." or
/// ".." is refused. Every call fails in words for the user, and after a failure the next call connects anew.
class IFileServer {
 public:
  virtual ~IFileServer() = default;
  /// Logs in, and no more.
  virtual Outcome Connect(ITransferWatch& watch) = 0;
  /// Folders and files, in the order of the server; a folder that is not there fails with Fault::NotFound. At most
  /// 10,000 entries are taken.
  virtual Result<std::vector<ServerEntry>> List(const std::string& folder, ITransferWatch& watch) = 0;
  /// Into a new file, whole or not at all; what is there already is refused (Fault::Refused). Fault::NotFound where the
  /// server has none, Fault::Unwritable where this disk takes no more.
  virtual Outcome Get(const std::string& path, const std::string& target, ITransferWatch& watch) = 0;
  /// A small file as text; more than `most` bytes fail.
  virtual Result<std::string> GetText(const std::string& path, std::int64_t most, ITransferWatch& watch) = 0;
  /// Takes the place of what is there only when all has come.
  virtual Outcome Put(const std::string& source, const std::string& path, ITransferWatch& watch) = 0;
  /// Removes what uploads to this path have left beside it where they broke off. To be called when a whole file lies
  /// there: on some servers what is left may be the old one.
  /// @param entries  what List gave of the folder
  virtual Outcome RemoveLeftovers(const std::string& /*path*/, std::span<const ServerEntry> /*entries*/,
                                  ITransferWatch& /*watch*/) {
    return {};
  }
  /// With all folders above it; one that is there already is fine.
  virtual Outcome MakeFolder(const std::string& folder, ITransferWatch& watch) = 0;
};
std::unique_ptr<IFileServer> MakeFileServer(ServerLogin login, NetLimits limits = {}, IDisk& disk = RealDisk());

}  // namespace kinalyx
