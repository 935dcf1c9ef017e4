// Choosing between the window, the terminal prompts and no questions.
#include "DialogChoice.h"

#include "TerminalForeground.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "WindowModule.h"

namespace plovix::wizard {

namespace {

// The prompts, holding the terminal while they ask: the manager starts plug-ins in a process group of their
// own, which may not read a terminal that another group holds.
class ForegroundPrompts : public ValueDialog {
 public:
  DialogOutcome collect(const Modulon& modulon, const PluginArguments& arguments,
                        SettingValues& values) override {
    TerminalForeground foreground;
    TerminalPrompts prompts(std::cin, std::cerr);
    return prompts.collect(modulon, arguments, values);
  }
};

bool hasDisplay() {
  const char* x11 = std::getenv("DISPLAY");
  const char* wayland = std::getenv("WAYLAND_DISPLAY");
  return (x11 != nullptr && *x11 != 0) || (wayland != nullptr && *wayland != 0);
}

}  // namespace

ValueDialog* DialogChoice::dialogFor(const PluginArguments& arguments) {
  if (!arguments.assignments.empty()) return nullptr;
  // The window needs a display and the window module (it comes with the Qt front end); without them the
  // terminal is asked.
  if (hasDisplay()) dialog_ = loadWindowDialog();
  if (dialog_ != nullptr) return dialog_.get();
  if (isatty(STDIN_FILENO)) {
    dialog_ = std::make_unique<ForegroundPrompts>();
    return dialog_.get();
  }
  return nullptr;
}

}  // namespace plovix::wizard
