// Implementation of the CNX line reader and tokenizer.
#include "cnx/CnxLineReader.h"

#include <cstdint>

#include "base/TextHelpers.h"

namespace plovix {

namespace {

constexpr std::string_view kDelimiters = " \t;";

// The position of the first character at or after `from` that is not in `set`, or the end of `text`.
size_t skipAll(const std::string& text, std::string_view set, size_t from) {
  const size_t pos = text.find_first_not_of(set, from);
  return pos == std::string::npos ? text.size() : pos;
}

// The position of the first character at or after `from` that is in `set`, or the end of `text`.
size_t findAny(const std::string& text, std::string_view set, size_t from) {
  const size_t pos = text.find_first_of(set, from);
  return pos == std::string::npos ? text.size() : pos;
}

}  // namespace

bool TextLineCursor::next(std::string_view& line) {
  if (pos_ >= text_.size()) return false;
  size_t end = text_.find('\n', pos_);
  if (end == std::string_view::npos) end = text_.size();
  line = text_.substr(pos_, end - pos_);
  pos_ = end + 1;
  return true;
}

void takeCnxToken(std::string& rest, std::string& token, bool& emptyQuoted) {
  token.clear();
  emptyQuoted = false;
  const size_t start = skipAll(rest, kDelimiters, 0);
  size_t end = start;
  if (rest.compare(start, 2, "\"\"") == 0) {
    emptyQuoted = true;
    end = start + 2;
  } else if (start < rest.size() && rest[start] == '"') {
    const size_t textStart = skipAll(rest, "\"", start);
    const size_t textEnd = findAny(rest, "\"", textStart);
    token.assign(rest, textStart, textEnd - textStart);
    end = skipAll(rest, "\"", textEnd);
  } else {
    end = findAny(rest, kDelimiters, start);
    token.assign(rest, start, end - start);
  }
  rest.erase(0, skipAll(rest, kDelimiters, end));
}

bool readCnxLine(CnxDescription& description, TextLineCursor& lines) {
  std::string_view line;
  if (!lines.next(line)) return false;
  description.lineRest = trimText(line);
  if (description.lineCounter < INT32_MAX) ++description.lineCounter;
  return true;
}

bool takeCnxToken(CnxDescription& description) {
  takeCnxToken(description.lineRest, description.token, description.emptyQuoted);
  return !description.token.empty();
}

std::string takeHeaderValue(CnxDescription& description, std::string_view keyword,
                            std::initializer_list<std::string_view> accepted, std::string_view otherwise) {
  takeCnxToken(description);
  if (description.token != keyword) return std::string(otherwise);
  takeCnxToken(description);
  for (std::string_view value : accepted) {
    if (description.token == value) return description.token;
  }
  return std::string(otherwise);
}

std::string takeGenerationMode(CnxDescription& description) {
  return takeHeaderValue(description, "GENERATION:", {"STANDARD", "SYMBOL_ONLY"}, "INVALID");
}

}  // namespace plovix
