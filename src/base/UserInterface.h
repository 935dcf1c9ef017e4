// The interface through which the core shows message boxes and keeps the user interface alive.
#pragma once

#include <string>

namespace plovix {

// Every box has the caption "Plovix Plug-In Manager" and an exclamation icon; a report has OK, a question
// OK and Cancel, and only OK counts as yes. Implementations: batch, console and Qt.
class UserInterface {
 public:
  virtual ~UserInterface() = default;

  // Shows a message with an OK button and returns when it was dismissed.
  virtual void report(const std::string& text) = 0;

  // Asks a question with OK and Cancel; true for OK.
  virtual bool ask(const std::string& text) = 0;

  // Asks a question whose OK lets a wizard replace `path`, a file that no wizard generated (a hand-written
  // design file). Interactive front ends ask it like any question; batch answers Cancel unless forced.
  virtual bool askToReplaceUserFile(const std::string& text, const std::string& path) {
    static_cast<void>(path);
    return ask(text);
  }

  // Handles pending user-interface events while a plug-in runs; false when the user quits the application.
  virtual bool processEvents() { return true; }
};

}  // namespace plovix
