// The CNX line reader: walks the lines of a file's text and cuts a trimmed line into tokens (blank, tab and
// semicolon delimit; double quotes group).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace plovix {

// Walks the lines of a text without copying them: a last line without "\n" counts, an empty tail does not.
class TextLineCursor {
 public:
  explicit TextLineCursor(std::string_view text) : text_(text) {}

  // The next line without its line end; false when there is none.
  bool next(std::string_view& line);

 private:
  std::string_view text_;
  size_t pos_ = 0;
};

// The line being read and the token last taken from it: what the error log reports at a fault.
struct CnxLine {
  std::string_view rest;     // the unread rest of the trimmed line
  std::string_view token;    // the token last taken
  bool emptyQuoted = false;  // the token last taken was the empty quoted token ("")
  int32_t counter = 1;       // 1 before the first line; counts every line read

  // Reads the next line of `lines` into `rest` (trimmed) and counts it; false at the end of the text.
  bool readFrom(TextLineCursor& lines);

  // Takes the next token of `rest`: skips the delimiters before it, reads it (quoted or not) and skips the
  // delimiters after it. True when there was one; the empty quoted token counts as none but sets
  // `emptyQuoted`.
  bool take();
};

// Reads a header line from `line.rest`: when its first token is `keyword`, the token after it if that is one
// of `accepted`; otherwise `otherwise`. Further tokens are left unread.
std::string_view takeHeaderValue(CnxLine& line, std::string_view keyword,
                                 std::initializer_list<std::string_view> accepted,
                                 std::string_view otherwise);

// The generation-mode word of the line in `line.rest`: "STANDARD", "SYMBOL_ONLY" or "INVALID".
std::string_view takeGenerationWord(CnxLine& line);

}  // namespace plovix
