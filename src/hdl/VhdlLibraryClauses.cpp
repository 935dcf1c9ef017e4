// The VHDL library and use clauses of a variation.
#include "hdl/VhdlFileWriter.h"

#include "base/Format.h"
#include "base/TextHelpers.h"

namespace plovix {

std::string VhdlFileWriter::libraryClausesText() const {
  std::string text;
  bool defaultLibraries = true;
  for (const CnxLibrary& library : description_.libraries) {
    if (library.name == kNoDefaultLibrary) {
      defaultLibraries = false;
      continue;
    }
    std::string rest = library.use.str();
    std::string useLines;
    while (!rest.empty()) {
      const std::string piece = splitFirstToken(rest, ";");
      if (!piece.empty()) appendFormatted(useLines, "USE %s;\n", trimText(piece).c_str());
    }
    appendFormatted(text, "\nLIBRARY %s;\n%s", library.name.c_str(), useLines.c_str());
  }
  if (defaultLibraries) text = "LIBRARY ieee;\nUSE ieee.std_logic_1164.all;\n" + text;
  return text;
}

}  // namespace plovix
