// The console's terminal: libedit for reading when both ends are terminals, plain reading otherwise, and
// word wrapping at the window's width.
#include "ui/ConsoleTerminal.h"

#include <histedit.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace plovix {

namespace {

constexpr int kHistorySize = 200;

// libedit asks for the prompt through a function; the terminal it belongs to is the editor's client data.
char* promptOf(EditLine* editLine) {
  void* data = nullptr;
  el_get(editLine, EL_CLIENTDATA, &data);
  return const_cast<char*>(static_cast<const ConsoleTerminal*>(data)->prompt());
}

// The width of the terminal behind `file`; 0 when it is none or does not say.
size_t terminalWidth(std::FILE* file) {
  winsize size{};
  if (ioctl(fileno(file), TIOCGWINSZ, &size) != 0) return 0;
  return size.ws_col;
}

// One line of text (no line feed in it) broken between words to fit `width`; continuations take the line's
// indentation unless it is half the width or more.
void wrapLine(std::string_view line, size_t width, std::string& out) {
  const size_t indentSize = std::min(line.find_first_not_of(' '), line.size());
  const std::string indent(indentSize < width / 2 ? indentSize : 0, ' ');
  std::string_view lead;  // what the output line starts with before `rest`: nothing on the first
  std::string_view rest = line;
  size_t ownIndent = indentSize;  // blanks at the start of `rest` that are no place to break
  while (lead.size() + rest.size() > width) {
    const size_t room = width - lead.size();
    // The last blank with the text before it within the room and after the line's own indentation; without
    // one, the first blank after the room (a word wider than the line stays whole).
    size_t cut = rest.find_last_of(' ', room);
    if (cut == std::string_view::npos || cut <= ownIndent) cut = rest.find(' ', room);
    if (cut == std::string_view::npos) break;
    const size_t next = rest.find_first_not_of(' ', cut);
    if (next == std::string_view::npos) {  // only blanks follow: nothing to carry over
      rest = rest.substr(0, rest.find_last_not_of(' ') + 1);
      break;
    }
    out.append(lead);
    out.append(rest.substr(0, rest.find_last_not_of(' ', cut) + 1));
    out += '\n';
    lead = indent;
    rest = rest.substr(next);
    ownIndent = 0;
  }
  out.append(lead);
  out.append(rest);
}

}  // namespace

std::string wrapText(std::string_view text, size_t width) {
  if (width == 0) return std::string(text);
  std::string out;
  size_t start = 0;
  while (start <= text.size()) {
    const size_t end = std::min(text.find('\n', start), text.size());
    wrapLine(text.substr(start, end - start), width, out);
    if (end == text.size()) break;
    out += '\n';
    start = end + 1;
  }
  return out;
}

ConsoleTerminal::ConsoleTerminal(std::FILE* in, std::FILE* out) : in_(in), out_(out) {
  if (!isatty(fileno(in)) || !isatty(fileno(out))) return;
  editLine_ = el_init("plovix", in, out, stderr);
  if (editLine_ == nullptr) return;
  history_ = history_init();
  HistEvent event;
  history(history_, &event, H_SETSIZE, kHistorySize);
  history(history_, &event, H_SETUNIQUE, 1);
  el_set(editLine_, EL_CLIENTDATA, this);
  el_set(editLine_, EL_PROMPT, promptOf);
  el_set(editLine_, EL_EDITOR, "emacs");
  el_set(editLine_, EL_HIST, history, history_);
  // On a quit signal while a line is edited, libedit puts the terminal back as it was before the signal
  // goes on to its handler.
  el_set(editLine_, EL_SIGNAL, 1);
  el_source(editLine_, nullptr);  // the user's ~/.editrc
}

ConsoleTerminal::~ConsoleTerminal() {
  if (editLine_ != nullptr) el_end(editLine_);
  if (history_ != nullptr) history_end(history_);
}

bool ConsoleTerminal::readPlainLine(std::string& line) {
  line.clear();
  int c = 0;
  bool any = false;
  while ((c = std::fgetc(in_)) != EOF) {
    any = true;
    if (c == '\n') return true;
    line += static_cast<char>(c);
  }
  return any;
}

bool ConsoleTerminal::readLine(const std::string& prompt, std::string& line) {
  if (editLine_ == nullptr) {
    std::fputs(prompt.c_str(), out_);
    std::fflush(out_);
    return readPlainLine(line);
  }
  prompt_ = prompt;
  std::fflush(out_);
  int count = 0;
  const char* read = el_gets(editLine_, &count);
  if (read == nullptr || count <= 0) {
    std::fputc('\n', out_);  // the cursor leaves the prompt's line at the end of input
    return false;
  }
  line.assign(read, static_cast<size_t>(count));
  if (!line.empty() && line.back() == '\n') line.pop_back();
  if (line.find_first_not_of(" \t") != std::string::npos) {
    HistEvent event;
    history(history_, &event, H_ENTER, line.c_str());
  }
  return true;
}

void ConsoleTerminal::print(const std::string& text) {
  std::fputs(wrapText(text, terminalWidth(out_)).c_str(), out_);
}

}  // namespace plovix
