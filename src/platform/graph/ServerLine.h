#pragma once

#include <string>
#include <utility>

namespace kinalyx {

/// A line to a server of this machine on which nothing is said: it tells whether the server is there, and when it has
/// gone. Only for the sources of this room.
class ServerLine {
 public:
  /// @param path  of the server's socket; with an empty one the server counts as there
  explicit ServerLine(std::string path) : path_(std::move(path)) {}
  ~ServerLine() { Close(); }
  ServerLine(const ServerLine&) = delete;
  ServerLine& operator=(const ServerLine&) = delete;

  /// False when nobody listens.
  bool Open();
  bool Gone() const;
  bool Watches() const { return !path_.empty(); }

 private:
  void Close();

  const std::string path_;
  int socket_ = -1;
};

/// The socket of PipeWire, where the session has it.
std::string PipeWireSocket();

}  // namespace kinalyx
