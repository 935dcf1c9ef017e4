// The variation's graphic symbol, generated from the ports or drawn from the description's symbol elements.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

namespace plovix {

class SymbolBuilder {
 public:
  // `basePath` is the output directory followed by the variation's base name; the symbol is basePath + ".sym".
  SymbolBuilder(UserInterface& ui, std::string basePath, const CnxDescription& description);

  // Builds the symbol through the drawing library and writes it; true when it was written.
  bool buildSymbol();

 private:
  UserInterface& ui_;
  std::string basePath_;
  const CnxDescription& description_;
};

}  // namespace plovix
