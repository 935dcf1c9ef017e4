/* The position report: how a running plug-in tells the plug-in manager where its window's corner is (C++). */
#ifndef PLOVIX_POSITION_H
#define PLOVIX_POSITION_H

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace plovix {

// The manager starts a plug-in with "-h<thread id>" and, while the plug-in runs, listens on the abstract
// Unix datagram socket positionSocketName(thread id). A plug-in reports the bottom-right corner of its
// window by sending one datagram holding formatPositionReport(right, bottom) there.

// The message number that opens a report.
inline constexpr int kPositionReportMessage = 1034;

// The socket name is this prefix followed by the thread id in decimal.
inline constexpr std::string_view kPositionSocketPrefix = "plovix-";

struct PositionReport {
  int right = 0;
  int bottom = 0;
  bool operator==(const PositionReport&) const = default;
};

// The socket's name, without the zero byte that puts it in the abstract namespace.
inline std::string positionSocketName(long long threadId) {
  return std::string(kPositionSocketPrefix) + std::to_string(threadId);
}

// "1034 <right> <bottom>".
inline std::string formatPositionReport(int right, int bottom) {
  return std::to_string(kPositionReportMessage) + " " + std::to_string(right) + " " + std::to_string(bottom);
}

// Screen coordinates are 16-bit: a corner outside this range is no corner.
inline constexpr int kPositionMinimum = -32768;
inline constexpr int kPositionMaximum = 32767;

// The corner of a report: exactly three words separated by blanks (space, tab, line feed, vertical tab, form
// feed, carriage return; also allowed before the first and after the last), each decimal digits with an
// optional leading "-", the first 1034 and the other two within the screen's 16-bit range. Anything else
// gives nothing. No arithmetic of its own: the numbers are read by std::from_chars, which reports an
// overflow.
inline std::optional<PositionReport> parsePositionReport(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\n\v\f\r";
  int values[3] = {};
  size_t count = 0;
  size_t start = text.find_first_not_of(kBlanks);
  while (start != std::string_view::npos) {
    if (count == 3) return std::nullopt;
    size_t end = text.find_first_of(kBlanks, start);
    if (end == std::string_view::npos) end = text.size();
    const char* first = text.data() + start;
    const char* last = text.data() + end;
    const std::from_chars_result read = std::from_chars(first, last, values[count]);
    if (read.ec != std::errc() || read.ptr != last) return std::nullopt;
    ++count;
    start = text.find_first_not_of(kBlanks, end);
  }
  if (count != 3 || values[0] != kPositionReportMessage) return std::nullopt;
  for (const int value : {values[1], values[2]}) {
    if (value < kPositionMinimum || value > kPositionMaximum) return std::nullopt;
  }
  return PositionReport{values[1], values[2]};
}

}  // namespace plovix

#endif
