// Implementation of the CNX line reader and tokenizer.
#include "cnx/CnxLineReader.h"

#include "base/TextHelpers.h"

namespace plovix {

namespace {

// A set of bytes tested with one table lookup. The scans below walk a line byte by byte; the standard
// library's find_first_of would call memchr on the set for every byte of the line.
class ByteSet {
 public:
  constexpr explicit ByteSet(std::string_view members) {
    for (char c : members) in_[static_cast<unsigned char>(c)] = true;
  }
  constexpr bool contains(char c) const { return in_[static_cast<unsigned char>(c)]; }

 private:
  bool in_[256] = {};
};

constexpr ByteSet kDelimiters(" \t;");
constexpr ByteSet kQuote("\"");
constexpr ByteSet kBlanks(kBlankCharacters);

// The position of the first character at or after `from` that is not in `set`, or the end of `text`.
size_t skipAll(std::string_view text, const ByteSet& set, size_t from) {
  while (from < text.size() && set.contains(text[from])) ++from;
  return from;
}

// The position of the first character at or after `from` that is in `set`, or the end of `text`.
size_t findAny(std::string_view text, const ByteSet& set, size_t from) {
  while (from < text.size() && !set.contains(text[from])) ++from;
  return from;
}

std::string_view trimmedView(std::string_view text) {
  size_t first = skipAll(text, kBlanks, 0);
  size_t end = text.size();
  while (end > first && kBlanks.contains(text[end - 1])) --end;
  return text.substr(first, end - first);
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

bool CnxLine::readFrom(TextLineCursor& lines) {
  std::string_view line;
  if (!lines.next(line)) return false;
  rest = trimmedView(line);
  if (counter < INT32_MAX) ++counter;
  return true;
}

bool CnxLine::take() {
  token = {};
  emptyQuoted = false;
  const size_t start = skipAll(rest, kDelimiters, 0);
  size_t end = start;
  if (rest.compare(start, 2, "\"\"") == 0) {
    emptyQuoted = true;
    end = start + 2;
  } else if (start < rest.size() && rest[start] == '"') {
    const size_t textStart = skipAll(rest, kQuote, start);
    const size_t textEnd = findAny(rest, kQuote, textStart);
    token = rest.substr(textStart, textEnd - textStart);
    end = skipAll(rest, kQuote, textEnd);
  } else {
    end = findAny(rest, kDelimiters, start);
    token = rest.substr(start, end - start);
  }
  rest.remove_prefix(skipAll(rest, kDelimiters, end));
  return !token.empty();
}

std::string_view takeHeaderValue(CnxLine& line, std::string_view keyword,
                                 std::initializer_list<std::string_view> accepted,
                                 std::string_view otherwise) {
  line.take();
  if (line.token != keyword) return otherwise;
  line.take();
  for (std::string_view value : accepted) {
    if (line.token == value) return value;
  }
  return otherwise;
}

std::string_view takeGenerationWord(CnxLine& line) {
  return takeHeaderValue(line, "GENERATION:", {"STANDARD", "SYMBOL_ONLY"}, "INVALID");
}

}  // namespace plovix
