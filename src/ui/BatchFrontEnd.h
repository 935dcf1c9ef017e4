// The batch front end: boxes become one line each on standard error, pages are filled from the options.
#pragma once

#include <string>

#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

// The text of a box on one line: "\" as "\\", line feed as "\n", tab as "\t".
std::string escapeBoxText(const std::string& text);

// The language button of a PLOVIX_LANGUAGE / --language value (0 THDL, 1 VHDL, 2 Verilog HDL); -1 for none.
int batchLanguageIndex(const std::string& language);

class BatchFrontEnd : public FrontEnd {
 public:
  explicit BatchFrontEnd(FrontEndOptions options) : options_(std::move(options)) {}

  void report(const std::string& text) override;
  bool ask(const std::string& text) override;

  int showActionPage(ActionPage& page, PageContext& context) override;
  int showModulonPage(ModulonSelectionPage& page, PageContext& context) override;
  int showBrowserPage(VariationBrowserPage& page, PageContext& context) override;

 private:
  FrontEndOptions options_;
};

}  // namespace plovix
