// Choosing between the automatic and the drawn symbol, and taking over the drawing instance.
#include "symbol/SymbolBuilder.h"

#include "plovix_host.h"

namespace plovix {

SymbolBuilder::SymbolBuilder(UserInterface& ui, std::string basePath, const CnxDescription& description)
    : ui_(ui), basePath_(std::move(basePath)), description_(description) {}

bool SymbolBuilder::buildSymbol() {
  const std::string fileName = basePath_ + ".sym";
  return description_.defaultSymbolBox ? buildAutomaticSymbol(fileName) : buildDrawnSymbol(fileName);
}

void SymbolBuilder::keepInstance(short made, int errorCode) {
  instance_ = made;
  if (errorCode == 0) return;
  if (instance_ != 0) gio_db_delete_instance(instance_, 0);
  instance_ = 0;
}

}  // namespace plovix
