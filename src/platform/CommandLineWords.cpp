// The command-line splitting of the Windows C runtime, which plug-in command lines are written for.
#include "platform/CommandLineWords.h"

namespace plovix {

std::vector<std::string> splitCommandLine(std::string_view line) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  bool inQuotes = false;
  size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if ((c == ' ' || c == '\t') && !inQuotes) {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
      ++i;
      continue;
    }
    inWord = true;
    if (c == '\\') {
      size_t count = 0;
      while (i + count < line.size() && line[i + count] == '\\') ++count;
      i += count;
      if (i < line.size() && line[i] == '"') {
        word.append(count / 2, '\\');
        if (count % 2 == 1) {
          word += '"';
          ++i;
        }
      } else {
        word.append(count, '\\');
      }
    } else if (c == '"') {
      if (inQuotes && i + 1 < line.size() && line[i + 1] == '"') {
        word += '"';
        i += 2;
      } else {
        inQuotes = !inQuotes;
        ++i;
      }
    } else {
      word += c;
      ++i;
    }
  }
  if (inWord) words.push_back(std::move(word));
  return words;
}

}  // namespace plovix
