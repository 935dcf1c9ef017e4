// Loading the catalog from the host's library paths or from given ones.
#include "base/HostQueries.h"
#include "catalog/CatalogLoader.h"
#include "catalog/WizardCatalog.h"

namespace plovix {

void WizardCatalog::load(UserInterface& ui) {
  loadFrom(ui, libraryPath(true), libraryPath(false));
}

void WizardCatalog::loadFrom(UserInterface& ui, const std::string& userPath, const std::string& hostPath) {
  CatalogLoader loader(*this, ui, platformName());
  loader.load(userPath, hostPath);
}

}  // namespace plovix
