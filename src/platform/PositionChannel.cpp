// The position channel's socket, the sender's credentials, and the reports read from it.
#include "platform/PositionChannel.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

namespace plovix {

namespace {

// The user id of a datagram's sender, from the credentials the kernel attached (SO_PASSCRED); none when the
// datagram carries none.
std::optional<uid_t> senderOf(msghdr& message) {
  for (cmsghdr* part = CMSG_FIRSTHDR(&message); part != nullptr; part = CMSG_NXTHDR(&message, part)) {
    if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_CREDENTIALS) continue;
    if (part->cmsg_len < CMSG_LEN(sizeof(ucred))) continue;
    ucred credentials{};
    std::memcpy(&credentials, CMSG_DATA(part), sizeof credentials);
    return credentials.uid;
  }
  return std::nullopt;
}

}  // namespace

long currentThreadId() {
  return static_cast<long>(gettid());
}

PositionChannel::PositionChannel(long threadId) {
  fd_ = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (fd_ < 0) return;
  // Every datagram then carries its sender's credentials.
  const int on = 1;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name = positionSocketName(threadId);
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  if (setsockopt(fd_, SOL_SOCKET, SO_PASSCRED, &on, sizeof on) != 0 ||
      bind(fd_, reinterpret_cast<const sockaddr*>(&address), length) != 0) {
    nameTaken_ = errno == EADDRINUSE;
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
  const uid_t user = getuid();
  char buffer[256];
  alignas(cmsghdr) char control[CMSG_SPACE(sizeof(ucred))];
  for (;;) {
    iovec data{buffer, sizeof buffer};
    msghdr message{};
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    const ssize_t size = recvmsg(fd_, &message, 0);
    if (size < 0) break;
    if ((message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0 || senderOf(message) != user) continue;
    if (auto position = parsePositionReport(std::string_view(buffer, static_cast<size_t>(size))))
      last = position;
  }
  return last;
}

}  // namespace plovix
