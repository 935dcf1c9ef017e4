// The console front end: boxes and pages in the terminal, for work over ssh.
#pragma once

#include <cstdio>
#include <string>

#include "ui/FrontEnd.h"
#include "ui/FrontEndFactory.h"

namespace plovix {

class ConsoleFrontEnd : public FrontEnd {
 public:
  explicit ConsoleFrontEnd(FrontEndOptions options, std::FILE* in = stdin, std::FILE* out = stdout)
      : options_(std::move(options)), in_(in), out_(out) {}

  void report(const std::string& text) override;
  bool ask(const std::string& text) override;

  int showActionPage(ActionPage& page, PageContext& context) override;
  int showModulonPage(ModulonSelectionPage& page, PageContext& context) override;
  int showBrowserPage(VariationBrowserPage& page, PageContext& context) override;

 protected:
  // Reads one line from the terminal without its line end; false at the end of input.
  bool readLine(std::string& line);
  void printBox(const std::string& text);

  FrontEndOptions options_;
  std::FILE* in_;
  std::FILE* out_;
};

}  // namespace plovix
