// The CNX line reader: walks the lines of a file's text, puts each trimmed line into the description's
// reading state and cuts it into tokens (blank, tab and semicolon delimit; double quotes group).
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "cnx/CnxDescription.h"

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

// Takes the next token from `rest`: skips the delimiters before it, reads it (quoted or not) and skips the
// delimiters after it. `emptyQuoted` tells the empty quoted token ("") from an absent one; both leave `token`
// empty.
void takeCnxToken(std::string& rest, std::string& token, bool& emptyQuoted);

// Reads the next line into `lineRest` (trimmed) and counts it in `lineCounter`; false at the end of the text.
bool readCnxLine(CnxDescription& description, TextLineCursor& lines);

// Takes the next token of `lineRest` into `token` (and `emptyQuoted`); true when there was one.
bool takeCnxToken(CnxDescription& description);

// Reads a header line from `lineRest`: when its first token is `keyword`, the token after it if that is one
// of `accepted`; otherwise `otherwise`. Further tokens are left unread.
std::string takeHeaderValue(CnxDescription& description, std::string_view keyword,
                            std::initializer_list<std::string_view> accepted, std::string_view otherwise);

// The generation mode of the line in `lineRest`: "STANDARD", "SYMBOL_ONLY" or "INVALID".
std::string takeGenerationMode(CnxDescription& description);

}  // namespace plovix
