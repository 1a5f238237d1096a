#include "platform/net/SocketWatch.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <linux/tcp.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace kinalyx {

void SocketWatch::Attach(CURL* handle) {
  curl_easy_setopt(handle, CURLOPT_OPENSOCKETFUNCTION, &SocketWatch::Open);
  curl_easy_setopt(handle, CURLOPT_OPENSOCKETDATA, this);
  curl_easy_setopt(handle, CURLOPT_CLOSESOCKETFUNCTION, &SocketWatch::Close);
  curl_easy_setopt(handle, CURLOPT_CLOSESOCKETDATA, this);
  curl_easy_setopt(handle, CURLOPT_SOCKOPTFUNCTION, &SocketWatch::Prepare);
  curl_easy_setopt(handle, CURLOPT_SOCKOPTDATA, this);
}

curl_socket_t SocketWatch::Open(void* self, curlsocktype, curl_sockaddr* address) {
  auto& watch = *static_cast<SocketWatch*>(self);
  const int socket = ::socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
  if (socket < 0) return CURL_SOCKET_BAD;
  watch.open_.push_back(socket);
  watch.attempt_ = std::chrono::steady_clock::now();
  return socket;
}

int SocketWatch::Prepare(void* self, curl_socket_t socket, curlsocktype purpose) {
  if (purpose == CURLSOCKTYPE_ACCEPT) {
    static_cast<SocketWatch*>(self)->accepted_ = socket;
    // The library closes it without a word, and what lies in here then is not seen any more.
    constexpr int kShort = 256 * 1024;
    (void)::setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &kShort, sizeof kShort);
  }
  return CURL_SOCKOPT_OK;
}

int SocketWatch::Close(void* self, curl_socket_t socket) {
  auto& watch = *static_cast<SocketWatch*>(self);
  std::erase(watch.open_, socket);
  // The end is told now; megabytes before it may need minutes yet, and as long as they move nobody gives up.
  ::shutdown(socket, SHUT_WR);
  watch.ended_.push_back(socket);
  return 0;
}

std::uint64_t SocketWatch::Look(int socket) {
  tcp_info info{};
  socklen_t size = sizeof info;
  if (::getsockopt(socket, IPPROTO_TCP, TCP_INFO, &info, &size) != 0) return 0;
  constexpr int kEstablished = 1;
  if (info.tcpi_state == kEstablished) reached_ = true;
  return info.tcpi_bytes_received + info.tcpi_bytes_acked;
}

std::uint64_t SocketWatch::Traffic() {
  std::uint64_t bytes = closed_;
  for (const int socket : open_) bytes += Look(socket);
  for (const int socket : ended_) bytes += Look(socket);
  if (accepted_ >= 0) bytes += Look(accepted_);
  return bytes;
}

bool SocketWatch::Reached() {
  Traffic();
  return reached_;
}

void SocketWatch::StopListening() {
  for (const int socket : open_) ::shutdown(socket, SHUT_RD);
}

std::vector<std::string> SocketWatch::LastLines() const {
  constexpr int kWaitMs = 300;
  std::vector<std::string> lines;
  for (const int socket : ended_) {
    pollfd ready{.fd = socket, .events = POLLIN, .revents = 0};
    std::array<char, 2048> bytes{};
    if (::poll(&ready, 1, kWaitMs) <= 0) continue;
    const ssize_t got = ::recv(socket, bytes.data(), bytes.size(), MSG_DONTWAIT);
    std::string_view text(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\n'), text.size());
      lines.emplace_back(text.substr(0, end));
      text.remove_prefix(std::min(end + 1, text.size()));
    }
  }
  return lines;
}

void SocketWatch::CloseEnded() {
  for (const int socket : ended_) {
    closed_ += Look(socket);
    ::close(socket);
  }
  ended_.clear();
  accepted_ = -1;
}

}  // namespace kinalyx
