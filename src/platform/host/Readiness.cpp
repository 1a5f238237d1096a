#include "platform/host/Readiness.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kinalyx {

void TellReady() {
  const char* name = std::getenv("NOTIFY_SOCKET");
  if (!name || (*name != '/' && *name != '@')) return;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::size_t length = std::strlen(name);
  if (length >= sizeof(address.sun_path)) return;
  std::memcpy(address.sun_path, name, length);
  if (*name == '@') address.sun_path[0] = 0;  // a name that is no file
  const int line = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (line < 0) return;
  constexpr std::string_view kReady = "READY=1";
  [[maybe_unused]] const ssize_t sent =
      ::sendto(line, kReady.data(), kReady.size(), MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(&address),
               static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length));
  ::close(line);
}

}  // namespace kinalyx
