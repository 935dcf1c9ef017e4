// Asking for the values one line at a time on a terminal.
#pragma once

#include <istream>
#include <ostream>

#include "WizardRun.h"

namespace plovix::wizard {

class TerminalPrompts : public ValueDialog {
 public:
  TerminalPrompts(std::istream& in, std::ostream& out) : in_(in), out_(out) {}
  DialogOutcome collect(const Modulon& modulon, const PluginArguments& arguments,
                        SettingValues& values) override;

 private:
  enum class Answer { kValue, kBack, kEnd };
  // Reads one trimmed line; kEnd when the input has ended.
  Answer readAnswer(std::string& line);

  std::istream& in_;
  std::ostream& out_;
};

}  // namespace plovix::wizard
