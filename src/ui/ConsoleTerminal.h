// The console front end's terminal: reading lines with editing and history, and writing text wrapped at the
// terminal's width.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

struct editline;
struct history;

namespace plovix {

// `text` with every line longer than `width` columns broken between words; a broken line's continuation keeps
// its indentation. A word longer than the width stays whole. A width of 0 leaves the text as it is.
std::string wrapText(std::string_view text, size_t width);

class ConsoleTerminal {
 public:
  // When both `in` and `out` are terminals, lines are read with libedit (cursor keys, editing, history);
  // otherwise they are read as they come, so that the console works from a pipe as well.
  ConsoleTerminal(std::FILE* in, std::FILE* out);
  ~ConsoleTerminal();
  ConsoleTerminal(const ConsoleTerminal&) = delete;
  ConsoleTerminal& operator=(const ConsoleTerminal&) = delete;

  // Shows `prompt` and reads one line without its line end; false at the end of input.
  bool readLine(const std::string& prompt, std::string& line);

  // Writes `text`, starting at the beginning of a line, wrapped at the terminal's width (read anew each
  // time, so that a resized window is followed); not wrapped when the output is no terminal.
  void print(const std::string& text);

  // The prompt libedit shows.
  const char* prompt() const { return prompt_.c_str(); }

 private:
  bool readPlainLine(std::string& line);

  std::FILE* in_;
  std::FILE* out_;
  editline* editLine_ = nullptr;
  history* history_ = nullptr;
  std::string prompt_;
};

}  // namespace plovix
