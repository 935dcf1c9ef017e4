// Temporary: the symbol builder is being written; until then no symbol is made.
#include "symbol/SymbolBuilder.h"

namespace plovix {

SymbolBuilder::SymbolBuilder(UserInterface& ui, std::string basePath, const CnxDescription& description)
    : ui_(ui), basePath_(std::move(basePath)), description_(description) {}

bool SymbolBuilder::buildSymbol() {
  ui_.report("Writing symbols is not built yet.");
  return false;
}

}  // namespace plovix
