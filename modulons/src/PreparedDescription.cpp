// Cutting CNX lines into tokens and picking out the PRIVATE: statements.
#include "PreparedDescription.h"

#include <fstream>
#include <iterator>

namespace plovix::wizard {

namespace {

constexpr const char* kDelimiters = " \t;";

// Takes the next token from rest: a quoted token may hold delimiters but no double quote.
std::string nextToken(std::string& rest) {
  size_t start = rest.find_first_not_of(kDelimiters);
  if (start == std::string::npos) {
    rest.clear();
    return "";
  }
  rest.erase(0, start);
  std::string token;
  if (rest[0] == '"') {
    const size_t open = rest.find_first_not_of('"');
    const size_t close = open == std::string::npos ? std::string::npos : rest.find('"', open);
    if (rest.size() > 1 && rest[1] == '"') {
      rest.erase(0, 2);
    } else {
      token = rest.substr(open, close == std::string::npos ? std::string::npos : close - open);
      const size_t after =
          close == std::string::npos ? std::string::npos : rest.find_first_not_of('"', close);
      rest.erase(0, after == std::string::npos ? rest.size() : after);
    }
  } else {
    const size_t end = rest.find_first_of(kDelimiters);
    token = rest.substr(0, end);
    rest.erase(0, end == std::string::npos ? rest.size() : end);
  }
  const size_t next = rest.find_first_not_of(kDelimiters);
  rest.erase(0, next == std::string::npos ? rest.size() : next);
  return token;
}

}  // namespace

std::vector<PrivateValue> readPrivateValues(const std::string& cnxText) {
  std::vector<PrivateValue> values;
  size_t lineStart = 0;
  while (lineStart < cnxText.size()) {
    size_t lineEnd = cnxText.find('\n', lineStart);
    if (lineEnd == std::string::npos) lineEnd = cnxText.size();
    std::string rest = cnxText.substr(lineStart, lineEnd - lineStart);
    lineStart = lineEnd + 1;
    while (!rest.empty() && (rest.back() == '\r' || rest.back() == ' ' || rest.back() == '\t'))
      rest.pop_back();
    if (nextToken(rest) != "PRIVATE:") continue;
    PrivateValue value;
    value.name = nextToken(rest);
    value.type = nextToken(rest);
    value.value = nextToken(rest);
    if (!value.name.empty()) values.push_back(value);
  }
  return values;
}

std::string readWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace plovix::wizard
