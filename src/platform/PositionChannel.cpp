// The position channel's socket and the reports read from it.
#include "platform/PositionChannel.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

namespace plovix {

long currentThreadId() {
  return static_cast<long>(gettid());
}

PositionChannel::PositionChannel(long threadId) {
  fd_ = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (fd_ < 0) return;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name = positionSocketName(threadId);
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  if (bind(fd_, reinterpret_cast<const sockaddr*>(&address), length) != 0) {
    close(fd_);
    fd_ = -1;
  }
}

PositionChannel::~PositionChannel() {
  if (fd_ >= 0) close(fd_);
}

std::optional<PositionReport> PositionChannel::receive() {
  std::optional<PositionReport> last;
  if (fd_ < 0) return last;
  char buffer[256];
  for (;;) {
    const ssize_t size = recv(fd_, buffer, sizeof buffer, 0);
    if (size < 0) break;
    if (auto position = parsePositionReport(std::string_view(buffer, static_cast<size_t>(size))))
      last = position;
  }
  return last;
}

}  // namespace plovix
