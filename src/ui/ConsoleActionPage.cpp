// The action page in the terminal: two numbered choices, Next and Cancel.
#include "base/Format.h"
#include "pages/PageTexts.h"
#include "ui/ConsoleFrontEnd.h"
#include "ui/ConsoleTexts.h"

namespace plovix {

PageResult ConsoleFrontEnd::showActionPage(ActionPage& page, PageContext& context) {
  page.open();
  for (;;) {
    printTitle(page.windowTitle(""));
    print(formatText("%s\n\n%s\n", std::string(pagetexts::kActionIntro).c_str(),
                     std::string(pagetexts::kActionQuestion).c_str()));
    print(formatText("  1 (%c) %s\n", page.createChecked ? '*' : ' ',
                     consoleLabel(pagetexts::kCreateChoice).c_str()));
    print(formatText("  2 (%c) %s\n", page.createChecked ? ' ' : '*',
                     consoleLabel(pagetexts::kEditChoice).c_str()));
    print(formatText("%s\n", page.notice.c_str()));
    std::string line;
    if (!prompt(std::string(consoletexts::kActionCommands), line)) break;
    if (line == "1") {
      page.createChecked = true;
    } else if (line == "2") {
      page.createChecked = false;
    } else if (line == "n" || line.empty()) {
      if (page.pressNext(context, std::nullopt)) return page.result;
    } else if (line == "c") {
      break;
    }
  }
  page.pressCancel();
  return page.result;
}

}  // namespace plovix
