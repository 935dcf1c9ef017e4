// The console front end: boxes and pages in the terminal, for work over ssh.
#pragma once

#include <signal.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/ConsoleTerminal.h"
#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

// A control or button text as the terminal shows it: without its mnemonic "&".
std::string consoleLabel(std::string_view text);

// The number a command consists of (at most nine digits), or 0 when it is not one.
size_t consoleNumber(const std::string& text);

class ConsoleFrontEnd : public FrontEnd {
 public:
  // Started by the plovix command, Ctrl-C ends the process with status 130 while the front end lives.
  explicit ConsoleFrontEnd(FrontEndOptions options, std::FILE* in = stdin, std::FILE* out = stdout);
  ~ConsoleFrontEnd() override;

  void report(const std::string& text) override;
  bool ask(const std::string& text) override;
  void showSummary(const RunOutcome& outcome) override;

  PageResult showActionPage(ActionPage& page, PageContext& context) override;
  PageResult showModulonPage(ModulonSelectionPage& page, PageContext& context) override;
  PageResult showBrowserPage(VariationBrowserPage& page, PageContext& context) override;

 protected:
  // Shows `prompt` and reads one line without its line end; false at the end of input.
  bool readLine(const std::string& prompt, std::string& line);
  // Writes text wrapped at the terminal's width.
  void print(const std::string& text) { terminal_.print(text); }
  void printBox(const std::string& text);
  // Prints the hint and reads the user's command, trimmed; false at the end of input.
  bool prompt(const std::string& hint, std::string& line);
  void printTitle(const std::string& title);
  void printBrowserPage(const VariationBrowserPage& page);
  // Names the control a check put the focus on, when it is one of `names`, and clears the request.
  void printFocus(WizardPageFrame& page, const std::vector<std::pair<int, std::string>>& names);

  FrontEndOptions options_;
  ConsoleTerminal terminal_;
  bool interruptHandled_ = false;
  struct sigaction previousInterrupt_ {};
};

}  // namespace plovix
