#include "platform/graph/ServerLine.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <utility>

namespace kinalyx {

bool ServerLine::Open() {
  if (!Watches()) return true;
  Close();
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path_.size() >= sizeof(address.sun_path)) return false;
  std::memcpy(address.sun_path, path_.data(), path_.size());
  socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (socket_ < 0 || connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) Close();
  return socket_ >= 0;
}

bool ServerLine::Gone() const {
  pollfd look{socket_, POLLIN, 0};
  return Watches() && (socket_ < 0 || (poll(&look, 1, 0) > 0 && (look.revents & (POLLHUP | POLLERR)) != 0));
}

void ServerLine::Close() {
  if (socket_ >= 0) close(std::exchange(socket_, -1));
}

std::string PipeWireSocket() {
  const auto variable = [](const char* name) {
    const char* text = std::getenv(name);
    return std::string(text ? text : "");
  };
  std::string name = variable("PIPEWIRE_REMOTE");
  if (name.empty()) name = "pipewire-0";
  if (name.starts_with('/')) return name;
  for (const char* place : {"PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR"}) {
    if (const std::string folder = variable(place); !folder.empty()) return folder + "/" + name;
  }
  return "/run/user/" + std::to_string(getuid()) + "/" + name;
}

}  // namespace kinalyx
