#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host/ChildProcess.h"
#include "TempFolder.h"

namespace kinalyx::test {

/// The account that the servers of tests know.
inline constexpr const char* kTestLogin = "coach";
inline constexpr const char* kTestPassword = "putt & chip";

/// A server on a loopback port, in a process that ends with the object.
class TestServer {
 public:
  /// @param arguments  see tests/support/servers.py
  explicit TestServer(std::vector<std::string> arguments);

  /// 0: it did not start.
  int Port() const { return port_; }
  /// What is not installed here, for GTEST_SKIP.
  const std::string& Missing() const { return missing_; }
  /// Why it did not start otherwise.
  const std::string& Trouble() const { return trouble_; }

 private:
  std::unique_ptr<ChildProcess> process_;
  int port_ = 0;
  std::string missing_, trouble_;
};

/// A key and a certificate that it signs itself, so that the certificate serves as the CA file as well.
class TestCertificate {
 public:
  /// @param name  of the server, as "localhost"
  explicit TestCertificate(std::string_view name);

  bool Made() const { return made_; }
  std::string Certificate() const { return folder_.Path("server.crt"); }
  std::string Key() const { return folder_.Path("server.key"); }

 private:
  TempFolder folder_;
  bool made_ = false;
};

}  // namespace kinalyx::test
