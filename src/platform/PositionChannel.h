// The manager's end of the position report (plovix_position.h): an abstract Unix datagram socket.
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

  // Reads every waiting report; the last well-formed one (parsePositionReport), if any.
  std::optional<PositionReport> receive();

 private:
  int fd_ = -1;
};

// The id of the calling thread, which plug-ins get with "-h".
long currentThreadId();

}  // namespace plovix
