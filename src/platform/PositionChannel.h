// The channel on which a running plug-in reports its window corner: an abstract Unix datagram socket.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace plovix {

struct WindowPosition {
  int right = 0;
  int bottom = 0;
};

class PositionChannel {
 public:
  // The message number of a position report.
  static constexpr int kPositionMessage = 1034;

  // Listens on the abstract socket "plovix-" + the thread id; without a socket when it cannot be made.
  explicit PositionChannel(long threadId);
  ~PositionChannel();
  PositionChannel(const PositionChannel&) = delete;
  PositionChannel& operator=(const PositionChannel&) = delete;

  // A descriptor that becomes readable when a report arrives; -1 without a socket.
  int descriptor() const { return fd_; }

  // Reads every waiting report; the last well-formed one, if any.
  std::optional<WindowPosition> receive();

  // The socket's name without the leading NUL byte of the abstract namespace.
  static std::string socketName(long threadId);

  // A report reads "1034 <right> <bottom>" (blanks around the words allowed).
  static std::optional<WindowPosition> parseReport(std::string_view text);

 private:
  int fd_ = -1;
};

// The id of the calling thread, which plug-ins get with "-h".
long currentThreadId();

}  // namespace plovix
