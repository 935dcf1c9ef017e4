// Temporary: the catalog loader is being written; until then every catalog is empty.
#include "catalog/WizardCatalog.h"

namespace plovix {

void WizardCatalog::load(UserInterface&) {}
void WizardCatalog::loadFrom(UserInterface&, const std::string&, const std::string&) {}

}  // namespace plovix
