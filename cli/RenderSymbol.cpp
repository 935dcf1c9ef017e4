// plovix --render-symbol: the SVG picture of a .sym file on standard output.
#include <cstdio>
#include <memory>

#include "Subcommands.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "plovix_host.h"

namespace plovix {

int renderSymbol(UserInterface& ui, const std::string& symPath) {
  char* svg = nullptr;
  int errorNumber = 0, errorLine = 0;
  if (sym_render_svg(symPath.c_str(), &svg, &errorNumber, &errorLine) == 0) {
    if (errorLine > 0)
      ui.report(questions::invalidSymbolFile(symPath, errorLine));
    else
      reportFileErrno(ui, errorNumber, symPath);
    return 1;
  }
  const std::unique_ptr<char, void (*)(char*)> picture(svg, &sym_free_text);
  const std::string text(picture.get());
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return written && std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace plovix
