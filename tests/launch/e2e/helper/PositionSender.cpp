// A test plug-in's helper: sends a position report to the manager thread named by its id, as a plug-in does.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "plovix_position.h"

namespace {

bool readInt(std::string_view text, int& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size();
}

}  // namespace

int main(int argc, char** argv) {
  int right = 0;
  int bottom = 0;
  if (argc != 4 || !readInt(argv[2], right) || !readInt(argv[3], bottom)) {
    std::fprintf(stderr, "usage: %s THREAD_ID RIGHT BOTTOM\n", argv[0]);
    return 2;
  }
  const std::string name = std::string(plovix::kPositionSocketPrefix) + argv[1];
  const std::string report = plovix::formatPositionReport(right, bottom);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (name.size() + 1 > sizeof address.sun_path) return 2;
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  const int fd = socket(AF_UNIX, SOCK_DGRAM, 0);
  if (fd < 0) return 1;
  const ssize_t sent =
      sendto(fd, report.data(), report.size(), 0, reinterpret_cast<const sockaddr*>(&address), length);
  close(fd);
  return sent == static_cast<ssize_t>(report.size()) ? 0 : 1;
}
