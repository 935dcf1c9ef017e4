// Implementation of the console front end's boxes.
#include "ui/ConsoleFrontEnd.h"

#include "base/ErrorTable.h"
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

namespace {

int pagesNotBuilt(std::FILE* out, WizardPageFrame& page) {
  std::fprintf(out, "plovix: the wizard pages are not built yet; the run ends here.\n");
  page.result = kPageCancel;
  return kPageCancel;
}

}  // namespace

int ConsoleFrontEnd::showActionPage(ActionPage& page, PageContext&) {
  return pagesNotBuilt(out_, page);
}
int ConsoleFrontEnd::showModulonPage(ModulonSelectionPage& page, PageContext&) {
  return pagesNotBuilt(out_, page);
}
int ConsoleFrontEnd::showBrowserPage(VariationBrowserPage& page, PageContext&) {
  return pagesNotBuilt(out_, page);
}

}  // namespace plovix
