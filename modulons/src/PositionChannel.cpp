// The position report over an abstract Unix datagram socket.
#include "PositionChannel.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "plovix_position.h"

namespace plovix::wizard {

bool reportWindowCorner(long long managerThread, int right, int bottom) {
  const std::string name = positionSocketName(managerThread);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (name.size() + 1 > sizeof(address.sun_path)) return false;
  // An abstract name starts with a zero byte and is not terminated.
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  const socklen_t length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());

  const int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return false;
  const std::string message = formatPositionReport(right, bottom);
  const bool sent = sendto(fd, message.data(), message.size(), 0, reinterpret_cast<const sockaddr*>(&address),
                           length) == static_cast<ssize_t>(message.size());
  close(fd);
  return sent;
}

}  // namespace plovix::wizard
