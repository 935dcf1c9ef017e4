// The terminal prompts: one question per setting, the current value kept on Enter, "<" for Back, end of input
// for Cancel, and a last question to finish.
#include "TerminalPrompts.h"

#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::string trimmed(const std::string& text) {
  const size_t first = text.find_first_not_of(" \t\r\n\v\f");
  if (first == std::string::npos) return "";
  const size_t last = text.find_last_not_of(" \t\r\n\v\f");
  return text.substr(first, last - first + 1);
}

}  // namespace

TerminalPrompts::Answer TerminalPrompts::readAnswer(std::string& line) {
  if (!std::getline(in_, line)) return Answer::kEnd;
  line = trimmed(line);
  return line == "<" ? Answer::kBack : Answer::kValue;
}

DialogOutcome TerminalPrompts::collect(const Modulon& modulon, const PluginArguments& arguments,
                                       SettingValues& values) {
  out_ << promptHeadingText(modulon.name, modulon.title, arguments.outputPath);
  for (;;) {
    for (const Setting& setting : modulon.settings) {
      for (;;) {
        out_ << promptText(setting.name, setting.question, allowedValuesText(setting), values[setting.name])
             << std::flush;
        std::string line;
        const Answer answer = readAnswer(line);
        if (answer == Answer::kEnd) return DialogOutcome::kCancel;
        if (answer == Answer::kBack) return DialogOutcome::kBack;
        if (line.empty()) break;
        if (const std::optional<std::string> value = acceptValue(setting, line)) {
          values[setting.name] = *value;
          break;
        }
        out_ << badValueText(setting.name, line, allowedValuesText(setting)) << "\n";
      }
    }
    if (const std::optional<std::string> conflict = modulon.check(values)) {
      out_ << *conflict << "\n";
      continue;  // ask again, from the first setting, with the values kept
    }
    for (;;) {
      out_ << finishPromptText() << std::flush;
      std::string line;
      const Answer answer = readAnswer(line);
      if (answer == Answer::kEnd || line == "cancel") return DialogOutcome::kCancel;
      if (answer == Answer::kBack || line == "back") return DialogOutcome::kBack;
      if (line.empty() || line == "finish") return DialogOutcome::kFinish;
    }
  }
}

}  // namespace plovix::wizard
