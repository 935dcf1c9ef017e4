// Which way the plug-in asks: no questions when NAME=VALUE pairs were given, a window when a display is
// there, prompts on a terminal, else none.
#pragma once

#include <memory>

#include "TerminalPrompts.h"
#include "WizardRun.h"

namespace plovix::wizard {

class DialogChoice : public DialogChooser {
 public:
  ValueDialog* dialogFor(const PluginArguments& arguments) override;

 private:
  std::unique_ptr<ValueDialog> dialog_;
};

}  // namespace plovix::wizard
