// The manager's end of the position report (plovix_position.h): an abstract Unix datagram socket that takes
// reports only from processes of the same user.
#pragma once

#include <optional>

#include "plovix_position.h"

namespace plovix {

class PositionChannel {
 public:
  // Listens on the abstract socket positionSocketName(threadId); without a socket when it cannot be made.
  explicit PositionChannel(long threadId);
  ~PositionChannel();
  PositionChannel(const PositionChannel&) = delete;
  PositionChannel& operator=(const PositionChannel&) = delete;

  // A descriptor that becomes readable when a report arrives; -1 without a socket.
  int descriptor() const { return fd_; }

  // True when the socket could not be made because another socket holds its name.
  bool nameTaken() const { return nameTaken_; }

  // Reads every waiting datagram; the last well-formed report (parsePositionReport) sent by a process of
  // this user (the sender's credentials, which the kernel attaches, are checked), if any.
  std::optional<PositionReport> receive();

 private:
  int fd_ = -1;
  bool nameTaken_ = false;
};

// The id of the calling thread, which plug-ins get with "-h".
long currentThreadId();

}  // namespace plovix
