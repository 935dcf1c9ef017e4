// Implementation of text-mode file reading, and writing through the safe writer.
#include "base/TextFile.h"

#include <cerrno>
#include <cstdio>

#include <sys/stat.h>

#include "base/LargeTable.h"
#include "base/SafeWrite.h"

namespace plovix {

std::string toTextMode(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 32);
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

std::string fromTextMode(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  // The text between two "\r\n" is copied as one run; each "\r\n" gives its "\n".
  size_t start = 0;
  for (size_t end = bytes.find("\r\n"); end != std::string_view::npos; end = bytes.find("\r\n", start)) {
    out.append(bytes, start, end - start);
    start = end + 1;
  }
  out.append(bytes, start);
  return out;
}

bool readFileBytes(const std::string& path, std::string& bytes, int& errorNumber, size_t maxBytes) {
  bytes.clear();
  errorNumber = 0;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    errorNumber = errno;
    return false;
  }
  // Room for the whole file at once, so that a large file is not copied while it grows.
  struct stat status {};
  if (fstat(fileno(file), &status) == 0 && status.st_size > 0) {
    bytes.reserve(static_cast<size_t>(status.st_size));
    adviseHugePages(bytes.data(), bytes.capacity());
  }
  char buffer[65536];
  size_t n = 0;
  while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
    if (n > maxBytes - bytes.size()) {
      std::fclose(file);
      errorNumber = EFBIG;
      return false;
    }
    bytes.append(buffer, n);
  }
  const bool failed = std::ferror(file) != 0;
  const int readError = errno;
  std::fclose(file);
  if (failed) {
    errorNumber = readError == 0 ? EIO : readError;
    return false;
  }
  return true;
}

bool readTextFile(const std::string& path, std::string& text, int& errorNumber, size_t maxBytes) {
  if (!readFileBytes(path, text, errorNumber, maxBytes)) return false;
  // Each "\r\n" made "\n" in place, without a copy, from the first one on.
  const size_t first = text.find("\r\n");
  if (first == std::string::npos) return true;
  size_t kept = first;
  for (size_t i = first; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    text[kept++] = text[i];
  }
  text.resize(kept);
  return true;
}

std::vector<std::string> splitLines(std::string_view text) {
  std::vector<std::string> lines;
  size_t pos = 0;
  while (pos < text.size()) {
    size_t end = text.find('\n', pos);
    if (end == std::string_view::npos) end = text.size();
    lines.emplace_back(text.substr(pos, end - pos));
    pos = end + 1;
  }
  return lines;
}

bool writeTextFile(const std::string& path, std::string_view text, int& errorNumber) {
  return writeFileBytes(path, toTextMode(text), errorNumber);
}

bool writeFileBytes(const std::string& path, std::string_view bytes, int& errorNumber) {
  errorNumber = replaceFile(path, bytes);
  return errorNumber == 0;
}

bool appendTextFile(const std::string& path, std::string_view text, int& errorNumber) {
  errorNumber = appendToFile(path, toTextMode(text));
  return errorNumber == 0;
}

}  // namespace plovix
