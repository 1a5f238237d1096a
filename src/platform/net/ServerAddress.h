#pragma once

#include <string>
#include <string_view>

#include "platform/files/Result.h"

namespace kinalyx {

/// How what goes over the network is kept from others.
enum class NetSecurity {
  None,
  StartTls,  ///< begins in the clear and must go on encrypted
  Tls,       ///< encrypted from the first byte
};

/// A server of files as a user types it.
struct ServerAddress {
  enum class Kind { Ftp, Sftp } kind = Kind::Ftp;
  NetSecurity security = NetSecurity::None;
  std::string host;
  int port = 0;        ///< 0: the usual one
  std::string folder;  ///< below which all paths are meant; no slash at either end
};

/// Reads "ftp.host.com", "ftp://host:2121/folder", "ftps://host" (encrypted from the first byte), "ftpes://host"
/// (encrypted after the greeting), "sftp://host". Refused, in words for the user, where there is no host, a port that
/// is none, a name and password in the address, or a blank, a line end or a control character anywhere.
Result<ServerAddress> ReadServerAddress(std::string_view text);

}  // namespace kinalyx
