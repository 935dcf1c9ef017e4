// The batch front end: boxes become one line each on standard error, pages are filled from the options.
#pragma once

#include <set>
#include <string>

#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

// The text of a box on one line: "\" as "\\", line feed as "\n", tab as "\t".
std::string escapeBoxText(const std::string& text);

class BatchFrontEnd : public FrontEnd {
 public:
  explicit BatchFrontEnd(FrontEndOptions options) : options_(std::move(options)) {}

  void report(const std::string& text) override;
  bool ask(const std::string& text) override;

  PageResult showActionPage(ActionPage& page, PageContext& context) override;
  PageResult showModulonPage(ModulonSelectionPage& page, PageContext& context) override;
  PageResult showBrowserPage(VariationBrowserPage& page, PageContext& context) override;

 private:
  // A page shown again (the plug-in went back, or could not be started) would be filled the same way and
  // lead to the same place; it ends with Cancel instead, so that a batch run never loops.
  bool shownBefore(const WizardPageFrame& page);

  FrontEndOptions options_;
  std::set<const WizardPageFrame*> shown_;
};

}  // namespace plovix
