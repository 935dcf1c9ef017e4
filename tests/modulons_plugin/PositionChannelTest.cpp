// The window corner report reaches a manager listening on its abstract socket.
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

#include "PositionChannel.h"
#include "plovix_position.h"

namespace plovix::wizard {
namespace {

TEST(PositionChannelTest, SendsTheCornerAsAPositionReport) {
  const long long id = 900000 + getpid();
  const std::string name = positionSocketName(id);
  EXPECT_FALSE(reportWindowCorner(id, 1, 2));  // nobody listens yet

  const int fd = socket(AF_UNIX, SOCK_DGRAM, 0);
  ASSERT_GE(fd, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr*>(&address),
                 static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size())),
            0);
  EXPECT_TRUE(reportWindowCorner(id, 812, -3));
  char buffer[64] = {};
  const ssize_t got = recv(fd, buffer, sizeof(buffer) - 1, 0);
  close(fd);
  EXPECT_EQ(parsePositionReport(std::string_view(buffer, got > 0 ? got : 0)), (PositionReport{812, -3}));
}

}  // namespace
}  // namespace plovix::wizard
