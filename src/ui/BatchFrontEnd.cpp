// Implementation of the batch front end.
#include "ui/BatchFrontEnd.h"

#include <cstdio>

namespace plovix {

std::string escapeBoxText(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    if (c == '\\') {
      out += "\\\\";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\t') {
      out += "\\t";
    } else {
      out += c;
    }
  }
  return out;
}

void BatchFrontEnd::report(const std::string& text) {
  std::fprintf(stderr, "report: %s\n", escapeBoxText(text).c_str());
  std::fflush(stderr);
}

bool BatchFrontEnd::ask(const std::string& text) {
  std::fprintf(stderr, "question: %s => %s\n", escapeBoxText(text).c_str(),
               options_.answerOk ? "OK" : "Cancel");
  std::fflush(stderr);
  return options_.answerOk;
}

namespace {

int pagesNotBuilt(WizardPageFrame& page) {
  std::fprintf(stderr, "plovix: the wizard pages are not built yet; the run ends here.\n");
  page.result = kPageCancel;
  return kPageCancel;
}

}  // namespace

int BatchFrontEnd::showActionPage(ActionPage& page, PageContext&) {
  return pagesNotBuilt(page);
}
int BatchFrontEnd::showModulonPage(ModulonSelectionPage& page, PageContext&) {
  return pagesNotBuilt(page);
}
int BatchFrontEnd::showBrowserPage(VariationBrowserPage& page, PageContext&) {
  return pagesNotBuilt(page);
}

}  // namespace plovix
