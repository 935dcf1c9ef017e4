// A test plug-in's helper: sends "1034 <right> <bottom>" to the manager thread named by its id, as a plug-in
// does.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: %s THREAD_ID RIGHT BOTTOM\n", argv[0]);
    return 2;
  }
  const std::string name = std::string("plovix-") + argv[1];
  const std::string report = std::string("1034 ") + argv[2] + " " + argv[3];
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
