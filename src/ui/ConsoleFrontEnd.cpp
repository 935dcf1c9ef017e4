// Implementation of the console front end's boxes and the helpers its pages share.
#include "ui/ConsoleFrontEnd.h"

#include <signal.h>
#include <unistd.h>

#include "base/Format.h"
#include "base/Messages.h"
#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

// Ctrl-C in a console run of the plovix command (libedit has put the terminal back if a line was being
// edited; a plug-in has been stopped before the signal is passed on): the process ends with the status a
// shell gives a command ended by SIGINT.
extern "C" void endOnInterrupt(int) {
  const char lineEnd = '\n';
  [[maybe_unused]] const ssize_t written = write(STDOUT_FILENO, &lineEnd, 1);  // off the prompt's line
  _exit(128 + SIGINT);
}

}  // namespace

ConsoleFrontEnd::ConsoleFrontEnd(FrontEndOptions options, std::FILE* in, std::FILE* out)
    : options_(std::move(options)), terminal_(in, out) {
  if (!options_.startedByCommand) return;  // a host keeps its own handling of Ctrl-C
  struct sigaction action {};
  action.sa_handler = endOnInterrupt;
  sigemptyset(&action.sa_mask);
  interruptHandled_ = sigaction(SIGINT, &action, &previousInterrupt_) == 0;
}

ConsoleFrontEnd::~ConsoleFrontEnd() {
  if (interruptHandled_) sigaction(SIGINT, &previousInterrupt_, nullptr);
}

bool ConsoleFrontEnd::readLine(const std::string& prompt, std::string& line) {
  return terminal_.readLine(prompt, line);
}

void ConsoleFrontEnd::printBox(const std::string& text) {
  print(formatText("\n[%s]\n%s\n", std::string(kManagerName).c_str(), text.c_str()));
}

void ConsoleFrontEnd::report(const std::string& text) {
  printBox(text);
  std::string line;
  readLine("[OK: press Enter] ", line);
}

bool ConsoleFrontEnd::ask(const std::string& text) {
  printBox(text);
  for (;;) {
    std::string line;
    if (!readLine("[OK / Cancel] (o/c): ", line)) return false;
    const std::string answer = toLowerText(trimText(line));
    if (answer == "o" || answer == "ok" || answer == "y" || answer == "yes") return true;
    if (answer == "c" || answer == "cancel" || answer == "n" || answer == "no") return false;
  }
}

void ConsoleFrontEnd::showSummary(const RunOutcome& outcome) {
  const std::string summary = questions::runSummary(outcome);
  if (!summary.empty()) print("\n" + summary);
}

bool ConsoleFrontEnd::prompt(const std::string& hint, std::string& line) {
  print(hint + "\n");
  if (!readLine("> ", line)) return false;
  line = trimText(line);
  return true;
}

void ConsoleFrontEnd::printTitle(const std::string& title) {
  print(formatText("\n== %s ==\n", title.c_str()));
}

void ConsoleFrontEnd::printFocus(WizardPageFrame& page,
                                 const std::vector<std::pair<int, std::string>>& names) {
  for (const auto& [id, name] : names) {
    if (id == page.focusControl) print("-> " + name + "\n");
  }
  page.focusControl = 0;
}

size_t consoleNumber(const std::string& text) {
  if (text.empty() || text.size() > 9 || text.find_first_not_of("0123456789") != std::string::npos) return 0;
  return std::stoul(text);
}

std::string consoleLabel(std::string_view text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) {
      ++i;
    }
    out += text[i];
  }
  return out;
}

}  // namespace plovix
