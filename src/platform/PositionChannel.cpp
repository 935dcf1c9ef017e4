// The position channel's socket, and the reading of "1034 <right> <bottom>" reports.
#include "platform/PositionChannel.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <charconv>
#include <cstddef>
#include <cstring>
#include <vector>

namespace plovix {

namespace {

std::optional<long long> parseNumber(std::string_view word) {
  long long value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return value;
}

std::vector<std::string_view> wordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  constexpr std::string_view kBlanks = " \t\n\v\f\r";
  size_t start = text.find_first_not_of(kBlanks);
  while (start != std::string_view::npos) {
    const size_t end = std::min(text.find_first_of(kBlanks, start), text.size());
    words.push_back(text.substr(start, end - start));
    start = text.find_first_not_of(kBlanks, end);
  }
  return words;
}

bool fitsInt(long long value) {
  return value >= INT32_MIN && value <= INT32_MAX;
}

}  // namespace

long currentThreadId() {
  return static_cast<long>(gettid());
}

std::string PositionChannel::socketName(long threadId) {
  return "plovix-" + std::to_string(threadId);
}

PositionChannel::PositionChannel(long threadId) {
  fd_ = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (fd_ < 0) return;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name = socketName(threadId);
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

std::optional<WindowPosition> PositionChannel::receive() {
  std::optional<WindowPosition> last;
  if (fd_ < 0) return last;
  char buffer[256];
  for (;;) {
    const ssize_t size = recv(fd_, buffer, sizeof buffer, 0);
    if (size < 0) break;
    if (auto position = parseReport(std::string_view(buffer, static_cast<size_t>(size)))) last = position;
  }
  return last;
}

std::optional<WindowPosition> PositionChannel::parseReport(std::string_view text) {
  const std::vector<std::string_view> words = wordsOf(text);
  if (words.size() != 3) return std::nullopt;
  const auto message = parseNumber(words[0]);
  const auto right = parseNumber(words[1]);
  const auto bottom = parseNumber(words[2]);
  if (!message || *message != kPositionMessage || !right || !bottom) return std::nullopt;
  if (!fitsInt(*right) || !fitsInt(*bottom)) return std::nullopt;
  return WindowPosition{static_cast<int>(*right), static_cast<int>(*bottom)};
}

}  // namespace plovix
