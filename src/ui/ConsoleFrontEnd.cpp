// Implementation of the console front end's boxes and the helpers its pages share.
#include "ui/ConsoleFrontEnd.h"

#include "base/Messages.h"
#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"

namespace plovix {

bool ConsoleFrontEnd::readLine(std::string& line) {
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

void ConsoleFrontEnd::printBox(const std::string& text) {
  std::fprintf(out_, "\n[%s]\n%s\n", std::string(kManagerName).c_str(), text.c_str());
}

void ConsoleFrontEnd::report(const std::string& text) {
  printBox(text);
  std::fprintf(out_, "[OK: press Enter] ");
  std::fflush(out_);
  std::string line;
  readLine(line);
}

bool ConsoleFrontEnd::ask(const std::string& text) {
  printBox(text);
  for (;;) {
    std::fprintf(out_, "[OK / Cancel] (o/c): ");
    std::fflush(out_);
    std::string line;
    if (!readLine(line)) return false;
    const std::string answer = toLowerText(trimText(line));
    if (answer == "o" || answer == "ok" || answer == "y" || answer == "yes") return true;
    if (answer == "c" || answer == "cancel" || answer == "n" || answer == "no") return false;
  }
}

void ConsoleFrontEnd::showSummary(const RunOutcome& outcome) {
  const std::string summary = questions::runSummary(outcome);
  if (!summary.empty()) std::fprintf(out_, "\n%s", summary.c_str());
  std::fflush(out_);
}

bool ConsoleFrontEnd::prompt(const std::string& hint, std::string& line) {
  std::fprintf(out_, "%s\n> ", hint.c_str());
  std::fflush(out_);
  if (!readLine(line)) return false;
  line = trimText(line);
  return true;
}

void ConsoleFrontEnd::printTitle(const std::string& title) {
  std::fprintf(out_, "\n== %s ==\n", title.c_str());
}

void ConsoleFrontEnd::printFocus(WizardPageFrame& page,
                                 const std::vector<std::pair<int, std::string>>& names) {
  for (const auto& [id, name] : names) {
    if (id == page.focusControl) std::fprintf(out_, "-> %s\n", name.c_str());
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
