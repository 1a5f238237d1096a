#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include <curl/curl.h>

namespace kinalyx {

/// The sockets of one connection, seen from the side of the system: it knows of every byte that came or that the other
/// side has taken, whatever protocol and encryption lie over them, and also of what is still on its way when the sender
/// has long handed it over.
class SocketWatch {
 public:
  SocketWatch() = default;
  SocketWatch(const SocketWatch&) = delete;
  SocketWatch& operator=(const SocketWatch&) = delete;
  ~SocketWatch() { CloseEnded(); }

  /// All sockets that a handle opens from now on are made and closed here.
  void Attach(CURL* handle);
  /// Bytes in both directions since the beginning. Something has moved when it is another number than before.
  std::uint64_t Traffic();
  /// Whether any socket has found its server so far.
  bool Reached();
  /// When the last attempt to find one began; nothing since the beginning gives the epoch.
  std::chrono::steady_clock::time_point LastAttempt() const { return attempt_; }
  /// Nothing more is heard, so nobody waits for a goodbye: whoever reads gets the end at once.
  void StopListening();
  /// What servers have still said, in the clear, upon sockets that have been ended since.
  std::vector<std::string> LastLines() const;
  /// Closes what has been ended and was kept only to be looked at.
  void CloseEnded();

 private:
  static curl_socket_t Open(void* self, curlsocktype purpose, curl_sockaddr* address);
  static int Prepare(void* self, curl_socket_t socket, curlsocktype purpose);
  static int Close(void* self, curl_socket_t socket);
  std::uint64_t Look(int socket);

  std::vector<int> open_;
  std::vector<int> ended_;    ///< shut down, with bytes perhaps still on their way
  int accepted_ = -1;         ///< by which a server calls back; the library's own
  std::uint64_t closed_ = 0;  ///< traffic of those that are gone
  bool reached_ = false;
  std::chrono::steady_clock::time_point attempt_;
};

}  // namespace kinalyx
